#include "views/entry/cEntryEditor.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modBalance.h"
#include "model/modContract.h"
#include "model/modPeople.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntryDefaults.h"
#include "views/entry/cSplitGroup.h"
#include "views/entry/cStartBalance.h"
#include "views/entry/modEntryFields.h"
#include "views/people/cPeople.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

cEntryEditor::cEntryEditor(const cBookTools& tools) : m_tools(tools), m_suggestions(tools.Data, tools.User)
{
}

cEntryEditor::cFields cEntryEditor::Start(const QString& account)
{
    m_ids.clear();
    m_from = {};
    cFields fields;
    fields.Decimal = Decimal();
    fields.Amount = modSum::ToText(0, fields.Decimal);
    fields.Date = m_tools.Clock.Today();
    fields.Account = account.isEmpty() ? ProposedAccount() : account;
    return fields;
}

cEntryEditor::cFields cEntryEditor::StartFrom(const cEntryItem& proposal, fnStored onStored)
{
    cFields fields = Start(proposal.EntryAccount);
    const cFields proposed = FieldsOf(proposal);
    m_onStored = std::move(onStored);
    fields.Amount = proposed.Amount;
    fields.IsAmountTyped = true; // it is the bank's
    fields.IsAccountChosen = true;
    fields.Description = proposed.Description;
    fields.Category = proposed.Category;
    fields.Type = proposed.Type;
    fields.Target = proposed.Target;
    fields.Payer = proposed.Payer;
    fields.Date = proposed.Date;
    fields.Interval = proposed.Interval;
    return fields;
}

QString cEntryEditor::ProposedAccount() const
{
    const QStringList accounts = Accounts();
    const QString last = m_tools.Data.GetLastAccount();
    return accounts.contains(last) ? last : accounts.size() == 1 ? accounts.constFirst() : QString();
}

cEntryEditor::cFields cEntryEditor::StartBalance(const QString& account)
{
    m_ids.clear();
    m_from = {};
    cFields fields = cStartBalance(m_tools.Data, Decimal()).Show(account.isEmpty() ? Accounts().value(0) : account);
    fields.Date = fields.Date.isValid() || fields.IsDayKept ? fields.Date : m_tools.Clock.Today();
    return fields;
}

cEntryEditor::cFields cEntryEditor::FieldsOf(const cEntryItem& entry) const
{
    const QDate end = modRecurrence::EffectiveEnd(entry.EntryDateEnd);
    cFields fields;
    fields.Decimal = Decimal();
    fields.Amount = modSum::ToText(entry.EntryValue, fields.Decimal);
    fields.IsAmountTyped = true;
    fields.IsAccountChosen = true;
    fields.Description = entry.EntryDescription;
    fields.Category = entry.EntryCategory;
    fields.Type = entry.EntryType;
    fields.Account = entry.EntryAccount;
    fields.Target = entry.EntryAccountMove;
    fields.Payer = modPeople::Payer(entry);
    fields.Date = entry.EntryDate;
    fields.IsDayKept = !entry.EntryDate.isValid();
    fields.HasEnd = modRecurrence::IsRecurring(entry.EntryInterval) && end != modRecurrence::OpenEnd;
    fields.End = fields.HasEnd ? end : QDate();
    fields.CancelBy = modContract::CancelBy(entry);
    fields.Interval = entry.EntryInterval;
    return fields;
}

std::optional<cEntryEditor::cFields> cEntryEditor::Load(int id)
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(id);
    if (!entry) {
        return std::nullopt;
    }
    m_ids = {id};
    m_from = {};
    if (cStartBalance(m_tools.Data, Decimal()).IsOne(*entry)) {
        return cStartBalance(m_tools.Data, Decimal()).Show(entry->EntryAccount);
    }
    cFields fields = FieldsOf(*entry);
    const cEntryItemList parts = cSplitGroup(m_tools.Data).Parts(*entry);
    // Parts that no longer belong to one day and account cannot be shown as one; each is an entry of its own then.
    if (parts.size() > 1 && modSplit::IsWhole(parts)) {
        cSplitGroup::Show(parts, fields);
        m_ids.clear();
        for (const cEntryItem& part : parts) {
            fields.CancelBy = fields.CancelBy.isValid() ? fields.CancelBy : modContract::CancelBy(part);
            m_ids.append(part.ID);
        }
        return fields;
    }
    fields.Corrections = m_tools.Data.GetEntryMods(id);
    std::sort(fields.Corrections.begin(), fields.Corrections.end(),
              [](const auto& a, const auto& b) { return a.EntryStartDate < b.EntryStartDate; });
    return fields;
}

