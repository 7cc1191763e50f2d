#include "fints/cStatementFetch.h"

#include "base/cBankUser.h"
#include "base/cText.h"
#include "fints/modBankMemory.h"

#include <utility>

static QString NameOf(const cBankAccount& account)
{
    return account.ProductName.isEmpty() ? account.Number : account.ProductName + u' ' + account.Number;
}

// Strict UTF-8, else the character set of the messages. The pages are joined before, because they are cut anywhere.
static QString BankText(const QByteArray& bytes)
{
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

static bool IsLineBreak(char letter)
{
    return letter == '\r' || letter == '\n' || letter == '@'; // some banks write "@@" for it
}

// When a page is missing, what came may end in the middle of a booking, which would then stand in the book with half an
// amount. A statement ends with a line "-".
static void CutToWholeStatements(QByteArray& bytes)
{
    for (qsizetype at = bytes.lastIndexOf('-'); at > 0; at = bytes.lastIndexOf('-', at - 1)) {
        const bool isEnd = at + 1 == bytes.size() || IsLineBreak(bytes[at + 1]);
        if (isEnd && IsLineBreak(bytes[at - 1])) {
            bytes.truncate(at + 1);
            return;
        }
    }
    bytes.clear();
}

// Whoever typed a wrong TAN is asked for one again at once, but for the next account.
static QString PurposeOf(const QString& account, const QString& refused)
{
    return refused.isEmpty()
        ? cText::Tr("Umsätze von {0}", {account})
        : cText::Tr("Die TAN für {1} war falsch. Diese ist für die Umsätze von {0}.", {account, refused});
}

cFetchedAccount cStatementFetch::Fetch(const cFetchOrder& order)
{
    m_run.Purpose = PurposeOf(NameOf(order.Account), std::exchange(m_refused, {}));
    cFetchedAccount fetched = FetchOne(order);
    if (fetched.Failure.Fault == eBankFault::TanWrong) {
        m_refused = NameOf(order.Account);
    }
    return fetched;
}

cFetchedAccount cStatementFetch::FetchOne(const cFetchOrder& order)
{
    cFetchedAccount fetched;
    cFetchOrder complete = order;
    Renew(complete.Account);
    m_run.Parts.User.ShowStep(cText::Tr("Umsätze werden abgerufen: {0}", {NameOf(order.Account)}));
    const cKind kind = modBankParameters::StatementOrder(m_run.State.Parameters, complete.Account);
    if (kind.IsNone()) {
        fetched.Account = order.Account;
        fetched.Failure = modBankFault::Of(eBankFault::NoStatements).Failure;
        return fetched;
    }
    if (kind.MT940 == 0 || kind.MT940 > 6) {
        Complete(complete.Account);
    }
    fetched.Account = complete.Account;
    if (Pages(kind, complete, fetched)) {
        Balance(fetched);
    } else {
        fetched.Failure = m_dialog.Error().Failure;
    }
    return fetched;
}

HBCISegment cStatementFetch::Request(const cKind& kind, const cFetchOrder& order, const QByteArray& point) const
{
    const auto national = modBankParameters::IsNationalAccountAllowed(m_run.State.Parameters)
        ? HBCIFactory::eNational::With
        : HBCIFactory::eNational::Without;
    if (kind.MT940 > 0) {
        return HBCIFactory::Statement(kind.MT940, order.Account, order.From, order.To, point, national);
    }
    return HBCIFactory::CamtStatement(order.Account, kind.Camt, order.From, order.To, point, national);
}

bool cStatementFetch::Pages(const cKind& kind, const cFetchOrder& order, cFetchedAccount& fetched)
{
    QByteArray booked;
    QByteArray point;
    bool isWhole = false;
    while (true) {
        const auto answer = m_dialog.Order(Request(kind, order, point));
        if (!answer) {
            break;
        }
        booked += answer->BookedMT940();
        fetched.Camt += answer->BookedCamt();
        point = answer->Continuation();
        isWhole = point.isEmpty();
        if (isWhole) {
            break;
        }
    }
    if (!isWhole) {
        CutToWholeStatements(booked);
    }
    fetched.MT940 = BankText(booked);
    return isWhole;
}

// A balance is welcome, but no reason to fail: the bookings have come.
void cStatementFetch::Balance(cFetchedAccount& fetched)
{
    const QList<QByteArray>& parameters = m_run.State.Parameters;
    const int version = modBankParameters::Version(parameters, "HISALS", fetched.Account.Iban.isEmpty() ? 6 : 7);
    if (version < 5 || !modBankParameters::IsAllowed(fetched.Account, QStringLiteral("HKSAL"))) {
        return;
    }
    const auto national = modBankParameters::IsNationalAccountAllowed(parameters) ? HBCIFactory::eNational::With
                                                                                  : HBCIFactory::eNational::Without;
    const HBCISegment request = HBCIFactory::Balance(version, fetched.Account, national);
    const auto answer =
        modBankParameters::NeedsTan(parameters, "HKSAL") ? m_dialog.Order(request) : m_dialog.Send({request});
    const auto balance = answer ? answer->Balance() : std::nullopt;
    if (!balance) {
        return;
    }
    fetched.Balance = balance->Cents;
    fetched.BalanceDay = balance->Day;
}

// Since the order was made, the bank may have told what else the account allows now, or its IBAN.
void cStatementFetch::Renew(cBankAccount& account) const
{
    const cBankAccount ordered = account;
    QList<cBankAccount> known = m_run.State.Accounts;
    known.removeIf([&](const cBankAccount& each) {
        const bool hasBoth = !each.Iban.isEmpty() && !ordered.Iban.isEmpty();
        return each.Number != ordered.Number || each.SubNumber != ordered.SubNumber
            || ((hasBoth || ordered.Number.isEmpty()) && each.Iban != ordered.Iban);
    });
    if (known.size() > 1) { // a card or a depot may have the number of the account that it belongs to
        known.removeIf([&](const cBankAccount& each) { return each.ProductName != ordered.ProductName; });
    }
    account = known.size() == 1 ? known.constFirst() : ordered;
    account.Iban = account.Iban.isEmpty() ? ordered.Iban : account.Iban;
    account.Bic = account.Bic.isEmpty() ? ordered.Bic : account.Bic;
}

// The newer forms of the requests name the account by IBAN and BIC.
void cStatementFetch::Complete(cBankAccount& account)
{
    if (account.Iban.isEmpty()) {
        AskForIbans();
        Renew(account);
    }
    if (account.Bic.isEmpty()) {
        account.Bic = m_run.State.Bic;
    }
}

void cStatementFetch::AskForIbans()
{
    if (m_hasAskedForIbans || !modBankParameters::Offers(m_run.State.Parameters, "HISPAS", 1)) {
        return;
    }
    m_hasAskedForIbans = true;
    const HBCISegment request = HBCIFactory::SepaAccounts();
    const auto answer = modBankParameters::NeedsTan(m_run.State.Parameters, "HKSPA") ? m_dialog.Order(request)
                                                                                     : m_dialog.Send({request});
    if (answer) {
        modBankMemory::TakeIbans(answer->SepaAccounts(), m_run.State);
    }
}
