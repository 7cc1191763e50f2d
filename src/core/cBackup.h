#pragma once

#include <QDate>
#include <QString>

class cDatabase;
class cShell;

// Copies of a book and the way back. A copy is made under another name, looked at, and only then takes the name it was
// meant for, so that a copy that went wrong never takes the place of a good one.
class cBackup
{
public:
    cBackup(cDatabase& book, cShell& shell) : m_book(book), m_shell(shell) {}

    // Writes a copy of the open book to `target`, which may exist; the folder is made when missing. Only the user can
    // read the copy. Gives what went wrong, in words for the user; empty when the copy is there.
    [[nodiscard]] QString Make(const QString& target);

    struct cRestored
    {
        QString Kept;    // where the former file lies now; empty when there was none
        QString Problem; // in words for the user; empty when the backup is in place
    };

    // Puts a copy of `backup` in the place of the book's file `path`, which is kept beside it. The book is closed, when
    // it is open, only after the copy turned out good. Opening it again is up to the caller.
    [[nodiscard]] cRestored Restore(const QString& path, const QString& backup, QDate today);

    // Takes a replacement back: the closed file `path` goes, and the kept one, if any, has its name again. False on
    // failure.
    [[nodiscard]] bool PutBack(const QString& path, const QString& kept);

    // Whether two paths lead to the same file.
    [[nodiscard]] static bool IsSameFile(const QString& one, const QString& other);

    // Where the program's own copies of a book lie unless the user chose another folder.
    [[nodiscard]] static QString OwnFolder(const QString& book);
    // A few letters that tell books of one name from several places apart, the same for every link to the file.
    [[nodiscard]] static QString PlaceMark(const QString& book);

private:
    [[nodiscard]] QString TryMake(const QString& target);
    [[nodiscard]] cRestored TryRestore(const QString& path, const QString& backup, QDate today);
    [[nodiscard]] QString MakeChecked(cDatabase& source, const QString& copy);

    cDatabase& m_book;
    cShell& m_shell;
};
