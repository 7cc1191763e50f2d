#include "import/read/modAccountNumber.h"

#include "base/modChar.h"

#include <algorithm>

namespace {

QStringView WithoutZeros(QStringView number)
{
    while (number.startsWith(u'0')) {
        number = number.mid(1);
    }
    return number;
}

// Both are known and differ.
bool AreOfTwoBanks(const QString& bankCode, const QString& other)
{
    return modAccountNumber::IsBankCode(bankCode) && modAccountNumber::IsBankCode(other) && bankCode != other;
}

// "DE", two check digits, eight of the bank code, ten of the account.
bool IsIbanOf(const QString& iban, const QString& bankCode, const QString& number)
{
    return WithoutZeros(QStringView(iban).mid(12)) == WithoutZeros(number)
        && (!modAccountNumber::IsBankCode(bankCode) || QStringView(iban).mid(4, 8) == bankCode);
}

} // namespace

QString modAccountNumber::Compact(const QString& number)
{
    const bool isCompact = std::all_of(number.begin(), number.end(),
                                       [](QChar c) { return c > u' ' && c < u'\x7f' && (c < u'a' || c > u'z'); });
    if (isCompact) {
        return number; // as nearly always
    }
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
    return compact.size() == 22 && compact.startsWith(QStringLiteral("DE"))
        && modChar::AreDigits(QStringView(compact).mid(2));
}

bool modAccountNumber::IsBankCode(const QString& code)
{
    return code.size() == 8 && modChar::AreDigits(code);
}

bool modAccountNumber::IsCard(const QString& number)
{
    constexpr qsizetype cardDigits = 16;
    const QString compact = Compact(number);
    const auto isDigit = [](QChar c) { return c.isDigit() || c == u'*' || c == u'X'; };
    return compact.size() == cardDigits && std::all_of(compact.begin(), compact.end(), isDigit);
}

bool modAccountNumber::IsSame(const QString& number, const QString& bankCode, const QString& other,
                              const QString& otherBankCode)
{
    const QString left = Compact(number);
    const QString right = Compact(other);
    if (WithoutZeros(left).isEmpty() || WithoutZeros(right).isEmpty()) {
        return left == right;
    }
    const bool isLeftIban = IsGermanIban(left);
    const bool isRightIban = IsGermanIban(right);
    if (isLeftIban == isRightIban) {
        return WithoutZeros(left) == WithoutZeros(right)
            && (isLeftIban || !AreOfTwoBanks(Compact(bankCode), Compact(otherBankCode)));
    }
    return isLeftIban ? IsIbanOf(left, Compact(otherBankCode), right) : IsIbanOf(right, Compact(bankCode), left);
}
