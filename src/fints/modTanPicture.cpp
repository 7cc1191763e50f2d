#include "fints/modTanPicture.h"

#include <algorithm>
#include <array>

namespace {

struct cKind
{
    const char* Type = nullptr;
    QByteArrayView Beginning;
    QByteArrayView End{}; // what a file of this kind has at its end, where only a whole one can be shown
};

constexpr std::array kinds{cKind{"image/png", QByteArrayView("\x89PNG\r\n\x1a\n", 8), QByteArrayView("IEND")},
                           cKind{"image/jpeg", QByteArrayView("\xff\xd8\xff", 3)},
                           cKind{"image/gif", QByteArrayView("GIF8", 4)}, cKind{"image/bmp", QByteArrayView("BM", 2)}};

// The kind of a file by its beginning, which tells it better than what the bank calls it ("image/jpg", or PNG for
// everything); empty for others, and for a file that is cut.
QString Type(const QByteArray& file)
{
    const auto* const kind =
        std::find_if(kinds.begin(), kinds.end(), [&](const cKind& each) { return file.startsWith(each.Beginning); });
    return kind == kinds.end() || !file.contains(kind->End) ? QString() : QString::fromLatin1(kind->Type);
}

// Only of other kinds the bank's word is all there is.
bool IsKnown(const QByteArray& type)
{
    return type == "image/jpg"
        || std::any_of(kinds.begin(), kinds.end(), [&](const cKind& each) { return type == each.Type; });
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
    if (picture.Type.isEmpty() && !IsKnown(named)) {
        picture.Type = QString::fromLatin1(named);
    }
    return picture.Type.isEmpty() ? std::nullopt : std::optional(picture);
}
