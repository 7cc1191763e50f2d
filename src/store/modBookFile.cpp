#include "store/modBookFile.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "store/modFailure.h"
#include "store/modSchema.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// Files that SQLite keeps beside a database. They belong to its content: left behind, they would be played into
// whatever file comes in its place.
const QStringList companions{u"-journal"_s, u"-wal"_s, u"-shm"_s};

void ReadEntries(cDatabase& database, modBookFile::cContent& content)
{
    cRows rows(database, "SELECT COUNT(*), MAX(date(EntryDate)) FROM data");
    if (rows.Next()) {
        content.Entries = static_cast<int>(rows.Integer(0));
        content.LastEntry = modDate::FromIso(rows.Text(1));
    }
}

} // namespace

std::optional<cDatabaseError> modBookFile::Copy(cDatabase& database, const QString& path)
{
    try {
        database.BackupTo(path);
        return std::nullopt;
    } catch (const cDatabaseError& error) {
        return error;
    }
}

modBookFile::cContent modBookFile::Look(const QString& path)
{
    cContent content;
    content.Modified = QFileInfo(path).lastModified();
    cDatabase database;
    content.Fault = modSchema::OpenValid(database, path, eOpenMode::ReadOnly);
    if (content.Fault != eDatabaseFault::None) {
        return content;
    }
    try {
        ReadEntries(database, content);
        content.Problems = database.IntegrityCheck();
    } catch (const cDatabaseError& error) {
        content.Problems.append(modFailure::Reason(error));
    }
    return content;
}

bool modBookFile::IsCopy(const QString& path, const QString& other)
{
    QFile one(path);
    QFile two(other);
    return one.open(QIODevice::ReadOnly) && two.open(QIODevice::ReadOnly) && one.size() == two.size()
        && one.readAll() == two.readAll();
}

bool modBookFile::IsSound(const cContent& content)
{
    return content.Fault == eDatabaseFault::None && content.Problems.isEmpty();
}

QString modBookFile::Describe(const cContent& content)
{
    const QString count = modCount::Entries(content.Entries);
    const QString file = cText::Tr("Datei vom {0} {1}",
                                   {modDate::ToGerman(content.Modified.date()), content.Modified.toString(u"HH:mm"_s)});
    return content.LastEntry.isValid()
        ? cText::Tr("{0}, der letzte vom {1}, {2}", {count, modDate::ToGerman(content.LastEntry), file})
        : cText::Tr("{0}, {1}", {count, file});
}

QString modBookFile::FreeName(const cShell& shell, const QString& path, QDate today, const QString& ending)
{
    const QString start = path + u'.' + modDate::ToIso(today);
    QString name = start + u'.' + ending;
    for (int number = 2; shell.FileExists(name); ++number) {
        name = start + u'-' + QString::number(number) + u'.' + ending;
    }
    return name;
}

QString modBookFile::KeepAside(cShell& shell, const QString& path, QDate today, const QString& ending)
{
    const QString kept = FreeName(shell, path, today, ending);
    if (!shell.RenameFile(path, kept)) {
        return {};
    }
    for (const QString& companion : companions) {
        if (shell.FileExists(path + companion)) {
            (void)shell.RenameFile(path + companion, kept + companion);
        }
    }
    return kept;
}
