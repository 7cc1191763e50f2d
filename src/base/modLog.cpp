#include "base/modLog.h"

namespace modLog {

// Only what stops the program is let through without being asked for.
Q_LOGGING_CATEGORY(Open, "kontorelle.open", QtFatalMsg)
Q_LOGGING_CATEGORY(Upgrade, "kontorelle.upgrade", QtFatalMsg)
Q_LOGGING_CATEGORY(Import, "kontorelle.import", QtFatalMsg)
Q_LOGGING_CATEGORY(Booking, "kontorelle.booking", QtFatalMsg)
Q_LOGGING_CATEGORY(Bank, "kontorelle.bank", QtFatalMsg)
Q_LOGGING_CATEGORY(Backup, "kontorelle.backup", QtFatalMsg)

} // namespace modLog
