#include "views/sheet/cCellEdit.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cSeriesChange.h"
#include "views/entry/cStartBalance.h"
#include "views/entry/modSplitParts.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

using eColumn = cEntryListModel::eColumn;

// A text that is no category yet goes where the check offers to make one of it.
void SetCategory(const QStringList& known, const QString& typed, QString& path, QString& text)
{
    const bool isKnown = known.contains(typed) || typed == path;
    path = isKnown ? typed : QString();
    text = isKnown ? QString() : typed;
}

} // namespace

cCellEdit::cCellEdit(const cBookTools& tools) : m_tools(tools)
{
    m_suggestions.emplace(tools.Data, tools.User);
}

bool cCellEdit::IsEditable(int column)
{
    return column == eColumn::Category || column == eColumn::Description || column == eColumn::Amount;
}

bool cCellEdit::IsReadOnly() const
{
    return m_tools.Data.IsReadOnly();
}

eDecimal cCellEdit::Decimal() const
{
    return m_tools.Format.Decimal();
}

std::optional<QString> cCellEdit::Text(const cEntryListModel::cKey& key, int column) const
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(key.ID);
    if (!entry || !IsEditable(column)) {
        return std::nullopt;
    }
    if (column == eColumn::Category) {
        return entry->EntryCategory;
    }
    if (column == eColumn::Description) {
        return entry->EntryDescription;
    }
    if (cStartBalance(m_tools.Data, Decimal()).IsOne(*entry)) {
        return cStartBalance(m_tools.Data, Decimal()).Show(entry->EntryAccount).Amount;
    }
    const std::optional<cEntryItemFixMod> correction = cSeriesChange(m_tools).Correction(key.ID, key.Day);
    return modSum::ToText(correction ? correction->EntryValue : entry->EntryValue, Decimal());
}

bool cCellEdit::Takes(const cEntryListModel::cKey& key, int column) const
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(key.ID);
    return column == eColumn::Amount || !entry || !cStartBalance(m_tools.Data, Decimal()).IsOne(*entry);
}

std::optional<QString> cCellEdit::Start(const cEntryListModel::cKey& key, int column)
{
    m_suggestions.emplace(m_tools.Data, m_tools.User);
    if (!Takes(key, column)) {
        m_tools.User.Refuse(cText::Tr("Von einem Startguthaben lässt sich in der Liste nur der Betrag ändern."));
        return std::nullopt;
    }
    return Text(key, column);
}

QString cCellEdit::Fault(int column, const QString& typed) const
{
    if (column == eColumn::Amount) {
        return modSum::Evaluate(typed, Decimal()) ? QString() : modSum::Fault(typed, Decimal());
    }
    return column == eColumn::Category && typed.trimmed().isEmpty() ? cText::Tr("Bitte erst eine Kategorie wählen!")
                                                                    : QString();
}

cCellEdit::eSaved cCellEdit::Save(const cEntryListModel::cKey& key, int column, const QString& typed)
{
    m_saved = key;
    const std::optional<QString> before = Text(key, column);
    if (!before) {
        return eSaved::Unchanged; // it was deleted meanwhile
    }
    if (const QString fault = Fault(column, typed); !fault.isEmpty()) {
        m_tools.User.Refuse(fault);
        return eSaved::Refused;
    }
    const bool isSame = column == eColumn::Amount
        ? modSum::Evaluate(typed, Decimal()) == modSum::Evaluate(*before, Decimal())
        : typed == *before;
    if (isSame) {
        return eSaved::Unchanged;
    }
    const ePart part = AskPart(key, column);
    if (part == ePart::Nothing) {
        return eSaved::Refused;
    }
    const bool isStored = part == ePart::Period ? SavePeriod(key, typed)
        : column == eColumn::Amount             ? SaveAmount(key, typed, part)
                                                : Store(key, column, typed, part);
    return isStored ? eSaved::Saved : eSaved::Refused;
}

// Amounts can differ from one occurrence to the next; category and description belong to the series.
cCellEdit::ePart cCellEdit::AskPart(const cEntryListModel::cKey& key, int column) const
{
    cSeriesChange series(m_tools);
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(key.ID);
    if (!entry || !series.IsOccurrence(key.ID, key.Day)) {
        return ePart::Whole;
    }
    if (column == eColumn::Amount) {
        switch (series.AskWhatToEdit(key.ID, key.Day)) {
        case cSeriesChange::eEdit::Nothing: return ePart::Nothing;
        case cSeriesChange::eEdit::Period: return ePart::Period;
        case cSeriesChange::eEdit::FromHere: return ePart::FromHere;
        case cSeriesChange::eEdit::Entry: return ePart::Whole;
        }
    }
    QList<ePart> parts{ePart::Whole};
    QStringList options{cText::Tr("Ganze Serie")};
    if (key.Day > entry->EntryDate) {
        parts.prepend(ePart::FromHere);
        options.prepend(cText::Tr("Ab hier"));
    }
    const int choice = m_tools.User.Decide(
        {.Text = cText::Tr("'{0}' vom {1} gehört zu einer Serie ({2} seit {3}).\nKategorie und Beschreibung sind "
                           "bei allen Vorkommen gleich. Was möchten Sie ändern?",
                           {entry->Name(), series.DayText(key.ID, key.Day),
                            modWord::Intervals().ToShown(entry->EntryInterval), modDate::ToText(entry->EntryDate)}),
         .Title = cText::Tr("Serie bearbeiten"),
         .Options = options});
    return parts.value(choice, ePart::Nothing);
}

