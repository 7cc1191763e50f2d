#include "import/cProposer.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "import/cAccountMap.h"
#include "import/cImportHiveCache.h"
#include "import/cLearned.h"
#include "import/cSeriesFinder.h"
#include "import/cTransferFinder.h"
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
          Series(data, hive)
    {
    }

    cLearned Learned;
    cTransferFinder Transfers;
    cSeriesFinder Series;
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
    entry.EntryValue = std::abs(modAmount::ToCents(row.ImportValue));
    entry.EntryType = row.ImportValue > 0.0 ? modWord::Einnahme : modWord::Ausgabe;
    entry.EntryDescription = DescriptionOf(row);
    return entry;
}

QString LearnedReason(const cLearned::cChoice& choice, const cImportEntry& row)
{
    const QString name = row.ImportBeneficiary.simplified();
    const QString who = name.isEmpty() ? row.ImportBeneficiaryAccount : name;
    const QStringList values{QString::number(choice.Count), who};
    if (row.ImportValue > 0.0) {
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

void TakeTransfer(cProposal& proposal, const cTransferFinder::cTransfer& transfer)
{
    const bool isOutgoing = proposal.Entry.EntryType == modWord::Ausgabe;
    proposal.Entry.EntryType = modWord::Umbuchung;
    proposal.Entry.EntryAccount = isOutgoing ? transfer.Own : transfer.Other;
    proposal.Entry.EntryAccountMove = isOutgoing ? transfer.Other : transfer.Own;
    proposal.PartnerRow = transfer.PartnerRow;
    proposal.ExistingEntry = transfer.ExistingEntry;
    proposal.Reason = isOutgoing ? cText::Tr("eigenes Konto: an {0}", {transfer.Other})
                                 : cText::Tr("eigenes Konto: von {0}", {transfer.Other});
}

void TakeDefault(cEntryItem& entry, eRestriction restriction)
{
    if (entry.EntryCategory.isEmpty() && restriction == eRestriction::None) {
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
    }
    TakeDefault(proposal.Entry, restriction);
    if (transfer) {
        TakeTransfer(proposal, *transfer);
    }
    if (proposal.ExistingEntry == 0) {
        if (const std::optional<cSeriesMatch> match = m_knowledge->Series.Find(row, proposal.Entry)) {
            proposal.ExistingEntry = match->Series.ID;
        }
    }
    return proposal;
}
