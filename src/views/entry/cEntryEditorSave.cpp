#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modContract.h"
#include "model/modPeople.h"
#include "model/modReceiptName.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/common/modUnsaved.h"
#include "views/entry/cEntryCheck.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cEntryWriter.h"
#include "views/entry/cReconciledDays.h"
#include "views/entry/cSplitGroup.h"
#include "views/entry/cStartBalance.h"
#include "views/entry/modEntryFields.h"
#include "views/entry/modSplitParts.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cReceipts.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostRemembered = 5;

bool IsSplit(const cEntryFields& fields)
{
    return fields.Face == eEntryFace::Split;
}

// The field because of which no entry can be built, and why.
struct cFault
{
    eEntrySaved Field = eEntrySaved::Refused;
    QString Why;
};

std::optional<cFault> FaultOf(const cEntryFields& fields, QDate today)
{
    const bool isTransfer = fields.Type == modWord::Umbuchung;
    if (isTransfer && fields.Target.isEmpty()) {
        return cFault{eEntrySaved::BadTarget,
                      cText::Tr("Nach Konto: Bitte wählen Sie das Konto, auf dem das Geld ankommt.")};
    }
    if (isTransfer && fields.Target == fields.Account) {
        return cFault{
            eEntrySaved::BadTarget,
            cText::Tr("Nach Konto: Von '{0}' kann das Geld nur auf ein anderes Konto gehen.", {fields.Account})};
    }
    const cEntryItem series = modEntryFields::Series(fields, today);
    if (cEntryEditor::ShowsSeries(fields) && series.EntryDateEnd < series.EntryDate) {
        return cFault{eEntrySaved::BadEnd,
                      cText::Tr("Endet am: Der letzte Tag ({0}) liegt vor dem ersten ({1}).",
                                {modDate::ToText(series.EntryDateEnd), modDate::ToText(series.EntryDate)})};
    }
    return std::nullopt;
}

} // namespace

void cEntryEditor::UseSplit(cFields& fields) const
{
    if (fields.Type == modWord::Umbuchung) {
        m_tools.User.Refuse(cText::Tr("Eine Umbuchung kann nicht aufgeteilt werden."));
        return;
    }
    if (HasCorrections(fields)) {
        m_tools.User.Refuse(cText::Tr("Ein Eintrag mit manuellen Korrekturen kann nicht aufgeteilt werden."));
        return;
    }
    fields.Face = eEntryFace::Split;
    fields.Parts = {{.ID = m_ids.value(0),
                     .Category = fields.Category,
                     .Description = fields.Description,
                     .Amount = fields.Amount,
                     .CategoryText = fields.CategoryText}};
}

bool cEntryEditor::UseNormal(cFields& fields) const
{
    if (HasCorrections(fields)) {
        return m_tools.User.Refuse(cText::Tr("Teile mit manuellen Korrekturen können nicht zusammengefasst werden."));
    }
    const qsizetype parts = modSplitParts::CountFilled(fields);
    if (parts > 1) {
        const eAnswer answer = m_tools.User.Ask(
            {.Text = cText::Tr("Möchten Sie die Aufteilung aufheben?\nAus {0} Teilen wird ein Eintrag mit "
                               "Kategorie und Beschreibung des ersten Teils.",
                               {QString::number(parts)}),
             .Title = {}});
        if (answer != eAnswer::Yes) {
            return false;
        }
    }
    const cSplitPart first = fields.Parts.value(0);
    fields.Face = eEntryFace::Normal;
    fields.Category = first.Category;
    fields.CategoryText = first.CategoryText;
    fields.Description = first.Description;
    fields.Parts.clear();
    return true;
}

QList<cReceiptSource> cEntryEditor::ChooseReceipts() const
{
    return cReceiptListModel::Ask(m_tools);
}

QString cEntryEditor::ReceiptText(const cEntryFields& fields) const
{
    const cReceipts receipts(m_tools);
    qsizetype count = 0;
    for (const int id : m_ids) {
        count += receipts.Of(id).size();
    }
    const qsizetype added = fields.NewReceipts.size();
    const QString stored = modCount::Receipts(count);
    const QString fresh = cText::Tr("{0} neu", {QString::number(added)});
    if (count > 0 && added > 0) {
        return cText::Tr("{0}, {1}", {stored, fresh});
    }
    return count > 0 ? stored : added > 0 ? fresh : cText::Tr("keine");
}

QDate cEntryEditor::Today() const
{
    return m_tools.Clock.Today();
}

