// Plays faults against the command line program: for every writing command and every call of it that changes a file, a
// kill before the call, a kill in the middle of a write, a full disk, or a broken one. Afterwards the book must be
// whole and hold all of the command or nothing of it.
//   commandFaults PROGRAM SHIM [kill|torn|full|broken|all] [EVERY]
// EVERY n takes each n-th call only. The exit status is 1 when something was lost, doubled or half.

#include "store/modSchema.h"
#include "support/bookDump.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cCommand
{
    QString Name;
    QStringList Arguments;
    bool IsInParts = false; // each row that it writes counts by itself
};

const QString statement = u"Buchungstag;Wertstellung;Buchungstext;Verwendungszweck;Beguenstigter/Zahlungspflichtiger;"
                          "Kontonummer;BLZ;Betrag;Waehrung\n"
                          "02.11.2026;02.11.2026;LASTSCHRIFT;Strom November;Stadtwerke Musterstadt;;;-80,00;EUR\n"
                          "03.11.2026;03.11.2026;KARTENZAHLUNG;Einkauf 4711;Markt Mueller;;;-23,45;EUR\n"
                          "04.11.2026;04.11.2026;GUTSCHRIFT;Gehalt;Firma Beispiel;;;2500,00;EUR\n"_s;

// A program with a private profile and a book, in a folder that is made anew for every run.
class cScene
{
public:
    cScene(QString program, QString shim) : m_program(std::move(program)), m_shim(std::move(shim))
    {
        Write(m_origin.filePath(u"umsatz.csv"_s), statement);
        for (const QStringList& arguments : {QStringList{u"demo"_s, Origin()},
                                             {u"import"_s, m_origin.filePath(u"umsatz.csv"_s), u"--account"_s,
                                              u"DE02100100100006820101"_s, u"--book-account"_s, u"Girokonto"_s}}) {
            QProcess process;
            Start(process, arguments, m_origin.path(), {});
            if (process.exitCode() != 0) {
                qFatal("setting up failed: %s", process.readAllStandardError().constData());
            }
        }
    }

    // Runs a command on a fresh copy of the book; `number` 0: without a fault. What stands in the book then.
    QStringList Run(const cCommand& command, const QString& kind, long number)
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const QString& name : {u"buch.db"_s, u"umsatz.csv"_s}) {
            QFile::copy(m_origin.filePath(name), m_folder->filePath(name));
        }
        Write(m_folder->filePath(u"mehr.csv"_s), QString(statement).replace(u"11.2026"_s, u"10.2026"_s));
        QProcess process;
        QStringList faults{u"FAULT_COUNT="_s + m_folder->filePath(u"count"_s)};
        if (number > 0) {
            faults += {u"FAULT_KIND="_s + kind, u"FAULT_AT=%1"_s.arg(number)};
        }
        Start(process, command.Arguments, m_folder->path(), faults);
        IsKilled = process.exitStatus() == QProcess::CrashExit;
        ExitCode = process.exitCode();
        Output = QString::fromUtf8(process.readAllStandardError());
        return Read();
    }

    [[nodiscard]] long Calls() const
    {
        QFile file(m_folder->filePath(u"count"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toLong() : 0;
    }

    // Files that a command leaves behind, after the book was opened once more. A journal whose records never reached
    // the disk begins with a zero: it means nothing, and the next write takes it over.
    [[nodiscard]] QStringList Left() const
    {
        QStringList names = QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
        names.removeIf([this](const QString& name) {
            QFile file(m_folder->filePath(name));
            const bool isVoid =
                name.endsWith(u"-journal") && file.open(QIODevice::ReadOnly) && file.read(1) == QByteArray(1, '\0');
            return isVoid || name == u"buch.db" || name.endsWith(u".csv") || name == u"count"
                || name.endsWith(u".backup");
        });
        return names;
    }

    bool IsKilled = false;
    int ExitCode = 0;
    QString Output;

private:
    [[nodiscard]] QString Origin() const { return m_origin.filePath(u"buch.db"_s); }

    static void Write(const QString& path, const QString& text)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
            qFatal("cannot write");
        }
    }

    void Start(QProcess& process, const QStringList& arguments, const QString& folder, const QStringList& faults) const
    {
        QStringList environment = QProcess::systemEnvironment() + faults;
        if (!faults.isEmpty()) {
            environment.append(u"LD_PRELOAD="_s + m_shim);
        }
        process.setEnvironment(environment);
        process.setWorkingDirectory(folder);
        const QStringList all = arguments.constFirst() == u"demo"
            ? arguments
            : QStringList{u"--database"_s, folder + u"/buch.db"_s} + arguments;
        process.start(m_program, QStringList{u"--profile"_s, folder + u"/profil"_s} + all);
        if (!process.waitForFinished(60000)) {
            qFatal("the program does not end");
        }
    }

    [[nodiscard]] QStringList Read() const
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

    QString m_program;
    QString m_shim;
    QTemporaryDir m_origin;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QList<cCommand> Commands()
{
    return {
        {u"add"_s,
         {u"add"_s, u"--amount"_s, u"12,34"_s, u"--category"_s, u"Haushalt; Lebensmittel"_s, u"--account"_s,
          u"Girokonto"_s, u"--date"_s, u"2026-11-05"_s}},
        {u"import"_s, {u"import"_s, u"mehr.csv"_s, u"--account"_s, u"DE02100100100006820101"_s}, true},
        {u"book"_s, {u"book"_s, u"--all"_s}},
        {u"match"_s, {u"match"_s}},
        {u"change from here"_s,
         {u"change"_s, u"14"_s, u"--amount"_s, u"777"_s, u"--from"_s, u"2026-12-01"_s, u"--yes"_s}},
        {u"delete"_s, {u"delete"_s, u"20"_s, u"--yes"_s}},
        {u"rename account"_s, {u"accounts"_s, u"rename"_s, u"Girokonto"_s, u"Hauptkonto"_s, u"--entries"_s, u"yes"_s}},
        {u"delete account"_s, {u"accounts"_s, u"delete"_s, u"Sparkonto"_s, u"--move-to"_s, u"Girokonto"_s, u"--yes"_s}},
        {u"rename category"_s, {u"categories"_s, u"rename"_s, u"Haushalt; Lebensmittel"_s, u"Haushalt; Essen"_s}},
        {u"rename main"_s, {u"categories"_s, u"rename"_s, u"Haushalt"_s, u"Haus"_s}},
        {u"merge"_s, {u"categories"_s, u"merge"_s, u"Haushalt; Lebensmittel"_s, u"Alltag; Bus und Bahn"_s, u"--yes"_s}},
    };
}

