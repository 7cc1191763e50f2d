#include "views/reminder/cReminders.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modContract.h"
#include "store/cDataAccess.h"
#include "views/chart/cForecast.h"
#include "views/entry/cContracts.h"
#include "views/overview/cOverviewTasks.h"
#include "views/overview/modOverview.h"

QList<cReminder> cReminders::Quick() const
{
    QList<cReminder> reminders;
    const QDate today = m_tools.Clock.Today();
    const cEntryWindow window = m_tools.Data.GetWindow({today, today.addDays(cForecast::WarningDays)}, today);
    AddDue(reminders, window);
    AddLimits(reminders, window);
    AddContracts(reminders, window);
    return m_tools.Data.IsWhole() ? reminders : QList<cReminder>(); // a part would tell the wrong things
}

void cReminders::AddDue(QList<cReminder>& reminders, const cEntryWindow& window) const
{
    const cEntryItemList due = modOverview::Due(window.Entries, window.Days.Start, 1);
    if (due.size() == 1) {
        const cEntryItem& item = due.first();
        reminders.append({cText::Tr("Heute fällig: {0}, {1}", {item.Name(), m_tools.Format.Cents(item.EntryValue)}),
                          item.ID, item.Planned()});
    } else if (due.size() > 1) {
        reminders.append({cText::Tr("Heute fällig: {0} Buchungen", {QString::number(due.size())})});
    }
}

void cReminders::AddLimits(QList<cReminder>& reminders, const cEntryWindow& window) const
{
    const QList<cLimitWarning> warnings = cForecast(m_tools.Data, window.Days.Start).Warnings(window);
    for (const cLimitWarning& warning : warnings) {
        const QString limit = m_tools.Format.Cents(warning.Limit);
        const bool isBelow = warning.Entry.ID == 0;
        reminders.append(
            {isBelow ? cText::Tr("{0} unter {1}", {warning.Account, limit})
                     : cText::Tr("{0} ab {1} unter {2}", {warning.Account, modDate::ToText(warning.Day), limit}),
             warning.Entry.ID, warning.Entry.Planned()});
    }
}

void cReminders::AddContracts(QList<cReminder>& reminders, const cEntryWindow& window) const
{
    const cEntryItemList contracts = cContracts(m_tools).Ahead(modContract::NoticeDays, window);
    for (const cEntryItem& contract : contracts) {
        reminders.append(
            {cText::Tr("{0} kündbar bis {1}", {contract.Name(), modDate::ToText(modContract::CancelBy(contract))}),
             contract.ID, contract.Planned()});
    }
}

QList<cReminder> cReminders::Late() const
{
    QList<cReminder> reminders;
    const QList<cOverviewTask> tasks = cOverviewTasks(m_tools).Series();
    for (const cOverviewTask& task : tasks) {
        if (task.Kind == cOverviewTask::eKind::LateSeries) {
            QString text = task.Text;
            text.chop(text.endsWith(u'.') ? 1 : 0);
            reminders.append({text});
        }
    }
    return reminders;
}

QString cReminders::Line(const QList<cReminder>& reminders)
{
    QStringList texts;
    for (const cReminder& reminder : reminders) {
        texts.append(reminder.Text);
    }
    return texts.join(QStringLiteral("  ·  "));
}
