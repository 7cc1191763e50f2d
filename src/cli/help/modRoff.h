#pragma once

#include <QString>

// Manual pages in the macro language of man(7).
namespace modRoff {

// Text of a line: what would be read as a request or an escape is made harmless, and line breaks separate paragraphs.
[[nodiscard]] QString Text(const QString& text);

[[nodiscard]] QString Section(const QString& title);                         // .SH
[[nodiscard]] QString Subsection(const QString& title);                      // .SS
[[nodiscard]] QString Item(const QString& label, const QString& text);       // .TP with a bold label
[[nodiscard]] QString Title(const QString& program, const QString& version); // .TH

} // namespace modRoff
