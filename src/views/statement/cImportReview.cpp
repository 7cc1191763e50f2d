#include "views/statement/cImportReview.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/common/modUnsaved.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/ledger/modImportText.h"
#include "views/rule/cRuleEditor.h"
#include "views/sheet/cManyChange.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cLesson.h"
#include "views/statement/cSeriesCheck.h"
#include "views/statement/cStatementWorks.h"
#include "views/statement/modReviewQuestion.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

struct cImportReview::cWorks : cStatementWorks
{
    explicit cWorks(const cBookTools& tools) : cStatementWorks(tools), Suggestions(tools.Data, tools.User) {}

    cEntrySuggestions Suggestions;
    cSeriesCheck::cDeclined Declined;
};

cImportReview::cImportReview(const cBookTools& tools, QObject* parent)
    : cImportReview(tools, std::make_shared<cWorks>(tools), {})
{
    setParent(parent);
    connect(&Files(), &cStatementFiles::Imported, this, &cImportReview::Report);
    connect(&Files(), &cStatementFiles::AccountsAsked, this, &cImportReview::ReportAccounts);
    connect(&Files(), &cStatementFiles::StartTaken, this, &cImportReview::EntriesChanged);
    connect(&Files(), &cStatementFiles::RowsStaged, this, &cImportReview::TellStaged);
    connect(&Files(), &cStatementFiles::MoreStaged, this, &cImportReview::RowsStaged);
}

cImportReview::cImportReview(const cBookTools& tools, std::shared_ptr<cWorks> works, const cImportRuns::cRange& import)
    : m_tools(tools),
      m_works(std::move(works)),
      m_view(*this, tools, import),
      m_guide({m_view, m_works->Proposals, m_works->Hive, tools.Format})
{
}

cImportReview::~cImportReview() = default;

cStatementFiles& cImportReview::Files()
{
    return m_works->Files;
}

std::unique_ptr<cImportReview> cImportReview::StartImportReview(int rowId)
{
    const cImportRuns::cRange import = rowId == 0 ? m_works->Runs.Latest() : m_works->Runs.ImportOf(rowId);
    if (import.IsEmpty()) {
        return nullptr;
    }
    std::unique_ptr<cImportReview> review(new cImportReview(m_tools, m_works, import)); // the constructor is private
    review->LoadRows();
    connect(review.get(), &cImportReview::RowsChanged, this, [this] {
        LoadRows();
        Q_EMIT RowsChanged();
    });
    connect(review.get(), &cImportReview::EntriesChanged, this, &cImportReview::EntriesChanged);
    connect(review.get(), &cImportReview::EditorWanted, this, &cImportReview::EditorWanted);
    connect(&Files(), &cStatementFiles::AccountsAsked, review.get(), &cImportReview::LoadRows);
    connect(review.get(), &cImportReview::SummaryChanged, this, [this, other = review.get()] {
        m_summary = other->Summary();
        Q_EMIT SummaryChanged();
    });
    return review;
}

bool cImportReview::HasImportOf(int rowId) const
{
    return !(rowId == 0 ? m_works->Runs.Latest() : m_works->Runs.ImportOf(rowId)).IsEmpty();
}

void cImportReview::LoadRows()
{
    m_isOld = false;
    m_hasUnplanned = m_works->Proposals.IsHigh();
    m_view.SetRows(m_works->Hive.GetImportHive().getImportEntryList());
}

void cImportReview::SetShown(bool isShown)
{
    m_isShown = isShown;
    if (isShown) {
        Forget(); // anything may have changed meanwhile
        // A file that the page is opened for is read first, so that rows are planned once, with it.
        QMetaObject::invokeMethod(this, &cImportReview::LoadOld, Qt::QueuedConnection);
    }
}

void cImportReview::LoadOld()
{
    if (m_isShown && m_isOld) {
        LoadRows();
    }
}

