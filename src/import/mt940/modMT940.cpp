#include "import/mt940/modMT940.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modChar.h"
#include "import/mt940/cMT940Lines.h"
#include "import/mt940/cStatementBalances.h"
#include "import/mt940/modMT940Repair.h"
#include "import/read/cRepeatedText.h"
#include "import/read/modSepaPurpose.h"
#include "import/read/modStatementText.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using modMT940::cBalance;
using modMT940::cParsed;
using modMT940::cStatement;
using modMT940::cTransaction;

constexpr int structureSample = 11;                     // details lines that decide whether the text is structured
constexpr qsizetype shortestTransaction = 100;          // characters; for most statements
constexpr QDate noDate = QDate::fromJulianDay(2086668); // 1001-01-01

bool IsDigit(QStringView text, qsizetype at)
{
    return at < text.size() && modChar::IsDigit(text[at]);
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

QStringView WithoutZeros(QStringView text)
{
    while (text.startsWith(u'0')) {
        text = text.mid(1);
    }
    return text;
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
bool IsStructured(const modMT940Repair::cRepaired& repaired)
{
    int all = 0;
    int structured = 0;
    int consistent = 0;
    QString previous;
    cMT940Lines lines(repaired);
    while (all < structureSample && lines.Next()) {
        const QStringView text = lines.Text;
        if (TagOf(text) != u":86:") {
            continue;
        }
        const QStringView eighth = text.mid(7, 1);
        ++all;
        structured += eighth == u"?" && AreDigits(text, 4, 3) ? 1 : 0;
        consistent += eighth == previous ? 1 : 0;
        previous = eighth.toString();
    }
    return IsNear(structured, all) || IsNear(consistent, all);
}

// YYMMDD, always of this century; the first day of 1001 for anything else.
QDate ReadDate(QStringView text)
{
    if (text.size() != 6 || !AreDigits(text, 0, 6)) {
        return noDate;
    }
    const auto two = [&](qsizetype at) { return 10 * text[at].digitValue() + text[at + 1].digitValue(); };
    const QDate date(2000 + two(0), two(2), two(4));
    return date.isValid() ? date : noDate;
}

cBalance ToBalance(QStringView mark, QStringView date, QStringView currency, QStringView amount)
{
    const QStringView bare = WithoutZeros(amount.trimmed());
    return {mark.toString(), date.toString(), currency.toString(), (bare.startsWith(u',') ? u"0"_s : QString()) + bare};
}

bool AreCapitals(QStringView text)
{
    return !text.isEmpty() && modChar::AreCapitals(text);
}

// Mark, date, currency and amount have their places. Some banks leave out the date or the currency; then what is there
// tells what it is, or the places would cut digits off the amount.
cBalance ReadBalance(QStringView content)
{
    const QStringView mark = content.left(1);
    const QStringView date = content.mid(1, 6);
    if (AreDigits(content, 1, 6) && content.size() > 7 && !IsDigit(content, 7) && content[7] != u',') {
        return ToBalance(mark, date, content.mid(7, 3), content.mid(10));
    }
    if (!content.contains(u',')) {
        return {mark.toString(), {}, {}, {}}; // may be a date without amount
    }
    if (AreCapitals(content.mid(1, 3))) {
        return ToBalance(mark, {}, content.mid(1, 3), content.mid(4));
    }
    const bool hasDate = ReadDate(date) != noDate && IsDigit(content, 7);
    return ToBalance(mark, hasDate ? date : QStringView(), {}, content.mid(hasDate ? 7 : 1));
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
    return at < text.size() && QStringView(u"cdrCDR").contains(text[at]);
}

cTransaction ReadTransaction(QStringView content, int line)
{
    cTransaction transaction;
    transaction.Line = line;
    qsizetype at = IsDigit(content, 6) ? 10 : 6;
    while (at < content.size() && content[at] == u' ') {
        ++at; // in the place of the entry date
    }
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
    transaction.EntryDay = IsDigit(content, 6) ? content.mid(6, 4).toString() : QString();
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

// In one step, because it is done several times for every transaction.
void AddPiece(QString& text, QStringView piece)
{
    const qsizetype size = text.size();
    text.resize(size + piece.size() + 1, u' ');
    std::copy(piece.begin(), piece.end(), text.begin() + size);
}

void AddSubfield(cTransaction& transaction, int number, QStringView value)
{
    if (number == 0) {
        AddPiece(transaction.BookingText, AreDigits(value, 0, 3) ? value.mid(3) : value);
    } else if (number == 10) {
        transaction.PrimaNota += value;
    } else if (number >= 20 && number <= 29) {
        AddPiece(transaction.Purpose, value);
    } else if (number == 30) {
        transaction.BankCode += value;
    } else if (number == 31) {
        transaction.Account += value;
    } else if (number == 32 || number == 33) {
        AddPiece(transaction.Name, value);
    } else if (number >= 60 && number <= 63) {
        transaction.PurposeContinuation += value;
    }
}

// Looks for its rarest letter, which is found many times faster than the word.
bool HasNotProvided(QStringView content)
{
    constexpr QStringView wanted = u"notprovided";
    constexpr qsizetype before = 6; // letters before the "v"
    for (const QChar letter : {u'V', u'v'}) {
        for (qsizetype at = content.indexOf(letter, before); at >= 0; at = content.indexOf(letter, at + 1)) {
            if (content.mid(at - before).startsWith(wanted, Qt::CaseInsensitive)) {
                return true;
            }
        }
    }
    return false;
}

void ReadDetails(cTransaction& transaction, QStringView content)
{
    transaction.BusinessCode = content.left(3).toString();
    transaction.Separator = content.mid(3, 1).toString();
    if (transaction.Separator.isEmpty()) {
        return;
    }
    const QChar separator = transaction.Separator.front();
    transaction.Purpose.reserve(content.size());         // it grows with every piece
    const bool hasNoReference = HasNotProvided(content); // quicker asked once
    for (qsizetype at = content.indexOf(separator); at >= 0;) {
        const qsizetype next = content.indexOf(separator, at + 1);
        const QStringView piece = next < 0 ? content.mid(at + 1) : content.mid(at + 1, next - at - 1);
        if (!hasNoReference || !piece.contains(u"referenz notprovided", Qt::CaseInsensitive)) {
            AddSubfield(transaction, SubfieldNumber(piece), piece.mid(2));
        }
        at = next;
    }
}

QString Joined(const QString& text, const QString& more)
{
    return text.trimmed() == more.trimmed() ? text : text + more;
}

// A further line of details goes on with the purpose. What it only repeats does not count twice.
void AddDetails(cTransaction& transaction, QStringView content)
{
    cTransaction more;
    ReadDetails(more, content);
    if (modSepaPurpose::BeginsWithKeyword(more.Purpose) && !modSepaPurpose::BeginsWithKeyword(transaction.Purpose)) {
        more.Purpose = modSepaPurpose::Rewrite(more.Purpose.trimmed());
    }
    transaction.Purpose = Joined(transaction.Purpose, more.Purpose);
    transaction.BookingText = Joined(transaction.BookingText, more.BookingText);
    transaction.Name = Joined(transaction.Name, more.Name);
    transaction.PurposeContinuation += more.PurposeContinuation;
    for (QString cTransaction::*const field :
         {&cTransaction::PrimaNota, &cTransaction::BankCode, &cTransaction::Account}) {
        transaction.*field = (transaction.*field).isEmpty() ? more.*field : transaction.*field;
    }
}

// A transaction may have its details in several lines, so its texts are complete only here.
void CompleteDetails(cTransaction& transaction)
{
    transaction.BookingText = transaction.BookingText.trimmed();
    transaction.Purpose = modSepaPurpose::Rewrite(transaction.Purpose.trimmed());
    transaction.Name = transaction.Name.trimmed();
}

// Takes what a text is made of, in its order.
class cTaker
{
public:
    cTaker() = default;
    cTaker(const cTaker&) = delete;
    cTaker& operator=(const cTaker&) = delete;
    virtual ~cTaker() = default;
    // A transaction with its details. The statement may still miss what stands behind it.
    virtual void TakeTransaction(const cStatement& statement, cTransaction transaction) = 0;
    virtual void EndStatement(cStatement statement) = 0;
};

// Walks over the lines and hands on each transaction as soon as it is complete, so that a large text need not stand in
// memory a second time.
class cWalk
{
public:
    cWalk(cTaker& taker, eStrayDetails stray) : m_taker(taker), m_stray(stray) {}

    // Everything but the statements.
    cParsed Run(const modMT940Repair::cRepaired& repaired)
    {
        m_isStructured = IsStructured(repaired);
        cMT940Lines lines(repaired);
        bool isFirst = true;
        while (lines.Next()) {
            if (!isFirst && lines.IsSeparator()) {
                EndStatement();
            }
            isFirst = false;
            const QStringView tag = TagOf(lines.Text);
            if (!Take(tag, lines.Text.mid(tag.size()), lines.Number)) {
                Fail(lines.Number);
                return std::move(m_parsed);
            }
        }
        if (!isFirst) {
            EndStatement();
        }
        return std::move(m_parsed);
    }

private:
    // False when the line ends the reading.
    bool Take(QStringView tag, QStringView content, int number)
    {
        if (tag == u":25:") {
            const qsizetype slash = content.indexOf(u'/');
            m_statement.Account = WithoutZeros(content.mid(slash + 1)).toString();
            m_statement.BankCode = slash < 0 ? QString() : content.left(slash).trimmed().toString();
        } else if (tag == u":60F:" || tag == u":60M:") {
            m_statement.OpeningBalance = ReadBalance(content);
        } else if (tag == u":61:") {
            EndTransaction();
            TakeTransaction(content, number);
        } else if (tag == u":86:") {
            return TakeDetails(content, number);
        } else if (tag == u":62F:" || tag == u":62M:") {
            TakeClosing(content, number);
        }
        return true;
    }

    void TakeTransaction(QStringView content, int number)
    {
        ++m_statement.TransactionCount;
        m_transaction = ReadTransaction(content, number);
        if (m_transaction->Amount.isEmpty()) {
            Report(number, cText::Tr("Der Umsatz hat keinen Betrag: {0}", {content.left(40).toString()}));
        }
    }

    bool TakeDetails(QStringView content, int number)
    {
        if (!m_transaction) {
            if (m_stray == eStrayDetails::PassOver) {
                Report(number, cText::Tr("Angaben ohne Umsatz wurden übergangen: {0}", {content.left(40).toString()}));
            }
            return m_stray == eStrayDetails::PassOver;
        }
        if (!m_isStructured) {
            QString& text = m_transaction->BookingText;
            text += (text.isEmpty() ? QString() : u" "_s) + content;
        } else if (m_transaction->BusinessCode.isEmpty()) {
            ReadDetails(*m_transaction, content);
        } else {
            AddDetails(*m_transaction, content);
        }
        ++m_parsed.DetailLines;
        return true;
    }

    void TakeClosing(QStringView content, int number)
    {
        const cBalance balance = ReadBalance(content);
        if (!IsReadable(balance, content)) {
            Report(number, cText::Tr("Der Schlusssaldo ist nicht lesbar: {0}", {content.left(40).toString()}));
            return;
        }
        m_parsed.ClosingBalance = balance;
        m_statement.Closings.append(balance);
    }

    // An amount of nothing but zeros is empty without them.
    [[nodiscard]] static bool IsReadable(const cBalance& balance, QStringView content)
    {
        return balance.Amount.isEmpty() ? content.size() > 10 && content.endsWith(u'0')
                                        : modAmount::CentsFromGerman(balance.Amount).has_value();
    }

    void EndTransaction()
    {
        if (!m_transaction) {
            return;
        }
        if (m_isStructured) {
            CompleteDetails(*m_transaction);
        }
        m_taker.TakeTransaction(m_statement, *std::exchange(m_transaction, std::nullopt));
    }

    void EndStatement()
    {
        EndTransaction();
        m_taker.EndStatement(std::exchange(m_statement, cStatement()));
    }

    // Details before the first transaction of their statement: the text is not what it seems, so none of it is taken.
    void Fail(int number)
    {
        m_parsed.ClosingBalance.reset();
        m_parsed.IsFailed = true;
        Report(number,
               cText::Tr("Angaben zu einem Umsatz (:86:) stehen vor dem ersten Umsatz (:61:) des Auszugs. "
                         "Die Datei wurde nicht übernommen."));
    }

    void Report(int number, const QString& text) { m_parsed.Problems.append({number, text}); }

    cTaker& m_taker;
    eStrayDetails m_stray;
    cParsed m_parsed;
    cStatement m_statement;
    std::optional<cTransaction> m_transaction; // to which details may follow
    bool m_isStructured = false;
};

// Keeps all of it.
class cKeeper : public cTaker
{
public:
    void TakeTransaction(const cStatement& /*statement*/, cTransaction transaction) override
    {
        m_transactions.append(std::move(transaction));
    }

    void EndStatement(cStatement statement) override
    {
        statement.Transactions = std::exchange(m_transactions, {});
        Statements.append(std::move(statement));
    }

    QList<cStatement> Statements;

private:
    QList<cTransaction> m_transactions;
};

// One without a day or an amount tells nothing.
std::optional<cAccountBalance> ToAccountBalance(const cBalance& balance, const QString& account)
{
    const QDate date = ReadDate(balance.Date);
    if (date == noDate || !modAmount::CentsFromGerman(balance.Amount)) {
        return std::nullopt;
    }
    return cAccountBalance{account, modMT940::SignedCents(balance), date};
}

// Turns the transactions into records.
class cRecorder : public cTaker
{
public:
    explicit cRecorder(const QString& account) : m_account(account) {}

    void TakeTransaction(const cStatement& statement, cTransaction transaction) override
    {
        if (!transaction.Amount.isEmpty() && !IsTooMany()) {
            const QString& day = transaction.EntryDay.isEmpty() ? transaction.ValueDate : transaction.EntryDay;
            m_isMorning = m_isMorning || (!day.isEmpty() && statement.OpeningBalance.Date.endsWith(day));
            Read.Entries.append(ToEntry(statement, transaction));
        }
    }

    // Account and currency are those that the whole statement names.
    void EndStatement(cStatement statement) override
    {
        const QString& account = statement.Account.isEmpty() ? m_account : statement.Account;
        const bool isMorning = std::exchange(m_isMorning, false);
        const qsizetype begin = m_ended;
        for (; m_ended < Read.Entries.size(); ++m_ended) {
            cImportEntry& entry = Read.Entries[m_ended];
            entry.ImportAccount = account;
            entry.ImportCurrency = statement.OpeningBalance.Currency;
            Read.NeedsAccount = Read.NeedsAccount || account.isEmpty();
        }
        if (!statement.BankCode.isEmpty()) {
            Read.BankCodes.insert(account, statement.BankCode);
        }
        std::optional<cAccountBalance> first = ToAccountBalance(statement.OpeningBalance, account);
        if (first && isMorning) {
            first->Date = first->Date.addDays(-1); // what the day before ended with
        }
        QList<cAccountBalance> closings;
        for (const cBalance& closing : std::as_const(statement.Closings)) {
            if (const std::optional<cAccountBalance> balance = ToAccountBalance(closing, account)) {
                closings.append(*balance);
            }
        }
        m_balances.Add(first, closings, Read.Entries, begin);
    }

    [[nodiscard]] cStatementRead Finished()
    {
        Read.Balances = m_balances.All();
        return std::move(Read);
    }

    [[nodiscard]] bool IsTooMany() const { return Read.Entries.size() > cStatementRead::mostEntries; }

    cStatementRead Read;

private:
    cImportEntry ToEntry(const cStatement& statement, const cTransaction& transaction)
    {
        const QString& date = transaction.ValueDate.isEmpty() ? statement.OpeningBalance.Date : transaction.ValueDate;
        const std::optional<qint64> amount = modAmount::CentsFromGerman(transaction.Amount);
        const qint64 size = std::abs(amount.value_or(0));
        cImportEntry entry;
        entry.ImportDate = ReadDate(date);
        entry.ImportType = m_type.Of(modStatementText::DecodeField(transaction.BookingText));
        entry.ImportPurpose = modStatementText::DecodeField(transaction.Purpose);
        entry.ImportBeneficiary = modStatementText::DecodeField(transaction.Name);
        entry.ImportBeneficiaryAccount = modStatementText::DecodeField(transaction.Account);
        entry.ImportBeneficiaryBLZ = m_bankCode.Of(modStatementText::DecodeField(transaction.BankCode));
        // Cancellations count by the letter too: "RD" is negative although the bank pays money back with it.
        entry.ImportValue = transaction.Mark.contains(u'D', Qt::CaseInsensitive) ? -size : size;
        if (entry.ImportDate == noDate) {
            Report(transaction.Line, cText::Tr("Das Buchungsdatum ist kein Datum: {0}", {transaction.ValueDate}));
        }
        if (!amount) {
            Report(transaction.Line, cText::Tr("Der Betrag ist keine Zahl: {0}", {transaction.Amount.left(40)}));
        }
        return entry;
    }

    void Report(int line, const QString& text) { Read.Problems.append({line, text}); }

    QString m_account;        // of statements without a number
    qsizetype m_ended = 0;    // entries of the statements before
    bool m_isMorning = false; // a transaction of the statement was entered on the day of its opening balance
    cStatementBalances m_balances;
    cRepeatedText m_type;
    cRepeatedText m_bankCode;
};

} // namespace

modMT940::cParsed modMT940::Parse(const QString& text)
{
    cKeeper keeper;
    cParsed parsed = cWalk(keeper, eStrayDetails::Refuse).Run(modMT940Repair::Repair(text));
    if (!parsed.IsFailed) {
        parsed.Statements = std::move(keeper.Statements);
    }
    return parsed;
}

cStatementRead modMT940::Read(const QString& text, const QString& account, eStrayDetails stray)
{
    cRecorder recorder(account);
    recorder.Read.Entries.reserve(std::min(text.size() / shortestTransaction, cStatementRead::mostEntries));
    const cParsed parsed = cWalk(recorder, stray).Run(modMT940Repair::Repair(text));
    if (recorder.IsTooMany()) {
        return cStatementRead::TooMany();
    }
    cStatementRead read = parsed.IsFailed ? cStatementRead() : recorder.Finished();
    read.Problems += parsed.Problems;
    if (parsed.IsFailed) {
        read.HasStrayDetails = true;
        read.Refusal = parsed.Problems.last().Text;
    }
    if (parsed.ClosingBalance) {
        read.ClosingBalance = SignedCents(*parsed.ClosingBalance);
    }
    std::stable_sort(read.Problems.begin(), read.Problems.end(),
                     [](const cReadProblem& left, const cReadProblem& right) { return left.Line < right.Line; });
    return read;
}

qint64 modMT940::SignedCents(const cBalance& balance)
{
    const qint64 cents = modAmount::CentsFromGerman(balance.Amount).value_or(0);
    return balance.Mark.contains(u'C', Qt::CaseInsensitive) ? cents : -cents;
}

int modMT940::ProgressMaximum(const QString& text)
{
    return 2 * static_cast<int>(text.count(u":86:\r\n"));
}
