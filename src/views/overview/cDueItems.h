#pragma once

#include "model/cEntryItem.h"

#include <QDate>

struct cBookTools;

// What is due, and what can be done about it straight from where it is listed. Every writing call is one step that can
// be undone, and false when nothing was changed, of which the user was told.
class cDueItems
{
public:
    explicit cDueItems(const cBookTools& tools) : m_tools(tools) {}

    // What is to come within so many days, today included, by day.
    [[nodiscard]] cEntryItemList Within(int days) const;

    [[nodiscard]] static bool IsSeries(const cEntryItem& item);

    // The parts of a purchase stay on one day, so they are changed together or not at all.
    [[nodiscard]] static bool CanBookToday(const cEntryItem& item);
    // It happened today: a one-off entry gets the day, the occurrence of a series moves to it.
    [[nodiscard]] bool BookToday(const cEntryItem& item);
    // Leaves out this occurrence of a series.
    [[nodiscard]] bool LeaveOut(const cEntryItem& item);

private:
    const cBookTools& m_tools;
};
