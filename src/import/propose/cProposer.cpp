#include "import/propose/cProposer.h"

#include "base/cText.h"
#include "import/propose/cLearned.h"
#include "import/propose/cOwnRules.h"
#include "import/propose/cRuleMatcher.h"
#include "import/propose/cSeriesFinder.h"
#include "import/propose/cTransferFinder.h"
#include "import/propose/modCash.h"
#include "import/propose/modHint.h"
#include "import/propose/modIntervalWord.h"
#include "import/propose/modOwnRule.h"
#include "import/read/modBookRow.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBookCategories.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modCutText.h"
#include "model/modPeople.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <QSet>
#include <QStringList>

#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

struct cProposer::cKnowledge
{
    cKnowledge(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts,
               std::function<bool(int)> isDouble)
        : Data(data),
          Hive(hive),
          Cash(modCash::Accounts(data.GetAccounts(), NumberedAccounts(accounts, {}, eLent::LeaveOut))),
          Numbered(NumberedAccounts(accounts, Cash, eLent::Take)),
          CashStart(Cash.isEmpty() ? QDate() : StartOf(data, Cash.constFirst())),
          Learned(data, hive, CashStart),
          Transfers(data, hive, accounts, std::move(isDouble)),
          Series(data, hive),
          Rules(cOwnRules(accounts.Settings()).Load()),
          Matcher(Rules),
          BookCategories(data.GetTemplates())
    {
        QStringList offered;
        QStringList hidden;
        const cTemplateItemList items = data.GetTemplates();
        for (const cTemplateItem& item : items) {
            if (!modTemplate::IsAccount(item)) {
                (modTemplate::IsVisible(item) ? offered : hidden).append(modTemplate::Path(item));
            }
        }
        const QStringList withMains = modTemplate::WithMains(offered);
        Offered = {offered.begin(), offered.end()};
        OfFile = QSet(withMains.begin(), withMains.end()).subtract({hidden.begin(), hidden.end()});
        OfFile.insert(modWord::Startguthaben);
    }

    // An account may have lent its name to a file that names no numbers.
    enum class eLent { LeaveOut, Take };

    static QStringList NumberedAccounts(const cAccountMap& accounts, const QStringList& cash, eLent lent)
    {
        QStringList numbered;
        const QList<std::pair<QString, QString>> mapping = accounts.Mapping();
        for (const auto& [number, account] : mapping) {
            if (!cash.contains(account) && (lent == eLent::Take || number != account)) {
                numbered.append(account);
            }
        }
        return numbered;
    }

    // The day of the account's start balance; invalid without one.
    static QDate StartOf(cDataAccess& data, const QString& account)
    {
        cEntryQuery query;
        query.Account = account;
        query.Category = modWord::Startguthaben;
        query.Kind = eBookingKind::Single;
        QDate day;
        const cEntryItemList entries = data.GetEntries(query);
        for (const cEntryItem& entry : entries) {
            day = entry.EntryAccount == account && entry.EntryDate > day ? entry.EntryDate : day;
        }
        return day;
    }

