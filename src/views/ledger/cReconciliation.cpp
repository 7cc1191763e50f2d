#include "views/ledger/cReconciliation.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/cMatcher.h"
#include "import/match/cMatchIndex.h"
#include "import/match/modMatchScore.h"
#include "import/propose/cTransferFinder.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cReconciledDays.h"
#include "views/entry/cSplitGroup.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/modBalanceText.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cstdlib>

namespace {

using eKind = cReconcileItem::eKind;

// How far a row may lie from its entry, and from its occurrence, see modOccurrence.
constexpr int entryDays = modMatchScore::FarthestDays;
constexpr int seriesDays = 15;

QString TextOf(const cImportEntry& row)
{
    const QString& text = row.ImportPurpose.isEmpty() ? row.ImportType : row.ImportPurpose;
    return (row.ImportBeneficiary.isEmpty() ? text : row.ImportBeneficiary).simplified();
}

QDate DayOf(const cReconcileItem& item)
{
    return item.BankDay.isValid() ? item.BankDay : item.BookDay;
}

// What the index of entries and the rows that belong to them have in common, and what not.
class cComparison
{
public:
    cComparison(const cImportEntryList& rows, QDate until) : m_until(until)
    {
        for (const cImportEntry& row : rows) {
            m_rows.insert(row.ID, row);
        }
    }

    void AddEntry(const cMatchIndex::cItem& item, QDate from)
    {
        cReconcileItem found;
        found.EntryId = item.Entry.ID;
        found.BookDay = item.Entry.EntryDate;
        found.BookCents = item.Cents;
        found.Text = item.Entry.Name();
        found.IsSeries = item.IsSeries;
        found.IsSplit = item.IsSplit;
        bool isSameDay = false;
        for (const int taker : item.Takers) {
            const auto row = m_rows.constFind(taker);
            if (row == m_rows.constEnd()) {
                continue;
            }
            m_paid.insert(taker);
            found.RowId = taker;
            found.BankDay = row->ImportDate;
            found.BankCents += row->ImportValue;
            isSameDay = isSameDay || IsSame(row->ImportDate, item.Entry);
        }
        if (found.RowId == 0) {
            found.Kind = eKind::BookOnly;
            AddIf(item.Cents != 0 && found.BookDay >= from && found.BookDay <= m_until, found);
            return;
        }
        found.Kind = eKind::Differs;
        AddIf((!isSameDay || found.BankCents != found.BookCents)
                  && (found.BankDay <= m_until || found.BookDay <= m_until),
              found);
    }

    // Those that no entry stands for.
    void AddRows()
    {
        for (const cImportEntry& row : std::as_const(m_rows)) {
            cReconcileItem found;
            found.RowId = row.ID;
            found.BankDay = row.ImportDate;
            found.BankCents = row.ImportValue;
            found.Text = TextOf(row);
            if (row.ImportAssigned) { // to an entry that is nowhere near
                found.Kind = eKind::Differs;
                found.EntryId = row.ImportAssignedEntry;
            }
            AddIf(!m_paid.contains(row.ID) && row.ImportDate <= m_until, found);
        }
    }

    [[nodiscard]] QList<cReconcileItem> Sorted()
    {
        std::stable_sort(m_items.begin(), m_items.end(), [](const cReconcileItem& a, const cReconcileItem& b) {
            return std::pair(DayOf(a), a.RowId) < std::pair(DayOf(b), b.RowId);
        });
        return m_items;
    }

private:
    // Of a transfer between two own accounts one side may be booked some days after the other; its entry has one day.
    [[nodiscard]] static bool IsSame(QDate bank, const cEntryItem& entry)
    {
        const qint64 late = entry.EntryDate.daysTo(bank);
        return late == 0 || (entry.IsTransfer() && late > 0 && late <= cTransferFinder::SlowestDays);
    }

    void AddIf(bool isWanted, const cReconcileItem& item)
    {
        if (isWanted) {
            m_items.append(item);
        }
    }

    QDate m_until;
    QHash<int, cImportEntry> m_rows;
    QSet<int> m_paid;
    QList<cReconcileItem> m_items;
};

} // namespace

cReconciliation::cReconciliation(const cBookTools& tools) : m_tools(tools), m_ledger(tools.Data, tools.Settings)
{
}

