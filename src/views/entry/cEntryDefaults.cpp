#include "views/entry/cEntryDefaults.h"

#include "base/cVocabulary.h"
#include "base/modSum.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntrySuggestions.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

// The category of that path; null for a path that only entries know.
const cTemplateItem* Find(const cTemplateItemList& templates, const QString& path)
{
    const auto found = std::find_if(templates.begin(), templates.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::Path(item) == path;
    });
    return found == templates.end() ? nullptr : &*found;
}

// The first of the words that is one; a category may hold a word of the filters, such as "Alle Buchungsarten".
QString First(const QStringList& words, const cVocabulary& known)
{
    const auto first =
        std::find_if(words.begin(), words.end(), [&](const QString& word) { return known.Contains(word); });
    return first == words.end() ? QString() : *first;
}

// Replaces what nobody has chosen.
void Bring(const QString& word, QString& field, QString& brought)
{
    if (field.isEmpty() || field == brought) {
        field = brought = word;
    }
}

} // namespace

void cEntryDefaults::TakeCategory(const QString& path, cEntryFields& fields) const
{
    fields.Category = path;
    fields.CategoryText = path.isEmpty() ? fields.CategoryText : QString();
    TakeOpen({path}, fields);
    if (fields.IsAmountTyped) {
        return;
    }
    const cTemplateItemList templates = m_data.GetTemplates();
    const cTemplateItem* chosen = Find(templates, path);
    // The value of a category is its monthly limit; only where it recurs is it also what will be paid.
    const bool isProposed = chosen != nullptr && modRecurrence::IsRecurring(chosen->EntryInterval);
    fields.Amount = modSum::ToText(isProposed ? std::abs(modTemplate::DefaultValueCents(*chosen)) : 0, fields.Decimal);
}

// Kind and interval, each from the first of the categories that brings one.
void cEntryDefaults::TakeOpen(const QStringList& paths, cEntryFields& fields) const
{
    const cTemplateItemList templates = m_data.GetTemplates();
    QStringList types;
    QStringList intervals;
    for (const QString& path : paths) {
        if (const cTemplateItem* item = Find(templates, path)) {
            types.append(item->EntryType);
            intervals.append(item->EntryInterval);
        }
    }
    const QString type = First(types, modWord::EntryTypes());
    Bring(type.isEmpty() ? fields.OpenType : type, fields.Type, fields.BroughtType);
    Bring(First(intervals, modWord::Intervals()), fields.Interval, fields.BroughtInterval);
}

void cEntryDefaults::TakePartCategory(qsizetype row, const QString& path, cEntryFields& fields) const
{
    if (row < 0 || row >= fields.Parts.size()) {
        return;
    }
    fields.Parts[row].Category = path;
    fields.Parts[row].CategoryText.clear();
    QStringList paths;
    for (const cSplitPart& part : std::as_const(fields.Parts)) {
        paths.append(part.Category);
    }
    TakeOpen(paths, fields); // but no amount: the value of one category says nothing about the whole
}

void cEntryDefaults::TakeDescription(const QString& text, cEntrySuggestions& suggestions, cEntryFields& fields) const
{
    fields.Description = text;
    const cEntrySuggestions::cUse use = suggestions.LatestUse(text);
    if (fields.Category.isEmpty() && fields.CategoryText.isEmpty()
        && cEntrySuggestions::VisibleCategories(m_data).contains(use.Category)) {
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