    // The first one stands in the book, or waits before this row.
    [[nodiscard]] bool IsSecondStart(const QString& category, const QString& account, const cImportEntry& row)
    {
        if (category != modWord::Startguthaben) {
            return false;
        }
        const cImportEntryList rows = Hive.GetImportHive(eKeepCache::Yes).getImportEntryList();
        return Data.GetStartGuthaben(account).has_value()
            || std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& other) {
                   const bool isSame = other.ImportAccount == row.ImportAccount
                       || (!account.isEmpty() && Transfers.AccountOf(other.ImportAccount) == account);
                   return isSame && other.ID < row.ID && !other.ImportAssigned && CategoryOfFile(other) == category;
               });
    }

    // The category that the file itself names for the row; empty when it names none that the book has.
    [[nodiscard]] QString CategoryOfFile(const cImportEntry& row) const
    {
        const QString named = modBookRow::CategoryOf(row);
        return named.isEmpty() ? QString() : BookCategories.Find(named);
    }

    // The series that the row goes on with, if any; `isPaid`: that of the lesson has had its payment.
    void TakeSeries(cProposal& proposal, const cImportEntry& row, bool isPaid)
    {
        if (const std::optional<cSeriesMatch> match = Series.Find(row, proposal.Entry)) {
            proposal.ExistingEntry = match->Series.ID;
            proposal.Occurrence = match->Occurrence.Planned();
        } else if (isPaid) {
            // Its series has had its payment, so this is something beside it: a second series is hardly ever meant.
            proposal.Entry.EntryInterval = modWord::Einmalig;
            proposal.IsSure = false;
        }
        if (proposal.ExistingEntry == 0 && modRecurrence::IsRecurring(proposal.Entry.EntryInterval)
            && Series.IsTakenBack(row)) {
            proposal.Entry.EntryInterval = modWord::Einmalig;
            proposal.IsSure = false;
            proposal.Reason = cText::Tr("der Betrag wurde zurückgebucht, daher keine Serie");
        }
    }

    // Whatever names it: nothing new goes unseen to a category that was deleted or hidden. `ofFile`: the one that the
    // file names, which means what it says also with a main category that has no line of its own.
    void Doubt(cProposal& proposal, const QString& ofFile) const
    {
        const cEntryItem& entry = proposal.Entry;
        const QSet<QString>& known = entry.EntryCategory == ofFile ? OfFile : Offered;
        if (proposal.IsSure && proposal.ExistingEntry == 0 && !entry.IsTransfer()
            && !known.contains(entry.EntryCategory)) {
            proposal.IsSure = false;
            proposal.Reason = cText::Tr("{0}; die Kategorie steht nicht zur Auswahl", {proposal.Reason});
        }
    }

    // The user's own rule for the row; null when there is none.
    [[nodiscard]] const cOwnRule* OwnRule(const cImportEntry& row, const QString& account) const
    {
        const int place = Rules.isEmpty() ? -1 : Matcher.Find(cRuleRow(row, account));
        return place < 0 ? nullptr : &Rules.at(place);
    }

    cDataAccess& Data;
    cImportHiveCache& Hive;
    QStringList Cash;     // accounts for cash
    QStringList Numbered; // accounts that stand at a bank
    QDate CashStart;      // of the first of them
    cLearned Learned;
    cTransferFinder Transfers;
    cSeriesFinder Series;
    QList<cOwnRule> Rules;
    cRuleMatcher Matcher;
    QSet<QString> Offered; // categories
    QSet<QString> OfFile;  // those that a file of another book may name
    cBookCategories BookCategories;
};

