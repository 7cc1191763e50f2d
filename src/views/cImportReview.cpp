#include "views/cImportReview.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cSettings.h"
#include "import/cAccountMap.h"
#include "import/cBooking.h"
#include "import/cImportHiveCache.h"
#include "import/cImportResult.h"
#include "import/cProposer.h"
#include "import/cStatementImport.h"
#include "import/table/cTableMemory.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/cAssignList.h"
#include "views/modImportText.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString openOnlySetting = u"HideBookedEntries"_s;
const QString layoutSetting = u"ImportList"_s;

} // namespace

struct cImportReview::cWorks
{
    explicit cWorks(const cParts& parts)
        : Hive(parts.Data),
          Accounts(parts.Data, parts.Settings),
          Booking(parts.Data, Hive, Accounts),
          Memory(parts.Settings),
          Import(parts.Data, Hive, &Memory),
          Matching({parts.Data, parts.Format, parts.User, Hive, Accounts, Booking})
    {
    }

    // One proposer per state of the book: it reads what the user chose before only once.
    [[nodiscard]] cProposal Propose(const cImportEntry& row, cDataAccess& data)
    {
        auto known = Proposals.find(row.ID);
        if (known == Proposals.end()) {
            if (!Proposer) {
                Proposer = std::make_unique<cProposer>(data, Hive, Accounts);
            }
            known = Proposals.insert(row.ID, Proposer->Propose(row));
        }
        return *known;
    }

    void ForgetProposals()
    {
        Proposer.reset();
        Proposals.clear();
        Matching.ForgetProposals();
    }

    cImportHiveCache Hive;
    cAccountMap Accounts;
    cBooking Booking;
    cTableMemory Memory;
    cStatementImport Import;
    cMatchFlow Matching;
    std::unique_ptr<cProposer> Proposer;
    QHash<int, cProposal> Proposals;
};

cImportReview::cImportReview(const cParts& parts, QObject* parent)
    : QObject(parent),
      m_parts(parts),
      m_works(std::make_unique<cWorks>(parts)),
      m_rows(*this, parts.Format)
{
    m_rows.SetShow(IsOpenOnly() ? cStagedListModel::eShow::OpenOnly : cStagedListModel::eShow::All);
}

cImportReview::~cImportReview() = default;

void cImportReview::LoadRows()
{
    m_works->ForgetProposals();
    const cImportHive& hive = m_works->Hive.GetImportHive();
    m_choices.removeIf([&](const auto& choice) {
        const std::optional<cImportEntry> row = hive.GetImportEntryByID(choice.key());
        return !row || row->ImportAssigned;
    });
    m_rows.SetRows(hive.getImportEntryList());
}

void cImportReview::Refresh()
{
    LoadRows();
    Q_EMIT RowsChanged();
}

void cImportReview::StartAfresh()
{
    m_summary.clear();
    m_duplicates.clear();
    Refresh();
    Q_EMIT SummaryChanged();
}

void cImportReview::ChooseFiles(cProgress& progress)
{
    const QStringList paths =
        m_parts.User.ChooseFiles(cText::Tr("Kontoauszüge importieren"),
                                 cText::Tr("CSV/XLS/MT940/MT942/OFX/QIF-Datei|*.csv;*.txt;*.mt940;*.mt942;*.xls;*.mt9;"
                                           "*.ofx;*.qif|Alle Dateien|*.*"));
    if (!paths.isEmpty()) {
        ImportFiles(paths, progress);
    }
}

void cImportReview::ImportFiles(const QStringList& paths, cProgress& progress)
{
    const cUndoStep step(m_parts.Data, cText::Tr("Kontoauszug eingelesen"));
    m_summary.clear();
    m_duplicates.clear();
    QStringList numbers;
    QStringList refusals;
    const cImportEntryList before = m_works->Hive.GetImportHive().getImportEntryList();
    const int newest = before.isEmpty() ? 0 : before.constLast().ID;
    for (const QString& path : paths) {
        const cImportResult result = ImportFile(path, progress);
        Report(result);
        if (result.IsRefused) {
            refusals.append(QFileInfo(path).fileName() + u'\n' + result.Message);
        }
        numbers.append(result.Accounts);
        if (result.IsCancelled) {
            break;
        }
    }
    progress.hideProgressBar();
    // The list stands behind the questions that follow, so that the user sees what they are about.
    Refresh();
    Q_EMIT SummaryChanged();
    ShowRefusals(refusals);
    AskAccounts(numbers);
    ReportNew(newest);
}

