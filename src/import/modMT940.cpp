#include "import/modMT940.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "import/modMT940Repair.h"
#include "import/modSepaPurpose.h"
#include "import/modStatementText.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

using modMT940::cBalance;
using modMT940::cParsed;
using modMT940::cStatement;
using modMT940::cTransaction;

constexpr int structureSample = 11;                     // details lines that decide whether the text is structured
constexpr QDate noDate = QDate::fromJulianDay(2086668); // 1001-01-01

bool IsDigit(QStringView text, qsizetype at)
{
    return at < text.size() && text[at] >= u'0' && text[at] <= u'9';
}

bool AreDigits(QStringView text, qsizetype from, qsizetype count)
{
    for (qsizetype i = from; i < from + count; ++i) {
        if (!IsDigit(text, i)) {
            return false;
        }
    }
    return true;
}

bool IsSeparatorLine(QStringView line)
{
    return line.trimmed() == u"-";
}

QStringView WithoutZeros(QStringView text)
{
    while (text.startsWith(u'0')) {
        text = text.mid(1);
    }
    return text;
}

// A line with its continuation lines.
struct cLine
{
    QString Text;
    int Number = 0;
};

QList<QStringView> SplitLines(const QString& text)
{
    QList<QStringView> lines = QStringView(text).split(u"\r\n");
    return lines.size() < 3 ? QStringView(text).split(u'\n') : lines;
}

// Lines without tag belong to the nearest line before them. Empty lines are gone.
QList<cLine> JoinLines(const modMT940Repair::cRepaired& repaired)
{
    QList<cLine> joined;
    int number = 0; // line of the text, from 0
    const QList<QStringView> lines = SplitLines(repaired.Text);
    for (const QStringView line : lines) {
        const bool isContinuation = !line.startsWith(u':') && !IsSeparatorLine(line);
        if (isContinuation && !joined.isEmpty()) {
            joined.last().Text += line;
        } else if (!line.isEmpty()) {
            joined.append({line.toString(), repaired.Lines.value(number, number + 1)});
        }
        number += 1 + static_cast<int>(line.count(u'\n'));
    }
    return joined;
}

// The tag reaches to the first colon after the first character; empty when there is none.
QStringView TagOf(QStringView line)
{
    const qsizetype colon = line.indexOf(u':', 1);
    return colon < 0 ? QStringView() : line.left(colon + 1);
}

bool IsNear(int count, int all)
{
    return std::abs(count - all) < 2;
}

// Whether the details are made of subfields: judged by the first lines only, and one line may be out of step.
bool IsStructured(const QList<cLine>& lines)
{
    int all = 0;
    int structured = 0;
    int consistent = 0;
    QStringView previous;
    for (const cLine& line : lines) {
        const QStringView text = line.Text;
        if (TagOf(text) != u":86:" || all == structureSample) {
            continue;
        }
        const QStringView eighth = text.mid(7, 1);
        ++all;
        structured += eighth == u"?" && AreDigits(text, 4, 3) ? 1 : 0;
        consistent += eighth == previous ? 1 : 0;
        previous = eighth;
    }
    return IsNear(structured, all) || IsNear(consistent, all);
}

cBalance ReadBalance(QStringView content)
{
    const QStringView amount = WithoutZeros(content.mid(10));
    return {content.left(1).toString(), content.mid(1, 6).toString(), content.mid(7, 3).toString(),
            (amount.startsWith(u',') ? u"0"_s : QString()) + amount};
}

// The amount with two decimal places: "1234," stands for whole euros.
QString PadAmount(QStringView amount)
{
    if (amount.endsWith(u',')) {
        return amount + u"00"_s;
    }
    const bool hasOnePlace = amount.size() > 1 && amount[amount.size() - 2] == u',';
    return hasOnePlace ? amount + u"0"_s : amount.toString();
}

// Second letters of a mark: "CR" and "DR", "RC" and "RD".
bool IsMarkLetter(QStringView text, qsizetype at)
{
    return at < text.size() && u"cdrCDR"_s.contains(text[at]);
}