namespace {

QString DescriptionOf(const cImportEntry& row)
{
    QStringList parts{row.ImportBeneficiary.simplified(), row.ImportPurpose.simplified()};
    parts.removeAll(QString());
    if (modBookRow::IsBook(row)) {
        parts.removeDuplicates(); // readers put the name where a purpose is missing
    }
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
    modPeople::SetPayer(entry, modBookRow::PayerOf(row));
    return entry;
}

QString LearnedReason(const cLearned::cChoice& choice, const cImportEntry& row)
{
    const QString who = choice.IsAccount ? cText::Tr("Konto {0}", {choice.Who}) : choice.Who;
    const QStringList values{QString::number(choice.Count), who};
    QString reason;
    if (row.ImportValue > 0) {
        reason = choice.Count == 1 ? cText::Tr("gelernt aus {0} Buchung von {1}", values)
                                   : cText::Tr("gelernt aus {0} Buchungen von {1}", values);
    } else {
        reason = choice.Count == 1 ? cText::Tr("gelernt aus {0} Buchung an {1}", values)
                                   : cText::Tr("gelernt aus {0} Buchungen an {1}", values);
    }
    return choice.HasOthers ? cText::Tr("{0}; unsicher, andere sind anders gebucht", {reason}) : reason;
}

// What the program knows by itself.
cHint HintOf(const cImportEntry& whole, eRestriction restriction)
{
    const cImportEntry row = modBookRow::Bare(whole);
    if (restriction == eRestriction::Restricted) {
        return modHint::BySureRule(row);
    }
    cHint hint = modHint::Best(row);
    // A keyword knows how often such things are paid as a rule, the purpose may know it of this one.
    if (modRecurrence::IsRecurring(hint.Interval)) {
        const QString named = modIntervalWord::In(row.ImportPurpose);
        hint.Interval = named.isEmpty() ? hint.Interval : named;
    }
    return hint;
}

void TakeHint(cProposal& proposal, const cHint& hint)
{
    proposal.Entry.EntryCategory = hint.Category;
    proposal.Entry.EntryInterval = hint.Interval;
    proposal.Reason = hint.Reason;
    proposal.IsSure = hint.IsSure;
}

// Another book has each payment, so none of them becomes a series.
void TakeCategoryOfFile(cProposal& proposal, const QString& category, bool isSecondStart)
{
    proposal.Entry.EntryCategory = category;
    proposal.Entry.EntryInterval = modWord::Einmalig;
    proposal.IsSure = !isSecondStart;
    proposal.Reason =
        proposal.IsSure ? cText::Tr("Kategorie aus der Datei") : cText::Tr("das Konto hat schon ein Startguthaben");
}

// What the file says and the book cannot have is told.
void TakeUnknown(cProposal& proposal, const cImportEntry& row, const QString& category)
{
    const QString named = modBookRow::CategoryOf(row);
    if (modBookRow::IsTransfer(row) && !proposal.Entry.IsTransfer()) {
        proposal.IsSure = false;
        proposal.Reason = cText::Tr("in der Datei eine Umbuchung mit {0}", {row.ImportBeneficiaryAccount});
    } else if (!named.isEmpty() && category.isEmpty() && proposal.IsDefault) {
        proposal.Reason = cText::Tr("in der Datei unter {0}", {named});
    }
}

void TakeLesson(cProposal& proposal, const cLearned::cChoice& choice, const cImportEntry& row,
                const QStringList& numbered)
{
    cEntryItem& entry = proposal.Entry;
    entry.EntryCategory = choice.Category;
    entry.EntryInterval = choice.Interval;
    proposal.Reason = LearnedReason(choice, row);
    proposal.IsSure = choice.IsSure;
    const QString own = entry.EntryAccount;
    const QString other = numbered.contains(choice.AccountMove) ? choice.Account : choice.AccountMove;
    if (choice.Type != modWord::Umbuchung || own.isEmpty() || other.isEmpty() || other == own
        || numbered.contains(other)) {
        return;
    }
    // It went to an account without a number, the purse or a depot: that is what was learned.
    const bool isOutgoing = entry.EntryType == modWord::Ausgabe;
    entry.EntryType = modWord::Umbuchung;
    entry.EntryAccount = isOutgoing ? own : other;
    entry.EntryAccountMove = isOutgoing ? other : own;
}

// Of several purses nobody knows which one it was.
void TakeCash(cProposal& proposal, const QStringList& accounts, QDate start)
{
    cEntryItem& entry = proposal.Entry;
    const QString own = entry.EntryAccount;
    const bool isOutgoing = entry.EntryType == modWord::Ausgabe;
    entry.EntryCategory = isOutgoing ? modWord::Barauszahlung : modWord::Bareinzahlung;
    entry.EntryInterval = modWord::Einmalig;
    proposal.IsSure = accounts.size() == 1;
    const QString& purse = accounts.constFirst();
    if (own == purse) {
        return;
    }
    // What was drawn before the purse's start balance was counted is in it already, or spent.
    if (start.isValid() && entry.EntryDate < start) {
        proposal.Reason = cText::Tr("Bargeld, vor dem Startguthaben von {0}", {purse});
        return;
    }
    entry.EntryType = modWord::Umbuchung;
    entry.EntryAccount = isOutgoing ? own : purse;
    entry.EntryAccountMove = isOutgoing ? purse : own;
    proposal.Reason = isOutgoing ? cText::Tr("Bargeld: an {0}", {purse}) : cText::Tr("Bargeld: von {0}", {purse});
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
        proposal.IsSure = true;
    }
    // Where the rest comes from, or that it is a transfer, remains worth knowing.
    const bool isAll = !rule.Category.isEmpty() && !entry.IsTransfer();
    proposal.Reason = isAll || proposal.Reason.isEmpty() ? reason : proposal.Reason + u"; "_s + reason;
    entry.EntryInterval = rule.Interval.isEmpty() ? entry.EntryInterval : rule.Interval;
    entry.EntryDescription = rule.Description.isEmpty() ? entry.EntryDescription : rule.Description;
}

void TakeTransfer(cProposal& proposal, const cTransferFinder::cTransfer& transfer, const cImportEntry& row)
{
    const bool isOutgoing = row.ImportValue < 0; // the kind of entry may be a learned one
    proposal.Entry.EntryType = modWord::Umbuchung;
    proposal.Entry.EntryAccount = isOutgoing ? transfer.Own : transfer.Other;
    proposal.Entry.EntryAccountMove = isOutgoing ? transfer.Other : transfer.Own;
    if (!isOutgoing && transfer.PartnerDay.isValid()) {
        proposal.Entry.EntryDate = transfer.PartnerDay; // the money leaves the one account before it reaches the other
    }
    proposal.PartnerRow = transfer.PartnerRow;
    proposal.ExistingEntry = transfer.ExistingEntry;
    proposal.BookedAs = transfer.BookedAs;
    proposal.IsMissed = transfer.IsMissed;
    proposal.Reason = isOutgoing ? cText::Tr("eigenes Konto: an {0}", {transfer.Other})
                                 : cText::Tr("eigenes Konto: von {0}", {transfer.Other});
    if (transfer.IsMissed) {
        proposal.Reason = cText::Tr("auf dem Auszug von {0} fehlt die Gegenbuchung", {transfer.Other});
    }
}