// A file that does not name its account is read with the number that the user gives.
cImportResult cImportReview::ImportFile(const QString& path, cProgress& progress)
{
    cImportOptions options;
    options.MissingPurpose = eMissingPurpose::Name; // a row without any text could not be recognised later
    const cImportResult result = m_works->Import.ImportFile(path, options, progress);
    if (!result.NeedsAccount) {
        return result;
    }
    QStringList numbers = m_works->Memory.Accounts(result.AccountKey);
    for (const auto& [number, account] : m_works->Accounts.Mapping()) {
        numbers.append(number);
    }
    numbers.removeDuplicates();
    const std::optional<QString> given =
        m_parts.User.Choose({.Text = QFileInfo(path).fileName() + u'\n' + result.Message,
                             .Title = cText::Tr("Kontonummer"),
                             .Items = numbers,
                             .Proposal = numbers.value(0),
                             .AllowNew = true});
    const QString number = given ? given->simplified() : QString();
    if (number.isEmpty()) {
        return result;
    }
    options.DefaultAccount = number;
    const cImportResult second = m_works->Import.ImportFile(path, options, progress);
    if (!second.IsRefused) {
        m_works->Memory.SaveAccount(second.AccountKey, number);
    }
    return second;
}

void cImportReview::ReportNew(int newest)
{
    QList<int> ids;
    const cImportEntryList rows = m_works->Hive.GetImportHive().getImportEntryList();
    for (const cImportEntry& row : rows) {
        if (row.ID > newest) {
            ids.append(row.ID);
        }
    }
    Q_EMIT RowsStaged(ids);
}

void cImportReview::Report(const cImportResult& result)
{
    m_summary.append(modImportText::Summary(result, m_parts.Format));
    m_duplicates.append(result.Duplicates);
}

void cImportReview::ShowRefusals(const QStringList& refusals)
{
    if (!refusals.isEmpty()) {
        m_parts.User.Show(eTone::Exclamation, refusals.join(u"\n\n"_s));
    }
}

void cImportReview::AskAccounts(const QStringList& numbers)
{
    QStringList unknown = m_works->Accounts.Unknown(numbers);
    unknown.removeDuplicates();
    if (unknown.isEmpty() || IsReadOnly()) {
        return;
    }
    for (const QString& number : std::as_const(unknown)) {
        if (m_works->Accounts.Ask(number, m_parts.User).isEmpty()) {
            m_summary.append(modImportText::NoAccount(number));
        }
    }
    Refresh();
    Q_EMIT SummaryChanged();
    Q_EMIT EntriesChanged(); // the list of accounts may have grown, and open rows belong to accounts now
}

QStringList cImportReview::Duplicates() const
{
    QStringList texts;
    for (const cImportEntry& row : m_duplicates) {
        texts.append(modImportText::Row(row, m_parts.Format));
    }
    return texts;
}

void cImportReview::StageDuplicates(const QList<int>& places)
{
    const cUndoStep step(m_parts.Data, cText::Tr("Umsätze trotzdem übernommen"));
    cStaging staging(m_works->Hive);
    int staged = 0;
    QList<int> taken = places;
    std::sort(taken.begin(), taken.end(), std::greater<>());
    for (const int place : std::as_const(taken)) {
        if (place < 0 || place >= m_duplicates.size()) {
            continue;
        }
        if (staging.StageImportEntry(m_duplicates[place], eDuplicateTest::Skip) != eStaged::Staged) {
            break; // the user has been told
        }
        m_duplicates.removeAt(place);
        ++staged;
    }
    m_summary = {cText::Tr("{0} trotzdem übernommen.", {modImportText::Count(staged)})};
    Refresh();
    Q_EMIT SummaryChanged();
}

