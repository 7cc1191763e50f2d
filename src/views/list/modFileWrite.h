#pragma once

#include <QByteArray>
#include <QString>

// Files written as a whole.
namespace modFileWrite {

// Replaces the file once all bytes are on the disk; what stood there before stays when that fails. What went wrong,
// empty when the file is complete.
[[nodiscard]] QString Replace(const QString& path, const QByteArray& bytes);

} // namespace modFileWrite