// The other side of the transfer stands in the book as income or expense: a new transfer would move the money twice.
void TakeBooked(cProposal& proposal, const cTransferFinder::cTransfer& transfer, const cImportEntry& row)
{
    if (transfer.IsElsewhere) {
        proposal.MakeSpent(row, transfer.Own);
        proposal.IsSure = false;
        proposal.Reason = cText::Tr("die Gegenbuchung steht nicht als Umbuchung im Buch");
    } else if (!transfer.BookedAs.isEmpty()) {
        proposal.Entry.EntryInterval = modWord::Einmalig;
        proposal.Reason = transfer.BookedAs == modWord::Ausgabe
            ? cText::Tr("die Gegenbuchung steht als Ausgabe im Buch, daraus wird die Umbuchung")
            : cText::Tr("die Gegenbuchung steht als Einnahme im Buch, daraus wird die Umbuchung");
    }
}

// One booking makes a lesson sure when the program would have proposed the same: else what was accepted would have to
// be looked at once more.
void TakeAgreement(cProposal& proposal, const cLearned::cChoice& choice, const cImportEntry& whole)
{
    if (proposal.IsSure || choice.HasOthers || proposal.Entry.IsTransfer()) {
        return;
    }
    const cHint hint = HintOf(whole, eRestriction::None);
    proposal.IsSure = hint.IsSure && hint.Category == choice.Category;
}

void TakeDefault(cProposal& proposal, eRestriction restriction)
{
    cEntryItem& entry = proposal.Entry;
    proposal.IsDefault = entry.EntryCategory.isEmpty();
    if (proposal.IsDefault && restriction == eRestriction::None) {
        entry.EntryInterval = modWord::Einmalig;
        entry.EntryCategory = modWord::Allgemein;
    }
    if (entry.EntryInterval.isEmpty()) {
        entry.EntryInterval = modWord::Einmalig;
    }
}

} // namespace

cProposer::cProposer(cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts,
                     std::function<bool(int)> isDouble)
    : m_knowledge(std::make_unique<cKnowledge>(data, hive, accounts, std::move(isDouble)))
{
}

cProposer::~cProposer() = default;

cProposal cProposer::Propose(const cImportEntry& row, eRestriction restriction)
{
    cProposal proposal;
    const cImportEntry whole = modCutText::WholeWords(row);
    proposal.Entry = EntryOf(whole);
    proposal.Entry.EntryAccount = m_knowledge->Transfers.AccountOf(row.ImportAccount);
    const std::optional<cTransferFinder::cTransfer> transfer = m_knowledge->Transfers.Find(row);
    const QString category = m_knowledge->CategoryOfFile(row);
    const std::optional<cLearned::cChoice> choice = category.isEmpty() ? m_knowledge->Learned.Find(row) : std::nullopt;
    if (!category.isEmpty()) {
        TakeCategoryOfFile(proposal, category, m_knowledge->IsSecondStart(category, proposal.Entry.EntryAccount, row));
    } else if (choice) {
        TakeLesson(proposal, *choice, whole, m_knowledge->Numbered);
        TakeAgreement(proposal, *choice, whole);
    } else if (!transfer && restriction == eRestriction::None && !m_knowledge->Cash.isEmpty()
               && modCash::IsCash(modBookRow::Bare(row))) {
        TakeCash(proposal, m_knowledge->Cash, m_knowledge->CashStart);
    } else if (!transfer) {
        // What is written on a transfer between own accounts says nothing about a payee.
        TakeHint(proposal, HintOf(whole, restriction));
        // A keyword alone makes no series where the other rows of the payee say that it is none.
        if (modRecurrence::IsRecurring(proposal.Entry.EntryInterval)
            && m_knowledge->Series.IsContradicted(row, proposal.Entry.EntryInterval)) {
            proposal.Entry.EntryInterval = modWord::Einmalig;
        }
    }
    TakeDefault(proposal, restriction);
    TakeUnknown(proposal, row, category);
    const cOwnRule* own = m_knowledge->OwnRule(row, proposal.Entry.EntryAccount);
    if (transfer) {
        TakeTransfer(proposal, *transfer, row);
    }
    // What the user has said explicitly goes before all that the program has learned or knows by itself. That keeps its
    // order among itself: what another book says, then learned, then keywords, then the list, then the default.
    if (own != nullptr) {
        TakeOwnRule(proposal, *own);
    }
    if (transfer) {
        TakeBooked(proposal, *transfer, row);
    }
    proposal.IsAlone = own != nullptr && own->Interval == modWord::Einmalig && !transfer;
    if (proposal.ExistingEntry == 0 && !proposal.IsAlone) {
        m_knowledge->TakeSeries(proposal, row, choice && own == nullptr && choice->SeriesEnd >= row.ImportDate);
    }
    m_knowledge->Doubt(proposal, category);
    return proposal;
}
