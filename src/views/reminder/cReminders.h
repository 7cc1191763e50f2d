#pragma once

#include <QDate>
#include <QList>
#include <QString>

struct cBookTools;
struct cEntryWindow;

// One thing that whoever opens the book should know today.
struct cReminder
{
    QString Text;    // a few words, without a full stop
    int EntryId = 0; // of the entry that it is about; 0 for more than one or none
    QDate Day{};     // planned day of its occurrence

    bool operator==(const cReminder&) const = default;
};

// What is due, overdue, too low or to be cancelled.
class cReminders
{
public:
    explicit cReminders(const cBookTools& tools) : m_tools(tools) {}

    // What a few queries tell: what is due today, accounts that fall below their limits within 60 days, contracts that
    // can be cancelled for a few days more.
    [[nodiscard]] QList<cReminder> Quick() const;
    // What takes a look at all transactions of the bank: payments that were due and that the bank has not booked.
    [[nodiscard]] QList<cReminder> Late() const;

    // All of them in one line.
    [[nodiscard]] static QString Line(const QList<cReminder>& reminders);

private:
    void AddDue(QList<cReminder>& reminders, const cEntryWindow& window) const;
    void AddLimits(QList<cReminder>& reminders, const cEntryWindow& window) const;
    void AddContracts(QList<cReminder>& reminders, const cEntryWindow& window) const;

    const cBookTools& m_tools;
};
