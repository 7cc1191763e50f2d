#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// A picture that makes the TAN: a coloured mosaic or a QR code.
struct cTanPicture
{
    QByteArray File; // as the bank sent it
    QString Type;    // MIME type
};

namespace modTanPicture {

// The picture out of the data of a challenge: type and file, each with its length of two bytes before it, or the file
// alone when it is PNG, JPEG, GIF or BMP. Nothing when it is neither, or said to be one of these and broken.
[[nodiscard]] std::optional<cTanPicture> Read(const QByteArray& data);

} // namespace modTanPicture
