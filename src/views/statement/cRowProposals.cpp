#include "views/statement/cRowProposals.h"

#include "base/cText.h"
#include "core/cBookTools.h"
#include "import/propose/cProposer.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/statement/cImportRuns.h"
#include "views/statement/cMatchFlow.h"
#include "views/statement/modImportText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using cRange = cImportRuns::cRange;

// The file that a row came with, counted from 1; 0 when it is not remembered.
int FileOf(const QList<cRange>& files, int id)
{
    const auto file = std::lower_bound(files.begin(), files.end(), id,
                                       [](const cRange& each, int wanted) { return each.Last < wanted; });
    return file == files.end() || file->First > id ? 0 : static_cast<int>(file - files.begin()) + 1;
}

} // namespace

cRowProposals::cRowProposals(const cParts& parts) : m_parts(parts)
{
}

cRowProposals::~cRowProposals() = default;

void cRowProposals::Forget()
{
    m_proposer.reset();
    m_proposals.clear();
    m_twins.reset();
    m_parts.Matching.ForgetProposals();
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    m_choices.removeIf([&](const auto& choice) {
        const std::optional<cImportEntry> row = hive.GetImportEntryByID(choice.key());
        return !row || row->ImportAssigned || !row->isEqual(choice.value().Row);
    });
}

const cProposal& cRowProposals::Propose(const cImportEntry& row)
{
    auto known = m_proposals.find(row.ID);
    if (known == m_proposals.end()) {
        if (!m_proposer) {
            m_proposer = std::make_unique<cProposer>(m_parts.Data, m_parts.Hive, m_parts.Accounts);
        }
        known = m_proposals.insert(row.ID, m_proposer->ProposeBest(row));
    }
    return *known;
}

cProposal cRowProposals::For(const cImportEntry& row)
{
    cProposal proposal = Propose(row);
    const cChoice choice = m_choices.value(row.ID);
    if (!choice.Category.isEmpty()) {
        proposal.Entry.EntryCategory = choice.Category;
    }
    if (!choice.Interval.isEmpty() && choice.Interval != proposal.Entry.EntryInterval) {
        proposal.Entry.EntryInterval = choice.Interval;
        proposal.ExistingEntry = 0; // the series that it belonged to has another interval
    }
    return proposal;
}

cRowProposals::eTrust cRowProposals::TrustIn(const cImportEntry& row)
{
    if (TwinOf(row.ID)) {
        return eTrust::Twice;
    }
    if (!m_parts.Matching.Proposal(row.ID).isEmpty()) {
        return eTrust::InBook;
    }
    const cProposal& proposal = Propose(row);
    // Of a transfer between own accounts everything is known, whatever its category.
    const bool isFounded =
        proposal.IsSure || proposal.ExistingEntry != 0 || proposal.Entry.EntryType == modWord::Umbuchung;
    return isFounded || !m_choices.value(row.ID).Category.isEmpty() ? eTrust::Certain : eTrust::Unknown;
}

cStagedInfo cRowProposals::Info(const cImportEntry& row)
{
    if (row.ImportAssigned) {
        return BookedInfo(row);
    }
    const cProposal& proposal = Propose(row);
    const cChoice choice = m_choices.value(row.ID);
    const bool isOwnChoice = !choice.Category.isEmpty() || !choice.Interval.isEmpty();
    const QString match = m_parts.Matching.Proposal(row.ID);
    cStagedInfo info;
    info.Account = modImportText::Accounts(proposal.Entry);
    info.Category = choice.Category.isEmpty() ? proposal.Entry.EntryCategory : choice.Category;
    info.Interval = choice.Interval.isEmpty() ? proposal.Entry.EntryInterval : choice.Interval;
    info.Reason = isOwnChoice ? cText::Tr("von Hand gewählt") : modImportText::Reason(proposal);
    if (!match.isEmpty()) {
        info.Reason = match; // booking would add what is there already, so this goes first
    }
    if (const std::optional<modStagedTwins::cTwin> twin = TwinOf(row.ID)) {
        Warn(info, *twin);
    }
    return info;
}

cStagedInfo cRowProposals::BookedInfo(const cImportEntry& row)
{
    cStagedInfo info;
    if (const std::optional<cEntryItem> entry = m_parts.Accounts.getAssignedEntry(row)) {
        info.Account = modImportText::Accounts(*entry);
        info.Category = entry->EntryCategory;
        info.Interval = entry->EntryInterval;
    } else {
        info.Account = m_parts.Accounts.AccountOf(row.ImportAccount);
    }
    return info;
}

void cRowProposals::Warn(cStagedInfo& info, const modStagedTwins::cTwin& twin)
{
    info.IsDoubtful = true;
    const QString warning = modImportText::TwinReason(twin.Same);
    const std::optional<cImportEntry> other = m_parts.Hive.GetImportHive().GetImportEntryByID(twin.RowId);
    info.Hint = other ? cText::Tr("{0} wie: {1}\nVorschlag: {2}",
                                  {warning, modImportText::Row(*other, m_parts.Matching.Tools().Format), info.Reason})
                      : warning;
    info.Reason = warning;
}

std::optional<modStagedTwins::cTwin> cRowProposals::TwinOf(int rowId)
{
    if (!m_twins) {
        FindTwins();
    }
    const auto twin = m_twins->constFind(rowId);
    return twin == m_twins->constEnd() ? std::nullopt : std::optional(*twin);
}

void cRowProposals::FindTwins()
{
    const QList<cRange> files = m_parts.Runs.Files();
    m_twins =
        modStagedTwins::Find(m_parts.Hive.GetImportHive().getImportEntryList(),
                             {.AccountOf = [this](const QString& number) { return m_parts.Accounts.AccountOf(number); },
                              .FileOf = [&](int id) { return FileOf(files, id); }});
}

QStringList cRowProposals::Categories() const
{
    return cEntrySuggestions::VisibleCategories(m_parts.Data);
}

void cRowProposals::TakeChoice(const QList<int>& rowIds, QString cChoice::*field, const QString& value)
{
    const cImportHive& hive = m_parts.Hive.GetImportHive();
    for (const int id : rowIds) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(id)) {
            cChoice& choice = m_choices[id];
            choice.Row = *row;
            choice.*field = value;
        }
    }
}

bool cRowProposals::SetCategory(const QList<int>& rowIds, const QString& category)
{
    const QStringList paths = Categories();
    const auto path = std::find_if(paths.begin(), paths.end(), [wanted = category.trimmed()](const QString& known) {
        return known.compare(wanted, Qt::CaseInsensitive) == 0;
    });
    if (path == paths.end()) {
        return false;
    }
    TakeChoice(rowIds, &cChoice::Category, *path);
    return true;
}

bool cRowProposals::SetInterval(const QList<int>& rowIds, const QString& interval)
{
    if (!modWord::Intervals().Contains(interval)) {
        return false;
    }
    TakeChoice(rowIds, &cChoice::Interval, interval);
    return true;
}
