#include "views/reminder/cReminderModel.h"

#include "base/cClock.h"
#include "base/cNotifier.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "views/main/cNavigator.h"
#include "views/overview/cOutlook.h"

cReminderModel::cReminderModel(const cBookTools& tools, const cParts& parts, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_parts(parts)
{
    connect(&m_parts.Outlook, &cOutlook::Looked, this, &cReminderModel::Changed);
    connect(&m_parts.Outlook, &cOutlook::LookedAtSeries, this, [this] {
        Q_EMIT Changed();
        Tell();
    });
}

// The overview may have looked before the book may be shown.
QList<cReminder> cReminderModel::All() const
{
    return m_parts.Outlook.IsRunning() ? modReminders::Of(m_parts.Outlook, m_tools.Format) : QList<cReminder>();
}

QString cReminderModel::Text() const
{
    return modReminders::Line(All());
}

void cReminderModel::Follow()
{
    const QList<cReminder> all = All();
    if (all.size() == 1 && all.first().EntryId > 0) {
        m_parts.Navigator.OpenEntry(all.first().EntryId, all.first().Day);
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
    if (m_parts.Notifier == nullptr || isTold || all.isEmpty() || !settings.GetBool(modSettingKey::RemindByDesktop)) {
        return;
    }
    QStringList lines;
    for (const cReminder& reminder : all) {
        lines.append(reminder.Text);
    }
    if (m_parts.Notifier->Notify(cText::Tr("Kontorelle: das steht an"), lines.join(u'\n'))) {
        settings.Set(modSettingKey::RemindedOn, modDate::ToIso(today));
    }
}
