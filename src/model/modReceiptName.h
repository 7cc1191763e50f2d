#pragma once

#include <QString>
#include <QStringList>

struct cEntryItem;

// The receipts of an entry: names of files in one folder, kept as a mark in the entry's flags.
namespace modReceiptName {

inline const QString Mark = QStringLiteral("beleg"); // the key in the flags

// The names in their order. A name that would lead out of the folder is left out: a book may come from anybody.
[[nodiscard]] QStringList Of(const cEntryItem& entry);

[[nodiscard]] int Count(const cEntryItem& entry); // the same, without making the names

// The entry carries these names and no others; none takes the mark off.
void Set(cEntryItem& entry, const QStringList& names);

// The same list as a text of one line, for a place other than an entry; what is not safe is left out as well.
[[nodiscard]] QStringList Read(const QString& text);
[[nodiscard]] QString Write(const QStringList& names);

// Whether it is a plain name of a file, on whatever system the folder may come to lie.
[[nodiscard]] bool IsSafe(const QString& name);

// How the names of an entry's receipts begin: "2026-11-22 Wocheneinkauf". Signs that a file system might refuse are
// blanks in it, and it is short enough for all of them.
[[nodiscard]] QString Stem(const cEntryItem& entry);
[[nodiscard]] QString Stem(const QString& day, const QString& words); // the same of a day or a month

} // namespace modReceiptName