void cImportReview::Forget()
{
    m_works->Proposals.Forget();
    m_works->Suggestions.ForgetCategories();
    m_isOld = true;
}

void cImportReview::Refresh()
{
    Forget();
    LoadOld();
    Q_EMIT RowsChanged();
}

void cImportReview::StartAfresh()
{
    Files().StartAfresh();
    Report({});
}

void cImportReview::TellStaged(const QList<int>& ids)
{
    if (m_isOld) {
        LoadRows(); // so that they can be marked
    }
    Q_EMIT RowsStaged(ids);
}

void cImportReview::Tell(const QStringList& lines)
{
    m_summary = lines;
    Q_EMIT SummaryChanged();
}

void cImportReview::Report(const QStringList& lines)
{
    Refresh();
    Tell(lines);
}

void cImportReview::ReportAccounts(const QStringList& lines)
{
    Report(m_summary + lines);
    Q_EMIT EntriesChanged(); // the list of accounts may have grown, and open rows belong to accounts now
}

bool cImportReview::Book(const QList<int>& asked, cProgress& progress)
{
    return CarryOut(asked, [&] { return m_works->Plan.Book(asked, cPlanFlow::eUnsure::Ask, progress); });
}

bool cImportReview::AcceptProposals(cProgress& progress)
{
    const QList<int> open = Rows().OpenIds();
    return CarryOut(open, [&] { return m_works->Plan.Accept(open, progress); });
}

// Accounts come first, because what is in the book already can only be looked for in a known account.
bool cImportReview::CarryOut(const QList<int>& rowIds, const std::function<cPlanFlow::cOutcome()>& work)
{
    const cImportEntryList rows = OpenRows(rowIds);
    if (rows.isEmpty() && !rowIds.isEmpty()) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("{0} gebucht", {modImportText::Count(static_cast<int>(rows.size()))}));
    AskAccountsOf(rows);
    cPlanFlow::cOutcome outcome = work();
    outcome.IsDone = step.Done() && outcome.IsDone;
    if (outcome.Lines.isEmpty()) {
        return outcome.IsDone;
    }
    Report(outcome.IsDone ? outcome.Lines + CheckSeries(rows) : outcome.Lines);
    Q_EMIT EntriesChanged();
    return outcome.IsDone;
}

// Series that the bank does not pay any more, or not yet.
QStringList cImportReview::CheckSeries(const cImportEntryList& rows)
{
    QStringList accounts;
    for (const cImportEntry& row : rows) {
        accounts.append(m_works->Accounts.AccountOf(row.ImportAccount));
    }
    accounts.removeDuplicates();
    accounts.removeAll(QString());
    return accounts.isEmpty()
        ? QStringList()
        : cSeriesCheck(m_tools, m_works->Hive, m_works->Accounts).Ask(accounts, &m_works->Declined);
}

cImportReview::cActions cImportReview::ActionsFor(const QList<int>& rowIds)
{
    const bool isOne = rowIds.size() == 1;
    cActions can;
    can.Import = !m_view.IsOfOneImport() && isOne && HasImportOf(rowIds.constFirst());
    if (IsReadOnly()) {
        return can;
    }
    const cImportEntryList rows = RowsOf(rowIds);
    const auto isBooked = [](const cImportEntry& row) { return row.ImportAssigned; };
    const bool hasBooked = std::any_of(rows.begin(), rows.end(), isBooked);
    can.Change = !rowIds.isEmpty();
    can.Book = !std::all_of(rows.begin(), rows.end(), isBooked);
    can.Choose = !rows.isEmpty();
    can.Match = !Rows().OpenIds().isEmpty();
    can.Accept = can.Match;
    can.Assign = isOne && !hasBooked;
    can.Edit = can.Assign;
    can.Release = hasBooked;
    can.Rule = isOne;
    return can;
}