bool cEntryEditor::IsTyped(const cFields& shown, const cFields& now)
{
    cFields whole = now;
    if (shown.Face == eEntryFace::Normal && now.Face == eEntryFace::Split && modSplitParts::CountFilled(now) == 0) {
        whole.Face = shown.Face;
        whole.Parts = shown.Parts;
    }
    return whole != shown;
}

eAnswer cEntryEditor::AskToSave() const
{
    return modUnsaved::Ask(m_tools.User);
}

bool cEntryEditor::HasCorrections(const cFields& fields) const
{
    if (m_ids.size() == 1) {
        return !fields.Corrections.isEmpty();
    }
    return std::any_of(m_ids.begin(), m_ids.end(), [&](int id) { return !m_tools.Data.GetEntryMods(id).isEmpty(); });
}

cEntryEditor::eSaved cEntryEditor::Save(cFields fields)
{
    cEntryCheck check(m_tools, m_suggestions);
    const eSaved checked = check.Check(fields);
    m_failedPart = check.FailedPart();
    if (checked != eSaved::Saved) {
        return checked;
    }
    return fields.Face == eEntryFace::StartBalance ? SaveStartBalance(fields) : Store(fields);
}

cEntryEditor::eSaved cEntryEditor::SaveStartBalance(const cFields& fields)
{
    const qint64 cents = modSum::Evaluate(fields.Amount, fields.Decimal).value_or(0);
    const QDate day = modEntryFields::FirstDay(fields, m_tools.Clock.Today());
    return cStartBalance(m_tools.Data, fields.Decimal).Save(fields.Account, cents, day) ? eSaved::Saved
                                                                                        : eSaved::Refused;
}

// What all rows of the entry share. Nothing when it cannot be stored: money of a transfer has to arrive somewhere else,
// and a series has to have a day.
std::optional<cEntryItem> cEntryEditor::Whole(const cFields& fields) const
{
    cEntryItem entry = modEntryFields::Series(fields, m_tools.Clock.Today());
    const bool isTransfer = fields.Type == modWord::Umbuchung;
    if (FaultOf(fields, m_tools.Clock.Today())) {
        return std::nullopt;
    }
    entry.EntryType = fields.Type;
    entry.EntryAccount = fields.Account;
    entry.EntryAccountMove = isTransfer ? fields.Target : QString();
    entry.EntryCategory = fields.Category;
    entry.EntryValue = std::abs(modSum::Evaluate(fields.Amount, fields.Decimal).value_or(0));
    entry.EntryDescription = fields.Description;
    return entry;
}

QList<cEntryWrite> cEntryEditor::Build(const cFields& fields) const
{
    std::optional<cEntryItem> whole = Whole(fields);
    if (!whole) {
        return {};
    }
    whole->ID = m_ids.value(0);
    const cEntryItemList entries = IsSplit(fields) ? cSplitGroup::Build(*whole, fields) : cEntryItemList{*whole};
    const QDate cancelBy = modEntryFields::CancelBy(fields, m_tools.Clock.Today());
    // Parts of one purchase may have payers of their own; they keep them until another one is chosen for all.
    const std::optional<cEntryItem> first = m_ids.isEmpty() ? std::nullopt : m_tools.Data.LoadEntry(m_ids.constFirst());
    const bool isPayerChosen = !first || modPeople::Payer(*first) != fields.Payer;
    QList<cEntryWrite> rows;
    for (cEntryItem entry : entries) {
        const std::optional<cEntryItem> stored = entry.ID > 0 ? m_tools.Data.LoadEntry(entry.ID) : cEntryItem{};
        if (!stored) {
            return {}; // it was deleted meanwhile
        }
        entry.EntryFlags = stored->EntryFlags;
        modContract::SetCancelBy(entry, rows.isEmpty() ? cancelBy : QDate()); // a purchase is one contract
        if (isPayerChosen || entry.ID == 0) {
            modPeople::SetPayer(entry, fields.Payer);
        }
        rows.append({entry, CorrectionsOf(*stored, fields)});
    }
    return rows;
}

cEntryItemFixModList cEntryEditor::CorrectionsOf(const cEntryItem& stored, const cFields& fields) const
{
    if (m_ids.size() <= 1) {
        return stored.ID == 0 ? cEntryItemFixModList{} : fields.Corrections;
    }
    cEntryItemFixModList fixMods = m_tools.Data.GetEntryMods(stored.ID);
    if (m_from.isValid()) {
        const QDate start = modRecurrence::OccurrencePeriod(m_from, stored.EntryInterval).Start;
        fixMods.removeIf([&](const cEntryItemFixMod& fixMod) { return fixMod.EntryStartDate < start; });
    }
    return fixMods;
}

