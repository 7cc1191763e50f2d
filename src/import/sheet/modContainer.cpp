#include "import/sheet/modContainer.h"

#include <QString>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr quint32 firstMark = 0xFFFFFFFA; // from here on a sector number is none
constexpr qsizetype entrySize = 128;      // of the directory
constexpr qsizetype listedInHead = 109;   // sectors of the allocation table

template <typename tValue>
tValue At(const QByteArray& bytes, qsizetype place)
{
    const bool isInside = place >= 0 && place + qsizetype{sizeof(tValue)} <= bytes.size();
    return isInside ? qFromLittleEndian<tValue>(bytes.constData() + place) : tValue{};
}

struct cEntry
{
    char Type = 0; // 5: the root, 2: a file
    quint32 Start = 0;
    quint32 Size = 0;
};

class cContainer
{
public:
    explicit cContainer(const QByteArray& bytes) : m_bytes(bytes)
    {
        m_shift = At<quint16>(bytes, 30) == 12 ? 12 : 9;
        m_cutoff = At<quint32>(bytes, 56);
        ReadTable();
        m_directory = Chain(At<quint32>(bytes, 48)).value_or(QByteArray());
    }

    [[nodiscard]] std::optional<QByteArray> Read(QStringView name) const
    {
        const std::optional<cEntry> entry = Find(name);
        if (!entry) {
            return std::nullopt;
        }
        std::optional<QByteArray> content = entry->Size < m_cutoff ? ReadSmall(entry->Start) : Chain(entry->Start);
        if (!content || content->size() < entry->Size) {
            return std::nullopt;
        }
        content->truncate(entry->Size);
        return content;
    }

private:
    [[nodiscard]] qsizetype SectorSize() const { return qsizetype{1} << m_shift; }
    [[nodiscard]] qsizetype SectorCount() const { return m_bytes.size() >> m_shift; }

    // Empty for a sector that the file does not have; the last one may be short.
    [[nodiscard]] QByteArray Sector(quint32 sector) const
    {
        return m_bytes.mid((qsizetype{sector} + 1) << m_shift, SectorSize());
    }

    // Which sector follows which. The table's own sectors are listed in the head and in a chain of lists.
    void ReadTable()
    {
        QByteArray list = m_bytes.mid(76, listedInHead * 4);
        quint32 next = At<quint32>(m_bytes, 68);
        for (qsizetype count = 0; next < firstMark && count < SectorCount(); ++count) {
            const QByteArray more = Sector(next);
            list += more.left(SectorSize() - 4);
            next = more.size() == SectorSize() ? At<quint32>(more, SectorSize() - 4) : firstMark;
        }
        for (qsizetype i = 0; i < list.size() / 4 && m_table.size() <= m_bytes.size(); ++i) {
            const auto sector = At<quint32>(list, i * 4);
            m_table += sector < firstMark ? Sector(sector) : QByteArray();
        }
    }

    // The sectors of a chain one after another; empty optional when it leaves the file or runs in a circle.
    [[nodiscard]] std::optional<QByteArray> Chain(quint32 sector) const
    {
        QByteArray content;
        while (sector < firstMark) {
            const QByteArray piece = Sector(sector);
            if (piece.isEmpty() || content.size() > m_bytes.size()) {
                return std::nullopt;
            }
            content += piece;
            sector = Next(m_table, sector);
        }
        return content;
    }

    static quint32 Next(const QByteArray& table, quint32 sector)
    {
        const qsizetype place = qsizetype{sector} * 4;
        return place + 4 <= table.size() ? At<quint32>(table, place) : firstMark;
    }

    // Small files share the sectors of one file, which the root entry names.
    [[nodiscard]] std::optional<QByteArray> ReadSmall(quint32 piece) const
    {
        constexpr qsizetype pieceSize = 64;
        const std::optional<QByteArray> all = Chain(EntryAt(0).Start);
        const std::optional<QByteArray> table = Chain(At<quint32>(m_bytes, 60));
        if (!all || !table) {
            return std::nullopt;
        }
        QByteArray content;
        while (piece < firstMark) {
            const qsizetype place = qsizetype{piece} * pieceSize;
            if (place >= all->size() || content.size() > all->size()) {
                return std::nullopt;
            }
            content += all->mid(place, pieceSize);
            piece = Next(*table, piece);
        }
        return content;
    }

    [[nodiscard]] cEntry EntryAt(qsizetype place) const
    {
        return {place + 66 < m_directory.size() ? m_directory.at(place + 66) : '\0',
                At<quint32>(m_directory, place + 116), At<quint32>(m_directory, place + 120)};
    }

    [[nodiscard]] std::optional<cEntry> Find(QStringView name) const
    {
        for (qsizetype place = 0; place + entrySize <= m_directory.size(); place += entrySize) {
            QString found;
            for (qsizetype i = 0; i < 32 && At<quint16>(m_directory, place + i * 2) != 0; ++i) {
                found.append(QChar(At<quint16>(m_directory, place + i * 2)));
            }
            const cEntry entry = EntryAt(place);
            if (entry.Type == 2 && found.compare(name, Qt::CaseInsensitive) == 0) {
                return entry;
            }
        }
        return std::nullopt;
    }

    const QByteArray& m_bytes;
    int m_shift = 9;
    quint32 m_cutoff = 0;
    QByteArray m_table;
    QByteArray m_directory;
};

} // namespace

bool modContainer::IsContainer(const QByteArray& bytes)
{
    return bytes.startsWith(QByteArrayView("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8));
}

std::optional<QByteArray> modContainer::Read(const QByteArray& bytes, QStringView name)
{
    return IsContainer(bytes) ? cContainer(bytes).Read(name) : std::nullopt;
}
