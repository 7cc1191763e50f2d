#pragma once

#include <QByteArray>
#include <QString>

class cDataAccess;

// Files written as a whole.
namespace modFileWrite {

// Replaces the file once all bytes are on the disk; what stood there before stays when that fails, also when the
// program is killed. Refuses what is no regular file or belongs to a database. What went wrong, in German; empty when
// the file is complete.
[[nodiscard]] QString Replace(const QString& path, const QByteArray& bytes);

// The same for what was made from a book: not as long as that could not be read whole, for the file would lack
// something. The whole message, empty when the file is complete. No bytes at all: they could not be put together.
[[nodiscard]] QString Export(const cDataAccess& book, const QString& path, const QByteArray& bytes);

// What a file is to hold, or why that could not be put together; without both as above.
struct cContent
{
    QByteArray Bytes;
    QString Fault{};
};
[[nodiscard]] QString Export(const cDataAccess& book, const QString& path, const cContent& content);

// A title as the name of a file, without ending: what would be a folder, or looks like an ending, becomes "-".
[[nodiscard]] QString NameOf(const QString& title);

// That message with another reason.
[[nodiscard]] QString Failed(const QString& path, const QString& reason);

} // namespace modFileWrite