bool cImportReview::Choose(const QList<int>& rowIds, const QString& category, const QString& interval,
                           const QString& description)
{
    QList<int> ids;
    const cImportEntryList rows = OpenRows(rowIds);
    if (rows.isEmpty()) {
        return category.isEmpty() || ChangeCategory(rowIds, category);
    }
    for (const cImportEntry& row : rows) {
        ids.append(row.ID);
    }
    if (!category.isEmpty() && !m_works->Proposals.SetCategory(ids, category)) {
        TellNotTaken(category);
        return false;
    }
    const bool isTaken = interval.isEmpty() || m_works->Proposals.SetInterval(ids, interval);
    if (isTaken && !description.isEmpty()) {
        m_works->Proposals.SetDescription(ids, description);
    }
    m_view.ForgetInfo();
    if (isTaken && !category.isEmpty() && rows.size() < rowIds.size()) {
        Tell({cText::Tr("Gebuchte Umsätze behalten ihre Kategorie, solange offene mit markiert sind.")});
    }
    return isTaken;
}

void cImportReview::TellNotTaken(const QString& category)
{
    Tell({m_works->Suggestions.IsCategory(category)
              ? cText::Tr("Die Kategorie '{0}' ist ausgeblendet. Bitte wählen Sie eine andere, oder zeigen Sie sie "
                          "unter „Kategorien und Konten“ wieder an.",
                          {category})
              : cText::Tr("Die Kategorie '{0}' gibt es nicht. Bitte wählen Sie eine andere.", {category})});
}

// Of what is booked the entries themselves are corrected. Where the other parts of a purchase go along, no row shows
// them, so they are asked about.
bool cImportReview::ChangeCategory(const QList<int>& rowIds, const QString& category)
{
    const QString path = m_works->Proposals.PathOf(category);
    if (path.isEmpty()) {
        TellNotTaken(category);
        return false;
    }
    const std::unique_ptr<cManyChange> change = StartChange(rowIds);
    if (change == nullptr || !change->HasAny()) {
        return false;
    }
    const cManyFields wish{.Category = path};
    if ((change->HasMore() ? change->AskAndSave(wish) : change->Save(wish)) != cManyChange::eSaved::Saved) {
        return false;
    }
    const QString count = QString::number(change->Count());
    Tell(QStringList(change->Count() == 1 ? cText::Tr("Ein Eintrag steht nun unter '{0}'.", {path})
                                          : cText::Tr("{0} Einträge stehen nun unter '{1}'.", {count, path}))
         + change->Left());
    FollowEntries();
    return true;
}

void cImportReview::OfferAlike(int rowId, const QString& category)
{
    const QString path = m_works->Proposals.PathOf(category);
    const cImportEntry row = RowsOf({rowId}).value(0);
    cLesson lesson(m_tools, m_works->Hive);
    cImportEntryList alike = path.isEmpty() || row.ID == 0 ? cImportEntryList() : OpenRows(lesson.AlikeRows(row));
    alike.removeIf([&](const cImportEntry& other) { return Info(other).Category == path; });
    if (alike.isEmpty()) {
        return;
    }
    enum eWay { These, Always }; // in the order of the buttons
    const int way = m_tools.User.Decide(modReviewQuestion::Alike(path, static_cast<int>(alike.size())));
    if (way == Always && lesson.Teach(row, path)) {
        Refresh(); // the rule speaks for all of them
    } else if (way == These) {
        QList<int> ids;
        for (const cImportEntry& other : std::as_const(alike)) {
            ids.append(other.ID);
        }
        (void)Choose(ids, path, {});
    }
}

