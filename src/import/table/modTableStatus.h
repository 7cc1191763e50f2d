#pragma once

#include <QStringView>

// What banks write beside a row about its state.
namespace modTableStatus {

enum class eState {
    Unknown,
    Booked,
    Pending, // comes again when it is booked
    Void,    // was called off and moved no money
};

// A cell of the column that holds the state, in any case; a pending word may stand within a few others ("Umsatz
// vorgemerkt"). Unknown for an empty cell.
[[nodiscard]] eState Of(QStringView cell);

// The same for a cell of any other column: only words that mean nothing else. Unknown for all but Pending and Void.
[[nodiscard]] eState OfAny(QStringView cell);

} // namespace modTableStatus
