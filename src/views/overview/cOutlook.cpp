#include "views/overview/cOutlook.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "model/modContract.h"
#include "store/cDataAccess.h"
#include "views/chart/cForecast.h"
#include "views/entry/cContracts.h"
#include "views/overview/modOverview.h"
#include "views/statement/cSeriesCheck.h"
#include "views/statement/cStatementDesk.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto lookDelay = 700ms;    // when the window and its first page stand
constexpr auto seriesDelay = 2200ms; // when that is done
constexpr auto seenDelay = 400ms;    // when the page stands that wants to show them
constexpr auto dayPause = 1min;

} // namespace

cOutlook::cOutlook(const cBookTools& tools, QObject* parent) : QObject(parent), m_tools(tools)
{
    tmrLook.setSingleShot(true);
    tmrSeries.setSingleShot(true);
    tmrDay.setInterval(dayPause);
    connect(&tmrLook, &QTimer::timeout, this, [this] { Look(); });
    connect(&tmrSeries, &QTimer::timeout, this, &cOutlook::LookAtSeries);
    connect(&tmrDay, &QTimer::timeout, this, &cOutlook::Tick);
}

void cOutlook::Start()
{
    m_lookedOn = m_tools.Clock.Today();
    tmrLook.start(lookDelay);
    tmrSeries.start(seriesDelay);
    tmrDay.start();
}

void cOutlook::Stop()
{
    tmrLook.stop();
    tmrSeries.stop();
    tmrDay.stop();
    m_lookedOn = {};
    m_day = {};
    m_series = {};
    Q_EMIT Looked();
}

// What is late follows from statements. What is entered may mend it, so the longer look is worth its time once there is
// something.
void cOutlook::BookChanged()
{
    if (!IsRunning()) {
        return;
    }
    tmrLook.start(lookDelay);
    if (m_series.Late > 0) {
        tmrSeries.start(seriesDelay);
    }
}

void cOutlook::StatementsChanged()
{
    if (IsRunning()) {
        tmrLook.start(lookDelay);
        tmrSeries.start(seriesDelay);
    }
}

void cOutlook::Tick()
{
    if (IsRunning() && m_lookedOn != m_tools.Clock.Today()) {
        m_lookedOn = m_tools.Clock.Today();
        Look();
        LookAtSeries();
    }
}

cEntryWindow cOutlook::Look(const modPeriod::cRange& days)
{
    tmrLook.stop();
    const QDate today = m_tools.Clock.Today();
    cEntryWindow window = m_tools.Data.GetWindow(days, today);
    m_day = {.Today = today,
             .Due = modOverview::Due(window.Entries, today, modOverview::DueDays),
             .Warnings = cForecast(m_tools.Data, today).Warnings(window),
             .Contracts = cContracts(m_tools).Ahead(modContract::NoticeDays, window)};
    if (!m_tools.Data.IsWhole()) {
        m_day = {};
    }
    Q_EMIT Looked();
    return window;
}

void cOutlook::Look()
{
    const QDate today = m_tools.Clock.Today();
    (void)Look({today, today.addDays(std::max(cForecast::WarningDays, modOverview::DueDays))});
}

void cOutlook::LookAtSeries()
{
    tmrSeries.stop();
    m_series = {};
    if (!m_tools.Data.GetImportAccounts().isEmpty()) { // without the bank's transactions nothing is late
        cStatementDesk desk(m_tools);
        const QList<cSeriesCheck::cFinding> findings = desk.Series().Find();
        m_series.Late = std::count_if(findings.begin(), findings.end(), [](const auto& found) { return found.IsLate; });
        m_series.Ended = findings.size() - m_series.Late;
    }
    if (!m_tools.Data.IsWhole()) {
        m_series = {};
    }
    Q_EMIT LookedAtSeries();
}

void cOutlook::WantSeries()
{
    tmrSeries.start(seenDelay);
}
