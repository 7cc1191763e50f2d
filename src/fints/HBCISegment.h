#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

// One segment, sent or received: its head and its data elements as they stand on the wire, the group elements of one
// element still joined by ":".
class HBCISegment
{
public:
    HBCISegment() = default;
    HBCISegment(QByteArray code, int number, int version, QList<QByteArray> elements);
    // A received segment by its head, "code:number:version" or with the reference behind it.
    HBCISegment(QByteArrayView head, QList<QByteArray> elements);
    // One segment as it stands on the wire, without its terminator.
    [[nodiscard]] static HBCISegment Read(QByteArrayView wire);

    [[nodiscard]] const QByteArray& Code() const { return m_code; }
    [[nodiscard]] int Number() const { return m_number; }
    [[nodiscard]] int Version() const { return m_version; }
    // The number of the request segment that this one answers; 0 when it answers none.
    [[nodiscard]] int Reference() const { return m_reference; }

    // The n-th data element behind the head, from 1; empty when there is none.
    [[nodiscard]] QByteArray Element(int place) const;
    [[nodiscard]] qsizetype ElementCount() const { return m_elements.size(); }

    void SetNumber(int number) { m_number = number; }
    void SetElement(int place, const QByteArray& wire);
    // Overwrites all elements, for those that hold a secret.
    void Wipe();

    // The segment without its terminator; trailing empty elements are left out.
    [[nodiscard]] QByteArray toString() const;
    // For the log and for tests: the elements with their labels. Says nothing of what has none, such as the PIN.
    [[nodiscard]] QString DebugDescription() const;

private:
    QByteArray m_code;
    int m_number = 0;
    int m_version = 0;
    int m_reference = 0;
    QList<QByteArray> m_elements;
};
