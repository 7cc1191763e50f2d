#include "import/propose/cProposer.h"

#include "base/cText.h"
#include "import/propose/cLearned.h"
#include "import/propose/cOwnRules.h"
#include "import/propose/cRuleMatcher.h"
#include "import/propose/cSeriesFinder.h"
#include "import/propose/cTransferFinder.h"
#include "import/propose/modOwnRule.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <QStringList>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

struct cProposer::cKnowledge
{
    cKnowledge(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts)
        : Learned(data, hive),
          Transfers(data, hive, accounts),
          Series(data, hive),
          Rules(cOwnRules(accounts.Settings()).Load()),
          Matcher(Rules)
    {
    }

    // The user's own rule for the row; null when there is none.
    [[nodiscard]] const cOwnRule* OwnRule(const cImportEntry& row, const QString& account) const
    {
        const int place = Rules.isEmpty() ? -1 : Matcher.Find(cRuleRow(row, account));
        return place < 0 ? nullptr : &Rules.at(place);
    }

    cLearned Learned;
    cTransferFinder Transfers;
    cSeriesFinder Series;
    QList<cOwnRule> Rules;
    cRuleMatcher Matcher;
};

namespace {

QString DescriptionOf(const cImportEntry& row)
{
    QStringList parts{row.ImportBeneficiary.simplified(), row.ImportPurpose.simplified()};
    parts.removeAll(QString());
    return parts.join(u" - "_s);
}

cEntryItem EntryOf(const cImportEntry& row)
{
    cEntryItem entry;
    entry.EntryDate = row.ImportDate;
    entry.EntryDateEnd = modRecurrence::OpenEnd;
    entry.EntryValue = std::abs(row.ImportValue);
    entry.EntryType = row.ImportValue > 0 ? modWord::Einnahme : modWord::Ausgabe;
    entry.EntryDescription = DescriptionOf(row);
    return entry;
}

QString LearnedReason(const cLearned::cChoice& choice, const cImportEntry& row)
{
    const QString name = row.ImportBeneficiary.simplified();
    const QString who = name.isEmpty() ? row.ImportBeneficiaryAccount : name;
    const QStringList values{QString::number(choice.Count), who};
    if (row.ImportValue > 0) {
        return choice.Count == 1 ? cText::Tr("gelernt aus {0} Buchung von {1}", values)
                                 : cText::Tr("gelernt aus {0} Buchungen von {1}", values);
    }
    return choice.Count == 1 ? cText::Tr("gelernt aus {0} Buchung an {1}", values)
                             : cText::Tr("gelernt aus {0} Buchungen an {1}", values);
}

void TakeRule(cProposal& proposal, const cImportEntry& row, eRestriction restriction)
{
    const modKeywordRules::cMatch match =
        modKeywordRules::Match(modKeywordRules::MatchText(row), row.ImportValue, restriction);
    proposal.Entry.EntryCategory = match.Category;
    proposal.Entry.EntryInterval = match.Interval;
    if (!match.Category.isEmpty()) {
        proposal.Reason = cText::Tr("Regel: {0}", {match.Keyword});
    }
}

void TakeOwnRule(cProposal& proposal, const cOwnRule& rule)
{
    const QString reason = cText::Tr("Eigene Regel: {0}", {modOwnRule::Label(rule)});
    cEntryItem& entry = proposal.Entry;
    if (!rule.Category.isEmpty()) {
        // The interval of another category says nothing about this one: it would make a series of a purchase.
        entry.EntryInterval = rule.Category == entry.EntryCategory ? entry.EntryInterval : modWord::Einmalig;
        entry.EntryCategory = rule.Category;
        proposal.IsDefault = false;
    }
    // Where the rest comes from, or that it is a transfer, remains worth knowing.
    const bool isAll = !rule.Category.isEmpty() && entry.EntryType != modWord::Umbuchung;
    proposal.Reason = isAll || proposal.Reason.isEmpty() ? reason : proposal.Reason + u"; "_s + reason;
    entry.EntryInterval = rule.Interval.isEmpty() ? entry.EntryInterval : rule.Interval;
    entry.EntryDescription = rule.Description.isEmpty() ? entry.EntryDescription : rule.Description;
}

void TakeTransfer(cProposal& proposal, const cTransferFinder::cTransfer& transfer)
{
    const bool isOutgoing = proposal.Entry.EntryType == modWord::Ausgabe;
    proposal.Entry.EntryType = modWord::Umbuchung;
    proposal.Entry.EntryAccount = isOutgoing ? transfer.Own : transfer.Other;
    proposal.Entry.EntryAccountMove = isOutgoing ? transfer.Other : transfer.Own;
    if (!isOutgoing && transfer.PartnerDay.isValid()) {
        proposal.Entry.EntryDate = transfer.PartnerDay; // the money leaves the one account before it reaches the other
    }
    proposal.PartnerRow = transfer.PartnerRow;
    proposal.ExistingEntry = transfer.ExistingEntry;
    proposal.Reason = isOutgoing ? cText::Tr("eigenes Konto: an {0}", {transfer.Other})
                                 : cText::Tr("eigenes Konto: von {0}", {transfer.Other});
}

void TakeDefault(cProposal& proposal, eRestriction restriction)
{
    cEntryItem& entry = proposal.Entry;
    proposal.IsDefault = entry.EntryCategory.isEmpty();
    if (proposal.IsDefault && restriction == eRestriction::None) {
        entry.EntryInterval = modWord::Einmalig;
        entry.EntryCategory = u"Allgemein"_s;
    }
    if (entry.EntryInterval.isEmpty()) {
        entry.EntryInterval = modWord::Einmalig;
    }
}

} // namespace

