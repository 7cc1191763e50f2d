#include "import/match/modMatchScore.h"

#include "base/cText.h"
#include "base/modSum.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double amountWeight = 0.5;
constexpr double dayWeight = 0.2;
constexpr double textWeight = 0.3;
constexpr double onlyBonus = 0.1;
constexpr double roundedPart = 0.8; // of the amount, when it was written down in whole euros

bool HasSameAmount(const modMatchScore::cEvidence& evidence)
{
    return evidence.RowCents == evidence.EntryCents;
}

// Whole euros are what people write down or remember of a receipt.
bool IsRounded(const modMatchScore::cEvidence& evidence)
{
    return !evidence.IsSeries && evidence.EntryCents % 100 == 0
        && std::abs(evidence.RowCents - evidence.EntryCents) < 100;
}

double AmountPart(const modMatchScore::cEvidence& evidence)
{
    // Rents are raised and advance payments adjusted; a purchase has one price.
    const double steepness = evidence.IsSeries ? 5.0 : 10.0;
    const auto larger = static_cast<double>(std::max(evidence.RowCents, evidence.EntryCents));
    const auto difference = static_cast<double>(std::abs(evidence.RowCents - evidence.EntryCents));
    const double part = larger > 0.0 ? std::max(0.0, 1.0 - steepness * difference / larger) : 0.0;
    return IsRounded(evidence) ? std::max(part, roundedPart) : part;
}

double DayPart(const modMatchScore::cEvidence& evidence)
{
    return std::max(0.0, 1.0 - std::abs(evidence.Days) / (2.0 * modMatchScore::FarthestDays));
}

double Sum(const modMatchScore::cEvidence& evidence, double text)
{
    const double sum = amountWeight * AmountPart(evidence) + dayWeight * DayPart(evidence) + textWeight * text
        + (evidence.IsOnly && HasSameAmount(evidence) ? onlyBonus : 0.0);
    return std::round(std::min(sum, 1.0) * 1000.0) / 1000.0;
}

QString AmountText(const modMatchScore::cEvidence& evidence)
{
    if (!HasSameAmount(evidence)) {
        return cText::Tr("Betrag {0} statt {1}",
                         {modSum::ToText(evidence.RowCents), modSum::ToText(evidence.EntryCents)});
    }
    return evidence.IsOnly ? cText::Tr("einziger Eintrag mit diesem Betrag") : cText::Tr("gleicher Betrag");
}

QString TextText(const modMatchScore::cEvidence& evidence)
{
    using modMatchScore::eTextMatch;
    switch (evidence.TextMatch) {
    case eTextMatch::Category: return cText::Tr("passende Kategorie");
    case eTextMatch::Purpose: return cText::Tr("Text ähnlich");
    case eTextMatch::Payee: return cText::Tr("Empfänger ähnlich");
    case eTextMatch::Earlier: return cText::Tr("wie frühere Umsätze");
    case eTextMatch::OwnAccount: return cText::Tr("eigenes Konto");
    case eTextMatch::None: break;
    }
    return {};
}

} // namespace

QString modMatchScore::DayText(int days)
{
    const QStringList count{QString::number(std::abs(days))};
    if (days == 0) {
        return cText::Tr("gleicher Tag");
    }
    if (std::abs(days) == 1) {
        return days > 0 ? cText::Tr("einen Tag später") : cText::Tr("einen Tag früher");
    }
    return days > 0 ? cText::Tr("{0} Tage später", count) : cText::Tr("{0} Tage früher", count);
}

double modMatchScore::Score(const cEvidence& evidence)
{
    // A standing order carried out as planned needs no word in common.
    if (evidence.IsSeries && evidence.Days == 0 && HasSameAmount(evidence)) {
        return 1.0;
    }
    const double score = Sum(evidence, evidence.Text);
    const bool isKeptBack = !evidence.IsSeries && !HasSameAmount(evidence) && score >= AssignAt;
    return isKeptBack ? AssignAt - 0.001 : score;
}

bool modMatchScore::IsPossible(const cEvidence& evidence)
{
    return Sum(evidence, 1.0) >= ListAt;
}

QString modMatchScore::Reason(const cEvidence& evidence)
{
    QStringList parts{AmountText(evidence), DayText(evidence.Days), TextText(evidence)};
    parts.removeAll(QString());
    return parts.join(u", "_s);
}
