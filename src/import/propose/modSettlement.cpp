#include "import/propose/modSettlement.h"

#include "import/read/modAccountNumber.h"
#include "import/read/modTextWords.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using cWords = QList<modTextWords::cWord>;

bool BeginsOneOf(const cWords& words, const QStringList& beginnings)
{
    return std::any_of(words.begin(), words.end(), [&](const modTextWords::cWord& word) {
        return std::any_of(beginnings.begin(), beginnings.end(),
                           [&](const QString& beginning) { return word.Folded.startsWith(beginning); });
    });
}

// A purchase with a card names the card at most, its bill both.
bool IsCardBillOf(const cWords& words)
{
    static const QStringList whole{u"kreditkartenabr"_s, u"kartenabr"_s, u"kreditkartenausgl"_s};
    static const QStringList cards{u"kreditkart"_s, u"karte"_s, u"visa"_s, u"mastercard"_s, u"amex"_s};
    static const QStringList bills{u"abrechnung"_s, u"abr"_s, u"ausgleich"_s, u"einzug"_s};
    return BeginsOneOf(words, whole) || (BeginsOneOf(words, cards) && BeginsOneOf(words, bills));
}

// What comes back from a shop names the shop.
bool IsPaymentToCardOf(const cWords& words)
{
    static const QStringList payments{u"ausgleich"_s,  u"abrechnung"_s,     u"einzug"_s,          u"lastschrift"_s,
                                      u"einzahlung"_s, u"kartenabr"_s,      u"kreditkartenabr"_s, u"saldoausgl"_s,
                                      u"kontoausgl"_s, u"rechnungsausgl"_s, u"uebertrag"_s};
    return BeginsOneOf(words, payments);
}

bool IsCardAccount(const cImportEntry& row, const QString& account)
{
    const QString name = account.toLower();
    return modAccountNumber::IsCard(row.ImportAccount) || name.contains(u"karte"_s) || name.contains(u"visa"_s)
        || name.contains(u"mastercard"_s);
}

// Purchases and money of others have a name.
bool IsPayPalSideOf(const cImportEntry& row)
{
    static const QStringList banks{u"bank"_s, u"abbuchung"_s, u"withdrawal"_s};
    return row.ImportBeneficiary.isEmpty() && row.ImportBeneficiaryAccount.isEmpty()
        && BeginsOneOf(modTextWords::Of(row.ImportType), banks);
}

bool IsPayPalAccount(const cImportEntry& row, const QString& account)
{
    const QString text = row.ImportAccount + u' ' + account + u' ' + row.ImportType;
    return BeginsOneOf(modTextWords::Of(text), {u"paypal"_s});
}

bool IsBankFirst(const modSettlement::cSides& bank, const modSettlement::cSides& other, const QString& account)
{
    return (bank.IsCardBill && other.IsPaymentToCard && IsCardAccount(other.Row, account))
        || (bank.IsPaidToPayPal && other.IsPayPalSide && IsPayPalAccount(other.Row, account));
}

} // namespace

modSettlement::cSides::cSides(const cImportEntry& row) : Row(row), IsPayPalSide(IsPayPalSideOf(row))
{
    const QString text = row.ImportBeneficiary + u' ' + row.ImportPurpose;
    const cWords words = modTextWords::Of(text);
    IsCardBill = row.ImportValue < 0 && IsCardBillOf(words);
    IsPaymentToCard = row.ImportValue > 0 && row.ImportBeneficiaryAccount.isEmpty() && IsPaymentToCardOf(words);
    IsPaidToPayPal = BeginsOneOf(words, {u"paypal"_s});
}

bool modSettlement::IsPair(const cSides& row, const QString& account, const cSides& other, const QString& otherAccount)
{
    return IsBankFirst(row, other, otherAccount) || IsBankFirst(other, row, account);
}
