#include "fints/modTanPicture.h"

#include <algorithm>
#include <array>

namespace {

struct cKind
{
    const char* Type = nullptr;
    QByteArrayView Beginning;
};

constexpr std::array kinds{cKind{"image/png", QByteArrayView("\x89PNG\r\n\x1a\n", 8)},
                           cKind{"image/jpeg", QByteArrayView("\xff\xd8\xff", 3)},
                           cKind{"image/gif", QByteArrayView("GIF8", 4)}, cKind{"image/bmp", QByteArrayView("BM", 2)}};

// The kind of a file by its beginning, which tells it better than what the bank calls it ("image/jpg", or PNG for
// everything); empty for others.
QString Type(const QByteArray& file)
{
    const auto* const kind =
        std::find_if(kinds.begin(), kinds.end(), [&](const cKind& each) { return file.startsWith(each.Beginning); });
    return kind == kinds.end() ? QString() : QString::fromLatin1(kind->Type);
}

constexpr qsizetype lengthBytes = 2;

qsizetype Length(const QByteArray& data, qsizetype at)
{
    const auto byte = [&](qsizetype place) { return static_cast<unsigned char>(data.at(place)); };
    return at + lengthBytes <= data.size() ? byte(at) * 256 + byte(at + 1) : 0;
}

} // namespace

std::optional<cTanPicture> modTanPicture::Read(const QByteArray& data)
{
    if (const QString type = Type(data); !type.isEmpty()) {
        return cTanPicture{data, type};
    }
    const qsizetype typeLength = Length(data, 0);
    const qsizetype file = lengthBytes + typeLength + lengthBytes;
    const QByteArray named = data.mid(lengthBytes, typeLength).toLower();
    if (!named.startsWith("image/") || file >= data.size()) {
        return std::nullopt;
    }
    // Two bytes cannot tell the length of a large picture: one that differs does not count.
    cTanPicture picture{data.mid(file), {}};
    picture.Type = Type(picture.File);
    if (picture.Type.isEmpty()) {
        picture.Type = QString::fromLatin1(named);
    }
    return picture;
}