std::optional<cEntryEditor::cFields> cEntryEditor::LoadFrom(int id, QDate day)
{
    std::optional<cFields> fields = Load(id);
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(id);
    const std::optional<cEntryItem> occurrence = entry ? modSeries::OccurrenceAt(*entry, day) : std::nullopt;
    if (!fields || !occurrence || occurrence->EntryDate <= entry->EntryDate) {
        return fields;
    }
    m_from = occurrence->EntryDate;
    fields->Date = m_from;
    const QDate start = modSeries::CorrectionFor(*occurrence).EntryStartDate;
    fields->Corrections.removeIf([&](const cEntryItemFixMod& fixMod) { return fixMod.EntryStartDate < start; });
    return fields;
}

cEntryDraft cEntryEditor::Draft(const cFields& fields) const
{
    return {.Kept = {}, .EntryId = m_ids.value(0), .From = m_from, .Fields = fields};
}

cEntryEditor::cFields cEntryEditor::Resume(cEntryDraft& draft)
{
    cFields& typed = draft.Fields;
    const bool isKnown = draft.EntryId != 0;
    const std::optional<cFields> stored =
        isKnown ? (draft.From.isValid() ? LoadFrom(draft.EntryId, draft.From) : Load(draft.EntryId)) : std::nullopt;
    typed.Decimal = Decimal();
    for (cSplitPart& part : typed.Parts) {
        part.ID = m_ids.contains(part.ID) && stored ? part.ID : 0; // the others are no rows of this entry any more
    }
    if (stored) {
        return *stored;
    }
    typed.Corrections.clear();
    if (typed.Face == eEntryFace::StartBalance) {
        return StartBalance(typed.Account);
    }
    if (isKnown) {
        m_tools.User.Show(eTone::Information,
                          cText::Tr("Den Eintrag, der geändert werden sollte, gibt es nicht mehr. Was Sie eingegeben "
                                    "hatten, wird als neuer Eintrag angeboten."));
    }
    return Start(typed.Account);
}

QString cEntryEditor::Title(const cFields& fields) const
{
    if (fields.Face == eEntryFace::StartBalance) {
        return cText::Tr("Startguthaben");
    }
    if (m_from.isValid()) {
        return cText::Tr("Serie ab {0} bearbeiten", {modDate::ToText(m_from)});
    }
    return IsNew() ? cText::Tr("Neuer Eintrag") : cText::Tr("Eintrag bearbeiten");
}

eDecimal cEntryEditor::Decimal() const
{
    return m_tools.Format.Decimal();
}

QString cEntryEditor::AmountLabel() const
{
    QString symbol;
    const QString amount = m_tools.Format.Cents(0);
    for (const QChar c : amount) {
        if (!c.isDigit() && !c.isSpace() && c != u',' && c != u'.') {
            symbol.append(c);
        }
    }
    return symbol.isEmpty() ? cText::Tr("Betrag:") : cText::Tr("Betrag ({0}):", {symbol});
}

QString cEntryEditor::VatText(const cFields& fields) const
{
    if (fields.Face != eEntryFace::Normal || fields.Type == modWord::Umbuchung) {
        return {};
    }
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    const auto category = std::find_if(items.begin(), items.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::Path(item) == fields.Category;
    });
    const qint64 rate = category == items.end() ? 0 : modTemplate::VatRate(*category).value_or(0);
    const qint64 cents = rate == 0 ? 0 : std::abs(modSum::Evaluate(fields.Amount, fields.Decimal).value_or(0));
    if (cents == 0) {
        return {};
    }
    return cText::Tr("darin {0} % MwSt.: {1}",
                     {modTemplate::VatText(rate).replace(u'.', modSum::Sign(fields.Decimal)),
                      m_tools.Format.Cents(modTemplate::VatCents(cents, rate))});
}

QString cEntryEditor::StartBalanceText(const QString& account) const
{
    const std::optional<cEntryItem> stored = m_tools.Data.GetStartGuthaben(account);
    if (!stored) {
        return cText::Tr("Bisher wurde noch kein Startguthaben festgelegt:");
    }
    return cText::Tr("Bisheriges Startguthaben: {0} am {1}",
                     {m_tools.Format.Cents(modBalance::Effect(*stored, {})), modDate::ToText(stored->EntryDate)});
}

QStringList cEntryEditor::Accounts() const
{
    return cEntrySuggestions::VisibleAccounts(m_tools.Data);
}

