#pragma once

#include <QString>

class QLabel;
class QWidget;

// What the windows of online banking begin with.
namespace modBankHead {

// The bank in bold type, with a line below it.
[[nodiscard]] QWidget* Make(const QString& bank, const QString& line, QWidget* parent);

// A paragraph of at least so many letters in width that shows a text as it is, also one that looks like markup.
[[nodiscard]] QLabel* Text(const QString& text, QWidget* parent, int columns = 60);

} // namespace modBankHead