struct cCounts
{
    int Runs = 0;
    int Before = 0;
    int After = 0;
    int Wrong = 0;
};

bool IsBetween(const QStringList& rows, const QStringList& before, const QStringList& after)
{
    return std::all_of(rows.begin(), rows.end(),
                       [&](const QString& row) { return before.contains(row) || after.contains(row); })
        && std::all_of(before.begin(), before.end(),
                       [&](const QString& row) { return rows.contains(row) || !after.contains(row); });
}

void Play(cScene& scene, const cCommand& command, const QString& kind, long every, QTextStream& out, cCounts& all)
{
    const QStringList before = scene.Run({u"nothing"_s, {u"balances"_s}}, {}, 0);
    const QStringList after = scene.Run(command, {}, 0);
    const long calls = scene.Calls();
    if (scene.ExitCode != 0 || after == before || calls == 0) {
        out << "  " << command.Name << ": did nothing (" << scene.Output.trimmed() << ")\n";
        ++all.Wrong;
        return;
    }
    cCounts counts;
    for (long number = 1; number <= calls; number += every) {
        const QStringList left = scene.Run(command, kind, number);
        ++counts.Runs;
        const bool isBefore = left == before;
        const bool isAfter = left == after;
        const bool isPart = command.IsInParts && IsBetween(left, before, after);
        const bool isLying = !scene.IsKilled && scene.ExitCode == 0 && !isAfter;
        counts.Before += isBefore ? 1 : 0;
        counts.After += isAfter ? 1 : 0;
        if ((!isBefore && !isAfter && !isPart) || isLying) {
            ++counts.Wrong;
            out << "  " << command.Name << ", " << kind << " at call " << number << " of " << calls
                << (isLying ? ": says that it was done" : ": neither before nor after") << " ("
                << left.value(0).left(60) << ")\n";
        }
        if (const QStringList files = scene.Left(); !files.isEmpty() && !scene.IsKilled) {
            ++counts.Wrong;
            out << "  " << command.Name << ", " << kind << " at call " << number << ": leaves " << files.join(u' ')
                << '\n';
        }
    }
    out << QStringLiteral("%1 %2 %3 runs: %4 as before, %5 done, %6 wrong\n")
               .arg(command.Name, -18)
               .arg(kind, -7)
               .arg(counts.Runs, 5)
               .arg(counts.Before)
               .arg(counts.After)
               .arg(counts.Wrong);
    out.flush();
    all.Runs += counts.Runs;
    all.Wrong += counts.Wrong;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream out(stdout);
    if (arguments.size() < 3) {
        out << "commandFaults PROGRAM SHIM [kill|torn|full|broken|all] [EVERY]\n";
        return 2;
    }
    const QString wanted = arguments.value(3, u"all"_s);
    const QStringList kinds =
        wanted == u"all" ? QStringList{u"kill"_s, u"torn"_s, u"full"_s, u"broken"_s} : QStringList(wanted);
    cScene scene(arguments.at(1), arguments.at(2));
    cCounts all;
    for (const QString& kind : kinds) {
        for (const cCommand& command : Commands()) {
            Play(scene, command, kind, std::max(1L, arguments.value(4).toLong()), out, all);
        }
    }
    out << all.Runs << " runs, " << all.Wrong << " wrong\n";
    return all.Wrong == 0 ? 0 : 1;
}
