#include "import/zip/modZip.h"

#include <minizip/unzip.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

// The archive as the library's file functions see it.
struct cMemory
{
    QByteArrayView Bytes;
    ZPOS64_T At = 0;
};

voidpf Open(voidpf opaque, const void* /*name*/, int /*mode*/)
{
    return opaque;
}

uLong ReadBytes(voidpf opaque, voidpf /*stream*/, void* buffer, uLong size)
{
    auto* const memory = static_cast<cMemory*>(opaque);
    const auto all = static_cast<ZPOS64_T>(memory->Bytes.size());
    const ZPOS64_T count = memory->At >= all ? 0 : std::min<ZPOS64_T>(size, all - memory->At);
    if (count > 0) {
        std::memcpy(buffer, memory->Bytes.data() + memory->At, count);
    }
    memory->At += count;
    return count;
}

uLong WriteNothing(voidpf /*opaque*/, voidpf /*stream*/, const void* /*buffer*/, uLong /*size*/)
{
    return 0;
}

ZPOS64_T Tell(voidpf opaque, voidpf /*stream*/)
{
    return static_cast<cMemory*>(opaque)->At;
}

long Seek(voidpf opaque, voidpf /*stream*/, ZPOS64_T offset, int origin)
{
    auto* const memory = static_cast<cMemory*>(opaque);
    const auto all = static_cast<ZPOS64_T>(memory->Bytes.size());
    const ZPOS64_T base = origin == SEEK_END ? all : (origin == SEEK_CUR ? memory->At : 0);
    if (offset > all || base + offset > all) {
        return -1;
    }
    memory->At = base + offset;
    return 0;
}

int DoNothing(voidpf /*opaque*/, voidpf /*stream*/)
{
    return 0;
}

struct cCloser
{
    void operator()(void* file) const { unzClose(file); }
};

// An archive that is open as long as this lives.
class cArchive
{
public:
    explicit cArchive(const QByteArray& bytes) : m_memory{bytes, 0}
    {
        zlib_filefunc64_def functions{Open, ReadBytes, WriteNothing, Tell, Seek, DoNothing, DoNothing, &m_memory};
        m_file.reset(unzOpen2_64("", &functions));
    }

    [[nodiscard]] unzFile File() const { return m_file.get(); }

private:
    cMemory m_memory;
    std::unique_ptr<void, cCloser> m_file;
};

QString CurrentName(unzFile file)
{
    std::array<char, 257> name{};
    unz_file_info64 info{};
    const int outcome = unzGetCurrentFileInfo64(file, &info, name.data(), name.size() - 1, nullptr, 0, nullptr, 0);
    return outcome == UNZ_OK ? QString::fromLatin1(name.data()) : QString();
}

// The open file of the archive to its end. An archive that holds more than it says is damaged; so no more room is taken
// than was looked at before.
std::optional<QByteArray> ReadCurrent(unzFile file, qint64 limit)
{
    unz_file_info64 info{};
    if (unzGetCurrentFileInfo64(file, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK
        || info.uncompressed_size > static_cast<ZPOS64_T>(limit)) {
        return std::nullopt;
    }
    const auto size = static_cast<qsizetype>(info.uncompressed_size);
    QByteArray content;
    std::array<char, 65536> buffer{};
    for (;;) {
        const int count = unzReadCurrentFile(file, buffer.data(), static_cast<unsigned int>(buffer.size()));
        if (count < 0 || content.size() + count > size) {
            return std::nullopt;
        }
        if (count == 0) {
            return content;
        }
        content.reserve(std::max(content.capacity(), std::min(size, 2 * (content.size() + count))));
        content.append(buffer.data(), count);
    }
}

} // namespace

bool modZip::IsZip(const QByteArray& bytes)
{
    return bytes.startsWith("PK\x03\x04");
}

QStringList modZip::Names(const QByteArray& zip)
{
    QStringList names;
    const cArchive archive(zip);
    if (archive.File() == nullptr) {
        return names;
    }
    int outcome = unzGoToFirstFile(archive.File());
    for (int count = 0; outcome == UNZ_OK && count < mostFiles; ++count) {
        const QString name = CurrentName(archive.File());
        if (!name.isEmpty() && !name.endsWith(u'/')) {
            names.append(name);
        }
        outcome = unzGoToNextFile(archive.File());
    }
    return names;
}

std::optional<QByteArray> modZip::Read(const QByteArray& zip, const QString& name, qint64 limit)
{
    const cArchive archive(zip);
    if (archive.File() == nullptr || unzLocateFile(archive.File(), name.toLatin1().constData(), 1) != UNZ_OK
        || unzOpenCurrentFile(archive.File()) != UNZ_OK) {
        return std::nullopt;
    }
    std::optional<QByteArray> content = ReadCurrent(archive.File(), limit);
    const bool isSound = unzCloseCurrentFile(archive.File()) == UNZ_OK; // compares the check sum
    return isSound ? content : std::nullopt;
}
