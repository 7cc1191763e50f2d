#include "import/sheet/cXlsText.h"

namespace {

constexpr quint32 wideFlag = 1;
constexpr quint32 soundFlag = 4; // how the text is pronounced stands behind it
constexpr quint32 runsFlag = 8;  // and so does the format of its pieces

} // namespace

std::optional<QString> cXlsText::Read(int lengthSize)
{
    GoOn();
    const quint32 length = Number(lengthSize);
    quint32 flags = Number(1);
    const qsizetype runs = (flags & runsFlag) != 0 ? qsizetype{Number(2)} * 4 : 0;
    const qsizetype sound = (flags & soundFlag) != 0 ? qsizetype{Number(4)} : 0;
    QString text;
    for (quint32 i = 0; i < length; ++i) {
        if (const qsizetype part = m_part; !IsAtEnd() && m_at >= m_parts.at(part).size()) {
            GoOn();
            flags = Number(1); // a continued text says again how wide its letters are
        }
        if (IsAtEnd()) {
            return std::nullopt;
        }
        text.append(QChar(static_cast<char16_t>(Number((flags & wideFlag) != 0 ? 2 : 1))));
    }
    Skip(runs + sound);
    return text;
}

quint32 cXlsText::Number(int size)
{
    quint32 number = 0;
    for (int i = 0; i < size; ++i) {
        number |= static_cast<quint32>(Byte()) << (8 * i);
    }
    return number;
}

void cXlsText::Skip(qsizetype count)
{
    while (count > 0 && !IsAtEnd()) {
        const qsizetype step = qMin(count, m_parts.at(m_part).size() - m_at);
        m_at += step;
        count -= step;
        if (count > 0) {
            GoOn();
        }
    }
}

uchar cXlsText::Byte()
{
    GoOn();
    return IsAtEnd() ? uchar{0} : static_cast<uchar>(m_parts.at(m_part).at(m_at++));
}

// Goes to the next record when this one is read to its end.
void cXlsText::GoOn()
{
    while (!IsAtEnd() && m_at >= m_parts.at(m_part).size()) {
        ++m_part;
        m_at = 0;
    }
}
