#pragma once

#include "fints/HBCISegment.h"

#include <QByteArray>
#include <QList>

// A whole message: its segments in order.
class HBCIMessage
{
public:
    explicit HBCIMessage(QList<HBCISegment> segments) : m_segments(std::move(segments)) {}

    // The bytes to send. The size in the head counts all of them.
    [[nodiscard]] QByteArray Text() const;

    [[nodiscard]] const QList<HBCISegment>& Segments() const { return m_segments; }

private:
    QList<HBCISegment> m_segments;
};
