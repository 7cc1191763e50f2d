#include "import/table/modTableAbove.h"

#include "base/modAmount.h"
#include "import/read/modAccountNumber.h"
#include "import/table/cTable.h"
#include "import/table/modCell.h"
#include "import/table/modTableValue.h"

#include <algorithm>

namespace {

constexpr QStringView accountWords =
    u"*Kontonummer*|Konto|Konto:|Konto-Nr*|Kontonr*|IBAN*|Account*|*Kreditkarte*|Karte|"
    u"Karte:|Kartennummer*";
constexpr QStringView balanceWords = u"*Kontostand*|Saldo*|*Endsaldo*|*Closing balance*";
constexpr QStringView oldBalanceWords = u"*alter *|*letzter *|*Anfang*|*Opening*";

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// The text in front of " / Girokonto".
QStringView Number(QStringView cell)
{
    const qsizetype slash = cell.indexOf(u'/');
    return (slash < 0 ? cell : cell.left(slash)).trimmed();
}

// "1234 •••• •••• 5678" at the end of a text as "1234********5678"; empty when there is none.
QString MaskedNumber(QStringView cell)
{
    QString number;
    for (qsizetype i = cell.size() - 1; i >= 0; --i) {
        const QChar c = cell[i];
        const bool isMask = c == u'*' || c == QChar(u'\u2022') || c == u'X' || c == u'x';
        if (!isMask && !IsDigit(c) && c != u' ') {
            break;
        }
        if (c != u' ') {
            number.prepend(isMask ? QChar(u'*') : c);
        }
    }
    return number.size() >= 10 && number.contains(u'*') && IsDigit(number.back()) ? number : QString();
}

// What a cell behind a label such as "Konto" says.
QString NumberIn(QStringView cell)
{
    const QStringView number = Number(cell);
    if (modTableValue::IsIban(number)) {
        return modAccountNumber::Compact(number.toString());
    }
    const QString compact = modAccountNumber::Compact(number.toString());
    const bool isNumber = compact.size() >= 5 && std::all_of(compact.begin(), compact.end(), IsDigit);
    return isNumber ? modTableAbove::OwnNumber(compact) : MaskedNumber(number);
}

QString AccountIn(const QStringList& cells)
{
    for (const QString& cell : cells) {
        if (const QStringView number = Number(cell); modTableValue::IsIban(number)) {
            return modAccountNumber::Compact(number.toString());
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
    if (cells.size() < 2 || !modCell::MatchesList(cells.first(), balanceWords)
        || modCell::MatchesList(cells.first(), oldBalanceWords)) {
        return std::nullopt;
    }
    const std::optional<double> euros = modTableValue::ReadAmount(cells.at(1), eNumberFormat::Detect);
    if (!euros) {
        return std::nullopt;
    }
    return cAccountBalance{{}, modAmount::ToCents(*euros), DateIn(cells.first())};
}

QString WithoutDigits(QString label)
{
    label.removeIf([](QChar c) { return c.isDigit() || c == u'.'; });
    return label;
}

} // namespace

QString modTableAbove::OwnNumber(QStringView cell)
{
    QString number = modAccountNumber::Compact(cell.toString());
    if (!std::all_of(number.begin(), number.end(), IsDigit)) {
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
    for (int row = 0; row < qMin(rows, table.RowCount()); ++row) {
        QStringList cells = table.Row(row);
        cells.removeAll(QString());
        if (cells.isEmpty()) {
            continue;
        }
        above.Labels += WithoutDigits(cells.first()) + u'\n';
        if (above.Account.isEmpty()) {
            above.Account = AccountIn(cells);
        }
        if (!above.Balance) {
            above.Balance = BalanceIn(cells);
        }
    }
    return above;
}
