#include "store/modBookFile.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "store/modFailure.h"
#include "store/modSchema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

// Files that SQLite keeps beside a database. They belong to its content: left behind, they would be played into
// whatever file comes in its place.
const QStringList companions{u"-journal"_s, u"-wal"_s, u"-shm"_s};

const QString workingEnd = u".neu"_s;

std::filesystem::path Native(const QString& path)
{
    return QFileInfo(path).filesystemFilePath();
}

// Has SQLite take back what a killed program left half written, so that the file is whole without its journal: beside a
// file of another name the journal would be of no use, and beside another file of this name it would do harm.
void Settle(const QString& path)
{
    cDatabase database;
    (void)modSchema::OpenValid(database, path, eOpenMode::ReadWrite);
}

// Gives a file a second name; where the volume has no such thing, that of a copy.
bool Keep(cShell& shell, const QString& path, const QString& kept)
{
    std::error_code error;
    std::filesystem::create_hard_link(Native(path), Native(kept), error);
    if (!error) {
        return true;
    }
    const QString copy = modBookFile::WorkingName(kept);
    if (shell.CopyFile(path, copy) && shell.RenameFile(copy, kept)) {
        return true;
    }
    QFile::remove(copy);
    return false;
}

// What is still beside the file then is of no use to SQLite, but it is not ours to delete.
void MoveCompanions(cShell& shell, const QString& from, const QString& to)
{
    for (const QString& companion : companions) {
        if (shell.FileExists(from + companion)) {
            (void)shell.RenameFile(from + companion, to + companion);
        }
    }
}

// True for a second name of the same file.
bool IsSameFile(const QString& path, const QString& other)
{
    std::error_code error;
    return std::filesystem::equivalent(Native(path), Native(other), error) && !error;
}

bool HasCompanions(const QString& path)
{
    return std::any_of(companions.begin(), companions.end(),
                       [&](const QString& companion) { return QFileInfo::exists(path + companion); });
}

// The files of a folder whose names match, as paths.
QStringList Matching(const QString& folder, const QString& names)
{
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(names));
    QStringList found = QDir(folder).entryList(QDir::Files).filter(pattern);
    for (QString& name : found) {
        name = QDir(folder).filePath(name);
    }
    return found;
}

void ReadEntries(cDatabase& database, modBookFile::cContent& content)
{
    cRows rows(database, "SELECT COUNT(*), MAX(date(EntryDate)) FROM data");
    if (rows.Next()) {
        content.Entries = static_cast<int>(rows.Integer(0));
        content.LastEntry = modDate::FromIso(rows.Text(1));
    }
}

} // namespace

QString modBookFile::EngineVersion()
{
    return QString::fromLatin1(sqlite3_libversion());
}

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
        content.Lost = modSchema::Lost(database);
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

QString modBookFile::Refusal(const QString& backup, const cContent& content)
{
    if (!IsSound(content)) {
        return cText::Tr("Die Datensicherung '{0}' ist beschädigt oder keine gültige Datenbank.", {backup});
    }
    return content.Lost.isEmpty()
        ? QString()
        : cText::Tr("Die Datensicherung '{0}' ist unvollständig. Es fehlt: {1}", {backup, content.Lost.join(u", "_s)});
}

QString modBookFile::Describe(const cContent& content)
{
    const QString count = modCount::Entries(content.Entries);
    const QString file = cText::Tr("Datei vom {0} {1}",
                                   {modDate::ToText(content.Modified.date()), content.Modified.toString(u"HH:mm"_s)});
    return content.LastEntry.isValid()
        ? cText::Tr("{0}, der letzte vom {1}, {2}", {count, modDate::ToText(content.LastEntry), file})
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

QString modBookFile::WorkingName(const QString& path)
{
    QString name = path + workingEnd;
    for (int number = 2; QFileInfo::exists(name); ++number) { // another program may be at the same work
        name = path + workingEnd + QString::number(number);
    }
    return name;
}

// The file last: what goes with it is found by its name.
void modBookFile::Remove(const QString& path)
{
    for (const QString& companion : companions) {
        QFile::remove(path + companion);
    }
    QFile::remove(path);
}

bool modBookFile::MoveOver(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(Native(from), Native(to), error);
    return !error;
}

// Killed before the last move, a program leaves the former file where it was, whole and under a second name.
std::optional<QString> modBookFile::PutInPlace(cShell& shell, const QString& working, const QString& path, QDate today,
                                               const QString& ending)
{
    const QString kept = FreeName(shell, path, today, ending);
    const bool isThere = shell.FileExists(path);
    if (isThere) {
        Settle(path);
        if (!Keep(shell, path, kept)) {
            return std::nullopt;
        }
    }
    MoveCompanions(shell, path, kept);
    if (MoveOver(working, path)) {
        return isThere ? kept : QString();
    }
    MoveCompanions(shell, kept, path);
    QFile::remove(kept);
    return std::nullopt;
}

bool modBookFile::PutBack(cShell& shell, const QString& kept, const QString& path)
{
    if (shell.FileExists(path)) {
        Settle(path);
    }
    if (!MoveOver(kept, path)) {
        return false;
    }
    MoveCompanions(shell, kept, path);
    return true;
}

QStringList modBookFile::Leftovers(const QString& path)
{
    const QFileInfo book(path);
    const QDir folder = book.dir();
    const QString name = QRegularExpression::escape(book.fileName());
    const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(name + u"(\\.neu[0-9]*|\\.[0-9-]+\\.ersetzt)"_s));
    QStringList complete;
    QStringList incomplete;
    const QFileInfoList files = folder.entryInfoList(QDir::Files, QDir::Time);
    for (const QFileInfo& file : files) {
        if (!pattern.match(file.fileName()).hasMatch()) {
            continue;
        }
        if (const cContent content = Look(file.filePath()); IsSound(content)) {
            (content.Lost.isEmpty() ? complete : incomplete).append(file.filePath());
        }
    }
    return complete + incomplete;
}

void modBookFile::RemoveWorking(const QString& folder, const QString& targets)
{
    const QStringList files = Matching(folder, targets + u"\\.neu[0-9]*("_s + companions.join(u'|') + u")?"_s);
    for (const QString& file : files) {
        Remove(file);
    }
}

void modBookFile::TidyBeside(const QString& path)
{
    const QFileInfo book(QFileInfo(path).canonicalFilePath());
    const QString folder = book.absolutePath();
    const QString name = QRegularExpression::escape(book.fileName());
    const QString kept = name + u"\\.[0-9-]+\\.(ersetzt|beschaedigt)"_s;
    RemoveWorking(folder, kept);
    const QStringList files = Matching(folder, name + u"\\.neu[0-9]*"_s);
    for (const QString& file : files) {
        if (!IsSound(Look(file))) {
            Remove(file);
        }
    }
    const QStringList replaced = Matching(folder, kept);
    for (const QString& file : replaced) {
        if (IsSameFile(file, book.filePath()) && !HasCompanions(file)) {
            QFile::remove(file);
        }
    }
}
