#include "views/help/modDiagnosis.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "core/cConfiguration.h"
#include "import/read/modReaderVersion.h"
#include "model/modSettingKey.h"
#include "store/modBookFile.h"
#include "store/modSchema.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStorageInfo>
#include <QSysInfo>

#include <xlsxwriter.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 kilo = 1024;
constexpr qint64 mega = 1024 * kilo;

QString Size(qint64 bytes)
{
    return bytes < mega ? cText::Tr("{0} KB", {QString::number((bytes + kilo - 1) / kilo)})
                        : cText::Tr("{0} MB", {QString::number(bytes / mega)});
}

QString Shown(const QString& path)
{
    return modDiagnosis::Shown(path, QDir::homePath(), QDir::home().dirName());
}

QString File(const QString& name, const QString& path)
{
    const QFileInfo file(path);
    return cText::Tr("{0}: {1} ({2})",
                     {name, Shown(path), file.exists() ? Size(file.size()) : cText::Tr("gibt es nicht")});
}

QString Room(const QString& folder)
{
    return Size(qMax(qint64(0), QStorageInfo(folder).bytesAvailable()));
}

QString Folder(const QString& name, const QString& path)
{
    int files = 0;
    qint64 size = 0;
    for (QDirIterator i(path, QDir::Files); i.hasNext();) {
        i.next();
        ++files;
        size += i.fileInfo().size();
    }
    return cText::Tr("{0}: {1} ({2} Dateien, {3}; frei: {4})",
                     {name, Shown(path), QString::number(files), Size(size), Room(path)});
}

// A variable of the environment says which desktop and which way to the screen it is.
QString Environment()
{
    QStringList values;
    for (const char* name : {"XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "QT_QPA_PLATFORM", "QT_STYLE_OVERRIDE",
                             "QT_SCALE_FACTOR", "LANG", "LC_ALL", "container"}) {
        if (qEnvironmentVariableIsSet(name)) {
            values.append(QString::fromLatin1(name) + u'=' + qEnvironmentVariable(name));
        }
    }
    return values.isEmpty() ? cText::Tr("keine Angaben") : values.join(u", "_s);
}

QStringList Versions(const QString& program)
{
    const QString built = QStringLiteral(QT_VERSION_STR);
    const QString running = QString::fromLatin1(qVersion());
    return {program,
            cText::Tr(
                "Qt {0} (gebaut mit {1}), SQLite {2}, {3}, libxlsxwriter {4}",
                {running, built, modBookFile::EngineVersion(), modReaderVersion::Text(), QStringLiteral(LXW_VERSION)}),
            cText::Tr("System: {0}, {1} {2}, {3}",
                      {QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
                       QSysInfo::currentCpuArchitecture()}),
            cText::Tr("Umgebung: {0}", {Environment()})};
}

QStringList Places(const modDiagnosis::cFacts& facts)
{
    QString book = facts.Book;
    if (book.isEmpty()) {
        const QString configured = facts.Configuration.GetSetting(modSettingKey::Database);
        book = configured.isEmpty() ? modSchema::DefaultDatabasePath(facts.Shell) : configured;
    }
    QStringList lines{cText::Tr("Programm: {0}", {Shown(QCoreApplication::applicationDirPath())}),
                      File(cText::Tr("Vorlage"), facts.Shell.InstalledFile(u"template.dat"_s)),
                      File(cText::Tr("Verzeichnis der Banken"), facts.Shell.InstalledFile(u"banken.tsv"_s)),
                      File(cText::Tr("Buch"), book)};
    for (const QLatin1StringView ending : {"-wal"_L1, "-journal"_L1, ".lock"_L1}) {
        const QString companion = book + ending;
        if (QFileInfo::exists(companion)) {
            lines.append(File(cText::Tr("Daneben"), companion));
        }
    }
    const QString folder = QFileInfo(book).absolutePath(); // what else lies there is the user's own
    lines.append(cText::Tr("Ordner des Buchs: {0} (frei: {1})", {Shown(folder), Room(folder)}));
    const QString copies = QFileInfo(book).dir().filePath(u"Sicherungen"_s);
    if (QFileInfo::exists(copies)) {
        lines.append(Folder(cText::Tr("Sicherungen"), copies));
    }
    lines.append(Folder(cText::Tr("Datenordner"), facts.Shell.DataFolder()));
    lines.append(Folder(cText::Tr("Fehlerprotokoll"), facts.Shell.StateFolder()));
    return lines;
}

} // namespace

QString modDiagnosis::Shown(const QString& path, const QString& home, const QString& user)
{
    QStringList parts = QDir::cleanPath(path).split(u'/');
    const QStringList own = QDir::cleanPath(home).split(u'/');
    if (own.size() > 1 && !own.constLast().isEmpty() && parts.mid(0, own.size()) == own) {
        parts = QStringList(u"~"_s) + parts.mid(own.size());
    }
    for (QString& part : parts) {
        part = !user.isEmpty() && part == user ? u"…"_s : part;
    }
    return QDir::toNativeSeparators(parts.join(u'/'));
}

QString modDiagnosis::Text(const cFacts& facts)
{
    return (Versions(facts.Program) + facts.Surface + Places(facts)).join(u'\n') + u'\n';
}
