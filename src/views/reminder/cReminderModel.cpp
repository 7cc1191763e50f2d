#include "views/reminder/cReminderModel.h"

#include "base/cClock.h"
#include "base/cNotifier.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "views/main/cNavigator.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto lookDelay = 700ms;  // when the window and its first page stand
constexpr auto lateDelay = 2200ms; // when that is done
constexpr auto dayPause = 1min;

} // namespace

cReminderModel::cReminderModel(const cBookTools& tools, cNavigator& navigator, cNotifier* notifier, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_navigator(navigator),
      m_notifier(notifier)
{
    tmrLook.setSingleShot(true);
    tmrLook.setInterval(lookDelay);
    tmrLate.setSingleShot(true);
    tmrLate.setInterval(lateDelay);
    tmrDay.setInterval(dayPause);
    connect(&tmrLook, &QTimer::timeout, this, &cReminderModel::Look);
    connect(&tmrLate, &QTimer::timeout, this, &cReminderModel::LookForLate);
    connect(&tmrDay, &QTimer::timeout, this, &cReminderModel::Tick);
}

void cReminderModel::Start()
{
    m_day = m_tools.Clock.Today();
    tmrLook.start();
    tmrLate.start();
    tmrDay.start();
}

void cReminderModel::Stop()
{
    tmrLook.stop();
    tmrLate.stop();
    tmrDay.stop();
    m_day = {};
    m_quick.clear();
    m_late.clear();
    Q_EMIT Changed();
}

// What is late follows from statements. What is entered may mend it, so the longer look is worth its time once there is
// something.
void cReminderModel::BookChanged()
{
    if (!m_day.isValid()) {
        return;
    }
    tmrLook.start();
    if (!m_late.isEmpty()) {
        tmrLate.start();
    }
}

void cReminderModel::StatementsChanged()
{
    if (m_day.isValid()) {
        tmrLook.start();
        tmrLate.start();
    }
}

void cReminderModel::Look()
{
    m_quick = cReminders(m_tools).Quick();
    Q_EMIT Changed();
}

void cReminderModel::LookForLate()
{
    m_late = cReminders(m_tools).Late();
    Q_EMIT Changed();
    Tell();
}

void cReminderModel::Tick()
{
    if (m_day.isValid() && m_day != m_tools.Clock.Today()) {
        m_day = m_tools.Clock.Today();
        Look();
        LookForLate();
    }
}

QString cReminderModel::Text() const
{
    return cReminders::Line(All());
}

void cReminderModel::Follow()
{
    const QList<cReminder> all = All();
    if (all.size() == 1 && all.first().EntryId > 0) {
        m_navigator.OpenEntry(all.first().EntryId, all.first().Day);
    } else {
        Q_EMIT OverviewWanted();
    }
}

void cReminderModel::Tell()
{
    const QDate today = m_tools.Clock.Today();
    cSettings& settings = m_tools.Settings;
    const bool isTold = modDate::FromIso(settings.Get(modSettingKey::RemindedOn)) == today;
    const QList<cReminder> all = All();
    if (m_notifier == nullptr || isTold || all.isEmpty() || !settings.GetBool(modSettingKey::RemindByDesktop)) {
        return;
    }
    QStringList lines;
    for (const cReminder& reminder : all) {
        lines.append(reminder.Text);
    }
    if (m_notifier->Notify(cText::Tr("Kontorelle: das steht an"), lines.join(u'\n'))) {
        settings.Set(modSettingKey::RemindedOn, modDate::ToIso(today));
    }
}
