#include "import/stage/cFetchedStatement.h"

#include "base/cText.h"
#include "import/mt940/modMT940.h"
#include "import/read/cReadOptions.h"
#include "import/read/modAccountNumber.h"
#include "import/stage/cStatementImport.h"
#include "import/xml/modCamt.h"

#include <numeric>
#include <utility>

namespace {

// Up to the last line that ends a statement.
QString WholeStatements(const QString& text)
{
    const qsizetype end = qMax(text.lastIndexOf(u"\n-\r"), text.lastIndexOf(u"\n-\n"));
    return text.endsWith(u"\n-") ? text : text.left(end < 0 ? 0 : end + 2);
}

void NameAccount(cStatementRead& read, const QString& account)
{
    for (cImportEntry& entry : read.Entries) {
        entry.ImportAccount = account;
    }
    for (cSkippedRow& row : read.Skipped) {
        row.Entry.ImportAccount = account;
    }
    for (cAccountBalance& balance : read.Balances) {
        balance.Account = account;
    }
}

} // namespace

qsizetype cFetchedStatement::Size() const
{
    return std::accumulate(Camt.begin(), Camt.end(), Mt940.size(),
                           [](qsizetype sum, const QByteArray& document) { return sum + document.size(); });
}

cStatementRead cFetchedStatement::Read(const cImportOptions& wanted) const
{
    cStatementRead all = modMT940::Read(IsComplete ? Mt940 : WholeStatements(Mt940), Account, wanted.StrayDetails);
    const bool isAsSeen = wanted.StrayDetails == eStrayDetails::PassOver; // the user knows what is told
    if (all.Entries.isEmpty() && !all.Problems.isEmpty() && !isAsSeen) {
        all.Refusal = cText::Tr("Die Antwort der Bank kann nicht gelesen werden: {0}", {all.Problems.first().Text});
    }
    cReadOptions options;
    options.Account = Account;
    options.MissingPurpose = wanted.MissingPurpose;
    for (const QByteArray& document : Camt) {
        cStatementRead read = modCamt::Read({Name, document, {}}, options);
        if (!read.Refusal.isEmpty()) {
            return read;
        }
        all.Append(std::move(read));
    }
    if (modAccountNumber::IsGermanIban(Iban)) { // banks that were merged have logins under another code
        all.BankCodes[Account] = Iban.mid(4, 8);
    }
    if (IsNumberShared) {
        NameAccount(all, Account);
    }
    return all;
}

// It contains all bookings, whatever days they are valued on.
void cFetchedStatement::AddBalance(cStatementRead& read) const
{
    if (!Balance) {
        return;
    }
    const QString account = !read.Entries.isEmpty() ? read.Entries.first().ImportAccount
        : !read.Balances.isEmpty()                  ? read.Balances.first().Account
                                                    : Account;
    cBankBalance::cMoved late;
    for (const cImportEntry& entry : std::as_const(read.Entries)) {
        if (BalanceDay.isValid() && entry.ImportDate > BalanceDay) {
            late.Cents += entry.ImportValue;
            ++late.Count;
        }
    }
    read.Balances.append({account, *Balance, BalanceDay, late});
}
