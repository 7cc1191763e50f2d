#include "views/help/modUpdate.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modMD5.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostReleases = 200;
constexpr qsizetype mostNotes = 20'000; // letters of one version

bool Matches(const QString& text, const QString& pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

// "1.2" and "1.2.0" are the same version.
bool IsNewer(const QVersionNumber& one, const QVersionNumber& other)
{
    return one.normalized() > other.normalized();
}

// Lines as they stand, without the indentation of the XML and without characters that steer a display.
QString CleanNotes(const QString& text)
{
    QStringList lines;
    const QStringList written = text.split(u'\n');
    for (const QString& line : written) {
        QString clean;
        std::copy_if(line.begin(), line.end(), std::back_inserter(clean), [](QChar c) {
            return c.category() != QChar::Other_Control && c.category() != QChar::Other_Format;
        });
        lines.append(clean.trimmed());
    }
    return lines.join(u'\n').trimmed().left(mostNotes);
}

// Reads the answer; the first thing that is wrong makes all of it unusable (raiseError).
class cAnswer
{
public:
    cAnswer(const QByteArray& xml, const QString& language, const QUrl& from)
        : m_xml(xml),
          m_language(language),
          m_from(from)
    {
    }

    [[nodiscard]] std::optional<QList<cUpdateRelease>> Read()
    {
        while (!m_xml.atEnd() && !m_xml.isStartElement()) {
            m_xml.readNext();
            Require(!m_xml.isDTD()); // it could bring entities, and nothing of ours needs one
        }
        Require(m_xml.name() == "kontorelle"_L1);
        QList<cUpdateRelease> releases;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "release"_L1) {
                releases.append(Release());
            } else {
                m_xml.skipCurrentElement(); // of a later version of this format
            }
            Require(releases.size() <= mostReleases);
        }
        while (!m_xml.atEnd()) {
            m_xml.readNext(); // what stands behind the end counts as well
        }
        return m_xml.hasError() ? std::nullopt : std::optional(releases);
    }

private:
    void Require(bool isRight)
    {
        if (!isRight && !m_xml.hasError()) {
            m_xml.raiseError();
        }
    }

    [[nodiscard]] QString Attribute(QLatin1StringView name) const
    {
        return m_xml.attributes().value(name).toString().trimmed();
    }

    cUpdateRelease Release()
    {
        cUpdateRelease release;
        const QString version = Attribute("version"_L1);
        Require(Matches(version, u"\\d{1,6}(\\.\\d{1,6}){0,3}"_s));
        release.Version = QVersionNumber::fromString(version);
        release.Day = QDate::fromString(Attribute("date"_L1), Qt::ISODate);
        Require(release.Day.isValid());
        bool isOwnLanguage = false;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "notes"_L1) {
                const bool isOwn = Attribute("lang"_L1) == m_language;
                const QString notes = CleanNotes(m_xml.readElementText());
                if (isOwn || (release.Notes.isEmpty() && !isOwnLanguage)) {
                    release.Notes = notes;
                }
                isOwnLanguage = isOwnLanguage || isOwn;
            } else if (m_xml.name() == "package"_L1) {
                Require(!release.Package);
                release.Package = Package();
                m_xml.skipCurrentElement();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        return release;
    }

    cUpdatePackage Package()
    {
        cUpdatePackage package;
        const QString address = Attribute("address"_L1);
        package.Address = m_from.resolved(QUrl(address, QUrl::StrictMode));
        Require(!address.isEmpty() && package.Address.isValid() && package.Address.scheme() == "https"_L1
                && package.Address.authority() == m_from.authority());
        bool isNumber = false;
        package.Size = Attribute("size"_L1).toLongLong(&isNumber);
        Require(isNumber && package.Size > 0 && package.Size <= modUpdate::MostPackageBytes);
        package.Md5 = Attribute("md5"_L1).toLower();
        package.Sha256 = Attribute("sha256"_L1).toLower().toLatin1();
        Require(Matches(package.Md5, u"[0-9a-f]{32}"_s));
        Require(Matches(QString::fromLatin1(package.Sha256), u"[0-9a-f]{64}"_s));
        return package;
    }

    QXmlStreamReader m_xml;
    const QString m_language;
    const QUrl m_from;
};

} // namespace

std::optional<QList<cUpdateRelease>> modUpdate::Read(const QByteArray& xml, const QString& language, const QUrl& from)
{
    return cAnswer(xml, language, from).Read();
}

QList<cUpdateRelease> modUpdate::Newer(QList<cUpdateRelease> releases, const QString& running)
{
    const QVersionNumber present = QVersionNumber::fromString(running);
    releases.removeIf([&](const cUpdateRelease& release) { return !IsNewer(release.Version, present); });
    std::stable_sort(releases.begin(), releases.end(), [](const cUpdateRelease& one, const cUpdateRelease& other) {
        return IsNewer(one.Version, other.Version);
    });
    return releases;
}

QString modUpdate::Notes(const QList<cUpdateRelease>& releases)
{
    QStringList parts;
    for (const cUpdateRelease& release : releases) {
        const QString head =
            cText::Tr("Version {0} vom {1}", {release.Version.toString(), modDate::ToText(release.Day)});
        const QString notes =
            release.Notes.isEmpty() ? cText::Tr("Was sich geändert hat, ist nicht angegeben.") : release.Notes;
        parts.append(head + u"\n\n"_s + notes);
    }
    return parts.join(u"\n\n\n"_s);
}

QString modUpdate::Fault(const cUpdatePackage& package, const QByteArray& bytes)
{
    if (bytes.size() != package.Size) {
        return cText::Tr("sie ist {0} Bytes groß statt {1}",
                         {QString::number(bytes.size()), QString::number(package.Size)});
    }
    if (QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() != package.Sha256) {
        return cText::Tr("ihre Prüfsumme (SHA-256) ist eine andere");
    }
    return modMD5::HexOfBytes(bytes) != package.Md5 ? cText::Tr("ihre Prüfsumme (MD5) ist eine andere") : QString();
}

QString modUpdate::FileName(const cUpdateRelease& release)
{
    QString name = release.Package ? release.Package->Address.fileName(QUrl::FullyDecoded) : QString();
    name.remove(QRegularExpression(u"[^A-Za-z0-9._+-]"_s));
    name.remove(QRegularExpression(u"^[.-]+"_s)); // neither hidden nor taken for an option
    return name.isEmpty() ? u"kontorelle-"_s + release.Version.toString() : name;
}
