#include "base/cClock.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "views/book/cBookCheck.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The option of "change" that mends a fault.
QString Option(eEntryFault fault)
{
    switch (fault) {
    case eEntryFault::Day: return u"--date DATUM"_s;
    case eEntryFault::Kind: return u"--kind ART"_s;
    case eEntryFault::Interval: return u"--interval INTERVALL"_s;
    case eEntryFault::End: return u"--end DATUM"_s;
    case eEntryFault::Length: return u"--from DATUM --amount BETRAG"_s;
    case eEntryFault::Amount: return u"--amount BETRAG"_s;
    case eEntryFault::Account: return u"--account KONTO"_s;
    case eEntryFault::Target: return u"--to-account KONTO"_s;
    }
    return {};
}

void Show(const cFaultyEntry& faulty)
{
    QStringList options;
    for (const eEntryFault fault : faulty.Faults) {
        options.append(Option(fault));
    }
    const QString id = QString::number(faulty.Entry.ID);
    modConsole::Out(
        cText::Tr("Eintrag {0}, '{1}': {2}", {id, faulty.Entry.Name(), cBookCheck::FaultText(faulty)}) + u"\n  "_s
        + cText::Tr("\"change {0} {1}\" berichtigt ihn, \"delete {0} --yes\" löscht ihn.", {id, options.join(u' ')})
        + u'\n');
}

QString Head(cCliBook& book, const cBookCheck& check)
{
    const QString entries = modCount::Entries(book.File().CountEntries());
    return check.IsFileSound()
        ? cText::Tr("{0}: gültige Datenbank, {1}, {2}",
                    {book.File().Path(), entries, modCount::Rows(static_cast<int>(book.Statements.Rows().size()))})
        : cText::Tr("{0}: {1}", {book.File().Path(), entries});
}

int RunCheck(const cCliContext& context)
{
    cCliBook& book = *context.Book;
    const cBookCheck check(book.Data, book.Format(), context.Clock.Today());
    modConsole::Out(Head(book, check) + u'\n');
    const QStringList added = book.File().Added();
    if (!added.isEmpty()) {
        modConsole::Out(cText::Tr("Beim Öffnen ergänzt: {0}", {added.join(u", "_s)}) + u'\n');
    }
    for (const QString& problem : check.FileProblems()) {
        modConsole::Error(problem);
    }
    modConsole::Out(check.FileText() + u'\n' + check.EntriesText() + u'\n');
    if (const QString receipts = check.ReceiptText(); !receipts.isEmpty()) {
        modConsole::Out(receipts + u'\n');
    }
    for (const cFaultyEntry& entry : check.Entries()) {
        Show(entry);
    }
    return check.IsSound() ? modExit::Done : modExit::Failed;
}

} // namespace

cCliCommand modCliCommands::CheckCommand()
{
    return {.Name = u"check"_s,
            .Help = cText::Tr(
                "prüft die Datenbank, sucht Einträge, die nicht zu sehen sind oder nicht richtig mitzählen, und sagt, "
                "was beim Öffnen ergänzt wurde"),
            .Access = eCliAccess::Write,
            .Run = RunCheck};
}
