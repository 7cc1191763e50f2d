#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QtEndian>

#include <bit>

// A minimal binary workbook with one sheet, for tests.
class cXlsFile
{
public:
    enum eFormat { General, Day }; // of a cell

    void Text(int row, int column, const QByteArray& latin)
    {
        m_cells += Record(0x00FD, Place(row, column, General) + Int32(static_cast<quint32>(m_texts.size())));
        m_bareCells += Record(0x0204, Place(row, column, General) + Int16(static_cast<int>(latin.size())) + latin);
        m_texts.append(latin);
        Reach(row, column);
    }

    void Number(int row, int column, double value, eFormat format = General)
    {
        AddToBoth(Record(0x0203, Place(row, column, format) + Double(value)));
        Reach(row, column);
    }

    // A formula with its last result.
    void Formula(int row, int column, double result)
    {
        AddToBoth(Record(0x0006, Place(row, column, General) + Double(result) + QByteArray(8, '\0')));
        Reach(row, column);
    }

    // Numbers side by side as spreadsheet programs store most amounts: hundredths in 30 bits.
    void Cents(int row, int column, const QList<int>& cents)
    {
        QByteArray packed;
        for (const int value : cents) {
            packed += Int16(General) + Int32((static_cast<quint32>(value) << 2) | 3U);
        }
        const int last = column + static_cast<int>(cents.size()) - 1;
        AddToBoth(cents.size() == 1 ? Record(0x027E, Int16(row) + Int16(column) + packed)
                                    : Record(0x00BD, Int16(row) + Int16(column) + packed + Int16(last)));
        Reach(row, last);
    }

    void Protect() { m_protection = Record(0x002F, Int16(0) + Int16(1) + Int16(2)); }

    // BIFF8 in its container.
    [[nodiscard]] QByteArray Bytes() const { return Container(Stream()); }

    // The sheet alone as small programs write it (BIFF5), without formats.
    [[nodiscard]] QByteArray BareBytes() const
    {
        return Record(0x0809, Int16(0) + Int16(16) + Int32(0)) + m_bareCells + Record(0x000A, {});
    }

private:
    static constexpr int sectorSize = 512;

    static QByteArray Int16(int value)
    {
        QByteArray bytes(2, '\0');
        qToLittleEndian(static_cast<quint16>(value), bytes.data());
        return bytes;
    }

    static QByteArray Int32(quint32 value)
    {
        QByteArray bytes(4, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    }

    static QByteArray Double(double value)
    {
        const auto bits = std::bit_cast<quint64>(value);
        return Int32(static_cast<quint32>(bits)) + Int32(static_cast<quint32>(bits >> 32));
    }

    static QByteArray Record(int type, const QByteArray& body)
    {
        return Int16(type) + Int16(static_cast<int>(body.size())) + body;
    }

    static QByteArray Place(int row, int column, eFormat format) { return Int16(row) + Int16(column) + Int16(format); }

    void AddToBoth(const QByteArray& record)
    {
        m_cells += record;
        m_bareCells += record;
    }

    void Reach(int row, int column)
    {
        m_rows = qMax(m_rows, row + 1);
        m_columns = qMax(m_columns, column + 1);
    }

    [[nodiscard]] QByteArray Stream() const
    {
        const QByteArray name = "Daten";
        QByteArray strings = Int32(static_cast<quint32>(m_texts.size())) + Int32(static_cast<quint32>(m_texts.size()));
        for (const QByteArray& text : m_texts) {
            strings += Int16(static_cast<int>(text.size())) + QByteArray(1, '\0') + text;
        }
        const QByteArray before = Begin(5) + m_protection + Record(0x0042, Int16(1200)) + Style(0) + Style(14);
        // In the middle of the last text the record is full and another one goes on.
        const QByteArray after =
            Record(0x00FC, strings.chopped(3)) + Record(0x003C, '\0' + strings.right(3)) + Record(0x000A, {});
        const auto bound = [&](qsizetype offset) {
            return Record(0x0085,
                          Int32(static_cast<quint32>(offset)) + Int16(0) + QByteArray(1, static_cast<char>(name.size()))
                              + QByteArray(1, '\0') + name);
        };
        const qsizetype start = before.size() + bound(0).size() + after.size();
        const QByteArray size = Int32(0) + Int32(static_cast<quint32>(m_rows)) + Int16(0) + Int16(m_columns) + Int16(0);
        return before + bound(start) + after + Begin(16) + Record(0x0200, size) + m_cells + Record(0x000A, {});
    }

    static QByteArray Begin(int kind)
    {
        return Record(0x0809, Int16(0x0600) + Int16(kind) + Int16(0x0DBB) + Int16(0x07CC) + Int32(0) + Int32(6));
    }

    static QByteArray Style(int format) { return Record(0x00E0, Int16(0) + Int16(format) + QByteArray(16, '\0')); }

    static QByteArray Entry(const QByteArray& name, char type, quint32 child, quint32 start, quint32 size)
    {
        QByteArray wide;
        for (const char c : name) {
            wide.append(c).append('\0');
        }
        return wide.leftJustified(64, '\0') + Int16(static_cast<int>(wide.size()) + 2) + type + '\1' + Int32(0xFFFFFFFF)
            + Int32(0xFFFFFFFF) + Int32(child) + QByteArray(36, '\0') + Int32(start) + Int32(size) + Int32(0);
    }

    // The sectors: one for the chain, one for the directory, then the stream, which is long enough to have some.
    static QByteArray Container(const QByteArray& stream)
    {
        const qsizetype sectors = qMax<qsizetype>(8, (stream.size() + sectorSize - 1) / sectorSize);
        QByteArray head = QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + QByteArray(16, '\0') + Int16(0x3E)
            + Int16(3) + Int16(0xFFFE) + Int16(9) + Int16(6) + QByteArray(10, '\0') + Int32(1) + Int32(1) + Int32(0)
            + Int32(4096) + Int32(0xFFFFFFFE) + Int32(0) + Int32(0xFFFFFFFE) + Int32(0) + Int32(0);
        QByteArray chain = Int32(0xFFFFFFFD) + Int32(0xFFFFFFFE);
        for (qsizetype i = 0; i < sectors; ++i) {
            chain += Int32(i + 1 < sectors ? static_cast<quint32>(i + 3) : 0xFFFFFFFE);
        }
        const QByteArray directory = Entry("Root Entry", '\5', 1, 0xFFFFFFFE, 0)
            + Entry("Workbook", '\2', 0xFFFFFFFF, 2, static_cast<quint32>(sectors * sectorSize));
        return head.leftJustified(sectorSize, '\xFF') + chain.leftJustified(sectorSize, '\xFF')
            + directory.leftJustified(sectorSize, '\0') + stream.leftJustified(sectors * sectorSize, '\0');
    }

    QByteArray m_cells;
    QByteArray m_bareCells;
    QByteArrayList m_texts;
    QByteArray m_protection;
    int m_rows = 0;
    int m_columns = 0;
};
