#include "import/table/modTableAbove.h"

#include "base/modChar.h"
#include "import/cell/modCell.h"
#include "import/cell/modTableValue.h"
#include "import/read/modAccountNumber.h"
#include "import/table/cTable.h"
#include "import/table/modBalanceWords.h"

#include <QList>

#include <algorithm>

namespace {

constexpr QStringView accountWords =
    u"*Kontonummer*|Konto|Konto:|Konto-Nr*|Kontonr*|IBAN*|Account*|*Kreditkarte*|Karte|"
    u"Karte:|Kartennummer*";

bool IsProtection(QChar c)
{
    return c == u'=' || c == u'\'' || c == u'"' || c == u'*' || c == u' ';
}

// A number without the signs around it that keep spreadsheets from calculating with it: 'DE02…', ="0815", *4711*. What
// is masked ("****5678") stays.
QStringView Unprotected(QStringView cell)
{
    constexpr qsizetype shortest = 8;
    QStringView number = cell;
    while (!number.isEmpty() && IsProtection(number.front())) {
        number = number.mid(1);
    }
    while (!number.isEmpty() && IsProtection(number.back())) {
        number.chop(1);
    }
    return number.size() >= shortest || !cell.contains(u'*') ? number : cell.trimmed();
}

// The text in front of " / Girokonto".
QStringView Number(QStringView cell)
{
    const qsizetype slash = cell.indexOf(u'/');
    return Unprotected(slash < 0 ? cell : cell.left(slash));
}

// The IBAN among the numbers of an account, which slashes part; empty when there is none.
QString IbanIn(QStringView cell)
{
    const QList<QStringView> parts = cell.split(u'/');
    const auto found =
        std::find_if(parts.begin(), parts.end(), [](QStringView part) { return modTableValue::IsIban(Number(part)); });
    return found == parts.end() ? QString() : modAccountNumber::Compact(Number(*found).toString());
}

// "1234 •••• •••• 5678" at the end of a text as "1234********5678"; empty when there is none.
QString MaskedNumber(QStringView cell)
{
    QString number;
    for (qsizetype i = cell.size() - 1; i >= 0; --i) {
        const QChar c = cell[i];
        const bool isMask = c == u'*' || c == QChar(u'\u2022') || c == u'X' || c == u'x';
        if (!isMask && !modChar::IsDigit(c) && c != u' ') {
            break;
        }
        if (c != u' ') {
            number.prepend(isMask ? QChar(u'*') : c);
        }
    }
    return number.size() >= 10 && number.contains(u'*') && modChar::IsDigit(number.back()) ? number : QString();
}

// What a cell behind a label such as "Konto" says.
QString NumberIn(QStringView cell)
{
    const QStringView number = Number(cell);
    if (modTableValue::IsIban(number)) {
        return modAccountNumber::Compact(number.toString());
    }
    const QString compact = modAccountNumber::Compact(number.toString());
    const bool isNumber = compact.size() >= 5 && modChar::AreDigits(compact);
    return isNumber ? modTableAbove::OwnNumber(compact) : MaskedNumber(number);
}

QString AccountIn(const QStringList& cells)
{
    for (const QString& cell : cells) {
        if (const QString iban = IbanIn(cell); !iban.isEmpty()) {
            return iban;
        }
    }
    if (cells.isEmpty() || !modCell::MatchesList(cells.first(), accountWords)) {
        return {};
    }
    for (const QString& cell : cells.mid(1)) {
        if (QString number = NumberIn(cell); !number.isEmpty()) {
            return number;
        }
    }
    return {};
}

// The day in "Kontostand vom 31.01.2018:".
QDate DateIn(const QString& label)
{
    for (const QStringView word : QStringView(label).split(u' ')) {
        const QStringView day = word.endsWith(u':') ? word.chopped(1) : word;
        if (modTableValue::IsDate(day)) {
            return modTableValue::ReadDate(day);
        }
    }
    return {};
}

std::optional<cAccountBalance> BalanceIn(const QStringList& cells)
{
    using modBalanceWords::eBalance;
    const eBalance balance = cells.size() < 2 ? eBalance::None : modBalanceWords::OfLabel(cells.first());
    if (balance == eBalance::None || balance == eBalance::Opening) {
        return std::nullopt;
    }
    const std::optional<qint64> cents = modTableValue::ReadCents(cells.at(1), eNumberFormat::Detect);
    if (!cents) {
        return std::nullopt;
    }
    return cAccountBalance{{}, *cents, DateIn(cells.first())};
}

QString WithoutDigits(QString label)
{
    label.removeIf([](QChar c) { return c.isDigit() || c == u'.'; });
    return label;
}

} // namespace

QString modTableAbove::OwnNumber(QStringView cell)
{
    if (const QString masked = MaskedNumber(cell); !masked.isEmpty()) {
        return masked;
    }
    QString number = modAccountNumber::Compact(Unprotected(cell).toString());
    if (!modChar::AreDigits(number)) {
        return number;
    }
    qsizetype zeros = 0;
    while (zeros < number.size() && number.at(zeros) == u'0') {
        ++zeros;
    }
    return number.mid(zeros);
}

modTableAbove::cAbove modTableAbove::Read(const cTable& table, int rows)
{
    cAbove above;
    bool isIban = false;
    for (int row = 0; row < qMin(rows, table.RowCount()); ++row) {
        QStringList cells = table.Row(row);
        cells.removeAll(QString());
        if (cells.isEmpty()) {
            continue;
        }
        above.Labels += WithoutDigits(cells.first()) + u'\n';
        if (!isIban) { // it says more than the number above it
            const QString account = AccountIn(cells);
            isIban = modTableValue::IsIban(account);
            above.Account = isIban || above.Account.isEmpty() ? account : above.Account;
        }
        if (!above.Balance) {
            above.Balance = BalanceIn(cells);
        }
    }
    return above;
}
