#pragma once

class cStaging;
struct cStatementRead;

// Bookings in parts of another household book. Earlier versions of the program staged one row for all of the parts.
namespace modWholeBookings {

// Where that row is staged it takes the place of its parts, so that the duplicate test knows it.
void UseIn(cStatementRead& read, cStaging& staging);

} // namespace modWholeBookings