bool cCellEdit::SavePeriod(const cEntryListModel::cKey& key, const QString& typed) const
{
    cSeriesChange series(m_tools);
    const std::optional<cEntryItemFixMod> correction = series.Correction(key.ID, key.Day);
    return series.CorrectPeriod(key.ID, key.Day, modSum::Evaluate(typed, Decimal()).value_or(0),
                                correction ? correction->EntryComment : QString());
}

// Where the occurrence in the cell is corrected, what was typed there counts for it as well.
bool cCellEdit::SaveAmount(const cEntryListModel::cKey& key, const QString& typed, ePart part)
{
    const std::optional<cEntryItemFixMod> correction = cSeriesChange(m_tools).Correction(key.ID, key.Day);
    if (!correction) {
        return Store(key, eColumn::Amount, typed, part);
    }
    const cEntryItem entry = m_tools.Data.LoadEntry(key.ID).value_or(cEntryItem{});
    cUndoStep step(m_tools.Data, cText::Tr("Eintrag '{0}' geändert", {entry.Name()}));
    return step.DoneIf(Store(key, eColumn::Amount, typed, part) && FollowCorrection(*correction, typed));
}

bool cCellEdit::FollowCorrection(const cEntryItemFixMod& correction, const QString& typed) const
{
    cSeriesChange series(m_tools);
    if (!series.Correction(m_saved.ID, m_saved.Day)) {
        return true; // its period has changed
    }
    return correction.EntryDay.isValid() || !correction.EntryComment.isEmpty() // which are kept
        ? series.CorrectPeriod(m_saved.ID, m_saved.Day, modSum::Evaluate(typed, Decimal()).value_or(0),
                               correction.EntryComment)
        : series.RemoveCorrection(m_saved.ID, m_saved.Day);
}

bool cCellEdit::Store(const cEntryListModel::cKey& key, int column, const QString& typed, ePart part)
{
    cEntryEditor editor(m_tools);
    std::optional<cEntryFields> fields =
        part == ePart::FromHere ? editor.LoadFrom(key.ID, key.Day) : editor.Load(key.ID);
    if (!fields) {
        return false;
    }
    const bool isFilled =
        fields->Face == eEntryFace::Split ? FillPart(*fields, key.ID, column, typed) : Fill(*fields, column, typed);
    if (!isFilled || editor.Save(*fields) != eEntrySaved::Saved) {
        return false;
    }
    if (part == ePart::FromHere) {
        m_saved.ID = SavedIdOf(key.ID, *fields, editor);
    }
    return true;
}

// The later part of a series is stored anew, with its filled parts in their order.
int cCellEdit::SavedIdOf(int id, const cEntryFields& fields, const cEntryEditor& editor)
{
    qsizetype at = 0;
    for (const cSplitPart& part : fields.Parts) {
        if (part.ID == id) {
            return editor.SavedIds().value(at, editor.SavedId());
        }
        at += modSplitParts::IsBlank(part, fields.Decimal) ? 0 : 1;
    }
    return editor.SavedId();
}

bool cCellEdit::Fill(cEntryFields& fields, int column, const QString& typed) const
{
    if (column == eColumn::Category) {
        SetCategory(cEntrySuggestions::VisibleCategories(m_tools.Data), typed, fields.Category, fields.CategoryText);
    } else if (column == eColumn::Description) {
        fields.Description = typed;
    } else {
        fields.Amount = typed;
        fields.IsAmountTyped = true;
    }
    return true;
}

// The whole amount follows that of the part.
bool cCellEdit::FillPart(cEntryFields& fields, int id, int column, const QString& typed) const
{
    const auto part =
        std::find_if(fields.Parts.begin(), fields.Parts.end(), [&](const cSplitPart& other) { return other.ID == id; });
    if (part == fields.Parts.end()) {
        return false;
    }
    if (column == eColumn::Category) {
        SetCategory(cEntrySuggestions::VisibleCategories(m_tools.Data), typed, part->Category, part->CategoryText);
        return true;
    }
    if (column == eColumn::Description) {
        part->Description = typed;
        return true;
    }
    const qint64 size = std::abs(modSum::Evaluate(typed, Decimal()).value_or(0));
    const bool isOpposite = modSum::Evaluate(part->Amount, Decimal()).value_or(0) < 0;
    return modSplitParts::SetAmount(part - fields.Parts.begin(), isOpposite ? -size : size, fields) >= 0
        || m_tools.User.Refuse(
            cText::Tr("Die Teile kämen zusammen unter null. Öffnen Sie den Eintrag, um alle Teile zu ändern."));
}
