#include "views/main/cLimitWatch.h"

#include "base/cClock.h"
#include "views/chart/cForecast.h"
#include "views/main/cAccountListModel.h"

namespace {

constexpr int delay = 250; // milliseconds; the window has been painted by then

} // namespace

cLimitWatch::cLimitWatch(cDataAccess& data, const cAmountFormat& format, const cClock& clock,
                         cAccountListModel& accounts)
    : m_data(data),
      m_format(format),
      m_clock(clock),
      m_accounts(accounts)
{
    tmrLook.setSingleShot(true);
    tmrLook.setInterval(delay);
    connect(&tmrLook, &QTimer::timeout, this, &cLimitWatch::Look);
    connect(&m_accounts, &QAbstractItemModel::modelReset, this, [this] { tmrLook.start(); });
}

void cLimitWatch::Look()
{
    tmrLook.stop();
    QHash<QString, QString> texts;
    const QList<cLimitWarning> warnings = cForecast(m_data, m_clock.Today()).Warnings();
    for (const cLimitWarning& warning : warnings) {
        texts.insert(warning.Account, cForecast::Text(warning, m_format));
    }
    m_accounts.SetWarnings(texts);
}
