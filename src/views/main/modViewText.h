#pragma once

#include "model/modPeriod.h"

#include <QString>
#include <QStringList>

struct cViewState;

// What the user looks at, in words: above a printed or exported list.
namespace modViewText {

// "Einträge: Girokonto", or without the account when all are shown.
[[nodiscard]] QString Title(const cViewState& view);

// How a choice of payers is called; see modPeople.
[[nodiscard]] QString PayerText(const QString& choice);

// What the figures beside the accounts are.
[[nodiscard]] QString Balances(const cViewState& view, QDate today);

// Period with its days and account, then one line each for whatever narrows or orders the list.
[[nodiscard]] QStringList Lines(const cViewState& view, const modPeriod::cRange& range);

} // namespace modViewText
