#pragma once

#include <QString>

class QWidget;

// What an empty list says in its middle.
namespace modEmptyText {

// Paints a headline and, smaller below it, what the user can do. Called from within the widget's paint event.
void Paint(QWidget& widget, const QString& title, const QString& hint);

} // namespace modEmptyText
