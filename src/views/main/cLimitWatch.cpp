#include "views/main/cLimitWatch.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "views/chart/cForecast.h"
#include "views/main/cAccountListModel.h"

namespace {

constexpr int delay = 250; // milliseconds; the window has been painted by then

} // namespace

cLimitWatch::cLimitWatch(const cBookTools& tools, cAccountListModel& accounts) : m_tools(tools), m_accounts(accounts)
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
    const QList<cLimitWarning> warnings = cForecast(m_tools.Data, m_tools.Clock.Today()).Warnings();
    for (const cLimitWarning& warning : warnings) {
        texts.insert(warning.Account, cForecast::Text(warning, m_tools.Format));
    }
    m_accounts.SetWarnings(texts);
}
