#pragma once

#include <QObject>
#include <QTimer>

class cAccountListModel;
class cAmountFormat;
class cClock;
class cDataAccess;

// Looks ahead for accounts that fall below their limits and marks them in the accounts panel. It does so a moment after
// the panel was filled, so that neither the start nor a click waits for it, and once for several changes in a row.
class cLimitWatch final : public QObject
{
    Q_OBJECT

public:
    // All of these outlive the watch.
    cLimitWatch(cDataAccess& data, const cAmountFormat& format, const cClock& clock, cAccountListModel& accounts);

    void Look(); // at once

private:
    cDataAccess& m_data;
    const cAmountFormat& m_format;
    const cClock& m_clock;
    cAccountListModel& m_accounts;
    QTimer tmrLook;
};
