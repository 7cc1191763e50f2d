#include "fints/HBCIMessage.h"

#include "base/cSecret.h"

namespace {

constexpr int sizeDigits = 12;

} // namespace

HBCIMessage::~HBCIMessage()
{
    for (HBCISegment& segment : m_segments) {
        segment.Wipe();
    }
}

QByteArray HBCIMessage::Text() const
{
    QList<QByteArray> texts;
    qsizetype size = 0;
    for (const HBCISegment& segment : m_segments) {
        texts.append(segment.toString());
        size += texts.last().size() + 1;
    }
    if (!m_segments.isEmpty() && m_segments[0].Code() == "HNHBK") {
        HBCISegment head = m_segments[0];
        head.SetElement(1, QByteArray::number(size).rightJustified(sizeDigits, '0'));
        texts[0] = head.toString();
    }
    QByteArray text;
    text.reserve(size);
    for (QByteArray& part : texts) {
        text.append(part).append('\'');
        cSecret::Wipe(part);
    }
    return text;
}
