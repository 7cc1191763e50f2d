#pragma once

#include <QByteArray>
#include <QString>

// Message digest 5 (RFC 1321).
namespace modMD5 {

// The digest of the text's UTF-8 bytes as 32 lower-case hexadecimal digits.
[[nodiscard]] QString Hex(const QString& text);

// The same of bytes as they are.
[[nodiscard]] QString HexOfBytes(const QByteArray& bytes);

} // namespace modMD5