void cReconciliation::Load(const QString& number, QDate until)
{
    m_ledger.Load(number);
    m_items.clear();
    m_bank.reset();
    m_book = 0;
    m_since = {};
    const cImportEntryList& rows = m_ledger.Rows();
    const modBalanceCheck::cResult& check = m_ledger.Check();
    const QDate newest = rows.isEmpty() ? QDate() : rows.constLast().ImportDate;
    const QDate named = check.IsAnchored ? check.Points.constLast().Day : newest;
    m_until = until.isValid() ? qMin(until, qMax(newest, named)) : named; // behind it the bank has not spoken yet
    if (rows.isEmpty() || Account().isEmpty()) {
        return;
    }
    if (check.IsAnchored && !m_ledger.IsShared()) {
        m_bank = m_ledger.BankOn(m_until);
    }
    const cEntryItemList entries = m_tools.Data.GetEntries({{}, m_until, {}, Account(), {}, eBookingKind::All});
    for (const cEntryItem& entry : entries) {
        m_book += modBalance::Effect(entry, Account());
    }
    AddItems();
    AddStart();
    if (m_bank && m_bank != m_book && m_items.isEmpty()) {
        m_since = m_ledger.CompareWithBook(m_until).From;
    }
}

void cReconciliation::AddItems()
{
    const QString account = Account();
    cImportHiveCache hive(m_tools.Data);
    const cAccountMap accounts(m_tools.Data, m_tools.Settings);
    // All numbers of the account: the entries of the others are not missing at the bank.
    cImportEntryList rows = hive.GetImportHive().getImportEntryList();
    rows.removeIf([&](const cImportEntry& row) { return accounts.AccountOf(row.ImportAccount) != account; });
    const QDate first = m_ledger.Rows().constFirst().ImportDate;
    const cMatchIndex index(m_tools.Data, hive.GetImportHive(), account, {first, qMax(first, m_until)},
                            [&](const cImportEntry& row) { return accounts.AccountOf(row.ImportAccount) == account; });
    cComparison comparison(rows, m_until);
    for (size_t number = 0; number < index.Count(); ++number) {
        comparison.AddEntry(index.Item(number), first);
    }
    comparison.AddRows();
    m_items = comparison.Sorted();
}

// What the account held before its first row.
void cReconciliation::AddStart()
{
    if (const auto offer = cOpeningBalance(m_tools).For(Number()); offer && !offer->IsOnlyDay) {
        cReconcileItem item;
        item.Kind = eKind::Start;
        item.BankDay = item.BookDay = offer->Day;
        item.BankCents = offer->Bank;
        item.BookCents = offer->Book;
        item.Text = cText::Tr("Kontostand vor dem ersten Umsatz");
        m_items.prepend(item);
    }
}

QString cReconciliation::Finding() const
{
    const QStringList values{Account(), modDate::ToText(m_until), m_tools.Format.Cents(m_book),
                             m_tools.Format.Cents(m_bank.value_or(0)), QString::number(m_items.size())};
    if (Number().isEmpty()) {
        return {}; // nothing is imported yet
    }
    const QString named = m_bank ? modBalanceText::OnStatement(m_ledger.NamedOn(m_until), m_tools.Format) : QString();
    if (Account().isEmpty()) {
        return cText::Tr("Diese Kontonummer ist noch keinem Konto Ihres Buchs zugeordnet.");
    }
    if (Agrees()) {
        return cText::Tr("Das Konto '{0}' stimmt bis {1} Umsatz für Umsatz mit der Bank überein: {2}.", values) + named;
    }
    if (m_since.isValid()) {
        return Unexplained(values);
    }
    const QString count = m_items.size() == 1 ? cText::Tr("Ein Unterschied bis {1}.", values)
                                              : cText::Tr("{4} Unterschiede bis {1}.", values);
    if (!m_bank && m_ledger.Check().IsAnchored) {
        return count + u' '
            + cText::Tr(
                   "Zum Konto '{0}' gehören mehrere Kontonummern, deren Stände die Bank einzeln nennt; im Buch sind "
                   "es zusammen {2}.",
                   values);
    }
    if (!m_bank) {
        return count + u' ' + cText::Tr("Die Bank hat keinen Kontostand genannt; im Buch sind es {2}.", values);
    }
    return count + u' ' + cText::Tr("Bank: {3}, Buch: {2}.", values) + named;
}

QString cReconciliation::WayOut(const QString& command) const
{
    const qsizetype count = CountPairs();
    return count == 0 ? QString()
        : count == 1
        ? cText::Tr("Ein Umsatz davon ist offen und steht wohl schon im Buch: \"{0}\" ordnet ihn zu.", {command})
        : cText::Tr("{1} Umsätze davon sind offen und stehen wohl schon im Buch: \"{0}\" ordnet sie zu.",
                    {command, QString::number(count)});
}

// Rows and entries that are differences each by itself, and have the same amount on days not far from each other.
qsizetype cReconciliation::CountPairs() const
{
    QList<cReconcileItem> entries = m_items;
    entries.removeIf([](const cReconcileItem& item) { return item.Kind != eKind::BookOnly; });
    const qsizetype all = entries.size();
    for (const cReconcileItem& row : m_items) {
        const auto pair = std::find_if(entries.begin(), entries.end(), [&](const cReconcileItem& entry) {
            return row.Kind == eKind::BankOnly && row.BankCents == entry.BookCents
                && std::abs(row.BankDay.daysTo(entry.BookDay)) <= (entry.IsSeries ? seriesDays : entryDays);
        });
        if (pair != entries.end()) {
            entries.erase(pair);
        }
    }
    return all - entries.size();
}

