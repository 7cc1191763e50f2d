#pragma once

#include <QByteArray>
#include <QCryptographicHash>

// What the maker of the program answers in the tests.
namespace modUpdateAnswer {

inline const QByteArray Package = "\x7f package of a new version";

inline QByteArray Hash(QCryptographicHash::Algorithm algorithm)
{
    return QCryptographicHash::hash(Package, algorithm).toHex();
}

// The element of a package; what is not given is right.
inline QByteArray File(const QByteArray& address = "pakete/kontorelle_0.3.0.deb", qsizetype size = Package.size(),
                       const QByteArray& md5 = Hash(QCryptographicHash::Md5),
                       const QByteArray& sha256 = Hash(QCryptographicHash::Sha256))
{
    return "<package address=\"" + address + "\" size=\"" + QByteArray::number(size) + "\" md5=\"" + md5
        + "\" sha256=\"" + sha256 + "\"/>";
}

inline QByteArray Release(const QByteArray& version, const QByteArray& content, const QByteArray& day = "2026-03-01")
{
    return "<release version=\"" + version + "\" date=\"" + day + "\">" + content + "</release>";
}

inline QByteArray All(const QByteArray& releases)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<kontorelle>" + releases + "</kontorelle>\n";
}

} // namespace modUpdateAnswer
