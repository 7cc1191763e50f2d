#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"

#include <QList>
#include <QString>

#include <optional>

// SWIFT statements: MT940 (end of day) and MT942 (intraday).
namespace modMT940 {

// Opening or closing balance, the texts as they stand.
struct cBalance
{
    QString Mark; // "C" or "D"
    QString Date; // YYMMDD
    QString Currency;
    QString Amount; // without leading zeros
};

// A :61: line and the :86: line behind it.
struct cTransaction
{
    QString Mark;              // "C", "D", "RC", "RD", also with the third letter of a currency code
    QString ValueDate;         // YYMMDD
    QString EntryDay;          // MMDD, on which the bank entered it; empty when the line does not say
    QString Amount;            // German number; empty when the line could not be read
    QString TypeCode;          // four characters
    QString CustomerReference; // kept, not staged
    QString BusinessCode;      // three digits
    QString Separator;
    QString BookingText;
    QString PrimaNota;
    QString Purpose;
    QString BankCode;
    QString Account;
    QString Name;
    QString PurposeContinuation; // kept, not staged
    int Line = 0;
};

struct cStatement
{
    QString Account;
    QString BankCode;  // what stands before the "/" of the account; empty when there is none
    QString Reference; // not filled
    cBalance OpeningBalance;
    QList<cBalance> Closings;
    QList<cTransaction> Transactions;
    int TransactionCount = 0;
};

struct cParsed
{
    QList<cStatement> Statements;
    std::optional<cBalance> ClosingBalance; // the last one of the text
    QList<cReadProblem> Problems;
    int DetailLines = 0;   // :86: lines walked
    bool IsFailed = false; // a :86: line without its :61: line ended the reading; Statements is empty then
};

[[nodiscard]] cParsed Parse(const QString& text);

// Parses and turns the transactions into records, in their order. `account` stands for statements without a number. A
// refusal when details stand before the first transaction of their statement, unless they are to be passed over.
[[nodiscard]] cStatementRead Read(const QString& text, const QString& account,
                                  eStrayDetails stray = eStrayDetails::Refuse);

// Cents of a closing balance: negative unless its mark contains "C".
[[nodiscard]] qint64 SignedCents(const cBalance& balance);

// The progress maximum: twice the number of :86: tags that are followed by a line break.
[[nodiscard]] int ProgressMaximum(const QString& text);

} // namespace modMT940