void cImportReview::DropDuplicates()
{
    m_duplicates.clear();
    Q_EMIT SummaryChanged();
}

// The rows that are to become new entries. Those that the last matching found an entry for would stand in the book
// twice, so the user decides about them; empty when the user gives up.
QList<int> cImportReview::AskAboutMatches(const QList<int>& rowIds)
{
    QList<int> others;
    QStringList matches;
    for (const int id : rowIds) {
        const QString match = m_works->Matching.Proposal(id);
        if (match.isEmpty()) {
            others.append(id);
        } else {
            matches.append(match);
        }
    }
    if (matches.isEmpty()) {
        return rowIds;
    }
    constexpr qsizetype most = 8;
    const QString more = matches.size() > most ? u"\n…"_s : QString();
    const eAnswer answer = m_parts.User.Ask(
        {.Text = cText::Tr("Von den markierten Umsätzen gehören wahrscheinlich {0} zu Einträgen, die es schon "
                           "gibt:\n{1}\nSollen daraus trotzdem neue Einträge werden? Bei Nein werden nur die übrigen "
                           "gebucht.",
                           {QString::number(matches.size()), matches.mid(0, most).join(u'\n') + more}),
         .Title = cText::Tr("Umsätze buchen"),
         .Buttons = eButtons::YesNoCancel});
    return answer == eAnswer::Yes ? rowIds : answer == eAnswer::No ? others : QList<int>{};
}

void cImportReview::Book(const QList<int>& asked, cProgress& progress)
{
    const QList<int> rowIds = AskAboutMatches(asked);
    if (rowIds.isEmpty()) {
        return;
    }
    const cUndoStep step(m_parts.Data,
                         cText::Tr("{0} gebucht", {modImportText::Count(static_cast<int>(rowIds.size()))}));
    AskAccountsOf(OpenRows(rowIds));
    const cBookingResult result = m_works->Booking.Book(rowIds, Chosen(OpenRows(rowIds)), progress);
    m_summary = modImportText::Booked(result);
    Refresh();
    Q_EMIT SummaryChanged();
    Q_EMIT EntriesChanged();
}

cImportReview::cActions cImportReview::ActionsFor(const QList<int>& rowIds)
{
    if (IsReadOnly()) {
        return {};
    }
    const cImportHive& hive = m_works->Hive.GetImportHive();
    const auto isBooked = [&](int id) {
        const std::optional<cImportEntry> row = hive.GetImportEntryByID(id);
        return row && row->ImportAssigned;
    };
    const bool hasBooked = std::any_of(rowIds.begin(), rowIds.end(), isBooked);
    return {.Change = !rowIds.isEmpty(),
            .Match = m_rows.OpenCount() > 0,
            .Assign = rowIds.size() == 1 && !hasBooked,
            .Release = hasBooked};
}

void cImportReview::Match(const QList<int>& rowIds, cProgress& progress)
{
    QList<int> ids;
    const cImportEntryList chosen = OpenRows(rowIds);
    for (const cImportEntry& row : chosen) {
        ids.append(row.ID);
    }
    if (ids.size() < 2) {
        // One row is selected nearly always, because the selection moves on from row to row.
        ids = m_rows.OpenIds();
    }
    if (ids.isEmpty()) {
        return;
    }
    const cUndoStep step(m_parts.Data,
                         cText::Tr("{0} abgeglichen", {modImportText::Count(static_cast<int>(ids.size()))}));
    AskAccountsOf(OpenRows(ids));
    Report(m_works->Matching.Match(ids, progress));
}

std::unique_ptr<cAssignList> cImportReview::StartAssign(const QList<int>& rowIds)
{
    const cImportEntryList rows = rowIds.size() == 1 ? OpenRows(rowIds) : cImportEntryList();
    if (rows.isEmpty()) {
        return nullptr;
    }
    const cUndoStep step(m_parts.Data, cText::Tr("Konto einer Kontonummer gewählt"));
    AskAccountsOf(rows);
    auto list = std::make_unique<cAssignList>(m_works->Matching, rows.constFirst());
    connect(list.get(), &cAssignList::Tried, this, qOverload<const cMatchFlow::cOutcome&>(&cImportReview::Report));
    return list;
}

