#pragma once

#include "model/cImportEntry.h"

#include <QString>

// Rows of another household book rather than of a bank. What such a book says about them stands in their booking text:
// "Kategorie: Auto; Benzin", "Umbuchung: Sparkonto; Kategorie: Geldanlage; Sparen; Bezahlt von: Anna".
namespace modBookRow {

// The path of an entry for "Auto:Benzin", as other programs write it. The book knows two levels, so further ones go
// into the second.
[[nodiscard]] QString PathOf(const QString& category);

[[nodiscard]] QString CategoryText(const QString& path);

// A transfer: the name of the other account goes where banks have its number. The path may be empty.
void MakeTransfer(cImportEntry& row, const QString& other, const QString& path);

// Behind all else; nothing for an empty name.
void AddPayer(cImportEntry& row, const QString& name);
[[nodiscard]] QString PayerOf(const cImportEntry& row);

[[nodiscard]] bool IsBook(const cImportEntry& row);
[[nodiscard]] bool IsTransfer(const cImportEntry& row);

// As a bank would have it, for what looks for words.
[[nodiscard]] cImportEntry Bare(cImportEntry row);

// Empty where the row says nothing of a category.
[[nodiscard]] QString CategoryOf(const cImportEntry& row);

} // namespace modBookRow
