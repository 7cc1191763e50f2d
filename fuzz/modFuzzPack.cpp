#include "modFuzz.h"

#include <QtEndian>

#include <zlib.h>

namespace {

constexpr QByteArrayView mark = "=== ";

void Append16(QByteArray& out, qsizetype value)
{
    const auto number = qToLittleEndian(static_cast<quint16>(value));
    out.append(QByteArray::fromRawData(reinterpret_cast<const char*>(&number), 2));
}

void Append32(QByteArray& out, qsizetype value)
{
    const auto number = qToLittleEndian(static_cast<quint32>(value));
    out.append(QByteArray::fromRawData(reinterpret_cast<const char*>(&number), 4));
}

// What the local header and the directory say of a stored file.
void AppendFacts(QByteArray& out, QByteArrayView name, QByteArrayView content)
{
    const uLong sum = crc32(0, reinterpret_cast<const Bytef*>(content.data()), static_cast<uInt>(content.size()));
    Append16(out, 20); // version
    Append16(out, 0);  // flags
    Append16(out, 0);  // stored
    Append32(out, 0);  // time
    Append32(out, static_cast<qsizetype>(sum));
    Append32(out, content.size());
    Append32(out, content.size());
    Append16(out, name.size());
    Append16(out, 0); // extra field
}

class cPacker
{
public:
    void Add(QByteArrayView name, QByteArrayView content)
    {
        m_directory += "PK\x01\x02";
        Append16(m_directory, 20);
        AppendFacts(m_directory, name, content);
        Append16(m_directory, 0); // comment
        Append16(m_directory, 0); // disk
        Append16(m_directory, 0);
        Append32(m_directory, 0); // attributes
        Append32(m_directory, m_out.size());
        m_directory.append(name);
        m_out += "PK\x03\x04";
        AppendFacts(m_out, name, content);
        m_out.append(name);
        m_out.append(content);
        ++m_count;
    }

    [[nodiscard]] QByteArray Finish()
    {
        const qsizetype place = m_out.size();
        m_out += m_directory;
        m_out += "PK\x05\x06";
        Append32(m_out, 0); // disks
        Append16(m_out, m_count);
        Append16(m_out, m_count);
        Append32(m_out, m_directory.size());
        Append32(m_out, place);
        Append16(m_out, 0); // comment
        return m_out;
    }

private:
    QByteArray m_out;
    QByteArray m_directory;
    int m_count = 0;
};

} // namespace

QByteArray modFuzz::Packed(const QByteArray& bytes)
{
    if (!bytes.startsWith(mark)) {
        return bytes;
    }
    cPacker packer;
    QByteArrayView rest = bytes;
    while (!rest.isEmpty()) {
        const qsizetype next = rest.indexOf("\n=== ", mark.size());
        const QByteArrayView part = rest.first(next < 0 ? rest.size() : next);
        const qsizetype feed = part.indexOf('\n');
        const QByteArrayView name = part.sliced(mark.size(), (feed < 0 ? part.size() : feed) - mark.size());
        packer.Add(name.first(qMin(name.size(), qsizetype{200})), feed < 0 ? QByteArrayView() : part.sliced(feed + 1));
        rest = next < 0 ? QByteArrayView() : rest.sliced(next + 1);
    }
    return packer.Finish();
}