void cImportReview::Release(const QList<int>& rowIds)
{
    Report(m_works->Matching.Release(rowIds));
}

void cImportReview::Report(const cMatchFlow::cOutcome& outcome)
{
    if (outcome.Lines.isEmpty()) {
        return;
    }
    if (!outcome.IsDone) {
        m_parts.Settings.Reload(); // an account chosen just before may have been taken back with the rest
    }
    m_summary = outcome.Lines;
    Refresh();
    Q_EMIT SummaryChanged();
    if (outcome.HasCorrected) {
        Q_EMIT EntriesChanged();
    }
}

void cImportReview::AskAccountsOf(const cImportEntryList& rows)
{
    QStringList numbers;
    for (const cImportEntry& row : rows) {
        numbers.append(row.ImportAccount);
    }
    numbers.removeDuplicates();
    AskAccounts(numbers);
}

cImportEntryList cImportReview::OpenRows(const QList<int>& rowIds)
{
    cImportEntryList rows;
    const cImportHive& hive = m_works->Hive.GetImportHive();
    for (const int id : rowIds) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(id); row && !row->ImportAssigned) {
            rows.append(*row);
        }
    }
    return rows;
}

// The proposals with what the user chose instead.
QHash<int, cProposal> cImportReview::Chosen(const cImportEntryList& rows)
{
    QHash<int, cProposal> proposals;
    for (const cImportEntry& row : rows) {
        cProposal proposal = m_works->Propose(row, m_parts.Data);
        const cChoice choice = m_choices.value(row.ID);
        if (!choice.Category.isEmpty()) {
            proposal.Entry.EntryCategory = choice.Category;
        }
        if (!choice.Interval.isEmpty() && choice.Interval != proposal.Entry.EntryInterval) {
            proposal.Entry.EntryInterval = choice.Interval;
            proposal.ExistingEntry = 0; // the series that it belonged to has another interval
        }
        proposals.insert(row.ID, proposal);
    }
    return proposals;
}

void cImportReview::Delete(const QList<int>& rowIds)
{
    if (rowIds.isEmpty()) {
        return;
    }
    const QString question = rowIds.size() == 1
        ? cText::Tr("Soll der markierte Umsatz gelöscht werden?\nEin daraus gebuchter Eintrag bleibt bestehen.")
        : cText::Tr("Sollen die {0} markierten Umsätze gelöscht werden?\nDaraus gebuchte Einträge bleiben bestehen.",
                    {QString::number(rowIds.size())});
    if (m_parts.User.Ask({.Text = question, .Title = cText::Tr("Umsätze löschen")}) != eAnswer::Yes) {
        return;
    }
    const cUndoStep step(m_parts.Data,
                         cText::Tr("{0} gelöscht", {modImportText::Count(static_cast<int>(rowIds.size()))}));
    int deleted = 0;
    for (const int id : rowIds) {
        if (!m_works->Hive.Remove(id)) {
            break; // the user has been told, and the next one would fail the same way
        }
        m_choices.remove(id);
        ++deleted;
    }
    m_summary = {cText::Tr("{0} gelöscht.", {modImportText::Count(deleted)})};
    Refresh();
    Q_EMIT SummaryChanged();
}

bool cImportReview::IsOpenOnly() const
{
    // What waits is what the page is for, so a new book starts with it alone.
    return m_parts.Settings.Get(openOnlySetting).isEmpty() || m_parts.Settings.GetBool(openOnlySetting);
}

void cImportReview::SetOpenOnly(bool isOpenOnly)
{
    m_parts.Settings.SetBool(openOnlySetting, isOpenOnly);
    m_rows.SetShow(isOpenOnly ? cStagedListModel::eShow::OpenOnly : cStagedListModel::eShow::All);
    Q_EMIT RowsChanged();
}

