#include "modFuzz.h"

#include "import/zip/modZip.h"
#include "modFuzzBank.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using modFuzz::cTarget;

constexpr std::array targets = {
    cTarget{"mt940", "a.sta", eStatementFormat::Mt940},
    cTarget{"csv", "a.csv", eStatementFormat::Csv},
    cTarget{"ofx", "a.ofx", eStatementFormat::Ofx},
    cTarget{"qif", "a.qif", eStatementFormat::Qif},
    cTarget{"camt", "a.xml", eStatementFormat::Camt},
    cTarget{"xlsx", "a.xlsx", eStatementFormat::Spreadsheet},
    cTarget{"xls", "a.xls", eStatementFormat::Spreadsheet},
    cTarget{"zip", "a.zip", eStatementFormat::Archive},
    cTarget{"fintsSplit", "a.txt", {}, modFuzzBank::FaultOfSplit},
    cTarget{"fintsAnswer", "a.txt", {}, modFuzzBank::FaultOfAnswer},
    cTarget{"fintsMethods", "a.txt", {}, modFuzzBank::FaultOfMethods},
};

constexpr int lastSheetRow = 1048576;
constexpr qsizetype longestMessage = 500; // characters that a message box can still show

// The last line that a message about the file may name.
qsizetype LastLine(const cTarget& target, const cStatementSource& source)
{
    if (target.Format == eStatementFormat::Spreadsheet || modZip::IsZip(source.Bytes)) {
        return lastSheetRow;
    }
    const auto isBreak = [](auto c) { return c == '\n' || c == '\r'; };
    const auto inBytes = std::count_if(source.Bytes.begin(), source.Bytes.end(), isBreak);
    const auto inText =
        std::count_if(source.Text.begin(), source.Text.end(), [](QChar c) { return c == u'\n' || c == u'\r'; });
    // "@@" stands for a line break in some statements.
    return 1 + std::max<qsizetype>(inBytes, inText) + source.Text.count(u"@@");
}

QString FaultOfEntry(const cImportEntry& entry)
{
    if (!entry.ImportDate.isValid()) {
        return u"a record without a day"_s;
    }
    const QString texts = entry.ImportAccount + entry.ImportType + entry.ImportPurpose + entry.ImportBeneficiary
        + entry.ImportBeneficiaryAccount + entry.ImportBeneficiaryBLZ + entry.ImportCurrency;
    return texts.contains(QChar::Null) ? u"a text that the database would cut off"_s : QString();
}

QString FaultOfProblem(const cReadProblem& problem, qsizetype lastLine)
{
    if (problem.Line < 0 || problem.Line > lastLine) {
        return u"a problem on line %1 of %2"_s.arg(problem.Line).arg(lastLine);
    }
    const bool isShown = !problem.Text.isEmpty() && problem.Text.size() <= longestMessage;
    return isShown ? QString() : u"a message of %1 characters"_s.arg(problem.Text.size());
}

QStringList FaultsOf(const cStatementRead& read, qsizetype lastLine)
{
    QStringList faults;
    for (const cImportEntry& entry : read.Entries) {
        faults.append(FaultOfEntry(entry));
        if (entry.ImportAccount.isEmpty() && !read.NeedsAccount) {
            faults.append(u"a record without account that nobody asks for"_s);
        }
    }
    for (const cReadProblem& problem : read.Problems) {
        faults.append(FaultOfProblem(problem, lastLine));
    }
    for (const cSkippedRow& row : read.Skipped) {
        faults.append(FaultOfProblem(row.Reason, lastLine));
    }
    if (!read.Refusal.isEmpty()) {
        faults.append(FaultOfProblem({0, read.Refusal}, lastLine));
        faults.append(read.Entries.isEmpty() ? QString() : u"records of a refused file"_s);
    }
    faults.removeAll(QString());
    return faults;
}

} // namespace

const modFuzz::cTarget* modFuzz::Find(const QString& name)
{
    const auto* const found = std::find_if(
        targets.begin(), targets.end(), [&](const cTarget& target) { return name == QLatin1StringView(target.Name); });
    return found == targets.end() ? nullptr : found;
}

cReadOptions modFuzz::Options(int set)
{
    cReadOptions options;
    options.Account = u"1234567"_s;
    if (set == 1) {
        options.MissingPurpose = eMissingPurpose::Name;
        options.OfxPayee = eOfxPayee::Take;
        options.Table.Charset = eCharset::Cp850;
        options.Table.Number = eNumberFormat::English;
        options.Table.Date = eDateOrder::MonthDayYear;
    } else if (set == 2) {
        options.Table.HeaderLine = 2;
        options.Table.Separator = u'|';
        options.Table.Sign = eSignRule::Negated;
        options.Table.Sheet = u"A"_s;
    } else if (set == 3) {
        options.Account.clear();
        options.Table.HeaderLine = 0;
        options.Table.Profile = noProfile.toString();
        options.Table.Date = eDateOrder::YearMonthDay;
    }
    return options;
}

QString modFuzz::Fault(const cTarget& target, const QByteArray& bytes, int optionSet)
{
    if (target.Fault != nullptr)
        return target.Fault(bytes);
    const cReadOptions options = Options(optionSet);
    const cStatementSource source =
        modStatementFormat::Source(QString::fromLatin1(target.FileName), Packed(bytes), options.Table.Charset);
    static_cast<void>(
        modStatementFormat::Detect(source)); // whatever it says: the file may have come with a chosen format
    const cStatementRead read = modStatementFormat::Reader(target.Format)(source, options);
    return FaultsOf(read, LastLine(target, source)).value(0);
}
