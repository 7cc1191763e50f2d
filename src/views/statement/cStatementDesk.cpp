#include "views/statement/cStatementDesk.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/cMatcher.h"
#include "import/read/modStatementFile.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"
#include "import/stage/modStatementFormat.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modLayoutFile.h"
#include "import/table/modTable.h"
#include "import/table/modTableProfile.h"
#include "views/common/modFileWrite.h"
#include "views/ledger/modImportText.h"
#include "views/rule/cRuleTrial.h"
#include "views/statement/cFileReport.h"
#include "views/statement/cFilesOutcome.h"
#include "views/statement/cFileWish.h"
#include "views/statement/cLayoutTaken.h"
#include "views/statement/cSeriesCheck.h"
#include "views/statement/cStatementWorks.h"
#include "views/statement/modTableOption.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Name(eSkipped kind)
{
    switch (kind) {
    case eSkipped::Pending: return u"pending"_s;
    case eSkipped::Balance: return u"balance"_s;
    case eSkipped::Unreadable: return u"unreadable"_s;
    case eSkipped::OtherCurrency: return u"otherCurrency"_s;
    case eSkipped::Void: return u"void"_s;
    case eSkipped::CutOff: return u"cutOff"_s;
    }
    return {};
}

QString Name(eMapOrigin origin)
{
    switch (origin) {
    case eMapOrigin::Words: return u"words"_s;
    case eMapOrigin::Contents: return u"contents"_s;
    case eMapOrigin::Profile: return u"profile"_s;
    case eMapOrigin::Memory: return u"memory"_s;
    case eMapOrigin::User: return u"user"_s;
    }
    return {};
}

cFileReport::cLine Line(const cReadProblem& problem)
{
    return {problem.Line, problem.Text, modImportText::Problem(problem)};
}

cFileReport Report(const cImportResult& result, const cAmountFormat& format)
{
    cFileReport report;
    report.File = result.File;
    report.Format = result.Format;
    report.Layout = result.Layout;
    report.Read = result.Read;
    report.Staged = result.Staged;
    report.Zero = result.Zero;
    report.Failed = result.Failed;
    report.Duplicates = result.Duplicates + result.Alike;
    report.Rows = result.Rows;
    for (const cRepeat& repeat : result.Repeats) {
        report.Repeats.append(repeat.Entry);
    }
    report.ClosingBalance = result.ClosingBalance;
    for (const cReadProblem& problem : result.Problems) {
        report.Problems.append(Line(problem));
    }
    for (const cSkippedRow& row : result.Skipped) {
        report.Skipped.append({Line(row.Reason), Name(row.Kind), row.Entry});
    }
    report.IsRefused = result.IsRefused;
    report.HasStrayDetails = result.HasStrayDetails;
    report.HasOtherCurrency = !result.OtherCurrencies.isEmpty();
    report.Message = result.Message;
    if (result.Doubt) {
        report.Message = cText::Tr("{0} {1} Lesen Sie sie mit \"--sign {2}\" oder \"--sign {3}\" ein.",
                                   {result.Message, modImportText::Question(*result.Doubt, format),
                                    modTableOption::SignNames().constFirst(), modTableOption::SignNames().constLast()});
    }
    report.Numbers = modImportText::Numbers(result, format);
    return report;
}

// Nobody is there to be asked.
cStatementWishes Wishes(const cFileWish& wish)
{
    using eWish = cStatementWishes::eWish;
    const auto takenIf = [](bool isWanted) { return isWanted ? eWish::Take : eWish::Leave; };
    return {.Repeats = takenIf(wish.TakesEqual),
            .Start = takenIf(!wish.KeepsStart),
            .Currency = takenIf(wish.TakesCurrency),
            .Strays = takenIf(wish.SkipsStrayDetails),
            .Accounts = eWish::Take,
            .Account = wish.BookAccount};
}

cImportOptions Options(const cFileWish& wish)
{
    cImportOptions options;
    options.Duplicates = wish.KeepsDuplicates ? eDuplicateTest::Skip : eDuplicateTest::Test;
    options.DefaultAccount = wish.Account;
    options.Table = modTableOption::Choice(wish);
    options.Run = wish.IsTrial ? eStagingRun::Try : eStagingRun::Write;
    return options;
}

// The layout of a file in rows and columns; none for another one.
std::optional<modTable::cOpened> OpenTable(const cStatementSource& source, const cReadOptions& options)
{
    switch (modStatementFormat::Detect(source)) {
    case eStatementFormat::Csv: return modTable::Open(source, options);
    case eStatementFormat::Spreadsheet: return modSpreadsheet::Open(source, options);
    default: return std::nullopt;
    }
}

