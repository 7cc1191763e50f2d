#pragma once

#include <QByteArray>
#include <QString>

// Statement files on the disk.
namespace modStatementFile {

// The bytes of a file, or the reason in German why there are none.
struct cContent
{
    QByteArray Bytes;
    QString Failure;
};

[[nodiscard]] cContent Read(const QString& path);

// Why a file with one endless line, tag or cell is not read; empty for all others. Read has looked already.
[[nodiscard]] QString Overlong(const QByteArray& bytes);

// What the user is told where neither the file nor the user names the account.
[[nodiscard]] QString NoAccount();
// When the rows contradict the one that is remembered.
[[nodiscard]] QString OtherAccount(const QString& number);
// What the user is told where nothing but the contents told the columns of a table, and nobody was asked.
[[nodiscard]] QString GuessedColumns();
// What the user is told of a last booking that is not taken because the end of the file is missing, or may be.
[[nodiscard]] QString CutOff(const QString& row, bool isCertain);
// What the user is told where a table does not tell which way its amounts count.
[[nodiscard]] QString OpenSign();

} // namespace modStatementFile