// A row that has an entry is not made a second one of unasked.
bool cImportReview::MayEdit(const cRowPlan& plan)
{
    using modReviewQuestion::eMatchAnswer;
    if (!plan.Match) {
        return true;
    }
    const cImportEntry row = RowsOf({plan.RowId}).value(0);
    const QString line =
        cText::Tr("{0} → {1}", {modImportText::Row(row, m_tools.Format), modImportText::Candidate(*plan.Match)});
    const int answer = m_tools.User.Decide(modReviewQuestion::Matches({line}));
    if (answer == static_cast<int>(eMatchAnswer::Assign)) {
        ReportMatches(m_works->Matching.Assign(plan.RowId, *plan.Match));
    }
    return answer == static_cast<int>(eMatchAnswer::New);
}

void cImportReview::EditAndBook(const QList<int>& rowIds)
{
    cImportEntryList rows = rowIds.size() == 1 ? OpenRows(rowIds) : cImportEntryList();
    if (rows.isEmpty()) {
        return;
    }
    AskAccountsOf(rows);
    const cRowPlan plan = m_works->Proposals.PlanOf(rows.constFirst());
    if (!MayEdit(plan)) {
        return;
    }
    cProposal proposal = plan.Proposal;
    if (!proposal.BookedAs.isEmpty()) { // the entry stays what it is beside a new one
        const cImportEntry& row = rows.constFirst();
        proposal.MakeSpent(row, m_works->Accounts.AccountOf(row.ImportAccount));
    }
    cEntryEditor editor(m_tools);
    const auto assign = [this, &plan](int entryId) {
        return m_works->Matching.AssignSaved(plan.RowId, plan.Proposal.PartnerRow, entryId);
    };
    Q_EMIT EditorWanted(editor, editor.StartFrom(proposal.Entry, assign));
    if (editor.SavedId() == 0) {
        return;
    }
    Report({cText::Tr("{0} gebucht.", {modImportText::Count(1)})});
    Q_EMIT EntriesChanged();
}

std::unique_ptr<cManyChange> cImportReview::StartChange(const QList<int>& rowIds)
{
    QList<cEntryListModel::cKey> entries;
    const cImportEntryList rows = RowsOf(rowIds);
    for (const cImportEntry& row : rows) {
        entries.append(cEntryListModel::cKey{row.ImportAssigned ? row.ImportAssignedEntry : 0, {}});
    }
    const bool isBooked = std::all_of(entries.begin(), entries.end(), [](const auto& entry) { return entry.ID > 0; });
    return isBooked ? std::make_unique<cManyChange>(m_tools, entries, cManyChange::eParts::All) : nullptr;
}

void cImportReview::FollowEntries()
{
    Refresh();
    Q_EMIT EntriesChanged();
}

QString cImportReview::ChoiceTitle(const QList<int>& rowIds)
{
    const qsizetype open = OpenRows(rowIds).size();
    const qsizetype count = open > 0 ? open : rowIds.size();
    return count == 1 ? cText::Tr("Kategorie für einen Umsatz")
                      : cText::Tr("Kategorie für {0} Umsätze", {QString::number(count)});
}

QString cImportReview::TypeOf(const QList<int>& rowIds)
{
    const cImportEntryList open = OpenRows(rowIds);
    const cImportEntryList rows = open.isEmpty() ? RowsOf(rowIds) : open;
    const auto isIn = [](const cImportEntry& row) { return row.ImportValue > 0; };
    if (rows.isEmpty() || std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& row) {
            return isIn(row) != isIn(rows.constFirst());
        })) {
        return {};
    }
    return isIn(rows.constFirst()) ? modWord::Einnahme : modWord::Ausgabe;
}

eAnswer cImportReview::AskToSave() const
{
    return modUnsaved::Ask(m_tools.User);
}

cEntrySuggestions& cImportReview::Suggestions()
{
    return m_works->Suggestions;
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
    return m_tools.Data.IsReadOnly();
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
        ids = Rows().OpenIds();
    }
    if (ids.isEmpty()) {
        return;
    }
    cUndoStep step(m_tools.Data, cText::Tr("{0} abgeglichen", {modImportText::Count(static_cast<int>(ids.size()))}));
    AskAccountsOf(OpenRows(ids));
    const cMatchFlow::cOutcome outcome = m_works->Matching.Match(ids, progress);
    ReportMatches(step.Done() ? outcome : cMatchFlow::NothingDone());
}

