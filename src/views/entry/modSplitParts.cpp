#include "views/entry/modSplitParts.h"

#include "base/cText.h"
#include "base/modSum.h"

#include <algorithm>
#include <cstdlib>

namespace {

std::optional<qint64> CentsOf(const cSplitPart& part, eDecimal decimal)
{
    return part.Amount.trimmed().isEmpty() ? 0 : modSum::Evaluate(part.Amount, decimal);
}

} // namespace

bool modSplitParts::IsBlank(const cSplitPart& part, eDecimal decimal)
{
    return part.Category.isEmpty() && part.CategoryText.isEmpty() && part.Description.trimmed().isEmpty()
        && CentsOf(part, decimal) == 0;
}

qsizetype modSplitParts::CountFilled(const cEntryFields& fields)
{
    return std::count_if(fields.Parts.begin(), fields.Parts.end(),
                         [&](const cSplitPart& part) { return !IsBlank(part, fields.Decimal); });
}

std::optional<qint64> modSplitParts::Rest(const cEntryFields& fields)
{
    std::optional<qint64> rest = modSum::Evaluate(fields.Amount, fields.Decimal);
    if (!rest) {
        return std::nullopt;
    }
    *rest = std::abs(*rest);
    for (const cSplitPart& part : fields.Parts) {
        const std::optional<qint64> cents = CentsOf(part, fields.Decimal);
        if (!cents) {
            return std::nullopt;
        }
        *rest -= *cents;
    }
    return rest;
}

QString modSplitParts::RestText(const cEntryFields& fields)
{
    if (fields.Face != eEntryFace::Split) {
        return {}; // nobody sees it: the amount need not be evaluated
    }
    const std::optional<qint64> rest = Rest(fields);
    if (!rest) {
        return cText::Tr("Ein Betrag ist keine Zahl.");
    }
    if (*rest == 0 && CountFilled(fields) == 0) {
        return {};
    }
    return *rest == 0 ? cText::Tr("Die Summe stimmt.") : cText::Tr("Rest: {0}", {AmountText(*rest, fields.Decimal)});
}

bool modSplitParts::FillRest(qsizetype row, cEntryFields& fields)
{
    const std::optional<qint64> rest = Rest(fields);
    if (!rest || row < 0 || row >= fields.Parts.size()) {
        return false;
    }
    cSplitPart& part = fields.Parts[row];
    part.Amount = AmountText(CentsOf(part, fields.Decimal).value_or(0) + *rest, fields.Decimal);
    return true;
}

qint64 modSplitParts::SetAmount(qsizetype row, qint64 cents, cEntryFields& fields)
{
    fields.Parts[row].Amount = AmountText(cents, fields.Decimal);
    const qint64 whole = modSum::Evaluate(fields.Amount, fields.Decimal).value_or(0) - Rest(fields).value_or(0);
    fields.Amount = modSum::ToText(whole, fields.Decimal);
    return whole;
}

QString modSplitParts::AmountText(qint64 cents, eDecimal decimal)
{
    return modSum::ToText(cents, decimal);
}
