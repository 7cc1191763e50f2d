// Damages books in many ways and lets the program read and write them, each in a process of its own. No book may end or
// stop the program, whatever is in it; and what SQLite calls damaged must be called so before it is written.
//   bookMutants [COUNT] [SEED]
// The exit status is 1 when a book did what it must not. Mutants that did are kept in the folder of temporary files.

#include "core/cBook.h"
#include "store/cUndoStep.h"
#include "support/testBook.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTextStream>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr unsigned patience = 20; // seconds that a book may take

enum eEnd { Sound = 0, Refused = 1, SaidDamaged = 2, WroteDamaged = 3 };

QByteArray Original()
{
    cTestBook book;
    for (int i = 0; i < 400; ++i) {
        (void)book.Add([&](cEntryItem& entry) {
            entry.EntryDescription = u"Eintrag %1"_s.arg(i);
            entry.EntryInterval = i % 20 == 0 ? u"Monatlich"_s : modWord::Einmalig;
        });
        cImportEntry row;
        row.ImportAccount = u"DE02100100100006820101"_s;
        row.ImportDate = QDate(2026, 1, 1).addDays(i);
        row.ImportPurpose = u"Umsatz %1"_s.arg(i);
        row.ImportValue = -i;
        if (!book.Data.AddNewImportEntry(row)) {
            qFatal("the book cannot be made");
        }
    }
    QFile file(book.Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

constexpr int page = 4096;

// One of many ways to damage a file.
void Damage(QByteArray& bytes, QRandomGenerator& random)
{
    const auto at = [&](qsizetype size) {
        return static_cast<qsizetype>(random.bounded(static_cast<quint32>(qMax(qsizetype{1}, size))));
    };
    const qsizetype pages = qMax(qsizetype{1}, bytes.size() / page);
    const auto change = [&](qsizetype place) {
        if (place < bytes.size()) {
            bytes[place] = static_cast<char>(random.generate());
        }
    };
    switch (random.bounded(8)) {
    case 0: change(at(bytes.size())); break;
    case 1: change(at(100)); break; // the file's head
    case 2: bytes.truncate(at(bytes.size())); break;
    case 3: bytes.truncate(at(pages) * page); break;
    case 4: bytes.replace(at(pages) * page, page, QByteArray(page, '\0')); break;
    case 5: bytes.replace(at(pages) * page, page, bytes.mid(at(pages) * page, page)); break;
    case 6: change(at(pages) * page + random.bounded(16)); break; // a page's head
    default: {
        const qsizetype from = at(bytes.size());
        for (qsizetype i = from; i < qMin(bytes.size(), from + random.bounded(64)); ++i) {
            change(i);
        }
    }
    }
}

eEnd Use(const QString& path)
{
    cFakeUser user;
    cBook book(user);
    if (!book.Open(path)) {
        return Refused;
    }
    cDataAccess& data = book.Data();
    (void)data.GetEntries({});
    (void)data.GetSums({}, true);
    (void)data.GetTemplates();
    (void)data.GetImportEntries();
    (void)data.GetEntryMods(1);
    (void)data.CountEntriesByAccount();
    (void)data.GetFileProblems();
    const bool isKnownDamaged = !data.IsWhole();
    cEntryItem entry;
    entry.EntryDate = QDate(2026, 3, 10);
    entry.EntryType = modWord::Ausgabe;
    entry.EntryInterval = modWord::Einmalig;
    cUndoStep step(data, u"angelegt"_s);
    const bool isWritten = step.DoneIf(data.AddNewEntry(entry));
    if (isKnownDamaged) {
        return isWritten ? WroteDamaged : SaidDamaged;
    }
    return Sound;
}

// How a process ended that used the book: an eEnd, or the number of its signal below zero.
int Play(const QString& path)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(patience);
        _exit(Use(path));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int count = qMax(1, QCoreApplication::arguments().value(1, u"2000"_s).toInt());
    QRandomGenerator random(QCoreApplication::arguments().value(2, u"1"_s).toUInt());
    const QByteArray original = Original();
    const QTemporaryDir folder;
    QMap<int, int> ends;
    for (int i = 0; i < count; ++i) {
        QByteArray bytes = original;
        for (int damages = 1 + random.bounded(4); damages > 0 && !bytes.isEmpty(); --damages) {
            Damage(bytes, random);
        }
        const QString path = folder.filePath(u"mutant%1.db"_s.arg(i));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write");
        }
        file.close();
        const int end = Play(path);
        ++ends[end];
        if (end < 0 || end == WroteDamaged) {
            QFile kept(QDir::tempPath() + u"/mutant-%1.db"_s.arg(i));
            (void)(kept.open(QIODevice::WriteOnly) && kept.write(bytes) > 0);
        }
        QFile::remove(path);
        QFile::remove(path + u"-journal");
    }
    const int wrong = ends.value(WroteDamaged)
        + std::accumulate(ends.keyValueBegin(), ends.keyValueEnd(), 0,
                          [](int sum, const auto& end) { return end.first < 0 ? sum + end.second : sum; });
    QTextStream(stdout) << count << " books: " << ends.value(Sound) << " read and written, " << ends.value(Refused)
                        << " refused, " << ends.value(SaidDamaged) << " said to be damaged, "
                        << ends.value(WroteDamaged) << " written although damaged, " << wrong - ends.value(WroteDamaged)
                        << " ended the program\n";
    return wrong == 0 ? 0 : 1;
}
