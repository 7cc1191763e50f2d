#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

// What a start of the program was asked to do. A second start hands it over to the running window.
struct cStartRequest
{
    QString Book{};           // database to open; empty: the usual one
    QStringList Statements{}; // files to read, with full paths
    bool IsImport = false;    // lets the user choose statements
    bool IsNewEntry = false;
    QByteArray Activation{}; // what lets the window come to the front, as the desktop gave it; may be empty

    bool operator==(const cStartRequest&) const = default;

    [[nodiscard]] bool HasWork() const { return !Statements.isEmpty() || IsImport || IsNewEntry; }

    // One line of bytes and back. Empty for bytes that are none.
    [[nodiscard]] QByteArray ToLine() const;
    [[nodiscard]] static std::optional<cStartRequest> FromLine(const QByteArray& line);

    // Puts the files of a command line where they belong: a database is a book, all else is read as a statement, and
    // whoever reads it says when it is none. A file that was never a database is so never taken for a damaged one.
    // Returns what is wrong in German, nothing is taken then; empty when all is well.
    [[nodiscard]] QString TakeFiles(const QStringList& files);

    // True for what begins like a database, or has nothing in it and the name of one.
    [[nodiscard]] static bool IsBook(const QString& path);

    // True for what begins like a database: a book, a safety copy, or that of another program.
    [[nodiscard]] static bool IsDatabase(const QString& path);
};