// The payer of the entry stays to be chosen when the person is no longer among the others.
QStringList cEntryEditor::Payers(const cFields& fields) const
{
    QStringList names = cPeople(m_tools).Names();
    if (!fields.Payer.isEmpty() && !names.contains(fields.Payer)) {
        names.append(fields.Payer);
    }
    return names;
}

void cEntryEditor::ChooseCategory(const QString& path, cFields& fields) const
{
    cEntryDefaults(m_tools.Data).TakeCategory(path, fields);
}

void cEntryEditor::ChooseDescription(const QString& text, cFields& fields)
{
    cEntryDefaults(m_tools.Data).TakeDescription(text, m_suggestions, fields);
}

void cEntryEditor::ChoosePartCategory(qsizetype row, const QString& path, cFields& fields) const
{
    cEntryDefaults(m_tools.Data).TakePartCategory(row, path, fields);
}

void cEntryEditor::OfferPartCategory(qsizetype row, const QString& typed, cFields& fields)
{
    if (row < 0 || row >= fields.Parts.size()) {
        return;
    }
    fields.Parts[row].Category.clear();
    fields.Parts[row].CategoryText = typed;
    const QString path = m_suggestions.OfferNew(typed, ChosenType(fields));
    if (!path.isEmpty()) {
        ChoosePartCategory(row, path, fields);
    }
}

void cEntryEditor::ChoosePartDescription(qsizetype row, const QString& text, cFields& fields)
{
    cEntryDefaults(m_tools.Data).TakePartDescription(row, text, m_suggestions, fields);
}

void cEntryEditor::ChooseAccount(const QString& account, cFields& fields) const
{
    fields.Account = account;
    fields.IsAccountChosen = true;
    if (fields.Face == eEntryFace::StartBalance && !fields.IsAmountTyped) {
        const cFields stored = cStartBalance(m_tools.Data, Decimal()).Show(account);
        fields.Amount = stored.Amount;
        const bool isStored = stored.Date.isValid() || stored.IsDayKept;
        fields.Date = isStored ? stored.Date : fields.Date;
        fields.DateText = isStored ? QString() : fields.DateText;
        fields.IsDayKept = stored.IsDayKept;
    }
}

QString cEntryEditor::ChosenType(const cFields& fields)
{
    return fields.Type == fields.BroughtType ? QString() : fields.Type;
}

bool cEntryEditor::ShowsTarget(const cFields& fields)
{
    return fields.Face == eEntryFace::Normal && fields.Type == modWord::Umbuchung;
}

bool cEntryEditor::ShowsSeries(const cFields& fields)
{
    return fields.Face != eEntryFace::StartBalance && modRecurrence::IsRecurring(fields.Interval);
}

bool cEntryEditor::ShowsCorrections(const cFields& fields) const
{
    return m_ids.size() == 1 && fields.Face == eEntryFace::Normal && ShowsSeries(fields);
}

// What is said of a series without further days.
QString cEntryEditor::EndedText(const cEntryItem& series, const QString& count)
{
    const QDate last = modSeries::Last(series);
    return last.isValid() ? cText::Tr("{0}, beendet: zuletzt am {1}", {count, modDate::ToText(last)})
                          : cText::Tr("Die Serie endet vor ihrem ersten Tag: Sie hat keinen Termin.");
}

QDate cEntryEditor::EndAfter(const cFields& fields, int count) const
{
    return modSeries::EndAfter(modEntryFields::Series(fields, m_tools.Clock.Today()), count);
}

cEntryEditor::cPreview cEntryEditor::Preview(const cFields& fields) const
{
    constexpr int shownDays = 3;
    const cEntryItem series = modEntryFields::Series(fields, m_tools.Clock.Today());
    cPreview preview;
    preview.IsSeries = ShowsSeries(fields) && series.EntryDate.isValid() && series.EntryDateEnd.isValid();
    if (!preview.IsSeries) {
        return preview;
    }
    preview.Count = modSeries::Count(series);
    preview.Next = modSeries::Next(series, m_tools.Clock.Today(), shownDays);
    QStringList days;
    for (const QDate day : std::as_const(preview.Next)) {
        days.append(modDate::ToText(day));
    }
    const QString count = modSeries::IsEndless(series) ? cText::Tr("ohne Ende") : modCount::Times(preview.Count);
    preview.Text =
        days.isEmpty() ? EndedText(series, count) : cText::Tr("{0}, nächste Termine: {1}", {count, days.join(u", "_s)});
    return preview;
}
