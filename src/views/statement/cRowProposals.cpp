#include "views/statement/cRowProposals.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "import/plan/cImportPlan.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cRowChoices.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/ledger/cImportRuns.h"
#include "views/ledger/modImportText.h"
#include "views/ledger/modRowTwins.h"

#include <algorithm>

namespace {

using cRange = cImportRuns::cRange;

constexpr qsizetype planAtOnce = 600; // open rows; a month has 500 at most
constexpr qsizetype slice = 150;      // of a higher pile: what a list shows, and some around it

// Whether it says what an entry was for; a transfer needs none.
bool HasCategory(const cEntryItem& entry)
{
    return entry.IsTransfer() || (!entry.EntryCategory.isEmpty() && entry.EntryCategory != modWord::Allgemein);
}

} // namespace

cRowProposals::cRowProposals(const cParts& parts)
    : m_parts(parts),
      m_choices(new cRowChoices({parts.Data, parts.Hive, parts.Settings}))
{
}

cRowProposals::~cRowProposals() = default;

void cRowProposals::Forget()
{
    m_plan.reset();
    m_planned.clear();
    m_isWhole = false;
    m_next = 0;
    m_choices->Read();
}

cImportPlan& cRowProposals::Plan()
{
    if (!m_plan) {
        m_plan = std::make_unique<cImportPlan>(cImportPlan::cParts{m_parts.Data, m_parts.Hive, m_parts.Accounts,
                                                                   modRowTwins::FileOf(m_parts.Runs.Files())});
    }
    return *m_plan;
}

const cRowPlan& cRowProposals::Planned(const cImportEntry& row)
{
    auto known = m_planned.find(row.ID);
    if (known == m_planned.end()) {
        cNoProgress progress;
        m_isWhole = Plan().OpenCount() <= planAtOnce;
        m_planned.insert(Plan().Make(m_isWhole ? Plan().From(0, planAtOnce) : Plan().Around(row.ID, slice), progress));
        known = m_planned.contains(row.ID) ? m_planned.find(row.ID) : m_planned.insert(row.ID, cRowPlan{});
    }
    return *known;
}

std::optional<QHash<int, cRowPlan>> cRowProposals::Plans(const QList<int>& rowIds, cProgress& progress)
{
    if (!m_isWhole) {
        // What was planned in slices may have given one entry to two rows.
        const QHash<int, cRowPlan> made = Plan().Make(rowIds, progress);
        if (progress.IsCancelled()) {
            return std::nullopt;
        }
        m_planned.insert(made);
    }
    QHash<int, cRowPlan> plans;
    for (const int id : rowIds) {
        if (const auto plan = m_planned.constFind(id); plan != m_planned.constEnd()) {
            plans.insert(id, WithChoice(*plan));
        }
    }
    return plans;
}

cRowPlan cRowProposals::PlanOf(const cImportEntry& row)
{
    return WithChoice(Planned(row));
}

// What the user says about a row is sure; whether its entry is there already is another question.
cRowPlan cRowProposals::WithChoice(cRowPlan plan) const
{
    const cRowChoices::cChoice choice = m_choices->Of(plan.RowId);
    if (!choice.Category.isEmpty()) {
        cEntryItem& entry = plan.Proposal.Entry;
        const bool isLook = plan.Group == eRowGroup::Look && !plan.Match && !plan.IsSecond;
        if (isLook && entry.IsTransfer() && entry.EntryCategory != choice.Category) {
            // Of what may be no transfer the user has said what it was for.
            plan.Proposal.MakeSpent(choice.Row, m_parts.Accounts.AccountOf(choice.Row.ImportAccount));
        }
        if (entry.EntryCategory != choice.Category && !entry.IsTransfer() && plan.Proposal.BookedAs.isEmpty()) {
            plan.Proposal.ExistingEntry = 0; // the series that would go on has another category
        }
        entry.EntryCategory = choice.Category;
        plan.Proposal.HasOwnCategory = true;
        plan.Proposal.IsDefault = false;
        plan.Group = isLook ? eRowGroup::Sure : plan.Group;
    }
    if (!choice.Interval.isEmpty() && choice.Interval != plan.Proposal.Entry.EntryInterval) {
        plan.Proposal.Entry.EntryInterval = choice.Interval;
        // The series that it belonged to has another interval; an entry that becomes a transfer gets it.
        plan.Proposal.ExistingEntry = plan.Proposal.BookedAs.isEmpty() ? 0 : plan.Proposal.ExistingEntry;
        plan.Proposal.IsAlone = choice.Interval == modWord::Einmalig && !plan.Proposal.Entry.IsTransfer();
    }
    if (!choice.Description.isEmpty()) {
        plan.Proposal.Entry.EntryDescription = choice.Description;
        plan.Proposal.HasOwnText = true;
    }
    if (!plan.Match && (!choice.Category.isEmpty() || !choice.Interval.isEmpty())) {
        plan.Reason = cText::Tr("von Hand gewählt");
    }
    return plan;
}

