#pragma once

#include <QDate>
#include <QString>

class cBookLock;
class cShell;
class cUser;

// Books as files for a program that shows no windows: looking into them, and putting another one in their place.
namespace modBookCopy {

// "120 Einträge, der letzte vom 12.03.2026, Datei vom 13.03.2026 18:05"; empty for what is damaged or no book.
[[nodiscard]] QString Describe(const QString& path);

// Why it may not take the place of a book, in words for the user; empty when it may.
[[nodiscard]] QString Refusal(const QString& backup);

[[nodiscard]] bool IsSameFile(const QString& one, const QString& other);

// That another program has the book, who, and what to do about it.
[[nodiscard]] QString InUse(const cBookLock& lock, const QString& path);

struct cRestored
{
    QString Kept;       // where the former file lies now; empty when there was none
    QString Problem;    // in words for the user; empty when the backup is in place
    QString Receipts{}; // why receipts that lie beside the backup could not be brought back, in words for the user
};

// Puts a copy of `backup` in the place of the book's file `path`, which is kept beside it. Refused while another
// program has the book.
[[nodiscard]] cRestored Restore(const QString& path, const QString& backup, QDate today, cShell& shell, cBookLock& lock,
                                cUser& user);

// Copies the template to `path` and fills it with the example household, a larger one where a number of `entries` is
// given. The number of entries written; -1 when that fails, and the user has been told.
[[nodiscard]] int WriteDemo(const QString& path, int entries, QDate today, cShell& shell, cUser& user,
                            const QString& version);

} // namespace modBookCopy
