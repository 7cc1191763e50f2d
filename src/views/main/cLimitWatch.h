#pragma once

#include <QObject>
#include <QTimer>

class cAccountListModel;
struct cBookTools;

// Looks ahead for accounts that fall below their limits and marks them in the accounts panel. It does so a moment after
// the panel was filled, so that neither the start nor a click waits for it, and once for several changes in a row.
class cLimitWatch final : public QObject
{
    Q_OBJECT

public:
    // Both outlive the watch.
    cLimitWatch(const cBookTools& tools, cAccountListModel& accounts);

    void Look(); // at once

private:
    const cBookTools& m_tools;
    cAccountListModel& m_accounts;
    QTimer tmrLook;
};