cTransaction ReadTransaction(QStringView content, int line)
{
    cTransaction transaction;
    transaction.Line = line;
    qsizetype at = IsDigit(content, 6) ? 10 : 6;
    const qsizetype markSize = IsMarkLetter(content, at + 1) ? 2 : 1;
    const QStringView mark = content.mid(at, markSize);
    at += markSize;
    at += IsDigit(content, at) ? 0 : 1; // funds code
    const qsizetype comma = content.indexOf(u',', at);
    if (comma < 0) {
        return transaction;
    }
    qsizetype end = comma + 1;
    while (end < comma + 3 && IsDigit(content, end)) {
        ++end;
    }
    transaction.ValueDate = content.left(6).toString();
    transaction.Mark = mark.toString();
    transaction.Amount = PadAmount(content.mid(at, end - at));
    transaction.TypeCode = content.mid(end, 4).toString();
    const QStringView reference = content.mid(end + 4);
    const qsizetype slashes = reference.indexOf(u"//");
    transaction.CustomerReference = (slashes < 0 ? reference : reference.left(slashes)).toString();
    return transaction;
}

// The leading digits of the first two characters as a number.
int SubfieldNumber(QStringView piece)
{
    int number = 0;
    for (qsizetype i = 0; i < 2 && IsDigit(piece, i); ++i) {
        number = number * 10 + (piece[i].unicode() - u'0');
    }
    return number;
}

void AddSubfield(cTransaction& transaction, int number, QStringView value)
{
    if (number == 0) {
        transaction.BookingText += AreDigits(value, 0, 3) ? value.mid(3) : value;
        transaction.BookingText += u' ';
    } else if (number == 10) {
        transaction.PrimaNota += value;
    } else if (number >= 20 && number <= 29) {
        transaction.Purpose += value + u' ';
    } else if (number == 30) {
        transaction.BankCode += value;
    } else if (number == 31) {
        transaction.Account += value;
    } else if (number == 32 || number == 33) {
        transaction.Name += value + u' ';
    } else if (number >= 60 && number <= 63) {
        transaction.PurposeContinuation += value;
    }
}

void ReadDetails(cTransaction& transaction, QStringView content)
{
    transaction.BusinessCode = content.left(3).toString();
    transaction.Separator = content.mid(3, 1).toString();
    const QList<QStringView> pieces =
        transaction.Separator.isEmpty() ? QList<QStringView>() : content.split(transaction.Separator.front());
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        if (!pieces[i].contains(u"referenz notprovided", Qt::CaseInsensitive)) {
            AddSubfield(transaction, SubfieldNumber(pieces[i]), pieces[i].mid(2));
        }
    }
    transaction.BookingText = transaction.BookingText.trimmed();
    transaction.Purpose = modSepaPurpose::Rewrite(transaction.Purpose.trimmed());
    transaction.Name = transaction.Name.trimmed();
}

// Walks the joined lines and fills the statements.
class cWalk
{
public:
    cParsed Run(const QList<cLine>& lines)
    {
        m_isStructured = IsStructured(lines);
        for (const cLine& line : lines) {
            m_isNew = m_isNew || IsSeparatorLine(line.Text);
            if (m_isNew) {
                m_parsed.Statements.append(cStatement());
                m_isNew = false;
            }
            const QStringView tag = TagOf(line.Text);
            if (!Take(tag, QStringView(line.Text).mid(tag.size()), line.Number)) {
                Fail(line.Number);
                break;
            }
        }
        return std::move(m_parsed);
    }

private:
    // False when the line ends the reading.
    bool Take(QStringView tag, QStringView content, int number)
    {
        cStatement& statement = m_parsed.Statements.last();
        if (tag == u":25:") {
            statement.Account = WithoutZeros(content.mid(content.indexOf(u'/') + 1)).toString();
        } else if (tag == u":60F:" || tag == u":60M:") {
            statement.OpeningBalance = ReadBalance(content);
        } else if (tag == u":61:") {
            TakeTransaction(statement, content, number);
        } else if (tag == u":86:") {
            return TakeDetails(statement, content);
        } else if (tag == u":62F:" || tag == u":62M:") {
            TakeClosing(content, number);
        }
        return true;
    }

    void TakeTransaction(cStatement& statement, QStringView content, int number)
    {
        ++statement.TransactionCount;
        statement.Transactions.append(ReadTransaction(content, number));
        if (statement.Transactions.last().Amount.isEmpty()) {
            Report(number, cText::Tr("Der Umsatz hat keinen Betrag: {0}", {content.left(40).toString()}));
        }
    }

    bool TakeDetails(cStatement& statement, QStringView content)
    {
        if (statement.Transactions.isEmpty()) {
            return false;
        }
        if (m_isStructured) {
            ReadDetails(statement.Transactions.last(), content);
        } else {
            statement.Transactions.last().BookingText = content.toString();
        }
        ++m_parsed.DetailLines;
        return true;
    }