// Nothing can be set right row by row: rows of the bank are missing, or were read by a version that did not know which
// of them a balance contains.
QString cReconciliation::Unexplained(const QStringList& values) const
{
    const qint64 more = m_book - m_bank.value_or(0);
    const QStringList all = values + QStringList{m_tools.Format.Cents(std::abs(more)), modDate::ToText(m_since)};
    return (more < 0
                ? cText::Tr(
                    "Jeder eingelesene Umsatz steht im Buch, doch seit dem {6} sind dort {5} weniger als bei der "
                    "Bank.",
                    all)
                : cText::Tr("Jeder eingelesene Umsatz steht im Buch, doch seit dem {6} sind dort {5} mehr als bei der "
                            "Bank.",
                            all))
        + u' ' + cText::Tr("Bank: {3}, Buch: {2}.", values) + u' '
        + cText::Tr("Lesen Sie die Kontoauszüge der Zeit um diesen Tag ein, auch schon gelesene noch einmal.");
}

QString cReconciliation::KindText(const cReconcileItem& item)
{
    switch (item.Kind) {
    case eKind::BankOnly: return cText::Tr("nur bei der Bank");
    case eKind::BookOnly: return cText::Tr("nur im Buch");
    case eKind::Start: return cText::Tr("Startguthaben");
    case eKind::Differs: break;
    }
    return item.BankCents == item.BookCents ? cText::Tr("Tag anders")
        : item.BankDay == item.BookDay      ? cText::Tr("Betrag anders")
                                            : cText::Tr("Betrag und Tag anders");
}

QString cReconciliation::CureText(const cReconcileItem& item)
{
    switch (item.Kind) {
    case eKind::BankOnly: return cText::Tr("&Umsatz buchen");
    case eKind::BookOnly: return cText::Tr("Eintrag &löschen");
    case eKind::Start: return cText::Tr("Startg&uthaben anpassen");
    case eKind::Differs: break;
    }
    return cText::Tr("Wie bei der &Bank");
}

QString cReconciliation::KindName(const cReconcileItem& item)
{
    switch (item.Kind) {
    case eKind::BankOnly: return QStringLiteral("bank only");
    case eKind::BookOnly: return QStringLiteral("book only");
    case eKind::Start: return QStringLiteral("start");
    case eKind::Differs: break;
    }
    return QStringLiteral("differs");
}

bool cReconciliation::TakeBank(const cReconcileItem& item)
{
    if (item.Kind == eKind::Start) {
        const auto offer = cOpeningBalance(m_tools).For(Number());
        return offer && cOpeningBalance(m_tools).Take(*offer);
    }
    if (item.Kind != eKind::Differs) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("'{0}' wie bei der Bank", {item.Text}));
    return step.DoneIf(item.IsSeries ? TakeForSeries(item) : TakeForEntry(item));
}

bool cReconciliation::TakeForEntry(const cReconcileItem& item)
{
    const std::optional<cEntryItem> stored = m_tools.Data.LoadEntry(item.EntryId);
    if (!stored) {
        return false;
    }
    const bool isSameAmount = item.BankCents == item.BookCents;
    if (!item.BookDay.isValid() || (!isSameAmount && (item.IsSplit || (item.BankCents < 0) != (item.BookCents < 0)))) {
        m_tools.User.Show(eTone::Information,
                          cText::Tr("Bitte öffnen Sie den Eintrag, und ändern Sie dort den Betrag: {0}.",
                                    {m_tools.Format.Cents(item.BankCents)}));
        return false;
    }
    const cEntryItemList parts = item.IsSplit ? cSplitGroup(m_tools.Data).Parts(*stored) : cEntryItemList{*stored};
    return std::all_of(parts.begin(), parts.end(), [&](cEntryItem part) {
        part.EntryDate = item.BankDay;
        part.EntryValue = isSameAmount ? part.EntryValue : std::abs(item.BankCents);
        return m_tools.Data.ChangeEntry(part);
    });
}

bool cReconciliation::TakeForSeries(const cReconcileItem& item)
{
    cImportHiveCache hive(m_tools.Data);
    const cAccountMap accounts(m_tools.Data, m_tools.Settings);
    const std::optional<cMatchCandidate> match =
        cMatcher(m_tools.Data, hive, accounts).ByHand(item.RowId, item.EntryId);
    if (match && match->Correction) {
        return m_tools.Data.AddNewEntryMod(*match->Correction);
    }
    m_tools.User.Show(eTone::Information, cText::Tr("Bitte öffnen Sie den Eintrag, und ändern Sie ihn dort."));
    return false;
}

bool cReconciliation::Confirm()
{
    return Agrees() && cReconciledDays(m_tools).Set(Number(), m_until);
}
