#pragma once

#include <QColor>

class QLineEdit;

// The mark of a field whose text cannot be understood: light red with dark text, in light and dark themes alike.
namespace modBadField {

// The background; the text on it is black.
[[nodiscard]] QColor Color();

// Colours the field until its text is edited or Clear is called.
void Mark(QLineEdit& edit);

void Clear(QLineEdit& edit);

[[nodiscard]] bool IsMarked(const QLineEdit& edit);

} // namespace modBadField
