#include "views/cEntryEditor.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modAmount.h"
#include "model/cEntryItem.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString AmountText(qint64 cents)
{
    return modAmount::CentsToText(cents).replace(u'.', u',');
}

bool HasOtherPeriod(const cEntryItem& a, const cEntryItem& b)
{
    return a.EntryDate != b.EntryDate || a.EntryInterval != b.EntryInterval
        || modRecurrence::EffectiveEnd(a.EntryDateEnd) != modRecurrence::EffectiveEnd(b.EntryDateEnd);
}

} // namespace

cEntryEditor::cFields cEntryEditor::Start(const QString& account)
{
    m_id = 0;
    cFields fields;
    fields.Amount = AmountText(0);
    fields.Date = m_clock.Today();
    fields.Account = account;
    return fields;
}

std::optional<cEntryEditor::cFields> cEntryEditor::Load(int id)
{
    const std::optional<cEntryItem> entry = m_data.LoadEntry(id);
    if (!entry) {
        return std::nullopt;
    }
    m_id = id;
    const QDate end = modRecurrence::EffectiveEnd(entry->EntryDateEnd);
    cFields fields;
    fields.Amount = AmountText(entry->EntryValue);
    fields.IsAmountTyped = true;
    fields.Description = entry->EntryDescription;
    fields.Category = entry->EntryCategory;
    fields.Type = entry->EntryType;
    fields.Account = entry->EntryAccount;
    fields.Target = entry->EntryAccountMove;
    fields.Date = entry->EntryDate;
    fields.HasEnd = modRecurrence::IsRecurring(entry->EntryInterval) && end != modRecurrence::OpenEnd;
    fields.End = fields.HasEnd ? end : QDate();
    fields.Interval = entry->EntryInterval;
    return fields;
}

QStringList cEntryEditor::Categories() const
{
    QStringList paths;
    const cTemplateItemList templates = m_data.GetTemplates();
    for (const cTemplateItem& item : templates) {
        if (!modTemplate::IsAccount(item) && modTemplate::IsVisible(item)) {
            paths.append(modTemplate::Path(item));
        }
    }
    std::sort(paths.begin(), paths.end(),
              [](const QString& a, const QString& b) { return a.localeAwareCompare(b) < 0; });
    return paths;
}

QStringList cEntryEditor::Accounts() const
{
    QStringList names;
    const cTemplateItemList accounts = m_data.GetAccounts();
    for (const cTemplateItem& account : accounts) {
        if (modTemplate::IsVisible(account)) {
            names.append(account.TemplateName);
        }
    }
    return names;
}

void cEntryEditor::ChooseCategory(const QString& path, cFields& fields) const
{
    fields.Category = path;
    if (!fields.IsAmountTyped) {
        fields.Amount = AmountText(0);
    }
    const cTemplateItemList templates = m_data.GetTemplates();
    const auto chosen = std::find_if(templates.begin(), templates.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::Path(item) == path;
    });
    if (chosen == templates.end()) {
        return;
    }
    // A category may hold a word of the filters, such as "Alle Buchungsarten"; that is no kind of entry.
    if (fields.Type.isEmpty() && modWord::EntryTypes().Contains(chosen->EntryType)) {
        fields.Type = chosen->EntryType;
    }
    if (fields.Interval.isEmpty() && modWord::Intervals().Contains(chosen->EntryInterval)) {
        fields.Interval = chosen->EntryInterval;
    }
}

bool cEntryEditor::Refuse(const QString& text)
{
    m_user.Show(eTone::Exclamation, text);
    return false;
}

bool cEntryEditor::Check(const cFields& fields)
{
    if (fields.Category.isEmpty()) {
        return Refuse(Categories().isEmpty()
                          ? cText::Tr("Bitte erst neue Kategorien anlegen und diese Buchung einordnen!")
                          : cText::Tr("Bitte erst eine Kategorie wählen!"));
    }
    if (fields.Type.isEmpty()) {
        return Refuse(cText::Tr("Bitte erst eine Buchungsart wählen!"));
    }
    if (fields.Account.isEmpty()) {
        return Refuse(Accounts().isEmpty() ? cText::Tr("Bitte erst neue Konten anlegen und diese Buchung einordnen!")
                                           : cText::Tr("Bitte erst ein Konto wählen!"));
    }
    return true;
}

std::optional<cEntryItem> cEntryEditor::Build(const cFields& fields, qint64 cents) const
{
    cEntryItem entry;
    if (m_id != 0) {
        const std::optional<cEntryItem> stored = m_data.LoadEntry(m_id);
        if (!stored) {
            return std::nullopt;
        }
        entry = *stored;
    }
    const bool isTransfer = fields.Type == modWord::Umbuchung;
    if (isTransfer && (fields.Target.isEmpty() || fields.Target == fields.Account)) {
        return std::nullopt; // money has to arrive somewhere else
    }
    entry.EntryDate = fields.Date.isValid() ? fields.Date : m_clock.Today();
    entry.EntryDateEnd = fields.HasEnd && fields.End.isValid() ? fields.End : modRecurrence::OpenEnd;
    entry.EntryType = fields.Type;
    entry.EntryInterval = fields.Interval.isEmpty() ? modWord::Einmalig : fields.Interval;
    entry.EntryAccount = fields.Account;
    entry.EntryAccountMove = isTransfer ? fields.Target : QString();
    entry.EntryCategory = fields.Category;
    entry.EntryValue = cents;
    entry.EntryDescription = fields.Description;
    if (modRecurrence::IsRecurring(entry.EntryInterval) && entry.EntryDateEnd < entry.EntryDate) {
        return std::nullopt;
    }
    return entry;
}

bool cEntryEditor::LosesCorrections(const cEntryItem& entry) const
{
    const std::optional<cEntryItem> stored = m_data.LoadEntry(m_id);
    return stored && modRecurrence::IsRecurring(stored->EntryInterval) && HasOtherPeriod(*stored, entry)
        && !m_data.GetEntryMods(m_id).isEmpty();
}

bool cEntryEditor::Change(const cEntryItem& entry)
{
    if (!LosesCorrections(entry)) {
        return m_data.ChangeEntry(entry);
    }
    const eAnswer answer =
        m_user.Ask({.Text = cText::Tr("Der Zeitraum für diesen Eintrag wurde modifiziert.\nDie manuellen "
                                      "Korrekturen gehen dadurch verloren.\nSoll der Eintrag trotzdem "
                                      "gespeichert werden?"),
                    .Title = {}});
    return answer == eAnswer::Yes && m_data.ChangeEntry(entry) && m_data.DeleteEntryModByRelation(m_id);
}

cEntryEditor::eSaved cEntryEditor::Save(const cFields& fields)
{
    const std::optional<double> amount = modAmount::TryReadGerman(fields.Amount);
    if (!amount) {
        return eSaved::BadAmount;
    }
    if (!Check(fields)) {
        return eSaved::Refused;
    }
    const qint64 cents = modAmount::ToCents(*amount);
    std::optional<cEntryItem> entry = Build(fields, cents < 0 ? -cents : cents);
    if (!entry) {
        (void)Refuse(cText::Tr("Eintrag konnte nicht erstellt werden!"));
        return eSaved::Refused;
    }
    const bool isStored = IsNew() ? m_data.AddNewEntry(*entry) : Change(*entry);
    return isStored ? eSaved::Saved : eSaved::Refused;
}
