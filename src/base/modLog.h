#pragma once

#include <QLoggingCategory>

// A trace for the field: what the program did at its ports, one line for each. Off unless the environment asks for it,
// as in QT_LOGGING_RULES="kontorelle.*=true". A trace is handed to strangers, so it holds kinds, counts, versions,
// milliseconds and codes, and never an amount, a name, a purpose, a number of an account or the name of a file or
// folder.
namespace modLog {

Q_DECLARE_LOGGING_CATEGORY(Open)    // kontorelle.open: a book is opened
Q_DECLARE_LOGGING_CATEGORY(Upgrade) // kontorelle.upgrade: and gets the tables of today
Q_DECLARE_LOGGING_CATEGORY(Import)  // kontorelle.import: a statement is read and staged
Q_DECLARE_LOGGING_CATEGORY(Booking) // kontorelle.booking: staged rows become entries
Q_DECLARE_LOGGING_CATEGORY(Bank)    // kontorelle.bank: a message to a bank and its answer
Q_DECLARE_LOGGING_CATEGORY(Backup)  // kontorelle.backup: a copy is made or put back

} // namespace modLog
