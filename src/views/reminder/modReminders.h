#pragma once

#include <QDate>
#include <QList>
#include <QString>

class cAmountFormat;
class cOutlook;

// One thing that whoever opens the book should know today.
struct cReminder
{
    QString Text;    // a few words, without a full stop
    int EntryId = 0; // of the entry that it is about; 0 for more than one or none
    QDate Day{};     // planned day of its occurrence
};

// What is due today, overdue, too low or to be cancelled, in words.
namespace modReminders {

[[nodiscard]] QList<cReminder> Of(const cOutlook& outlook, const cAmountFormat& format);

// All of them in one line.
[[nodiscard]] QString Line(const QList<cReminder>& reminders);

} // namespace modReminders
