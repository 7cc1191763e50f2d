// Reads a folder of real statements and compares each file with what expected.tsv says of it. Run by
// tools/check-samples.

#include "base/modDate.h"
#include "import/stage/cImportHive.h"
#include "import/stage/modStatementFormat.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

using cFacts = QMap<QString, QString>; // column to value

cFacts FactsOf(const cStatementRead& read)
{
    cImportHive staged;
    QSet<QString> accounts;
    QList<QDate> days;
    qint64 cents = 0;
    int nonZero = 0;
    for (cImportEntry entry : read.Entries) {
        cents += entry.ImportValue;
        if (entry.ImportDate.year() > 1001) { // what is no date is staged in 1001
            days.append(entry.ImportDate);
        }
        if (!entry.ImportAccount.isEmpty()) {
            accounts.insert(entry.ImportAccount);
        }
        const bool isZero = entry.ImportValue == 0;
        nonZero += isZero ? 0 : 1;
        entry.Validate();
        entry.ID = staged.Count() + 1;
        if (!isZero && !staged.IsImportItemAvail(entry)) {
            staged.Add(entry);
        }
    }
    QStringList sortedAccounts(accounts.begin(), accounts.end());
    sortedAccounts.sort();
    std::sort(days.begin(), days.end());
    return {{u"transactions"_s, QString::number(read.Entries.size())},
            {u"nonzero_transactions"_s, QString::number(nonZero)},
            {u"sum_cents_literal_sign"_s, QString::number(cents)},
            {u"closing_balance_cents"_s, read.ClosingBalance ? QString::number(*read.ClosingBalance) : QString()},
            {u"first_date"_s, days.isEmpty() ? QString() : modDate::ToIso(days.first())},
            {u"last_date"_s, days.isEmpty() ? QString() : modDate::ToIso(days.last())},
            {u"account"_s, sortedAccounts.join(u'|')},
            {u"distinct_by_duplicate_rule"_s, QString::number(staged.Count())}};
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Print(const QString& text)
{
    std::fputs((text + u'\n').toUtf8().constData(), stdout);
}

// The account that stands for what the user would be asked for.
const QString askedAccount = u"(wizard)"_s;

QString Sorted(const QString& accounts)
{
    QStringList parts = accounts.split(u'|');
    parts.sort();
    return parts.join(u'|');
}

// Some facts are only known of some files.
bool IsToCompare(const QString& fact, const QString& wanted, const cFacts& expected)
{
    const bool isSwift = expected.value(u"file"_s).startsWith(u"mt940/");
    if (fact == u"distinct_by_duplicate_rule") {
        return isSwift;
    }
    if (fact == u"account") {
        return isSwift || (!wanted.isEmpty() && wanted != askedAccount);
    }
    return isSwift || !wanted.isEmpty();
}

QStringList Differences(const cFacts& facts, const cFacts& expected)
{
    QStringList differences;
    for (auto fact = facts.cbegin(); fact != facts.cend(); ++fact) {
        QString wanted = expected.value(fact.key());
        if (fact.key() == u"sum_cents_literal_sign" && wanted.isEmpty()) {
            wanted = expected.value(u"sum_cents"_s);
        }
        if (fact.key() == u"account") {
            wanted = Sorted(wanted);
        }
        if (IsToCompare(fact.key(), wanted, expected) && wanted != *fact) {
            differences.append(u"    "_s + fact.key() + u": expected '" + wanted + u"', read '" + *fact + u"'");
        }
    }
    return differences;
}

void PrintProblems(const cStatementRead& read)
{
    for (const cReadProblem& problem : read.Problems) {
        Print(u"    line "_s + QString::number(problem.Line) + u": "_s + problem.Text);
    }
    for (const cSkippedRow& row : read.Skipped) {
        Print(u"    line "_s + QString::number(row.Reason.Line) + u" left out: "_s + row.Reason.Text);
    }
}

// True when the file is as expected.
bool Check(const QString& path, const cFacts& expected, const QString& profile)
{
    const cStatementSource source = modStatementFormat::Source(path, ReadAll(path));
    const eStatementFormat format = modStatementFormat::Detect(source);
    const modStatementFormat::cReader reader = modStatementFormat::Reader(format);
    cReadOptions options;
    options.Account = expected.value(u"file"_s).startsWith(u"mt940/") ? QString() : askedAccount;
    options.Table.Profile = profile;
    const cStatementRead read = reader == nullptr ? cStatementRead() : reader(source, options);
    const QStringList differences = Differences(FactsOf(read), expected);
    Print((differences.isEmpty() ? u"same  "_s : u"DIFF  "_s) + expected.value(u"file"_s) + u"  ["_s
          + (reader == nullptr ? modStatementFormat::Refusal(format) : modStatementFormat::Name(format))
          + (read.Layout.isEmpty() ? QString() : u", "_s + read.Layout) + u']');
    for (const QString& difference : differences) {
        Print(difference);
    }
    if (!read.Refusal.isEmpty()) {
        Print(u"    refused: "_s + read.Refusal);
    }
    PrintProblems(read);
    return differences.isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 && argc != 3) {
        std::fputs("usage: checkSamples FOLDER [NAME OF A TABLE LAYOUT, \"-\" FOR NONE]\n", stderr);
        return 2;
    }
    const QString profile = argc == 3 ? QString::fromLocal8Bit(argv[2]) : QString();
    const QDir folder(QFile::decodeName(argv[1]));
    const QStringList lines = QString::fromUtf8(ReadAll(folder.filePath(u"expected.tsv"_s))).split(u'\n');
    const QStringList columns = lines.first().split(u'\t');
    int checked = 0;
    int different = 0;
    for (const QString& line : lines) {
        const QStringList values = line.split(u'\t');
        if (!values.first().contains(u'/')) {
            continue;
        }
        cFacts expected;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            expected.insert(columns.at(i).trimmed(), values.value(i).trimmed());
        }
        ++checked;
        different += Check(folder.filePath(values.first()), expected, profile) ? 0 : 1;
    }
    Print(QString::number(checked) + u" files, "_s + QString::number(different) + u" different"_s);
    return checked > 0 && different == 0 ? 0 : 1;
}
