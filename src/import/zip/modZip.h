#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

// Zip archives in memory. What comes out is limited, because a small archive can hold an endless file.
namespace modZip {

constexpr int mostFiles = 2000;
constexpr qint64 largestFile = qint64{256} * 1024 * 1024; // bytes of one unpacked file

// True when the bytes begin like an archive.
[[nodiscard]] bool IsZip(const QByteArray& bytes);

// The names of the files in the archive, in their order, folders left out; at most mostFiles of them. Empty when it
// cannot be read.
[[nodiscard]] QStringList Names(const QByteArray& zip);

// A file of the archive; empty optional when it is missing, damaged, encrypted or larger than `limit` bytes.
[[nodiscard]] std::optional<QByteArray> Read(const QByteArray& zip, const QString& name, qint64 limit = largestFile);

} // namespace modZip
