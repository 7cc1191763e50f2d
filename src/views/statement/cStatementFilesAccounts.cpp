// What cStatementFiles asks about a file that was refused, and what becomes of accounts once the rows are there.
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cBookTools.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportResult.h"
#include "store/cDataAccess.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cFilesOutcome.h"
#include "views/statement/cStatementFiles.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;
using eWish = cStatementWishes::eWish;

namespace {

QString NameOf(const cImportResult& result)
{
    return result.IsFetched ? result.File : QFileInfo(result.File).fileName();
}

} // namespace

bool cStatementFiles::IsWantedWithoutStrays(const cImportResult& result)
{
    const cDecision decision{.Text = NameOf(result) + u'\n' + result.Message,
                             .Title = cText::Tr("Kontoauszug einlesen"),
                             .Options = {cText::Tr("&Ohne diese Zeilen lesen"), cText::Tr("&Nicht einlesen")}};
    return m_tools.User.Decide(decision) == 0;
}

bool cStatementFiles::IsCurrencyWanted(const cImportResult& result)
{
    return m_tools.User.Ask({.Text = NameOf(result) + u'\n'
                                 + cText::Tr("{0}\n\nSoll er trotzdem eingelesen werden?", {result.Message}),
                             .Title = cText::Tr("Andere Währung"),
                             .Default = eAnswer::No})
        == eAnswer::Yes;
}

// Before the next file is read: by then a name may stand for a number.
void cStatementFiles::TakeAccounts(const cImportResult& result, const QHash<QString, QString>& products,
                                   cFilesOutcome& outcome)
{
    outcome.IsDone = AddNames(result, outcome.Notes) && outcome.IsDone;
    outcome.IsDone = AssignAccounts(result.Accounts, products, outcome.Notes) && outcome.IsDone;
}

// One account for all leaves the names of the file's own without meaning.
bool cStatementFiles::AddNames(const cImportResult& result, QStringList& notes)
{
    QStringList names = result.Book.Accounts;
    cForeignNames missing = modForeignNames::Missing(result.Book, m_tools.Data, m_accounts);
    if (!m_wishes.Account.isEmpty()) {
        missing.Accounts.clear();
        names.removeIf([&](const QString& name) { return result.Accounts.contains(name); });
    }
    if (!missing.Bad.isEmpty()) {
        notes.append(modForeignNames::BadText(missing.Bad));
    }
    if (!missing.IsEmpty()) {
        if (!modForeignNames::Create(missing, m_tools.Data, m_accounts)) {
            return false;
        }
        notes.append(cText::Tr("Aus der Datei angelegt: {0}", {modForeignNames::Count(missing)}));
    }
    (void)m_accounts.AssignNames(names);
    return true;
}

bool cStatementFiles::AssignAccounts(const QStringList& numbers, const QHash<QString, QString>& products,
                                     QStringList& notes)
{
    if (m_wishes.Account.isEmpty()) {
        (void)m_accounts.AssignNames(numbers);
    }
    const QStringList unknown = m_accounts.Unknown(numbers);
    for (const QString& number : unknown) {
        const QString account =
            m_wishes.Account.isEmpty() ? m_accounts.NameFor(number, products.value(number)) : m_wishes.Account;
        if (!m_accounts.Assign(number, account)) {
            notes.append(cText::Tr("Der Kontonummer '{0}' konnte kein Konto zugeordnet werden.", {number}));
            return false;
        }
        notes.append(cText::Tr("Die Kontonummer '{0}' gehört nun zum Konto '{1}'.", {number, account}));
    }
    return true;
}

void cStatementFiles::OfferNames(const cForeignNames& names)
{
    if (names.IsEmpty() || m_tools.Data.IsReadOnly()) {
        return;
    }
    const cForeignNames missing = modForeignNames::Missing(names, m_tools.Data, m_accounts);
    if (!missing.IsEmpty() && AreNamesWanted(missing)) {
        (void)modForeignNames::Create(missing, m_tools.Data, m_accounts); // of a refusal the user has been told
    }
    (void)m_accounts.AssignNames(names.Accounts);
    // What the list proposes was made without them.
    Q_EMIT AccountsAsked(missing.Bad.isEmpty() ? QStringList() : QStringList(modForeignNames::BadText(missing.Bad)));
}

bool cStatementFiles::AreNamesWanted(const cForeignNames& missing)
{
    const QStringList lines = modCount::Cut(missing.Accounts + missing.Categories.keys(), 10);
    const cQuestion question{.Text = cText::Tr("Noch nicht im Buch sind aus der Datei: {0}\n\n{1}\n\nSollen sie "
                                               "angelegt werden?",
                                               {modForeignNames::Count(missing), lines.join(u'\n')}),
                             .Title = cText::Tr("Kategorien und Konten der Datei"),
                             .Default = eAnswer::Yes};
    return m_tools.User.Ask(question) == eAnswer::Yes;
}

bool cStatementFiles::IsStartOffered() const
{
    return m_wishes.Start != eWish::Leave && !m_tools.Data.IsReadOnly();
}

// Before the first question: the program may end at each of them.
void cStatementFiles::ExpectStart(const QStringList& numbers)
{
    if (IsStartOffered()) {
        cOpeningBalance(m_tools).Expect(numbers);
    }
}

void cStatementFiles::OfferStart(const QStringList& numbers, cFilesOutcome& outcome)
{
    if (!IsStartOffered()) {
        return;
    }
    const cOpeningBalance opening(m_tools);
    bool isTaken = false;
    for (const QString& number : numbers) {
        const std::optional<cOpeningBalance::cOffer> offer = opening.For(number);
        const eAnswer answer = !offer ? eAnswer::No
            : m_wishes.Start == eWish::Take
            ? eAnswer::Yes
            : m_tools.User.Ask({.Text = opening.Question(*offer), .Title = cText::Tr("Startguthaben")});
        if (answer == eAnswer::Cancel) {
            continue; // nobody has answered
        }
        if (answer == eAnswer::Yes) {
            if (!opening.Take(*offer)) { // of a refusal the user has been told, and is asked again
                outcome.IsDone = false;
                continue;
            }
            outcome.Notes.append(opening.Report(*offer));
            isTaken = true;
        }
        opening.Settle(number);
    }
    if (isTaken) {
        Q_EMIT StartTaken();
    }
}

void cStatementFiles::AskAccounts(const QStringList& numbers)
{
    QStringList assigned = m_accounts.Unknown(numbers);
    AskUnknown(numbers, {});
    assigned.removeIf([this](const QString& number) { return m_accounts.AccountOf(number).isEmpty(); });
    ExpectStart(assigned);
    cFilesOutcome told;
    OfferStart(assigned, told);
}

void cStatementFiles::AskUnknown(const QStringList& numbers, const QHash<QString, QString>& products)
{
    const QStringList named = m_accounts.AssignNames(numbers);
    QStringList unknown = m_accounts.Unknown(numbers);
    unknown.removeDuplicates();
    if ((named.isEmpty() && unknown.isEmpty()) || m_tools.Data.IsReadOnly()) {
        return;
    }
    QStringList lines;
    for (const QString& number : std::as_const(unknown)) {
        if (m_accounts.Ask(number, m_tools.User, products.value(number)).isEmpty()) {
            lines.append(modImportText::NoAccount(number));
        }
    }
    Q_EMIT AccountsAsked(lines);
}
