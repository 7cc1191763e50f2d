#include "views/entry/cEntryCheck.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/entry/modEntryFields.h"
#include "views/entry/modSplitParts.h"

#include <algorithm>

namespace {

bool IsSplit(const cEntryFields& fields)
{
    return fields.Face == eEntryFace::Split;
}

} // namespace

eEntrySaved cEntryCheck::Check(cEntryFields& fields)
{
    if (const eEntrySaved amounts = CheckAmounts(fields); amounts != eEntrySaved::Saved) {
        return amounts;
    }
    const bool isRight = fields.Face == eEntryFace::StartBalance ? CheckAccount(fields) : CheckChoices(fields);
    return isRight ? CheckDays(fields) : eEntrySaved::Refused;
}

eEntrySaved cEntryCheck::CheckAmounts(const cEntryFields& fields)
{
    if (!modSum::Evaluate(fields.Amount, fields.Decimal)) {
        return eEntrySaved::BadAmount;
    }
    for (int row = 0; IsSplit(fields) && row < fields.Parts.size(); ++row) {
        const cSplitPart& part = fields.Parts.at(row);
        if (!modSplitParts::IsBlank(part, fields.Decimal) && !modSum::Evaluate(part.Amount, fields.Decimal)) {
            m_failedPart = row;
            return eEntrySaved::BadPart;
        }
    }
    return eEntrySaved::Saved;
}

bool cEntryCheck::CheckChoices(cEntryFields& fields)
{
    if (!OfferNew(fields)) {
        return false;
    }
    if (!HasCategory(fields)) {
        return m_tools.User.Refuse(cEntrySuggestions::VisibleCategories(m_tools.Data).isEmpty()
                                       ? cText::Tr("Bitte erst neue Kategorien anlegen und diese Buchung einordnen!")
                                       : cText::Tr("Bitte erst eine Kategorie wählen!"));
    }
    return CheckType(fields) && CheckAccount(fields) && (!IsSplit(fields) || CheckParts(fields));
}

bool cEntryCheck::CheckType(const cEntryFields& fields) const
{
    return !fields.Type.isEmpty() || m_tools.User.Refuse(cText::Tr("Bitte erst eine Buchungsart wählen!"));
}

// Categories that are typed and not there yet; false when the user does not want one. The kind has to be known, because
// it becomes that of the category.
bool cEntryCheck::OfferNew(cEntryFields& fields)
{
    const auto take = [&](QString& path, QString& typed) {
        if (path.isEmpty() && !typed.isEmpty() && CheckType(fields)) {
            path = m_suggestions.OfferNew(typed, fields.Type);
            typed = path.isEmpty() ? typed : QString();
        }
        return typed.isEmpty();
    };
    if (!IsSplit(fields)) {
        return take(fields.Category, fields.CategoryText);
    }
    for (int row = 0; row < fields.Parts.size(); ++row) {
        if (!take(fields.Parts[row].Category, fields.Parts[row].CategoryText)) {
            m_failedPart = row;
            return false;
        }
    }
    return true;
}

bool cEntryCheck::HasCategory(const cEntryFields& fields)
{
    if (!IsSplit(fields)) {
        return !fields.Category.isEmpty();
    }
    const auto missing = std::find_if(fields.Parts.begin(), fields.Parts.end(), [&](const cSplitPart& part) {
        return part.Category.isEmpty() && !modSplitParts::IsBlank(part, fields.Decimal);
    });
    const bool isMissing = missing != fields.Parts.end();
    if (!isMissing && modSplitParts::CountFilled(fields) > 0) {
        return true;
    }
    m_failedPart = isMissing ? static_cast<int>(missing - fields.Parts.begin()) : 0;
    return false;
}

bool cEntryCheck::CheckAccount(const cEntryFields& fields) const
{
    return !fields.Account.isEmpty()
        || m_tools.User.Refuse(cEntrySuggestions::VisibleAccounts(m_tools.Data).isEmpty()
                                   ? cText::Tr("Bitte erst neue Konten anlegen und diese Buchung einordnen!")
                                   : cText::Tr("Bitte erst ein Konto wählen!"));
}

bool cEntryCheck::CheckParts(const cEntryFields& fields) const
{
    if (fields.Type == modWord::Umbuchung) {
        return m_tools.User.Refuse(cText::Tr("Eine Umbuchung kann nicht aufgeteilt werden."));
    }
    const qint64 rest = modSplitParts::Rest(fields).value_or(0);
    return rest == 0
        || m_tools.User.Refuse(cText::Tr("Die Teile ergeben nicht den ganzen Betrag. Es bleibt ein Rest von {0}.",
                                         {m_tools.Format.Cents(rest)}));
}

eEntrySaved cEntryCheck::CheckDays(const cEntryFields& fields) const
{
    if (!modEntryFields::FirstDay(fields, m_tools.Clock.Today()).isValid() && !modEntryFields::KeepsDay(fields)) {
        return eEntrySaved::BadDate;
    }
    const bool isSeries = fields.Face != eEntryFace::StartBalance && modRecurrence::IsRecurring(fields.Interval);
    if (isSeries && !modEntryFields::LastDay(fields, m_tools.Clock.Today()).isValid()) {
        return eEntrySaved::BadEnd;
    }
    return isSeries && !modEntryFields::IsCancelByReadable(fields, m_tools.Clock.Today()) ? eEntrySaved::BadCancelBy
                                                                                          : eEntrySaved::Saved;
}
