// What cStatementFiles asks about accounts once the rows are there.
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "import/stage/cAccountMap.h"
#include "store/cDataAccess.h"
#include "views/list/modImportText.h"
#include "views/statement/cOpeningBalance.h"
#include "views/statement/cStatementFiles.h"

#include <utility>

void cStatementFiles::OfferStart(const QStringList& numbers)
{
    if (m_start == eStart::Leave || m_tools.Data.IsReadOnly()) {
        return;
    }
    const cOpeningBalance opening(m_tools);
    for (const QString& number : numbers) {
        const std::optional<cOpeningBalance::cOffer> offer = opening.For(number);
        const bool isWanted = offer
            && (m_start == eStart::Take
                || m_tools.User.Ask({.Text = opening.Question(*offer), .Title = cText::Tr("Startguthaben")})
                    == eAnswer::Yes);
        if (isWanted) {
            (void)opening.Take(*offer); // of a refusal the user has been told
        }
    }
}

void cStatementFiles::AskAccounts(const QStringList& numbers)
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
    OfferStart(named + unknown);
}
