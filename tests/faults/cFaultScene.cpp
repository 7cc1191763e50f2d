#include "faults/cFaultScene.h"

#include "store/modBookFile.h"
#include "store/modSchema.h"
#include "support/bookDump.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString statement = u"Buchungstag;Wertstellung;Buchungstext;Verwendungszweck;Beguenstigter/Zahlungspflichtiger;"
                          "Kontonummer;BLZ;Betrag;Waehrung\n"
                          "02.11.2026;02.11.2026;LASTSCHRIFT;Strom November;Stadtwerke Musterstadt;;;-80,00;EUR\n"
                          "03.11.2026;03.11.2026;KARTENZAHLUNG;Einkauf 4711;Markt Mueller;;;-23,45;EUR\n"
                          "04.11.2026;04.11.2026;GUTSCHRIFT;Gehalt;Firma Beispiel;;;2500,00;EUR\n"_s;

void Write(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        qFatal("cannot write");
    }
}

} // namespace

cFaultScene::cFaultScene(cFaultPrograms programs, int book, const QStringList& arrival)
    : m_programs(std::move(programs)),
      m_folder(std::make_unique<QTemporaryDir>())
{
    const auto run = [this](const QString& program, const QStringList& arguments) {
        QProcess process;
        Start(process, program, arguments, {});
        if (process.exitCode() != 0) {
            qFatal("setting up failed: %s", process.readAllStandardError().constData());
        }
    };
    const QString path = m_folder->filePath(u"buch.db"_s);
    Write(m_folder->filePath(u"umsatz.csv"_s), statement);
    run(m_programs.CommandLine, {u"demo"_s, path});
    run(m_programs.CommandLine,
        {u"import"_s, m_folder->filePath(u"umsatz.csv"_s), u"--account"_s, u"DE02100100100006820101"_s,
         u"--book-account"_s, u"Girokonto"_s});
    Vary(book);
    if (!arrival.isEmpty()) {
        run(m_programs.Tested, arrival);
    }
    QFile::copy(path, m_origin.filePath(u"buch.db"_s));
}

void cFaultScene::Vary(int book) const
{
    if (book == 0) {
        return;
    }
    constexpr std::array pageSizes{1024, 2048, 8192, 512, 16384};
    const int pageSize = pageSizes.at(static_cast<std::size_t>(book) % pageSizes.size());
    cDatabase database;
    database.Open(m_folder->filePath(u"buch.db"_s), eOpenMode::ReadWrite);
    database.ExecuteScript(
        QStringLiteral("UPDATE data SET EntryDescription = EntryDescription || printf('%.*c', ID * %1 % 97, 'x') "
                       "WHERE EntryInterval = 'Einmalig' AND ID > 3;"
                       "PRAGMA page_size = %2; VACUUM;"
                       "DELETE FROM data WHERE EntryInterval = 'Einmalig' AND ID > 100 AND ID % %3 = 0;")
            .arg(book)
            .arg(pageSize)
            .arg(book + 2)
            .toStdString());
}

QStringList cFaultScene::Run(const QStringList& arguments, const QString& kind, long number)
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile::copy(m_origin.filePath(u"buch.db"_s), m_folder->filePath(u"buch.db"_s));
    Write(m_folder->filePath(u"mehr.csv"_s), QString(statement).replace(u"11.2026"_s, u"10.2026"_s));
    QProcess process;
    QStringList faults{u"FAULT_COUNT="_s + m_folder->filePath(u"count"_s), u"LD_PRELOAD="_s + m_programs.Shim};
    if (number > 0) {
        faults += {u"FAULT_KIND="_s + kind, u"FAULT_AT=%1"_s.arg(number)};
    }
    Start(process, m_programs.Tested, arguments, faults);
    IsKilled = process.exitStatus() == QProcess::CrashExit;
    ExitCode = process.exitCode();
    Output = QString::fromUtf8(process.readAllStandardError());
    return Read();
}

long cFaultScene::Calls() const
{
    QFile file(m_folder->filePath(u"count"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toLong() : 0;
}

QStringList cFaultScene::Faults()
{
    QStringList faults;
    QStringList left = Left();
    if (IsKilled && !left.isEmpty()) {
        // A program that was killed cannot tidy up; the next one has to.
        QProcess process;
        Start(process, m_programs.CommandLine, {u"add"_s, u"--amount"_s, u"1"_s, u"--category"_s, u"Haushalt"_s}, {});
        left = Left();
    }
    if (!left.isEmpty()) {
        faults.append(u"leaves "_s + left.join(u' '));
    }
    QDirIterator copies(m_folder->path(), {u"*.backup"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (copies.hasNext()) {
        const QString copy = copies.next();
        if (!modBookFile::IsSound(modBookFile::Look(copy))) {
            faults.append(u"no whole copy: "_s + copies.fileName());
        }
    }
    return faults;
}

// A journal whose records never reached the disk begins with a zero: it means nothing, and the next write takes it
// over. What a restored backup replaced is kept, and a whole book that was to replace it may be. An empty lock says
// nothing of its holder, so the next program asks before it writes.
bool cFaultScene::IsWanted(const QString& path) const
{
    const QString name = QFileInfo(path).fileName();
    if (name.endsWith(u"-journal")) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.read(1) == QByteArray(1, '\0');
    }
    if (name.endsWith(u".ersetzt")) {
        std::error_code error;
        return !std::filesystem::equivalent(QFileInfo(path).filesystemFilePath(),
                                            m_folder->filePath(u"buch.db"_s).toStdString(), error);
    }
    if (name == u"buch.db.lock") {
        return QFileInfo(path).size() == 0;
    }
    return name == u"buch.db" || name == u"count" || name.endsWith(u".csv") || name.endsWith(u".backup")
        || path.contains(u"/profil/") || (name == u"buch.db.neu" && modBookFile::IsSound(modBookFile::Look(path)));
}

QStringList cFaultScene::Left() const
{
    QStringList names;
    QDirIterator files(m_folder->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (!IsWanted(files.next())) {
            names.append(files.fileName());
        }
    }
    return names;
}

void cFaultScene::Start(QProcess& process, const QString& program, const QStringList& arguments,
                        const QStringList& faults) const
{
    const QString folder = m_folder->path();
    process.setEnvironment(QProcess::systemEnvironment() + faults);
    process.setWorkingDirectory(folder);
    const QStringList all = arguments.constFirst() == u"demo"
        ? arguments
        : QStringList{u"--database"_s, folder + u"/buch.db"_s} + arguments;
    process.start(program, QStringList{u"--profile"_s, folder + u"/profil"_s} + all);
    constexpr int longest = 60000;
    if (!process.waitForFinished(longest)) {
        qFatal("%s does not start, or does not end", qUtf8Printable(program));
    }
}

QStringList cFaultScene::Read() const
{
    cDatabase database;
    const QString path = m_folder->filePath(u"buch.db"_s);
    if (modSchema::OpenValid(database, path, eOpenMode::ReadWrite) != eDatabaseFault::None) {
        return {u"unreadable"_s};
    }
    try {
        const QStringList problems = database.IntegrityCheck();
        return problems.isEmpty() ? Dump(database) : QStringList(u"damaged: "_s + problems.constFirst());
    } catch (const cDatabaseError& error) {
        return {u"unreadable: "_s + error.Text()};
    }
}
