#pragma once

#include <QString>

struct cImportEntry;

// Texts that an MT940 statement cut into pieces of 27 characters. Its reader joins the pieces by blanks, which tear
// words apart: "Lindner & Sö hne". The stored text stays as it is, because the duplicate test compares it; what people
// read and what rules look at is closed again, as far as it is certain that a blank was none.
namespace modCutText {

// The name of a counterparty. A blank goes that stands after exactly 27 characters before a small letter or a
// punctuation mark, unless the two halves may well be two words. All other texts come back unchanged.
[[nodiscard]] QString Name(const QString& name);

// The same for a purpose. Its first piece has 22 characters where the reader took "SVWZ+" off it, and each keyword
// begins a new one.
[[nodiscard]] QString Purpose(const QString& purpose);

// The row with both of these texts closed: what rules look at. Not to be stored, or the row would not be known again.
[[nodiscard]] cImportEntry WholeWords(const cImportEntry& row);

} // namespace modCutText
