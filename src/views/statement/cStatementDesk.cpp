#include "views/statement/cStatementDesk.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/cMatcher.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementFile.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cLeftOutRows.h"
#include "import/stage/cStatementImport.h"
#include "import/stage/modStatementFormat.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modLayoutFile.h"
#include "import/table/modTable.h"
#include "import/table/modTableProfile.h"
#include "views/common/modFileWrite.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/modImportText.h"
#include "views/rule/cRuleTrial.h"
#include "views/statement/cFileReport.h"
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
    report.IsDone = !result.IsRefused && result.Failed == 0;
    return report;
}

// The number that was given for files that name no account is remembered for the next one of the same layout.
void RememberAccount(const cImportResult& result, const QString& number, cTableMemory& memory)
{
    const bool isUsed = std::any_of(result.Accounts.begin(), result.Accounts.end(), [&](const QString& account) {
        return modAccountNumber::IsSame(account, {}, number);
    });
    if (isUsed) {
        (void)memory.SaveAccount(result.AccountKey, number);
    }
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
    explicit cWorks(const cBookTools& tools)
        : cStatementWorks(tools),
          Memory(tools.Settings),
          Balances(tools.Settings),
          Import(tools.Data, Hive, &Memory, &Balances)
    {
    }

    void NoteRows(const cImportResult& result)
    {
        QList<int> ids;
        for (const cFormatRows& each : result.ByFormat) {
            Runs.NoteFile(each.Ids, each.Format);
            ids += each.Ids;
        }
        Runs.NoteImport(ids);
    }

    cTableMemory Memory;
    cBankBalances Balances;
    cStatementImport Import;
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

// One account for all leaves the names of the file's own without meaning.
bool cStatementDesk::TakeNames(cForeignNames names, const QStringList& numbers, const QString& wanted,
                               QStringList& notes)
{
    cForeignNames missing = modForeignNames::Missing(names, m_tools.Data, m_works->Accounts);
    if (!wanted.isEmpty()) {
        missing.Accounts.clear();
        names.Accounts.removeIf([&](const QString& name) { return numbers.contains(name); });
    }
    if (!missing.Bad.isEmpty()) {
        notes.append(modForeignNames::BadText(missing.Bad));
    }
    if (!missing.IsEmpty()) {
        if (!modForeignNames::Create(missing, m_tools.Data, m_works->Accounts)) {
            return false;
        }
        notes.append(cText::Tr("Aus der Datei angelegt: {0}", {modForeignNames::Count(missing)}));
    }
    (void)m_works->Accounts.AssignNames(names.Accounts);
    return true;
}

bool cStatementDesk::AssignAccounts(const QStringList& numbers, const QString& wanted, QStringList& notes)
{
    if (wanted.isEmpty()) {
        (void)m_works->Accounts.AssignNames(numbers);
    }
    const QStringList unknown = m_works->Accounts.Unknown(numbers);
    for (const QString& number : unknown) {
        const QString proposal = m_works->Accounts.Proposal(number);
        const QString account = !wanted.isEmpty() ? wanted
            : proposal.isEmpty()                  ? m_works->Accounts.NewName(number)
                                                  : proposal;
        if (!m_works->Accounts.Assign(number, account)) {
            notes.append(cText::Tr("Der Kontonummer '{0}' konnte kein Konto zugeordnet werden.", {number}));
            return false;
        }
        notes.append(cText::Tr("Die Kontonummer '{0}' gehört nun zum Konto '{1}'.", {number, account}));
    }
    return true;
}

cStatementFiles& cStatementDesk::Files()
{
    return m_works->Files;
}

bool cStatementDesk::RememberLayout(const QString& path, const cFileWish& wish, QStringList& notes)
{
    cReadOptions options;
    options.Account = wish.Account;
    options.Table = modTableOption::Choice(wish);
    options.Memory = &m_works->Memory;
    const cStatementSource source =
        modStatementFormat::Source(path, modStatementFile::Read(path).Bytes, options.Table.Charset);
    const std::optional<modTable::cOpened> opened = OpenTable(source, options);
    if (opened && opened->Layout.IsReadable()
        && modTable::Remember(source, options.Table, opened->Layout, m_works->Memory)) {
        return true;
    }
    notes.append(cText::Tr("{0}: Der Aufbau kann nicht gemerkt werden. Das geht nur bei Tabellen mit einer Zeile für "
                           "die Spaltennamen.",
                           {path}));
    return false;
}

bool cStatementDesk::TakeStart(const QString& number, QStringList& notes)
{
    const cOpeningBalance opening(m_tools);
    const std::optional<cOpeningBalance::cOffer> offer = opening.For(number);
    if (!offer) {
        return true;
    }
    notes.append(opening.Report(*offer));
    return opening.Take(*offer);
}

cFileReport cStatementDesk::ImportFile(const QString& path, const cFileWish& wish)
{
    cImportOptions options;
    options.Duplicates = wish.KeepsDuplicates ? eDuplicateTest::Skip : eDuplicateTest::Test;
    options.Equal = wish.TakesEqual ? eEqualRows::Take : eEqualRows::Report;
    options.DefaultAccount = m_works->Accounts.NumberMeant(wish.Account);
    options.Table = modTableOption::Choice(wish);
    options.Run = wish.IsTrial ? eStagingRun::Try : eStagingRun::Write;
    options.StrayDetails = wish.SkipsStrayDetails ? eStrayDetails::PassOver : eStrayDetails::Refuse;
    options.BookCurrency = wish.TakesCurrency ? QString() : m_tools.Format.CurrencyCode();
    cNoProgress progress;
    const int newest = m_works->Hive.GetImportHive().NextId() - 1;
    const cImportResult result = m_works->Import.ImportFile(path, options, progress);
    cFileReport report = Report(result, m_tools.Format);
    if (!result.Unowned.isEmpty()) {
        report.LikelyAccount = m_works->Accounts.ProposalFor(result.Unowned);
    }
    if (wish.IsTrial) {
        return report;
    }
    m_works->NoteRows(result);
    RememberAccount(result, options.DefaultAccount, m_works->Memory);
    const cOpeningBalance opening(m_tools);
    cLeftOutRows leftOut(m_tools.Settings);
    (void)(leftOut.Forget(result.Settled) && leftOut.Note(result.Repeats)); // of a refusal the user has been told
    const QStringList due =
        wish.KeepsStart ? QStringList() : opening.Due(result.Accounts, newest, result.FirstBalances);
    report.IsDone = TakeNames(result.Book, result.Accounts, wish.BookAccount, report.Notes) && report.IsDone;
    report.IsDone = AssignAccounts(result.Accounts, wish.BookAccount, report.Notes) && report.IsDone;
    if (!wish.Sign.isEmpty() && !wish.Remembers && !result.IsRefused && !result.IsSignKept) {
        QStringList unsaid; // a table without names for its columns is asked about again
        (void)RememberLayout(path, wish, unsaid);
    }
    for (const QString& number : due) {
        report.IsDone = TakeStart(number, report.Notes) && report.IsDone;
    }
    if (wish.Remembers && !result.IsRefused) {
        report.IsDone = RememberLayout(path, wish, report.Notes) && report.IsDone;
    }
    return report;
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