void TakeTable(const modTable::cOpened& opened, cFileFinding& finding)
{
    const cTableLayout& layout = opened.Layout;
    finding.IsTable = true;
    finding.Profile = layout.Profile;
    finding.HeaderLine =
        layout.HeaderRow >= 0 && layout.HeaderRow < opened.Table->RowCount() ? opened.Table->Line(layout.HeaderRow) : 0;
    finding.Separator = layout.Separator;
    finding.Origin = Name(layout.Origin);
    finding.Columns = modTableOption::Columns(layout.Map);
}

void TakeRows(const cStatementRead& read, const cAmountFormat& format, cFileFinding& finding)
{
    finding.Question = read.Doubt ? modImportText::Question(*read.Doubt, format) : QString();
    finding.Profile = finding.Profile.isEmpty() ? read.Layout : finding.Profile;
    finding.Accounts = cImportHive::AccountsOf(read.Entries);
    finding.Accounts.removeAll(QString());
    finding.NeedsAccount = read.NeedsAccount;
    const auto isEarlier = [](const cImportEntry& a, const cImportEntry& b) { return a.ImportDate < b.ImportDate; };
    const auto [first, last] = std::minmax_element(read.Entries.begin(), read.Entries.end(), isEarlier);
    finding.FirstDay = read.Entries.isEmpty() ? QDate() : first->ImportDate;
    finding.LastDay = read.Entries.isEmpty() ? QDate() : last->ImportDate;
    finding.Rows = read.Entries.size();
    finding.Skipped = read.Skipped.size();
    finding.ClosingBalance = read.ClosingBalance;
    finding.Refusal = read.Refusal;
}

QString CharsetName(const cStatementSource& source, eCharset chosen)
{
    if (source.Text.isEmpty()) {
        return {};
    }
    return modTableOption::CharsetName(chosen == eCharset::Detect ? modStatementText::CharsetOf(source.Bytes) : chosen);
}

} // namespace

struct cStatementDesk::cWorks : cStatementWorks
{
    explicit cWorks(const cBookTools& tools) : cStatementWorks(tools), Memory(tools.Settings) {}

    cTableMemory Memory;
};

cStatementDesk::cStatementDesk(const cBookTools& tools) : m_tools(tools), m_works(std::make_unique<cWorks>(tools))
{
}

cStatementDesk::~cStatementDesk() = default;

cImportEntryList cStatementDesk::Rows()
{
    return m_works->Hive.GetImportHive().getImportEntryList();
}

std::optional<cImportEntry> cStatementDesk::Row(int id)
{
    return m_works->Hive.GetImportHive().GetImportEntryByID(id);
}

QList<int> cStatementDesk::OpenIds()
{
    return m_works->Hive.GetImportHive().OpenIds();
}

QHash<int, cRowPlan> cStatementDesk::Propose(const QList<int>& rowIds)
{
    cNoProgress progress;
    m_works->Proposals.Forget();
    return m_works->Proposals.Plans(rowIds, progress).value_or(QHash<int, cRowPlan>());
}

cStatementDesk::cBooked cStatementDesk::Booked(const cPlanFlow::cOutcome& outcome)
{
    m_works->Proposals.Forget();
    return {outcome.Lines, outcome.UnknownAccounts, outcome.Left, outcome.IsDone && outcome.UnknownAccounts.isEmpty()};
}

cStatementDesk::cBooked cStatementDesk::Book(const QList<int>& rowIds)
{
    cNoProgress progress;
    m_works->Proposals.Forget();
    return Booked(m_works->Plan.Book(rowIds, cPlanFlow::eUnsure::Take, progress));
}

cStatementDesk::cBooked cStatementDesk::Accept(const QList<int>& rowIds)
{
    cNoProgress progress;
    m_works->Proposals.Forget();
    return Booked(m_works->Plan.Accept(rowIds, progress));
}

cMatchFlow& cStatementDesk::Matching()
{
    m_works->Proposals.Forget();
    return m_works->Matching;
}

cMatchResult cStatementDesk::TryMatching(const QList<int>& rowIds)
{
    cNoProgress progress;
    return Matching().Find(rowIds, progress).value_or(cMatchResult());
}

QList<cMatchCandidate> cStatementDesk::Candidates(int rowId)
{
    return cMatcher(m_tools.Data, m_works->Hive, m_works->Accounts).Candidates(rowId);
}

std::optional<cMatchCandidate> cStatementDesk::ByHand(int rowId, int entryId)
{
    return cMatcher(m_tools.Data, m_works->Hive, m_works->Accounts).ByHand(rowId, entryId);
}

cSeriesCheck cStatementDesk::Series()
{
    return {m_tools, m_works->Hive, m_works->Accounts};
}