void cImportReview::SetFilter(const QString& text)
{
    m_rows.SetFilter(text);
    Q_EMIT RowsChanged();
}

QStringList cImportReview::Categories() const
{
    QStringList paths;
    const cTemplateItemList items = modTemplate::InOrder(m_parts.Data.GetTemplates());
    for (const cTemplateItem& item : items) {
        if (item.TemplateType == modWord::Kategorie && modTemplate::IsVisible(item)) {
            paths.append(modTemplate::Path(item));
        }
    }
    paths.removeDuplicates();
    return paths;
}

QStringList cImportReview::Intervals()
{
    return modWord::Intervals().Shown();
}

QString cImportReview::StoredInterval(const QString& shown)
{
    return modWord::Intervals().ToStored(shown);
}

bool cImportReview::IsReadOnly() const
{
    return m_parts.Data.IsReadOnly();
}

QString cImportReview::EmptyTitle() const
{
    return cText::Tr("Keine Daten");
}

QString cImportReview::EmptyHint() const
{
    if (m_rows.TotalCount() == 0) {
        return cText::Tr("Ziehen Sie einen Kontoauszug Ihrer Bank hierher oder wählen Sie „Datei importieren…“. "
                         "Gelesen werden Dateien im Format MT940, MT942, CSV, XLS, XLSX, OFX, QIF und camt.");
    }
    if (IsOpenOnly() && m_rows.OpenCount() == 0) {
        return cText::Tr("Alle Umsätze sind gebucht. Ohne den Haken bei „Nur offene“ sehen Sie auch die gebuchten.");
    }
    return cText::Tr("Kein Umsatz passt zum Filter.");
}

QString cImportReview::CountText() const
{
    return cText::Tr("{0} offen, {1} insgesamt",
                     {QString::number(m_rows.OpenCount()), QString::number(m_rows.TotalCount())});
}

QString cImportReview::Layout() const
{
    return m_parts.Settings.Get(layoutSetting);
}

void cImportReview::SaveLayout(const QString& layout)
{
    if (layout != Layout() && !IsReadOnly()) {
        m_parts.Settings.Set(layoutSetting, layout);
    }
}

cStagedInfo cImportReview::Info(const cImportEntry& row)
{
    if (row.ImportAssigned) {
        return BookedInfo(row);
    }
    const cProposal proposal = m_works->Propose(row, m_parts.Data);
    const cChoice choice = m_choices.value(row.ID);
    const bool isOwnChoice = !choice.Category.isEmpty() || !choice.Interval.isEmpty();
    const QString reason = isOwnChoice ? cText::Tr("von Hand gewählt") : modImportText::Reason(proposal);
    const QString match = m_works->Matching.Proposal(row.ID);
    return {modImportText::Accounts(proposal.Entry),
            choice.Category.isEmpty() ? proposal.Entry.EntryCategory : choice.Category,
            choice.Interval.isEmpty() ? proposal.Entry.EntryInterval : choice.Interval,
            match.isEmpty() ? reason : match}; // booking would add what is there already, so this goes first
}

cStagedInfo cImportReview::BookedInfo(const cImportEntry& row)
{
    const std::optional<cEntryItem> entry = m_works->Accounts.getAssignedEntry(row);
    return entry ? cStagedInfo{modImportText::Accounts(*entry), entry->EntryCategory, entry->EntryInterval, {}}
                 : cStagedInfo{m_works->Accounts.AccountOf(row.ImportAccount), {}, {}, {}};
}

bool cImportReview::SetCategory(const cImportEntry& row, const QString& category)
{
    const QStringList paths = Categories();
    const auto path = std::find_if(paths.begin(), paths.end(), [&](const QString& known) {
        return known.compare(category.trimmed(), Qt::CaseInsensitive) == 0;
    });
    if (path == paths.end()) {
        return false;
    }
    m_choices[row.ID].Category = *path;
    return true;
}

bool cImportReview::SetInterval(const cImportEntry& row, const QString& interval)
{
    if (!modWord::Intervals().Contains(interval)) {
        return false;
    }
    m_choices[row.ID].Interval = interval;
    return true;
}
