#pragma once

#include <QString>

class QWidget;

// What an empty list says in its middle.
namespace modEmptyText {

// Paints a headline and, smaller below it, what the user can do. Called from within the widget's paint event. A list
// whose viewport it is has both as its description for screen readers until it gets rows.
void Paint(QWidget& widget, const QString& title, const QString& hint);

} // namespace modEmptyText
