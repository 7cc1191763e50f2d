#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

enum class eCharset { Detect, Utf8, Windows1252, Cp850, Utf16LE, Utf16BE };

// The bytes of a statement file as text.
namespace modStatementText {

// Byte order mark (UTF-8, UTF-16), else strict UTF-8, else Windows-1252. Any bytes give some text.
[[nodiscard]] QString Decode(const QByteArray& bytes);

// The same with a character set that the user chose.
[[nodiscard]] QString Decode(const QByteArray& bytes, eCharset charset);

// The character set that Decode takes when it is not told one.
[[nodiscard]] eCharset CharsetOf(const QByteArray& bytes);

// Repairs a single field: letters that a bank wrote as UTF-8 into a file that as a whole is not UTF-8. All other texts
// come back unchanged.
[[nodiscard]] QString DecodeField(const QString& text);

// Whether the mark, which is not empty, stands anywhere in the text. Quick where its first character is rare there.
[[nodiscard]] bool HasMark(QStringView text, QStringView mark);

// True when the bytes are no text at all (a picture, a program, a packed file).
[[nodiscard]] bool IsBinary(const QByteArray& bytes);

} // namespace modStatementText
