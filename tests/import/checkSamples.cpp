// Reads a folder of real statements and compares each file with what expected.tsv says of it, and single rows with what
// texts.tsv says of them where there is one. Run by tools/check-samples.

#include "base/modDate.h"
#include "import/stage/cImportHive.h"
#include "import/stage/modStatementFormat.h"
#include "model/modCutText.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

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

// Some facts are only known of some files; of SWIFT statements with the number of different rows, all of them.
bool IsToCompare(const QString& fact, const QString& wanted, const cFacts& expected)
{
    const bool isSwift = expected.value(u"file"_s).startsWith(u"mt940/");
    const bool isAllKnown = isSwift && !expected.value(u"distinct_by_duplicate_rule"_s).isEmpty();
    if (fact == u"distinct_by_duplicate_rule") {
        return isAllKnown;
    }
    if (fact == u"account") {
        return isAllKnown || (!wanted.isEmpty() && wanted != askedAccount);
    }
    return isAllKnown || !wanted.isEmpty();
}

// Whether rows without amount count as transactions is a matter of taste, as long as the others are all there.
bool IsWanted(const QString& fact, const QString& wanted, const cFacts& facts, const cFacts& expected)
{
    const QString nonZero = u"nonzero_transactions"_s;
    return facts.value(fact) == wanted
        || (fact == u"transactions" && wanted == expected.value(nonZero) && wanted == facts.value(nonZero));
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
        if (IsToCompare(fact.key(), wanted, expected) && !IsWanted(fact.key(), wanted, facts, expected)) {
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

// What texts.tsv can say of a row, each under the name of its column there.
struct cField
{
    const char16_t* Column;
    QString (*Of)(const cImportEntry& entry);
};

constexpr std::array fields = {
    cField{u"date", [](const cImportEntry& entry) { return modDate::ToIso(entry.ImportDate); }},
    cField{u"cents", [](const cImportEntry& entry) { return QString::number(entry.ImportValue); }},
    cField{u"counterparty", [](const cImportEntry& entry) { return entry.ImportBeneficiary; }},
    cField{u"purpose", [](const cImportEntry& entry) { return entry.ImportPurpose; }},
    cField{u"account", [](const cImportEntry& entry) { return entry.ImportAccount; }},
    cField{u"counterparty_account", [](const cImportEntry& entry) { return entry.ImportBeneficiaryAccount; }},
    cField{u"kind", [](const cImportEntry& entry) { return entry.ImportType; }},
};

// A cell of a line of tab-separated values.
QString Cell(const QString& text)
{
    return text.simplified();
}

struct cOptions
{
    QString Profile;
    QString Only; // part of the names of the files that are wanted
    bool ShowsTexts = false;
    bool IsForPeople = false; // the texts with their words closed
};

// The rows as lines of a texts.tsv, for the eye and to keep what was found to be right.
void ShowTexts(const QString& file, const cStatementRead& read, const cOptions& wanted)
{
    for (qsizetype row = 0; row < read.Entries.size(); ++row) {
        const cImportEntry& entry = read.Entries.at(row);
        QStringList cells{file, QString::number(row + 1)};
        for (const cField& field : fields) {
            cells.append(Cell(field.Of(wanted.IsForPeople ? modCutText::WholeWords(entry) : entry)));
        }
        Print(cells.join(u'\t'));
    }
}

// Columns that texts.tsv lacks and cells "*" are not known. Blanks at the ends and runs of them do not count.
QStringList TextDifferences(const cStatementRead& read, const QList<cFacts>& rows)
{
    QStringList differences;
    for (const cFacts& wanted : rows) {
        const qsizetype row = wanted.value(u"row"_s).toLongLong() - 1;
        if (row < 0 || row >= read.Entries.size()) {
            differences.append(u"    row "_s + wanted.value(u"row"_s) + u": not read"_s);
            continue;
        }
        for (const cField& field : fields) {
            const QString column = QString::fromUtf16(field.Column);
            const QString expected = wanted.value(column, u"*"_s);
            const QString found = Cell(field.Of(read.Entries.at(row)));
            if (expected != u"*" && Cell(expected) != found) {
                differences.append(u"    row "_s + wanted.value(u"row"_s) + u", "_s + column + u": expected '"_s
                                   + expected + u"', read '"_s + found + u'\'');
            }
        }
    }
    return differences;
}

// The lines of a table with a header, each by the names of its columns.
QList<cFacts> ReadTable(const QString& path)
{
    QList<cFacts> rows;
    const QStringList lines = QString::fromUtf8(ReadAll(path)).split(u'\n');
    const QStringList columns = lines.first().trimmed().split(u'\t');
    for (const QString& line : lines.mid(1)) {
        const QStringList values = line.split(u'\t');
        cFacts row;
        for (qsizetype i = 0; values.first().contains(u'/') && i < columns.size(); ++i) {
            row.insert(columns.at(i).trimmed(), values.value(i).trimmed());
        }
        if (!row.isEmpty()) {
            rows.append(row);
        }
    }
    return rows;
}

cStatementRead ReadSample(const QString& path, const cFacts& expected, const QString& profile, eStatementFormat& format)
{
    const cStatementSource source = modStatementFormat::Source(path, ReadAll(path));
    format = modStatementFormat::Detect(source);
    const modStatementFormat::cReader reader = modStatementFormat::Reader(format);
    cReadOptions options;
    options.Account = expected.value(u"file"_s).startsWith(u"mt940/") ? QString() : askedAccount;
    options.Table.Profile = profile;
    return reader == nullptr ? cStatementRead() : reader(source, options);
}

// True when the file is as expected.
bool Check(const QString& path, const cFacts& expected, const QList<cFacts>& rows, const cOptions& wanted)
{
    eStatementFormat format = eStatementFormat::Unknown;
    const cStatementRead read = ReadSample(path, expected, wanted.Profile, format);
    if (wanted.ShowsTexts) {
        ShowTexts(expected.value(u"file"_s), read, wanted);
        return true;
    }
    const bool isKnown = modStatementFormat::Reader(format) != nullptr;
    const QStringList differences = Differences(FactsOf(read), expected) + TextDifferences(read, rows);
    Print((differences.isEmpty() ? u"same  "_s : u"DIFF  "_s) + expected.value(u"file"_s) + u"  ["_s
          + (isKnown ? modStatementFormat::Name(format) : modStatementFormat::Refusal(format))
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

// False when they are not understood.
bool ReadArguments(QStringList arguments, QString& folder, cOptions& options)
{
    options.IsForPeople = arguments.removeAll(u"--show-closed"_s) > 0;
    options.ShowsTexts = arguments.removeAll(u"--show"_s) > 0 || options.IsForPeople;
    if (const qsizetype only = arguments.indexOf(u"--only"_s); only >= 0 && only + 1 < arguments.size()) {
        options.Only = arguments.takeAt(only + 1);
        arguments.removeAt(only);
    }
    folder = arguments.value(0);
    options.Profile = arguments.value(1);
    return arguments.size() == 1 || arguments.size() == 2;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    std::transform(argv + 1, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QFile::decodeName(argument); });
    QString folder;
    cOptions options;
    if (!ReadArguments(arguments, folder, options)) {
        std::fputs("usage: checkSamples [--show | --show-closed] [--only PART OF A NAME] FOLDER "
                   "[NAME OF A TABLE LAYOUT, \"-\" FOR NONE]\n",
                   stderr);
        return 2;
    }
    const QDir place(folder);
    QMap<QString, QList<cFacts>> texts;
    for (const cFacts& row : ReadTable(place.filePath(u"texts.tsv"_s))) {
        texts[row.value(u"file"_s)].append(row);
    }
    int checked = 0;
    int different = 0;
    for (const cFacts& expected : ReadTable(place.filePath(u"expected.tsv"_s))) {
        const QString file = expected.value(u"file"_s);
        if (file.contains(options.Only)) {
            ++checked;
            different += Check(place.filePath(file), expected, texts.value(file), options) ? 0 : 1;
        }
    }
    if (!options.ShowsTexts) {
        Print(QString::number(checked) + u" files, "_s + QString::number(different) + u" different"_s);
    }
    return checked > 0 && different == 0 ? 0 : 1;
}