eStagedGroup cRowProposals::Group(const cImportEntry& row)
{
    if (row.ImportAssigned) {
        return eStagedGroup::Booked;
    }
    if (!m_planned.contains(row.ID) && Plan().OpenCount() > planAtOnce) {
        return eStagedGroup::Unknown;
    }
    switch (PlanOf(row).Group) {
    case eRowGroup::InBook: return eStagedGroup::InBook;
    case eRowGroup::Sure: return eStagedGroup::Sure;
    case eRowGroup::Look: break;
    }
    return eStagedGroup::Look;
}

bool cRowProposals::IsHigh()
{
    return m_parts.Hive.GetImportHive().OpenIds().size() > planAtOnce;
}

bool cRowProposals::PlanNext()
{
    const qsizetype count = Plan().OpenCount();
    while (m_next < count && m_planned.contains(Plan().IdAt(m_next))) {
        ++m_next;
    }
    if (m_next < count) {
        cNoProgress progress;
        m_planned.insert(Plan().Make(Plan().From(m_next, slice), progress));
    }
    return m_next < count;
}

cStagedInfo cRowProposals::Info(const cImportEntry& row)
{
    if (row.ImportAssigned) {
        return BookedInfo(row);
    }
    const cRowPlan plan = PlanOf(row);
    // A certain match shows the entry that is there.
    const bool isThere = plan.Match && plan.Group == eRowGroup::InBook;
    const cEntryItem& entry = isThere ? plan.Match->Entry : plan.Proposal.Entry;
    cStagedInfo info;
    info.Account = entry.Accounts();
    info.Category = entry.EntryCategory;
    info.Interval = entry.EntryInterval;
    info.HasCategory = HasCategory(entry);
    info.Reason = modImportText::Reason(plan);
    if (plan.Twin) {
        Warn(info, *plan.Twin);
    }
    return info;
}

cStagedInfo cRowProposals::BookedInfo(const cImportEntry& row)
{
    cStagedInfo info;
    if (const std::optional<cEntryItem> entry = m_parts.Accounts.getAssignedEntry(row)) {
        info.Account = entry->Accounts();
        info.Category = entry->EntryCategory;
        info.Interval = entry->EntryInterval;
        info.HasCategory = HasCategory(*entry);
    } else {
        info.Account = m_parts.Accounts.AccountOf(row.ImportAccount);
    }
    return info;
}

void cRowProposals::Warn(cStagedInfo& info, const cRowTwin& twin)
{
    info.IsDoubtful = true;
    const QString warning = modImportText::TwinReason(twin);
    const std::optional<cImportEntry> other = m_parts.Hive.GetImportHive().GetImportEntryByID(twin.RowId);
    info.Hint = other
        ? cText::Tr("{0} wie: {1}\nVorschlag: {2}", {warning, modImportText::Row(*other, m_parts.Format), info.Reason})
        : warning;
    info.Reason = warning;
}

QString cRowProposals::PathOf(const QString& category) const
{
    const QStringList paths = cEntrySuggestions::VisibleCategories(m_parts.Data);
    const auto path = std::find_if(paths.begin(), paths.end(), [wanted = category.trimmed()](const QString& known) {
        return known.compare(wanted, Qt::CaseInsensitive) == 0;
    });
    return path == paths.end() ? QString() : *path;
}

bool cRowProposals::SetCategory(const QList<int>& rowIds, const QString& category)
{
    const QString path = PathOf(category);
    if (!path.isEmpty()) {
        m_choices->Take(rowIds, &cRowChoices::cChoice::Category, path);
    }
    return !path.isEmpty();
}

void cRowProposals::SetDescription(const QList<int>& rowIds, const QString& description)
{
    m_choices->Take(rowIds, &cRowChoices::cChoice::Description, description.simplified());
}

bool cRowProposals::SetInterval(const QList<int>& rowIds, const QString& interval)
{
    if (!modWord::Intervals().Contains(interval)) {
        return false;
    }
    m_choices->Take(rowIds, &cRowChoices::cChoice::Interval, interval);
    return true;
}
