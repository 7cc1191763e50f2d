#include "fints/modLogMask.h"

#include "fints/cShield.h"
#include "fints/HBCISegment.h"
#include "fints/modFintsSplit.h"
#include "fints/modFintsValue.h"
#include "fints/modSegmentTable.h"

#include <QBitArray>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using modSegmentTable::eTold;

namespace {

constexpr qsizetype shortestPerson = 4; // shorter ones would tear holes into every other word
constexpr qsizetype mostWords = 100'000;

// Numbers with five or more digits, whatever groups them, and IBANs.
const QRegularExpression& Numbers()
{
    static const QRegularExpression numbers(
        uR"(\b[A-Z]{2}\d{2}(?: ?[0-9A-Z]{4}){2,}(?: ?[0-9A-Z]{1,4})?\b|\d(?:[ .\-/]{0,3}\d){4,}(?:,\d+)?)"_s);
    return numbers;
}

void Mark(QBitArray& marks, QByteArrayView text, QByteArrayView needle)
{
    if (needle.isEmpty()) {
        return;
    }
    for (qsizetype at = text.indexOf(needle); at >= 0; at = text.indexOf(needle, at + 1)) {
        marks.fill(true, at, at + needle.size());
    }
}

// "@length@***" for each of a group of binaries; nothing when the element is none.
QByteArray Lengths(QByteArrayView element)
{
    QByteArray text;
    for (const QByteArrayView part : modFintsSplit::Group(element)) {
        const qsizetype prefix = modFintsSplit::BinaryAt(part).Prefix;
        if (prefix == 0) {
            return {};
        }
        text.append(text.isEmpty() ? "" : ":").append(part.first(prefix)).append(modLogMask::hidden);
    }
    return text;
}

void AddPeople(QByteArrayView element, QSet<QString>& people)
{
    for (const QByteArrayView part : modFintsSplit::Group(element)) {
        const QString person = modFintsValue::Unescaped(part).trimmed();
        if (person.size() >= shortestPerson) {
            people.insert(person);
        }
    }
}

class cMasking
{
public:
    cMasking(const QList<QByteArray>& needles, QSet<QString>& people) : m_needles(needles), m_people(people) {}

    [[nodiscard]] QByteArray Segment(const cWireSegment& wire)
    {
        const HBCISegment segment(wire.Head, {});
        QByteArray text = wire.Head.toByteArray();
        int place = 0;
        for (const QByteArrayView element : wire.Elements) {
            text.append('+').append(
                Element(element, modSegmentTable::Told(segment.Code(), segment.Version(), ++place)));
        }
        return text;
    }

private:
    [[nodiscard]] QByteArray Element(QByteArrayView element, eTold told)
    {
        if (told == eTold::Person) {
            AddPeople(element, m_people);
        }
        if (element.isEmpty() || told == eTold::Open) {
            return element.toByteArray();
        }
        const QByteArray lengths = element.startsWith('@') ? Lengths(element) : QByteArray();
        if (!lengths.isEmpty()) {
            return lengths;
        }
        return told == eTold::Words ? modLogMask::Words(element, m_needles) : QByteArray(modLogMask::hidden);
    }

    const QList<QByteArray>& m_needles;
    QSet<QString>& m_people;
};

} // namespace

QByteArray modLogMask::Covered(QByteArrayView text, const QList<QByteArray>& needles, char cover, QByteArray shown)
{
    QBitArray marks(text.size());
    for (const QByteArray& needle : needles) {
        Mark(marks, text, needle);
    }
    for (qsizetype i = 0; i < marks.size(); ++i) {
        shown[i] = marks.testBit(i) ? cover : shown[i];
    }
    return shown;
}

QByteArray modLogMask::Words(QByteArrayView text, const QList<QByteArray>& needles)
{
    QBitArray marks(text.size());
    for (const QByteArray& needle : needles) {
        Mark(marks, text, needle);
    }
    QRegularExpressionMatchIterator matches = Numbers().globalMatch(QString::fromLatin1(text));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        marks.fill(true, match.capturedStart(), match.capturedEnd());
    }
    QByteArray shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!marks.testBit(i)) {
            shown.append(text[i]);
        } else if (i == 0 || !marks.testBit(i - 1)) {
            shown.append(hidden);
        }
    }
    return shown;
}

QByteArray modLogMask::Message(const QByteArray& message, const QList<QByteArray>& needles, QSet<QString>& people)
{
    const cShield shield(message);
    if (!message.startsWith("HNHBK:") || shield.IsOverlong()) {
        return Words(QByteArrayView(message).first(std::min(message.size(), mostWords)), needles);
    }
    cMasking masking(needles, people);
    QByteArray text;
    for (const cWireSegment& segment : SegmentsOf(shield)) {
        text.append(masking.Segment(segment)).append('\'');
    }
    return text;
}

QString modLogMask::Without(QString text, const QStringList& people)
{
    static const QRegularExpression blanks(u"\\s+"_s);
    QStringList needles;
    for (const QString& person : people) {
        needles.append(person.trimmed());
        needles.append(QString::fromLatin1(modFintsValue::Escaped(person.trimmed())));
        needles.append(person.split(blanks));
    }
    needles.removeDuplicates();
    std::sort(needles.begin(), needles.end(), [](const QString& a, const QString& b) { return a.size() > b.size(); });
    for (const QString& needle : needles) {
        if (needle.size() >= shortestPerson) {
            text.replace(needle, QLatin1StringView(hidden), Qt::CaseInsensitive);
        }
    }
    return text;
}
