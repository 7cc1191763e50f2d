#include "import/read/modStatementText.h"

#include "base/modChar.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace {

// Windows-1252 differs from Latin-1 in 0x80 to 0x9F; the five bytes that it leaves open stay control characters.
constexpr std::array<char16_t, 32> windowsPart = {
    u'\u20AC', 0x81,      u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x8D,      u'\u017D', 0x8F,
    0x90,      u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0x9D,      u'\u017E', u'\u0178',
};

QString FromWindows(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0) {
            c = QChar(windowsPart.at(c.unicode() - 0x80U));
        }
    }
    return text;
}

// The byte of a character in Windows-1252; empty when it has none.
std::optional<char> ToWindows(QChar c)
{
    const char16_t code = c.unicode();
    if (code < 0x80 || (code >= 0xA0 && code < 0x100)) {
        return static_cast<char>(static_cast<unsigned char>(code));
    }
    const auto* const found = std::find(windowsPart.begin(), windowsPart.end(), code);
    if (found == windowsPart.end()) {
        return std::nullopt;
    }
    return static_cast<char>(static_cast<unsigned char>(0x80 + (found - windowsPart.begin())));
}

// Empty optional when the bytes are not the encoding throughout.
std::optional<QString> Strict(const QByteArray& bytes, QStringConverter::Encoding encoding)
{
    QStringDecoder decoder(encoding);
    QString text = decoder.decode(bytes);
    if (decoder.hasError()) {
        return std::nullopt;
    }
    // A sequence cut off by the end of the bytes only shows when the decoder is asked once more.
    const QString rest = decoder.decode(QByteArrayView("\n", 1));
    if (decoder.hasError() || rest != QStringLiteral("\n")) {
        return std::nullopt;
    }
    return text;
}

// A file that was cut off within a character is still UTF-8, as far as others before it say so.
std::optional<QString> Utf8(const QByteArray& bytes)
{
    const auto byte = [&](qsizetype back) { return static_cast<unsigned char>(bytes.at(bytes.size() - back)); };
    if (std::optional<QString> text = Strict(bytes, QStringConverter::Utf8)) {
        return text;
    }
    qsizetype begun = 1; // bytes of the last character
    while (begun < qMin<qsizetype>(3, bytes.size()) && byte(begun) >= 0x80 && byte(begun) < 0xC0) {
        ++begun;
    }
    if (begun > bytes.size() || byte(begun) < 0xC2 || byte(begun) > 0xF4) {
        return std::nullopt;
    }
    const std::optional<QString> text = Strict(bytes.chopped(begun), QStringConverter::Utf8);
    return text && !modChar::AreAscii(*text) ? std::optional(*text + QChar::ReplacementCharacter) : std::nullopt;
}

// The upper half of code page 850, which older programs still write.
constexpr QStringView dosPart =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´"
    u"\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
static_assert(dosPart.size() == 128);

QString FromDos(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (c.unicode() >= 0x80 && c.unicode() < 0x100) {
            c = dosPart[c.unicode() - 0x80];
        }
    }
    return text;
}

QString DecodeAs(const QByteArray& bytes, QStringConverter::Encoding encoding)
{
    QStringDecoder decoder(encoding);
    return decoder.decode(bytes);
}

QString DecodeBytes(const QByteArray& bytes)
{
    if (const auto marked = QStringConverter::encodingForData(bytes);
        marked && (*marked == QStringConverter::Utf16LE || *marked == QStringConverter::Utf16BE)) {
        return DecodeAs(bytes, *marked);
    }
    const QByteArray content = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
    if (const std::optional<QString> text = Utf8(content)) {
        return *text;
    }
    return FromWindows(content);
}

// The database ends a text at its first NUL; what is staged must be what is read back. Old computers ended lines with a
// carriage return alone, which no reader looks for.
QString Ready(QString text)
{
    text.remove(QChar::Null);
    return text.contains(u'\n') ? text : text.replace(u'\r', u'\n');
}

} // namespace

QString modStatementText::Decode(const QByteArray& bytes)
{
    return Ready(DecodeBytes(bytes));
}

QString modStatementText::Decode(const QByteArray& bytes, eCharset charset)
{
    QString text;
    switch (charset) {
    case eCharset::Detect: return Decode(bytes);
    case eCharset::Utf8: text = DecodeAs(bytes, QStringConverter::Utf8); break;
    case eCharset::Windows1252: text = FromWindows(bytes); break;
    case eCharset::Cp850: text = FromDos(bytes); break;
    case eCharset::Utf16LE: text = DecodeAs(bytes, QStringConverter::Utf16LE); break;
    case eCharset::Utf16BE: text = DecodeAs(bytes, QStringConverter::Utf16BE); break;
    }
    return Ready(std::move(text));
}

eCharset modStatementText::CharsetOf(const QByteArray& bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    if (marked == QStringConverter::Utf16LE) {
        return eCharset::Utf16LE;
    }
    if (marked == QStringConverter::Utf16BE) {
        return eCharset::Utf16BE;
    }
    return Utf8(bytes) ? eCharset::Utf8 : eCharset::Windows1252;
}

QString modStatementText::DecodeField(const QString& text)
{
    if (modChar::AreAscii(text)) {
        return text;
    }
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const std::optional<char> byte = ToWindows(c);
        if (!byte) {
            return text;
        }
        bytes.append(*byte);
    }
    return Strict(bytes, QStringConverter::Utf8).value_or(text);
}

bool modStatementText::HasMark(QStringView text, QStringView mark)
{
    // The toolkit finds one character many times faster than a text.
    for (qsizetype at = text.indexOf(mark.front()); at >= 0; at = text.indexOf(mark.front(), at + 1)) {
        if (text.sliced(at).startsWith(mark)) {
            return true;
        }
    }
    return false;
}

bool modStatementText::IsBinary(const QByteArray& bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    return !marked && bytes.left(4096).contains('\0');
}
