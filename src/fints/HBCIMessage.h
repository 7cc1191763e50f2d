#pragma once

#include "fints/HBCISegment.h"

#include <QByteArray>
#include <QList>

#include <utility>

// A whole message: its segments in order. What it holds is overwritten in the end, because the PIN is in it.
class HBCIMessage
{
public:
    explicit HBCIMessage(QList<HBCISegment> segments) : m_segments(std::move(segments)) {}
    HBCIMessage(HBCIMessage&&) = default;
    HBCIMessage& operator=(HBCIMessage&&) = default;
    HBCIMessage(const HBCIMessage&) = delete;
    HBCIMessage& operator=(const HBCIMessage&) = delete;
    ~HBCIMessage();

    // The bytes to send. The size in the head counts all of them. The caller overwrites them when they are sent.
    [[nodiscard]] QByteArray Text() const;

    [[nodiscard]] const QList<HBCISegment>& Segments() const { return m_segments; }

private:
    QList<HBCISegment> m_segments;
};
