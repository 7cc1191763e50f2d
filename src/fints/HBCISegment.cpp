#include "fints/HBCISegment.h"

#include "base/cSecret.h"
#include "fints/cShield.h"
#include "fints/modFintsSplit.h"
#include "fints/modSegmentTable.h"

#include <QStringList>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// Return messages are a list: entries without labels, with "; " between them.
bool IsList(const modSegmentTable::cRow& row)
{
    return row.Elements[1].Name == nullptr && qstrcmp(row.Elements[0].Name, "Entry") == 0;
}

} // namespace

HBCISegment::HBCISegment(QByteArray code, int number, int version, QList<QByteArray> elements)
    : m_code(std::move(code)),
      m_number(number),
      m_version(version),
      m_elements(std::move(elements))
{
}

HBCISegment::HBCISegment(QByteArrayView head, QList<QByteArray> elements) : m_elements(std::move(elements))
{
    const QList<QByteArrayView> parts = modFintsSplit::Split(head.trimmed(), ':');
    m_code = parts[0].toByteArray();
    m_number = parts.value(1).toInt();
    m_version = parts.value(2).toInt();
    m_reference = parts.value(3).toInt();
}

HBCISegment HBCISegment::Read(QByteArrayView wire)
{
    const cShield shield(wire);
    const QList<QByteArrayView> tokens = modFintsSplit::Split(shield.Text(), '+');
    QList<QByteArray> elements;
    for (const QByteArrayView token : tokens.sliced(1)) {
        elements.append(shield.Wire(token).toByteArray());
    }
    return {tokens[0], elements};
}

QByteArray HBCISegment::Element(int place) const
{
    return m_elements.value(place - 1);
}

void HBCISegment::SetElement(int place, const QByteArray& wire)
{
    while (m_elements.size() < place) {
        m_elements.append(QByteArray());
    }
    m_elements[place - 1] = wire;
}

void HBCISegment::Wipe()
{
    for (QByteArray& element : m_elements) {
        cSecret::Wipe(element);
    }
}

QByteArray HBCISegment::toString() const
{
    qsizetype count = m_elements.size();
    while (count > 0 && m_elements[count - 1].isEmpty()) {
        --count;
    }
    QByteArray text = m_code + ':' + QByteArray::number(m_number) + ':' + QByteArray::number(m_version);
    if (m_reference > 0) {
        text += ':' + QByteArray::number(m_reference);
    }
    qsizetype size = text.size();
    for (qsizetype i = 0; i < count; ++i) {
        size += 1 + m_elements[i].size();
    }
    text.reserve(size); // an element may hold the PIN, which a growing copy would leave behind
    for (qsizetype i = 0; i < count; ++i) {
        text.append('+').append(m_elements[i]);
    }
    return text;
}

QString HBCISegment::DebugDescription() const
{
    if (m_code.isEmpty()) {
        return u"Empty Segment.toString()"_s;
    }
    const modSegmentTable::cRow* const row = modSegmentTable::Find(m_code, m_version);
    if (row == nullptr) {
        return u"Unknown Segment.toString() => "_s + QString::fromLatin1(m_code);
    }
    QString text = QString::fromLatin1(row->Title);
    if (IsList(*row)) {
        QStringList entries;
        for (const QByteArray& element : m_elements) {
            entries.append(QString::fromLatin1(element));
        }
        return text + entries.join(u"; ");
    }
    for (int place = 1; place <= modSegmentTable::mostElements; ++place) {
        const char* const label = row->Elements.at(static_cast<std::size_t>(place - 1)).Label;
        if (label != nullptr) {
            text += QLatin1StringView(label) + QString::fromLatin1(modFintsSplit::Data(Element(place)));
        }
    }
    return text;
}
