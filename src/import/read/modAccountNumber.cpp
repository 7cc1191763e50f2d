#include "import/read/modAccountNumber.h"

#include <algorithm>

namespace {

bool IsDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QStringView WithoutZeros(QStringView number)
{
    while (number.startsWith(u'0')) {
        number = number.mid(1);
    }
    return number;
}

// "DE", two check digits, eight of the bank code, ten of the account.
bool IsIbanOf(const QString& iban, const QString& bankCode, const QString& number)
{
    const bool isBankKnown = bankCode.size() == 8 && IsDigits(bankCode);
    return WithoutZeros(QStringView(iban).mid(12)) == WithoutZeros(number)
        && (!isBankKnown || QStringView(iban).mid(4, 8) == bankCode);
}

} // namespace

QString modAccountNumber::Compact(const QString& number)
{
    QString kept;
    for (const QChar c : number) {
        if (!c.isSpace()) {
            kept.append(c.toUpper());
        }
    }
    return kept;
}

bool modAccountNumber::IsGermanIban(const QString& compact)
{
    return compact.size() == 22 && compact.startsWith(QStringLiteral("DE")) && IsDigits(QStringView(compact).mid(2));
}

bool modAccountNumber::IsSame(const QString& number, const QString& bankCode, const QString& other)
{
    const QString left = Compact(number);
    const QString right = Compact(other);
    if (WithoutZeros(left).isEmpty() || WithoutZeros(right).isEmpty()) {
        return left == right;
    }
    const bool isLeftIban = IsGermanIban(left);
    const bool isRightIban = IsGermanIban(right);
    if (isLeftIban == isRightIban) {
        return WithoutZeros(left) == WithoutZeros(right);
    }
    return isLeftIban ? IsIbanOf(left, {}, right) : IsIbanOf(right, Compact(bankCode), left);
}