cEntryEditor::eSaved cEntryEditor::Store(const cFields& fields)
{
    QList<cEntryWrite> rows = Build(fields);
    if (rows.isEmpty()) {
        const cFault fault = FaultOf(fields, m_tools.Clock.Today())
                                 .value_or(cFault{eSaved::Refused, cText::Tr("Er wurde inzwischen gelöscht.")});
        m_tools.User.Refuse(cText::Tr("Eintrag konnte nicht erstellt werden!") + u'\n' + fault.Why);
        return fault.Field;
    }
    cEntryWriter writer(m_tools.Data, m_tools.User);
    if (!writer.AskLosses(rows, m_from)) {
        return eSaved::Refused;
    }
    QList<int> removed = m_ids;
    removed.removeIf([&](int id) {
        return std::any_of(rows.begin(), rows.end(), [&](const cEntryWrite& row) { return row.Entry.ID == id; });
    });
    if (!removed.isEmpty()) {
        KeepReceipts(rows, removed);
    }
    const std::optional<int> kept = writer.KeepPaid(rows, removed);
    if (!kept) {
        return eSaved::Refused;
    }
    cReconciledGuard guard(m_tools);
    cUndoStep step(m_tools.Data, StepName(rows.first().Entry, *kept));
    // Files are copied last: a question that is declined leaves none behind.
    const bool isWritten = writer.Write(rows, removed, m_from) && guard.Allows()
        && std::all_of(rows.begin(), rows.end(),
                       [&](const cEntryWrite& row) {
                           return m_suggestions.GiveKind(row.Entry.EntryCategory, row.Entry.EntryType);
                       })
        && (!m_onStored || m_onStored(rows.first().Entry.ID))
        && (fields.NewReceipts.isEmpty() || cReceipts(m_tools).Add(rows.first().Entry.ID, fields.NewReceipts));
    if (!step.DoneIf(isWritten)) {
        return eSaved::Refused;
    }
    m_onStored = nullptr; // a further entry has nothing to do with the transaction
    Remember(rows);
    return eSaved::Saved;
}

// The receipts of parts that go hang at the first one from now on.
void cEntryEditor::KeepReceipts(QList<cEntryWrite>& rows, const QList<int>& removed) const
{
    QStringList names = modReceiptName::Of(rows.first().Entry);
    for (const int id : removed) {
        const std::optional<cEntryItem> part = m_tools.Data.LoadEntry(id);
        const QStringList more = part ? modReceiptName::Of(*part) : QStringList();
        for (const QString& name : more) {
            if (!names.contains(name)) {
                names.append(name);
            }
        }
    }
    modReceiptName::Set(rows.first().Entry, names);
}

QString cEntryEditor::StepName(const cEntryItem& entry, int kept) const
{
    const QString name = entry.Name();
    if (kept > 0) {
        return cText::Tr("Eintrag '{0}' geändert; was die Bank schon gebucht hat, behält seinen Betrag ({1})",
                         {name, modCount::Times(kept)});
    }
    return IsNew() ? cText::Tr("Eintrag '{0}' angelegt", {name}) : cText::Tr("Eintrag '{0}' geändert", {name});
}

void cEntryEditor::Remember(const QList<cEntryWrite>& rows)
{
    cEntryItemList entries;
    m_savedIds.clear();
    for (const cEntryWrite& row : rows) {
        entries.append(row.Entry);
        m_savedIds.append(row.Entry.ID);
        m_suggestions.Note(row.Entry);
    }
    const cEntryItem& first = entries.first();
    const qint64 cents = first.IsTransfer() ? first.EntryValue : modSplit::Net(entries);
    m_lastSaved.prepend(modDate::ToText(first.EntryDate) + u"  "_s + first.Name() + u"  "_s
                        + m_tools.Format.Cents(cents));
    m_lastSaved = m_lastSaved.mid(0, mostRemembered);
}

cEntryEditor::cFields cEntryEditor::Next(const cFields& saved)
{
    if (saved.Face == eEntryFace::StartBalance) {
        return StartBalance(saved.Account);
    }
    cFields next = Start(saved.Account);
    next.Face = saved.Face;
    next.IsAccountChosen = saved.IsAccountChosen;
    next.Type = next.OpenType = next.BroughtType = saved.Type;
    next.Target = saved.Target;
    next.Date = modEntryFields::FirstDay(saved, m_tools.Clock.Today());
    return next;
}
