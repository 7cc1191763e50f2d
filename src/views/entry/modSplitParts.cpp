#include "views/entry/modSplitParts.h"

#include "base/cText.h"
#include "base/modSum.h"

#include <algorithm>
#include <cstdlib>

namespace {

std::optional<qint64> CentsOf(const cSplitPart& part)
{
    return part.Amount.trimmed().isEmpty() ? 0 : modSum::Evaluate(part.Amount);
}

} // namespace

bool modSplitParts::IsBlank(const cSplitPart& part)
{
    return part.Category.isEmpty() && part.Description.trimmed().isEmpty() && CentsOf(part) == 0;
}

qsizetype modSplitParts::CountFilled(const cEntryFields& fields)
{
    return std::count_if(fields.Parts.begin(), fields.Parts.end(),
                         [](const cSplitPart& part) { return !IsBlank(part); });
}

std::optional<qint64> modSplitParts::Rest(const cEntryFields& fields)
{
    std::optional<qint64> rest = modSum::Evaluate(fields.Amount);
    if (!rest) {
        return std::nullopt;
    }
    *rest = std::abs(*rest);
    for (const cSplitPart& part : fields.Parts) {
        const std::optional<qint64> cents = CentsOf(part);
        if (!cents) {
            return std::nullopt;
        }
        *rest -= *cents;
    }
    return rest;
}

QString modSplitParts::RestText(const cEntryFields& fields)
{
    const std::optional<qint64> rest = Rest(fields);
    if (!rest) {
        return cText::Tr("Ein Betrag ist keine Zahl.");
    }
    return *rest == 0 ? cText::Tr("Die Summe stimmt.") : cText::Tr("Rest: {0}", {AmountText(*rest)});
}

bool modSplitParts::FillRest(qsizetype row, cEntryFields& fields)
{
    const std::optional<qint64> rest = Rest(fields);
    if (!rest || row < 0 || row >= fields.Parts.size()) {
        return false;
    }
    cSplitPart& part = fields.Parts[row];
    part.Amount = AmountText(CentsOf(part).value_or(0) + *rest);
    return true;
}

QString modSplitParts::AmountText(qint64 cents)
{
    return modSum::ToText(cents);
}
