#pragma once

#include <QList>
#include <QString>

#include <optional>

// The pictures that a main category may have.
namespace modCategoryIcon {

struct cOffer
{
    QString Stored; // and the name of its file, after FilePart
    QString Name;   // for the user
};

inline const QString FilePart = QStringLiteral("kategorie-");

[[nodiscard]] QList<cOffer> Offers();

// The stored form of a picture as typed, by its stored or its shown name; nothing when there is none like that.
[[nodiscard]] std::optional<QString> Read(const QString& text);
[[nodiscard]] QString NameOf(const QString& stored);

} // namespace modCategoryIcon