    void TakeClosing(QStringView content, int number)
    {
        if (content.size() < 11) {
            Report(number, cText::Tr("Der Schlusssaldo ist nicht lesbar: {0}", {content.toString()}));
            return;
        }
        m_parsed.ClosingBalance = ReadBalance(content);
    }

    // Details before the first transaction of their statement: the text is not what it seems, so none of it is taken.
    void Fail(int number)
    {
        m_parsed.Statements.clear();
        m_parsed.ClosingBalance.reset();
        m_parsed.IsFailed = true;
        Report(number,
               cText::Tr("Angaben zu einem Umsatz (:86:) stehen vor dem ersten Umsatz (:61:) des Auszugs. "
                         "Die Datei wurde nicht übernommen."));
    }

    void Report(int number, const QString& text) { m_parsed.Problems.append({number, text}); }

    cParsed m_parsed;
    bool m_isStructured = false;
    bool m_isNew = true;
};

// YYMMDD, always of this century; the first day of 1001 for anything else.
QDate ReadDate(QStringView text)
{
    if (text.size() != 6 || !AreDigits(text, 0, 6)) {
        return noDate;
    }
    const QDate date(2000 + text.left(2).toInt(), text.mid(2, 2).toInt(), text.mid(4, 2).toInt());
    return date.isValid() ? date : noDate;
}

cImportEntry ToEntry(const cStatement& statement, const cTransaction& transaction, const QString& account)
{
    const QString& date = transaction.ValueDate.isEmpty() ? statement.OpeningBalance.Date : transaction.ValueDate;
    const double value = std::abs(modAmount::ReadGerman(transaction.Amount));
    cImportEntry entry;
    entry.ImportAccount = statement.Account.isEmpty() ? account : statement.Account;
    entry.ImportDate = ReadDate(date);
    entry.ImportType = modStatementText::DecodeField(transaction.BookingText);
    entry.ImportPurpose = modStatementText::DecodeField(transaction.Purpose);
    entry.ImportBeneficiary = modStatementText::DecodeField(transaction.Name);
    entry.ImportBeneficiaryAccount = modStatementText::DecodeField(transaction.Account);
    entry.ImportBeneficiaryBLZ = modStatementText::DecodeField(transaction.BankCode);
    entry.ImportCurrency = statement.OpeningBalance.Currency;
    // Cancellations count by the letter too: "RD" is negative although the bank pays money back with it.
    entry.ImportValue = transaction.Mark.contains(u'D', Qt::CaseInsensitive) ? -value : value;
    return entry;
}

void CheckEntry(const cTransaction& transaction, const cImportEntry& entry, QList<cReadProblem>& problems)
{
    if (entry.ImportDate == noDate) {
        problems.append(
            {transaction.Line, cText::Tr("Das Buchungsdatum ist kein Datum: {0}", {transaction.ValueDate})});
    }
    if (!modAmount::TryReadGerman(transaction.Amount)) {
        problems.append({transaction.Line, cText::Tr("Der Betrag ist keine Zahl: {0}", {transaction.Amount.left(40)})});
    }
}

} // namespace

modMT940::cParsed modMT940::Parse(const QString& text)
{
    return cWalk().Run(JoinLines(modMT940Repair::Repair(text)));
}

cStatementRead modMT940::Read(const QString& text, const QString& account)
{
    cParsed parsed = Parse(text);
    cStatementRead read;
    read.Problems = std::move(parsed.Problems);
    if (parsed.ClosingBalance) {
        read.ClosingBalance = SignedCents(*parsed.ClosingBalance);
    }
    for (const cStatement& statement : std::as_const(parsed.Statements)) {
        for (const cTransaction& transaction : statement.Transactions) {
            if (!transaction.Amount.isEmpty()) {
                read.Entries.append(ToEntry(statement, transaction, account));
                CheckEntry(transaction, read.Entries.last(), read.Problems);
            }
        }
    }
    std::stable_sort(read.Problems.begin(), read.Problems.end(),
                     [](const cReadProblem& left, const cReadProblem& right) { return left.Line < right.Line; });
    return read;
}

qint64 modMT940::SignedCents(const cBalance& balance)
{
    const qint64 cents = modAmount::ToCents(modAmount::ReadGerman(balance.Amount));
    return balance.Mark.contains(u'C', Qt::CaseInsensitive) ? cents : -cents;
}

int modMT940::ProgressMaximum(const QString& text)
{
    return 2 * static_cast<int>(text.count(u":86:\r\n"));
}
