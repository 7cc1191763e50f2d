#include "import/propose/modSettlement.h"

#include "import/read/modAccountNumber.h"
#include "import/read/modTextWords.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool BeginsOneOf(const QString& text, const QStringList& beginnings)
{
    const QList<modTextWords::cWord> words = modTextWords::Of(text);
    return std::any_of(words.begin(), words.end(), [&](const modTextWords::cWord& word) {
        return std::any_of(beginnings.begin(), beginnings.end(),
                           [&](const QString& beginning) { return word.Folded.startsWith(beginning); });
    });
}

QString TextOf(const cImportEntry& row)
{
    return row.ImportBeneficiary + u' ' + row.ImportPurpose;
}

// A purchase with a card names the card at most, its bill both.
bool IsCardBill(const cImportEntry& row)
{
    static const QStringList whole{u"kreditkartenabr"_s, u"kartenabr"_s, u"kreditkartenausgl"_s};
    static const QStringList cards{u"kreditkart"_s, u"karte"_s, u"visa"_s, u"mastercard"_s, u"amex"_s};
    static const QStringList bills{u"abrechnung"_s, u"abr"_s, u"ausgleich"_s, u"einzug"_s};
    const QString text = TextOf(row);
    return row.ImportValue < 0 && (BeginsOneOf(text, whole) || (BeginsOneOf(text, cards) && BeginsOneOf(text, bills)));
}

// What comes back from a shop names the shop.
bool IsPaymentToCard(const cImportEntry& row)
{
    static const QStringList words{u"ausgleich"_s,  u"abrechnung"_s,     u"einzug"_s,          u"lastschrift"_s,
                                   u"einzahlung"_s, u"kartenabr"_s,      u"kreditkartenabr"_s, u"saldoausgl"_s,
                                   u"kontoausgl"_s, u"rechnungsausgl"_s, u"uebertrag"_s};
    return row.ImportValue > 0 && row.ImportBeneficiaryAccount.isEmpty() && BeginsOneOf(TextOf(row), words);
}

bool IsCardAccount(const cImportEntry& row, const QString& account)
{
    const QString name = account.toLower();
    return modAccountNumber::IsCard(row.ImportAccount) || name.contains(u"karte"_s) || name.contains(u"visa"_s)
        || name.contains(u"mastercard"_s);
}

bool IsPaidToPayPal(const cImportEntry& row)
{
    return BeginsOneOf(TextOf(row), {u"paypal"_s});
}

// Purchases and money of others have a name.
bool IsPayPalSide(const cImportEntry& row)
{
    static const QStringList banks{u"bank"_s, u"abbuchung"_s, u"withdrawal"_s};
    return row.ImportBeneficiary.isEmpty() && row.ImportBeneficiaryAccount.isEmpty()
        && BeginsOneOf(row.ImportType, banks);
}

bool IsPayPalAccount(const cImportEntry& row, const QString& account)
{
    return BeginsOneOf(row.ImportAccount + u' ' + account + u' ' + row.ImportType, {u"paypal"_s});
}

bool IsBankFirst(const cImportEntry& bank, const cImportEntry& other, const QString& account)
{
    return (IsCardBill(bank) && IsPaymentToCard(other) && IsCardAccount(other, account))
        || (IsPaidToPayPal(bank) && IsPayPalSide(other) && IsPayPalAccount(other, account));
}

} // namespace

bool modSettlement::IsSide(const cImportEntry& row)
{
    return IsCardBill(row) || IsPaymentToCard(row) || IsPaidToPayPal(row) || IsPayPalSide(row);
}

bool modSettlement::IsPair(const cImportEntry& row, const QString& account, const cImportEntry& other,
                           const QString& otherAccount)
{
    return IsBankFirst(row, other, otherAccount) || IsBankFirst(other, row, account);
}