QList<int> cStatementDesk::FirstRules(const cImportEntryList& rows, const QList<cOwnRule>& rules)
{
    cRuleTrial trial(rows, m_works->Accounts);
    trial.SetRules(rules);
    QList<int> places;
    std::transform(rows.begin(), rows.end(), std::back_inserter(places),
                   [&](const cImportEntry& row) { return trial.PlaceFor(row); });
    return places;
}

cStatementFiles& cStatementDesk::Files()
{
    return m_works->Files;
}

bool cStatementDesk::SaveLayout(const QString& path, const cFileWish& wish)
{
    cReadOptions options;
    options.Account = wish.Account;
    options.Table = modTableOption::Choice(wish);
    options.Memory = &m_works->Memory;
    const cStatementSource source =
        modStatementFormat::Source(path, modStatementFile::Read(path).Bytes, options.Table.Charset);
    const std::optional<modTable::cOpened> opened = OpenTable(source, options);
    return opened && opened->Layout.IsReadable()
        && modTable::Remember(source, options.Table, opened->Layout, m_works->Memory);
}

cFilesReport cStatementDesk::ImportFiles(const QStringList& paths, const cFileWish& wish)
{
    m_works->Files.SetWishes(Wishes(wish));
    cNoProgress progress;
    const cFilesOutcome outcome = m_works->Files.ReadFiles(paths, Options(wish), progress);
    cFilesReport report{.Notes = outcome.Notes, .IsDone = outcome.IsDone};
    for (const cImportResult& result : outcome.Files) {
        report.Files.append(Report(result, m_tools.Format));
        report.IsDone = !result.IsRefused && result.Failed == 0 && report.IsDone;
        if (!wish.IsTrial && !result.IsRefused) {
            report.IsDone = RememberLayout(result, wish, report.Notes) && report.IsDone;
        }
    }
    return report;
}

// Also how the amounts count, once that was said: a table without names for its columns is asked about again.
bool cStatementDesk::RememberLayout(const cImportResult& result, const cFileWish& wish, QStringList& notes)
{
    const bool isSignOpen = !wish.Sign.isEmpty() && !result.IsSignKept;
    if ((!wish.Remembers && !isSignOpen) || SaveLayout(result.File, wish) || !wish.Remembers) {
        return true;
    }
    notes.append(cText::Tr("{0}: Der Aufbau kann nicht gemerkt werden. Das geht nur bei Tabellen mit einer Zeile für "
                           "die Spaltennamen.",
                           {result.File}));
    return false;
}

cFileFinding cStatementDesk::Examine(const QString& path, const cFileWish& wish)
{
    cFileFinding finding;
    const modStatementFile::cContent content = modStatementFile::Read(path);
    if (!content.Failure.isEmpty()) {
        finding.Refusal = content.Failure;
        return finding;
    }
    cReadOptions options;
    options.Account = wish.Account;
    options.Table = modTableOption::Choice(wish);
    options.Memory = &m_works->Memory;
    const cStatementSource source = modStatementFormat::Source(path, content.Bytes, options.Table.Charset);
    const eStatementFormat format = modStatementFormat::Detect(source);
    finding.Format = modStatementFormat::Name(format);
    finding.Charset = CharsetName(source, options.Table.Charset);
    if (const std::optional<modTable::cOpened> opened = OpenTable(source, options)) {
        TakeTable(*opened, finding);
    }
    if (const modStatementFormat::cReader reader = modStatementFormat::Reader(format)) {
        TakeRows(reader(source, options), m_tools.Format, finding);
    } else {
        finding.Refusal = modStatementFormat::Refusal(format);
    }
    return finding;
}

QStringList cStatementDesk::LayoutNames()
{
    return modTableProfile::Names();
}

QString cStatementDesk::ExportLayout(const QString& path, const cFileWish& wish, const QString& target)
{
    const modStatementFile::cContent content = modStatementFile::Read(path);
    if (!content.Failure.isEmpty()) {
        return content.Failure;
    }
    cReadOptions options;
    options.Table = modTableOption::Choice(wish);
    options.Memory = &m_works->Memory;
    const std::optional<modTable::cOpened> opened =
        OpenTable(modStatementFormat::Source(path, content.Bytes, options.Table.Charset), options);
    const QString name =
        opened && !opened->Layout.Profile.isEmpty() ? opened->Layout.Profile : QFileInfo(target).completeBaseName();
    const QString text = opened ? modLayoutFile::ToText(opened->Layout, name) : QString();
    return text.isEmpty() ? cText::Tr("Die Datei ist keine Tabelle mit Spaltennamen, Tag und Betrag: {0}", {path})
                          : modFileWrite::Replace(target, text.toUtf8());
}

cLayoutTaken cStatementDesk::ImportLayout(const QString& path)
{
    return cLayoutTaken::File(path, m_works->Memory);
}
