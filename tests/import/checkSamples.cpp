// Reads a folder of real statements and compares each file with what expected.tsv says of it. Run by
// tools/check-samples.

#include "base/modAmount.h"
#include "base/modDate.h"
#include "import/cImportHive.h"
#include "import/modMT940.h"
#include "import/modStatementFormat.h"
#include "import/modStatementText.h"

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
        cents += modAmount::ToCents(entry.ImportValue);
        if (entry.ImportDate.year() > 1001) { // what is no date is staged in 1001
            days.append(entry.ImportDate);
        }
        if (!entry.ImportAccount.isEmpty()) {
            accounts.insert(entry.ImportAccount);
        }
        const bool isZero = modAmount::ToCents(entry.ImportValue) == 0;
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

// True when the file is as expected.
bool Check(const QString& path, const cFacts& expected)
{
    const QString text = modStatementText::Decode(ReadAll(path));
    const cStatementRead read = modMT940::Read(text, {});
    const cFacts facts = FactsOf(read);
    QStringList differences;
    for (auto fact = facts.cbegin(); fact != facts.cend(); ++fact) {
        QString wanted = expected.value(fact.key());
        if (fact.key() == u"account") {
            QStringList accounts = wanted.split(u'|');
            accounts.sort();
            wanted = accounts.join(u'|');
        }
        if (wanted != *fact) {
            differences.append(u"    "_s + fact.key() + u": expected '" + wanted + u"', read '" + *fact + u"'");
        }
    }
    const bool isDetected = DetectStatementFormat(path, text) == eStatementFormat::Mt940;
    Print((differences.isEmpty() ? u"same  "_s : u"DIFF  "_s) + expected.value(u"file"_s)
          + (isDetected ? QString() : u"  (not detected as MT940)"_s));
    for (const QString& difference : std::as_const(differences)) {
        Print(difference);
    }
    for (const cReadProblem& problem : read.Problems) {
        Print(u"    line "_s + QString::number(problem.Line) + u": "_s + problem.Text);
    }
    return differences.isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: checkSamples FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QStringList lines = QString::fromUtf8(ReadAll(folder.filePath(u"expected.tsv"_s))).split(u'\n');
    const QStringList columns = lines.first().split(u'\t');
    int checked = 0;
    int different = 0;
    for (const QString& line : lines) {
        if (!line.startsWith(u"mt940/")) {
            continue;
        }
        const QStringList values = line.split(u'\t');
        cFacts expected;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            expected.insert(columns.at(i).trimmed(), values.value(i).trimmed());
        }
        ++checked;
        different += Check(folder.filePath(values.first()), expected) ? 0 : 1;
    }
    Print(QString::number(checked) + u" files, "_s + QString::number(different) + u" different"_s);
    return checked > 0 && different == 0 ? 0 : 1;
}