std::unique_ptr<cAssignListModel> cImportReview::StartAssign(const QList<int>& rowIds)
{
    const cImportEntryList rows = rowIds.size() == 1 ? OpenRows(rowIds) : cImportEntryList();
    if (rows.isEmpty()) {
        return nullptr;
    }
    const cUndoStep step(m_tools.Data, cText::Tr("Konto einer Kontonummer gewählt"));
    AskAccountsOf(rows);
    auto list = std::make_unique<cAssignListModel>(m_works->Matching, rows.constFirst());
    connect(list.get(), &cAssignListModel::Tried, this, &cImportReview::ReportMatches);
    return list;
}

void cImportReview::Release(const QList<int>& rowIds)
{
    ReportMatches(m_works->Matching.Release(rowIds));
}

void cImportReview::ReportMatches(const cMatchFlow::cOutcome& outcome)
{
    if (outcome.Lines.isEmpty()) {
        return;
    }
    Report(outcome.Lines);
    if (outcome.HasCorrected) {
        Q_EMIT EntriesChanged();
    }
}

std::unique_ptr<cRuleEditor> cImportReview::StartRule(const QList<int>& rowIds)
{
    const cImportEntryList rows = rowIds.size() == 1 ? RowsOf(rowIds) : cImportEntryList();
    if (rows.isEmpty()) {
        return nullptr;
    }
    const cImportEntry& row = rows.constFirst();
    const cStagedInfo info = Info(row);
    auto rules = std::make_unique<cRuleEditor>(m_tools);
    rules->StartFrom(row, info.Category, info.Interval);
    connect(&rules->List(), &cRuleListModel::RulesChanged, this, &cImportReview::Refresh);
    return rules;
}

void cImportReview::AskAccountsOf(const cImportEntryList& rows)
{
    QStringList numbers;
    for (const cImportEntry& row : rows) {
        numbers.append(row.ImportAccount);
    }
    numbers.removeDuplicates();
    Files().AskAccounts(numbers);
}

cImportEntryList cImportReview::RowsOf(const QList<int>& rowIds)
{
    cImportEntryList rows;
    const cImportHive& hive = m_works->Hive.GetImportHive();
    for (const int id : rowIds) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(id)) {
            rows.append(*row);
        }
    }
    return rows;
}

cImportEntryList cImportReview::OpenRows(const QList<int>& rowIds)
{
    cImportEntryList rows = RowsOf(rowIds);
    rows.removeIf([](const cImportEntry& row) { return row.ImportAssigned; });
    return rows;
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
    if (m_tools.User.Ask({.Text = question, .Title = cText::Tr("Umsätze löschen")}) != eAnswer::Yes) {
        return;
    }
    const QString count = modImportText::Count(static_cast<int>(rowIds.size()));
    cUndoStep step(m_tools.Data, cText::Tr("{0} gelöscht", {count}));
    const bool isGone = step.DoneIf(m_works->Hive.Remove(rowIds) == rowIds.size());
    Report(isGone ? QStringList(cText::Tr("{0} gelöscht.", {count})) : cMatchFlow::NothingDone().Lines);
}

eStagedGroup cImportReview::Group(const cImportEntry& row)
{
    return m_works->Proposals.Group(row);
}

bool cImportReview::PlanNext()
{
    if (!modStagedGroup::NeedsPlan(m_view.Rows().Grouping()) || !m_hasUnplanned) {
        return false;
    }
    m_hasUnplanned = m_works->Proposals.PlanNext();
    if (!m_hasUnplanned) {
        m_view.Regroup();
    }
    return m_hasUnplanned;
}

cStagedInfo cImportReview::Info(const cImportEntry& row)
{
    return m_works->Proposals.Info(row);
}
