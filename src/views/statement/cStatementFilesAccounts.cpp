// What cStatementFiles asks about a file that was refused, and about accounts once the rows are there.
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cBookTools.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportResult.h"
#include "store/cDataAccess.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cStatementFiles.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;

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

void cStatementFiles::OfferStart(const QStringList& numbers)
{
    if (m_start == eWish::Leave || m_tools.Data.IsReadOnly()) {
        return;
    }
    const cOpeningBalance opening(m_tools);
    bool isTaken = false;
    for (const QString& number : numbers) {
        const std::optional<cOpeningBalance::cOffer> offer = opening.For(number);
        const bool isWanted = offer
            && (m_start == eWish::Take
                || m_tools.User.Ask({.Text = opening.Question(*offer), .Title = cText::Tr("Startguthaben")})
                    == eAnswer::Yes);
        isTaken = (isWanted && opening.Take(*offer)) || isTaken; // of a refusal the user has been told
    }
    if (isTaken) {
        Q_EMIT StartTaken();
    }
}

void cStatementFiles::AskAccounts(const QStringList& numbers)
{
    const QStringList unknown = m_accounts.Unknown(numbers);
    AskUnknown(numbers);
    OfferStart(unknown);
}

void cStatementFiles::AskUnknown(const QStringList& numbers)
{
    const QStringList named = m_accounts.AssignNames(numbers);
    QStringList unknown = m_accounts.Unknown(numbers);
    unknown.removeDuplicates();
    if ((named.isEmpty() && unknown.isEmpty()) || m_tools.Data.IsReadOnly()) {
        return;
    }
    QStringList lines;
    for (const QString& number : std::as_const(unknown)) {
        if (m_accounts.Ask(number, m_tools.User).isEmpty()) {
            lines.append(modImportText::NoAccount(number));
        }
    }
    Q_EMIT AccountsAsked(lines);
}