cProposer::cProposer(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts)
    : m_knowledge(std::make_unique<cKnowledge>(data, hive, accounts))
{
}

cProposer::~cProposer() = default;

cProposal cProposer::Propose(const cImportEntry& row, eRestriction restriction)
{
    cProposal proposal;
    proposal.Entry = EntryOf(row);
    proposal.Entry.EntryAccount = m_knowledge->Transfers.AccountOf(row.ImportAccount);
    const std::optional<cTransferFinder::cTransfer> transfer = m_knowledge->Transfers.Find(row);
    if (const std::optional<cLearned::cChoice> choice = m_knowledge->Learned.Find(row)) {
        proposal.Entry.EntryCategory = choice->Category;
        proposal.Entry.EntryInterval = choice->Interval;
        proposal.Reason = LearnedReason(*choice, row);
    } else if (!transfer) {
        // What is written on a transfer between own accounts says nothing about a payee.
        TakeRule(proposal, row, restriction);
        // A keyword alone makes no series where the other rows of the payee say that it is none.
        if (modRecurrence::IsRecurring(proposal.Entry.EntryInterval)
            && m_knowledge->Series.IsContradicted(row, proposal.Entry.EntryInterval)) {
            proposal.Entry.EntryInterval = modWord::Einmalig;
        }
    }
    TakeDefault(proposal, restriction);
    const cOwnRule* own = m_knowledge->OwnRule(row, proposal.Entry.EntryAccount);
    if (transfer) {
        TakeTransfer(proposal, *transfer);
    }
    // What the user has said explicitly goes before all that the program has learned or knows by itself. That keeps its
    // order among itself: learned, then keywords, then the default.
    if (own != nullptr) {
        TakeOwnRule(proposal, *own);
    }
    if (proposal.ExistingEntry == 0) {
        if (const std::optional<cSeriesMatch> match = m_knowledge->Series.Find(row, proposal.Entry)) {
            proposal.ExistingEntry = match->Series.ID;
        }
    }
    return proposal;
}

cProposal cProposer::ProposeBest(const cImportEntry& row)
{
    cProposal proposal = Propose(row, eRestriction::Restricted);
    proposal.IsSure = !proposal.IsDefault;
    return proposal.IsSure ? proposal : Propose(row);
}
