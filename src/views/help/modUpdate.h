#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <QUrl>
#include <QVersionNumber>

#include <optional>

// The file of a version, as the maker announces it.
struct cUpdatePackage
{
    QUrl Address;
    qint64 Size = 0;   // bytes
    QString Md5;       // hexadecimal digits, lower case
    QByteArray Sha256; // the same
};

struct cUpdateRelease
{
    QVersionNumber Version;
    QDate Day;
    QString Notes;                         // what is new, in the user's language; may be empty
    std::optional<cUpdatePackage> Package; // none where there is nothing to download
};

// What the maker answers to the question for new versions; doc/update.md describes it.
namespace modUpdate {

constexpr qint64 MostAnswerBytes = 256LL * 1024;
constexpr qint64 MostPackageBytes = 500LL * 1024 * 1024;

// The announced versions in their order. `language` is a code ("de") for the notes, `from` the address that was asked:
// packages lie on the same server. None when anything about the answer is not as it should be.
[[nodiscard]] std::optional<QList<cUpdateRelease>> Read(const QByteArray& xml, const QString& language,
                                                        const QUrl& from);

// Those that are newer than the running version, newest first: an older one is never offered.
[[nodiscard]] QList<cUpdateRelease> Newer(QList<cUpdateRelease> releases, const QString& running);

// All notes below each other under version and day.
[[nodiscard]] QString Notes(const QList<cUpdateRelease>& releases);

// What is wrong with a downloaded file, in German; empty when size and both sums are those that were announced.
[[nodiscard]] QString Fault(const cUpdatePackage& package, const QByteArray& bytes);

// The name that a downloaded file is to have, made of harmless characters.
[[nodiscard]] QString FileName(const cUpdateRelease& release);

} // namespace modUpdate
