#include "fints/cShield.h"

#include "fints/modFintsSplit.h"

#include <algorithm>

namespace {

constexpr char cover = '\x01';

void AddSegments(const cShield& shield, QByteArrayView text, QList<cWireSegment>& segments);

// The container's last character, the end of its last segment, is lost in the cutting; nothing needs it.
void AddContainer(const cShield& shield, const QList<QByteArrayView>& tokens, QList<cWireSegment>& segments)
{
    const QByteArrayView container = tokens.value(1);
    const qsizetype prefix = modFintsSplit::BinaryAt(container).Prefix;
    segments.append({shield.Wire(tokens[0]), {shield.Wire(container.first(prefix))}});
    if (prefix > 0) {
        AddSegments(shield, container.sliced(prefix), segments);
    }
}

void AddSegments(const cShield& shield, QByteArrayView text, QList<cWireSegment>& segments)
{
    for (const QByteArrayView token : modFintsSplit::Split(text, '\'')) {
        const QList<QByteArrayView> tokens = modFintsSplit::Split(token, '+');
        if (tokens[0].startsWith("HNVSD:")) {
            AddContainer(shield, tokens, segments);
        } else if (!token.trimmed().isEmpty()) {
            segments.append({shield.Wire(tokens[0]), {}});
            for (const QByteArrayView element : tokens.sliced(1)) {
                segments.last().Elements.append(shield.Wire(element));
            }
        }
    }
}

} // namespace

cShield::cShield(QByteArrayView wire) : m_wire(wire)
{
    Walk(0, wire.size(), eLevel::Message);
}

QByteArrayView cShield::Wire(QByteArrayView token) const
{
    return token.isEmpty() ? QByteArrayView() : m_wire.sliced(token.data() - Text().data(), token.size());
}

bool cShield::IsOverlong() const
{
    constexpr qsizetype most = 1'000'000; // the largest real messages have some ten thousand
    return m_separators > most;
}

void cShield::Walk(qsizetype from, qsizetype to, eLevel level)
{
    qsizetype segment = from;
    bool isStart = true; // of a token, where alone binary data can stand
    for (qsizetype at = from; at < to;) {
        const char character = m_wire[at];
        if (isStart && character == '@') {
            at = PassBinary(at, to, segment, level);
            isStart = false;
        } else if (character == '?' && at + 1 < to) {
            const char released = m_wire[at + 1];
            if (released == '?' || released == '\'' || released == '+') {
                Cover(at, at + 2);
            }
            at += 2;
            isStart = false;
        } else {
            ++at;
            isStart = character == '\'' || character == '+' || character == ':';
            segment = character == '\'' ? at : segment;
            m_separators += isStart ? 1 : 0;
        }
    }
}

// The first place behind the binary data that begins at `at`.
qsizetype cShield::PassBinary(qsizetype at, qsizetype to, qsizetype segment, eLevel level)
{
    const modFintsSplit::cBinary binary = modFintsSplit::BinaryAt(m_wire.sliced(at, to - at));
    if (binary.Prefix == 0) {
        return at + 1;
    }
    const qsizetype data = at + binary.Prefix;
    m_isCut = m_isCut || binary.Length > to - data;
    const qsizetype end = data + std::min(binary.Length, to - data);
    if (level == eLevel::Message && m_wire.sliced(segment).startsWith("HNVSD:")) {
        Walk(data, end, eLevel::Inner);
    } else {
        Cover(at, end);
    }
    return end;
}

void cShield::Cover(qsizetype from, qsizetype to)
{
    if (!m_isCovered) {
        m_covered = m_wire.toByteArray();
        m_isCovered = true;
    }
    char* const data = m_covered.data();
    std::fill(data + from, data + to, cover);
}

QList<cWireSegment> SegmentsOf(const cShield& shield)
{
    QList<cWireSegment> segments;
    AddSegments(shield, shield.Text(), segments);
    return segments;
}
