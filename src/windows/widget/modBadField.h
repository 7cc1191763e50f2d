#pragma once

#include <QColor>
#include <QString>

class QComboBox;
class QLineEdit;
class QWidget;

// The mark of a field whose text cannot be understood: light red with dark text, in light and dark themes alike.
namespace modBadField {

// The background; the text on it is black.
[[nodiscard]] QColor Color();

// Colours the field until its text is edited or Clear is called. What is said is shown below it for a moment.
void Mark(QLineEdit& edit, const QString& why = {});

// The same for a field to choose from, until something is chosen.
void Mark(QComboBox& box);

void Clear(QLineEdit& edit);

[[nodiscard]] bool IsMarked(const QWidget& field);

} // namespace modBadField
