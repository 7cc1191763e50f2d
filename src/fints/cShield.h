#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

// A message or a part of one in which nothing can be mistaken for a separator: "??", "?'" and "?+", read as pairs from
// the left, and binary data are covered byte for byte by control characters, so that every position and length stays
// right. The data of HNVSD is a message itself: it is not covered as a whole but in its own places. What was cut from
// the covered text is exchanged for what really stands there.
class cShield
{
public:
    // `wire` outlives the object and all tokens.
    explicit cShield(QByteArrayView wire);
    cShield(const cShield&) = delete;
    cShield& operator=(const cShield&) = delete;
    ~cShield() = default;

    // The text to cut, as long as the wire.
    [[nodiscard]] QByteArrayView Text() const { return m_isCovered ? QByteArrayView(m_covered) : m_wire; }
    // What stands on the wire in the place of a token of Text.
    [[nodiscard]] QByteArrayView Wire(QByteArrayView token) const;
    // True when binary data announces more bytes than there are.
    [[nodiscard]] bool IsCut() const { return m_isCut; }

private:
    enum class eLevel { Message, Inner };
    void Walk(qsizetype from, qsizetype to, eLevel level);
    [[nodiscard]] qsizetype PassBinary(qsizetype at, qsizetype to, qsizetype segment, eLevel level);
    void Cover(qsizetype from, qsizetype to);

    QByteArrayView m_wire;
    QByteArray m_covered;
    bool m_isCovered = false;
    bool m_isCut = false;
};

// A segment as it stands in a message.
struct cWireSegment
{
    QByteArrayView Head;
    QList<QByteArrayView> Elements;
};

// All segments of a message in order, those inside HNVSD behind it; its own element is left with the length only. Views
// of the wire.
[[nodiscard]] QList<cWireSegment> SegmentsOf(const cShield& shield);
