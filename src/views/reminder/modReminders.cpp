#include "views/reminder/modReminders.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modContract.h"
#include "views/overview/cOutlook.h"
#include "views/overview/modOverview.h"

namespace {

void AddDue(QList<cReminder>& reminders, const cEntryItemList& due, const cAmountFormat& format)
{
    if (due.size() == 1) {
        const cEntryItem& item = due.first();
        reminders.append({cText::Tr("Heute fällig: {0}, {1}", {item.Name(), format.Cents(item.EntryValue)}), item.ID,
                          item.Planned()});
    } else if (due.size() > 1) {
        reminders.append({cText::Tr("Heute fällig: {0} Buchungen", {QString::number(due.size())})});
    }
}

cReminder OfLimit(const cLimitWarning& warning, const cAmountFormat& format)
{
    const QString limit = format.Cents(warning.Limit);
    const bool isBelow = warning.Entry.ID == 0;
    return {isBelow ? cText::Tr("{0} unter {1}", {warning.Account, limit})
                    : cText::Tr("{0} ab {1} unter {2}", {warning.Account, modDate::ToText(warning.Day), limit}),
            warning.Entry.ID, warning.Entry.Planned()};
}

} // namespace

QList<cReminder> modReminders::Of(const cOutlook& outlook, const cAmountFormat& format)
{
    QList<cReminder> reminders;
    const cOutlook::cDay& day = outlook.Day();
    AddDue(reminders, modOverview::Due(day.Due, day.Today, 1), format);
    for (const cLimitWarning& warning : day.Warnings) {
        reminders.append(OfLimit(warning, format));
    }
    for (const cEntryItem& contract : day.Contracts) {
        reminders.append(
            {cText::Tr("{0} kündbar bis {1}", {contract.Name(), modDate::ToText(modContract::CancelBy(contract))}),
             contract.ID, contract.Planned()});
    }
    if (const qsizetype late = outlook.Series().Late; late > 0) {
        reminders.append(
            {late == 1 ? cText::Tr("Eine fällige Zahlung fehlt auf dem Kontoauszug")
                       : cText::Tr("{0} fällige Zahlungen fehlen auf den Kontoauszügen", {QString::number(late)})});
    }
    return reminders;
}

QString modReminders::Line(const QList<cReminder>& reminders)
{
    QStringList texts;
    for (const cReminder& reminder : reminders) {
        texts.append(reminder.Text);
    }
    return texts.join(QStringLiteral("  ·  "));
}
