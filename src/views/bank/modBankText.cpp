#include "views/bank/modBankText.h"

#include "base/cText.h"
#include "fints/modBankParameters.h"

using namespace Qt::Literals::StringLiterals;

QString modBankText::Bank(const cBankState& state)
{
    return state.BankName.isEmpty() ? state.BankCode : state.BankName;
}

QString modBankText::Method(const TanVerfahrenItem& method)
{
    const QString name = method.Name.isEmpty() ? method.SecurityFunction : method.Name;
    const bool isApproval = method.ZkaName.startsWith(u"decoupled", Qt::CaseInsensitive);
    return isApproval ? cText::Tr("{0} (Freigabe in der App)", {name}) : name;
}

QString modBankText::Number(const cBankAccount& account)
{
    if (account.Iban.isEmpty()) {
        return account.SubNumber.isEmpty() ? account.Number : account.Number + u'/' + account.SubNumber;
    }
    constexpr qsizetype group = 4;
    QString text;
    for (qsizetype i = 0; i < account.Iban.size(); i += group) {
        text += (i == 0 ? QString() : u" "_s) + account.Iban.mid(i, group);
    }
    return text;
}

QString modBankText::Product(const cBankAccount& account)
{
    return account.ProductName.isEmpty() ? cText::Tr("Konto") : account.ProductName;
}

QString modBankText::NotFetched(const cBankState& state, const cBankAccount& account)
{
    if (!modBankParameters::StatementOrder(state.Parameters, account).IsNone()) {
        return {};
    }
    const bool isOfBank = modBankParameters::StatementOrder(state.Parameters, {}).IsNone();
    return isOfBank ? cText::Tr("Diese Bank gibt auf diesem Weg keine Umsätze heraus.")
                    : cText::Tr("Für dieses Konto gibt die Bank keine Umsätze heraus.");
}

QString modBankText::ProductHint()
{
    return cText::Tr("Banken antworten nur Programmen, die bei der Deutschen Kreditwirtschaft registriert sind. Die "
                     "Registrierungsnummer gibt es kostenlos unter www.fints.org im Bereich für Hersteller "
                     "(„Produktregistrierung“). Sie gilt für das ganze Buch. Ohne sie wird nichts gesendet.");
}

QString modBankText::ProductVersion(const QString& version)
{
    return version.section(u'.', 0, 0) + u'.' + version.section(u'.', 1, 1).rightJustified(2, u'0');
}

QString modBankText::OtherAddress(const QString& address)
{
    return address.isEmpty()
        ? QString()
        : cText::Tr("Die Bank nennt eine andere Adresse: {0}. Fragen Sie bei ihr nach, bevor Sie sie "
                    "unter „Bankzugänge…“ eintragen; von selbst wird sie nicht benutzt.",
                    {address});
}

QStringList modBankText::People(const cBankState& state)
{
    QStringList people{state.UserId};
    for (const cBankAccount& account : state.Accounts) {
        people += {account.Number, account.Iban, account.Owner1, account.Owner2, account.CustomerId};
    }
    people.removeDuplicates();
    people.removeAll(QString());
    return people;
}
