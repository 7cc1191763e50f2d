#include "fints/modFlickerCode.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostElements = 3;
constexpr int hasControlBytes = 0x80; // in the length of the start code
constexpr int isText14 = 0x40;        // in a length of edition 1.4
constexpr int isText13 = 0x10;        // in a length of edition 1.3
constexpr int longest14 = 0x3F;       // bytes that a length of edition 1.4 has room for
constexpr int longest13 = 0x0F;
constexpr int halfBits = 4;
constexpr int halfMask = 0x0F;

bool AreDigits(QByteArrayView data)
{
    return std::all_of(data.begin(), data.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsPrintable(QByteArrayView data)
{
    return std::all_of(data.begin(), data.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

bool AreHexDigits(QByteArrayView data)
{
    return std::all_of(data.begin(), data.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
    });
}

// Takes a code off from its front. Once something is missing, everything that follows is missing too.
class cCodeReader
{
public:
    explicit cCodeReader(QByteArrayView code) : m_rest(code) {}

    [[nodiscard]] bool IsAtEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] bool IsSound() const { return m_isSound; }
    [[nodiscard]] qsizetype Left() const { return m_rest.size(); }

    QByteArray Take(qsizetype count)
    {
        if (count > m_rest.size()) {
            Fail();
            return {};
        }
        const QByteArray taken = m_rest.first(count).toByteArray();
        m_rest = m_rest.sliced(count);
        return taken;
    }

    // A number of so many digits; 0 when there is none.
    int Number(int digits)
    {
        const QByteArray text = Take(digits);
        m_isSound = m_isSound && AreDigits(text);
        return m_isSound ? text.toInt() : 0;
    }

    int HexByte()
    {
        const QByteArray text = Take(2);
        m_isSound = m_isSound && AreHexDigits(text);
        return m_isSound ? text.toInt(nullptr, 16) : 0;
    }

    void Fail()
    {
        m_isSound = false;
        m_rest = {};
    }

private:
    QByteArrayView m_rest;
    bool m_isSound = true;
};

// An element of so many characters. What is no number is text, whether or not its length says so.
cFlickerCode::cElement TakeElement(cCodeReader& reader, int length, bool isText)
{
    cFlickerCode::cElement element{reader.Take(length), isText};
    element.IsText = isText || !AreDigits(element.Data);
    if (!IsPrintable(element.Data)) {
        reader.Fail();
    }
    return element;
}

// Each control byte says whether one more follows.
QByteArray TakeControlBytes(cCodeReader& reader)
{
    QByteArray bytes;
    int byte = hasControlBytes;
    while ((byte & hasControlBytes) != 0 && reader.IsSound()) {
        byte = reader.HexByte();
        bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

// The length is written in hexadecimal digits with two flags in edition 1.4, in decimal ones before.
void TakeStartCode(cCodeReader& reader, cFlickerCode& code)
{
    const int length = code.Version == eHhd::V14 ? reader.HexByte() : reader.Number(2);
    if (code.Version == eHhd::V14 && (length & hasControlBytes) != 0) {
        code.ControlBytes = TakeControlBytes(reader);
    }
    const bool isText = code.Version == eHhd::V14 && (length & isText14) != 0;
    code.StartCode = TakeElement(reader, code.Version == eHhd::V14 ? length & longest14 : length, isText);
}

// Two digits to a byte; an odd last one is filled up with F.
QByteArray Bytes(const cFlickerCode::cElement& element)
{
    if (element.IsText) {
        return element.Data;
    }
    return QByteArray::fromHex(element.Data.size() % 2 == 0 ? element.Data : element.Data + "F");
}

int LengthByte(const cFlickerCode::cElement& element, eHhd version)
{
    const int flag = version == eHhd::V14 ? isText14 : isText13;
    return static_cast<int>(Bytes(element).size()) | (element.IsText ? flag : 0);
}

bool IsShortEnough(const cFlickerCode::cElement& element, eHhd version)
{
    return Bytes(element).size() <= (version == eHhd::V14 ? longest14 : longest13);
}

QList<int> HalfBytes(const QByteArray& bytes)
{
    QList<int> halves;
    halves.reserve(2 * bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        halves.append(value >> halfBits);
        halves.append(value & halfMask);
    }
    return halves;
}

int SumOfDigits(int number)
{
    return number / 10 + number % 10;
}

// Completes the data to a multiple of ten, every second half byte counted double. The lengths do not count.
int LuhnDigit(const cFlickerCode& code)
{
    QByteArray data = code.ControlBytes + Bytes(code.StartCode);
    for (const cFlickerCode::cElement& element : code.Data) {
        data += Bytes(element);
    }
    int sum = 0;
    int place = 0;
    for (const int half : HalfBytes(data)) {
        sum += place % 2 == 0 ? half : SumOfDigits(2 * half);
        ++place;
    }
    return (10 - sum % 10) % 10;
}

int XorDigit(const QByteArray& bytes)
{
    int digit = 0;
    for (const int half : HalfBytes(bytes)) {
        digit ^= half;
    }
    return digit;
}

} // namespace

QStringList cFlickerCode::Typed() const
{
    QStringList texts{QString::fromLatin1(StartCode.Data)};
    for (const cElement& element : Data) {
        texts.append(QString::fromLatin1(element.Data));
    }
    return texts;
}

std::optional<cFlickerCode> modFlickerCode::Read(QByteArrayView code, eHhd version)
{
    cCodeReader reader(code.trimmed());
    cFlickerCode read{version, {}, {}, {}};
    const int length = reader.Number(version == eHhd::V14 ? 3 : 2);
    if (length != reader.Left()) {
        reader.Fail();
    }
    TakeStartCode(reader, read);
    while (!reader.IsAtEnd() && read.Data.size() < mostElements) {
        const int size = reader.Number(2);
        const bool isText = version == eHhd::V14 && (size & isText14) != 0;
        read.Data.append(TakeElement(reader, version == eHhd::V14 ? size & longest14 : size, isText));
    }
    const bool isWhole = reader.IsSound() && reader.IsAtEnd() && !read.StartCode.Data.isEmpty();
    return isWhole && !Complete(read).isEmpty() ? std::optional(read) : std::nullopt;
}

QByteArray modFlickerCode::Complete(const cFlickerCode& code)
{
    QByteArray bytes;
    const int flag = code.ControlBytes.isEmpty() ? 0 : hasControlBytes;
    bytes.append(static_cast<char>(LengthByte(code.StartCode, code.Version) | flag));
    bytes += code.ControlBytes + Bytes(code.StartCode);
    bool isSound = IsShortEnough(code.StartCode, code.Version);
    for (const cFlickerCode::cElement& element : code.Data) {
        isSound = isSound && IsShortEnough(element, code.Version);
        bytes.append(static_cast<char>(LengthByte(element, code.Version)));
        bytes += Bytes(element);
    }
    constexpr int most = 0xFF;
    const qsizetype length = bytes.size() + 1; // with the check digits
    if (!isSound || length > most) {
        return {};
    }
    bytes.prepend(static_cast<char>(length));
    bytes.append(static_cast<char>(LuhnDigit(code) << halfBits | XorDigit(bytes)));
    return bytes;
}

QByteArray modFlickerCode::States(const QByteArray& complete)
{
    if (complete.isEmpty()) {
        return {};
    }
    const QByteArray sent = QByteArrayLiteral("\x0F\xFF") + complete; // the reader waits for these two
    QByteArray states;
    states.reserve(4 * sent.size());
    for (const char byte : sent) {
        const auto value = static_cast<unsigned char>(byte);
        for (const int half : {value & halfMask, value >> halfBits}) { // the lower half goes first
            states.append(static_cast<char>(half << 1 | 1));
            states.append(static_cast<char>(half << 1));
        }
    }
    return states;
}
