#pragma once

#include <QString>

// How well a bank transaction and an entry of the book go together.
//
//   score = 0.5 * amount + 0.2 * day + 0.3 * text + 0.1 when no other entry nearby has exactly this amount, at most 1
//
//   amount  1 for the same cents. It falls by 10 times the difference's share of the larger amount, to 0 at 10 %;
//           of a series by 5 times, to 0 at 20 %. An entry in whole euros that is less than one away has 0.8 at least.
//   day     1 on the same day, then 0.05 less a day: 0.5 after ten days.
//   text    The best of what purpose, payee and category say, see cMatchText.
//
// So the amount alone never assigns; amount and day without a word in common are a proposal when they are unmistakable,
// and a payee that is the same makes up for ten days. An entry that happens once is not assigned unseen when its amount
// differs, because the balance of its account would then be wrong; an occurrence is, its correction being offered.
namespace modMatchScore {

inline constexpr int FarthestDays = 10;  // between entry and transaction
inline constexpr double AssignAt = 0.9;  // assigned at once
inline constexpr double ProposeAt = 0.8; // proposed
inline constexpr double ListAt = 0.7;    // shown among the candidates

// What the texts have in common, the best of it.
enum class eTextMatch { None, Category, Purpose, Payee, Earlier, OwnAccount };

struct cEvidence
{
    qint64 RowCents = 0; // both amounts without sign
    qint64 EntryCents = 0;
    int Days = 0;        // from the entry to the transaction
    bool IsOnly = false; // no other entry nearby has exactly this amount
    bool IsSeries = false;
    double Text = 0.0; // 0 to 1
    eTextMatch TextMatch = eTextMatch::None;
};

// 0 to 1, rounded to thousandths so that the thresholds hold exactly.
[[nodiscard]] double Score(const cEvidence& evidence);

// False when no text could lift the pair over ListAt; its texts need not be compared then.
[[nodiscard]] bool IsPossible(const cEvidence& evidence);

// "2 Tage später"
[[nodiscard]] QString DayText(int days);

// For the user: "gleicher Betrag, 2 Tage später, Empfänger stimmt überein".
[[nodiscard]] QString Reason(const cEvidence& evidence);

} // namespace modMatchScore
