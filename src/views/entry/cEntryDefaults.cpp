#include "views/entry/cEntryDefaults.h"

#include "base/modSum.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntrySuggestions.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

void cEntryDefaults::TakeCategory(const QString& path, cEntryFields& fields) const
{
    fields.Category = path;
    if (!fields.IsAmountTyped) {
        fields.Amount = modSum::ToText(0);
    }
    TakeTemplate(path, fields);
}

void cEntryDefaults::TakeTemplate(const QString& path, cEntryFields& fields) const
{
    const cTemplateItemList templates = m_data.GetTemplates();
    const auto chosen = std::find_if(templates.begin(), templates.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::Path(item) == path;
    });
    if (chosen == templates.end()) {
        return;
    }
    // The value of a category is its monthly limit; only where it recurs is it also what will be paid.
    const qint64 proposed =
        modRecurrence::IsRecurring(chosen->EntryInterval) ? std::abs(modTemplate::DefaultValueCents(*chosen)) : 0;
    if (!fields.IsAmountTyped && proposed != 0) {
        fields.Amount = modSum::ToText(proposed);
    }
    // A category may hold a word of the filters, such as "Alle Buchungsarten"; that is no kind of entry.
    if (fields.Type.isEmpty() && modWord::EntryTypes().Contains(chosen->EntryType)) {
        fields.Type = chosen->EntryType;
    }
    if (fields.Interval.isEmpty() && modWord::Intervals().Contains(chosen->EntryInterval)) {
        fields.Interval = chosen->EntryInterval;
    }
}

void cEntryDefaults::TakePartCategory(qsizetype row, const QString& path, cEntryFields& fields) const
{
    if (row < 0 || row >= fields.Parts.size()) {
        return;
    }
    fields.Parts[row].Category = path;
    // The value of one category says nothing about the whole.
    const bool isAmountTyped = std::exchange(fields.IsAmountTyped, true);
    TakeTemplate(path, fields);
    fields.IsAmountTyped = isAmountTyped;
}

void cEntryDefaults::TakeDescription(const QString& text, cEntrySuggestions& suggestions, cEntryFields& fields) const
{
    fields.Description = text;
    const cEntrySuggestions::cUse use = suggestions.LatestUse(text);
    if (fields.Category.isEmpty() && cEntrySuggestions::VisibleCategories(m_data).contains(use.Category)) {
        TakeCategory(use.Category, fields);
    }
    if (!fields.IsAccountChosen && cEntrySuggestions::VisibleAccounts(m_data).contains(use.Account)) {
        fields.Account = use.Account;
    }
}

void cEntryDefaults::TakePartDescription(qsizetype row, const QString& text, cEntrySuggestions& suggestions,
                                         cEntryFields& fields) const
{
    if (row < 0 || row >= fields.Parts.size()) {
        return;
    }
    fields.Parts[row].Description = text;
    const QString category = suggestions.LatestUse(text).Category;
    if (fields.Parts.at(row).Category.isEmpty() && cEntrySuggestions::VisibleCategories(m_data).contains(category)) {
        TakePartCategory(row, category, fields);
    }
}
