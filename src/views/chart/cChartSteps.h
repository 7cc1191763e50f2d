#pragma once

#include "model/modPeriod.h"

#include <QDate>
#include <QString>

// The months of a period, or its years when there are very many months, counted from the first one on.
class cChartSteps
{
public:
    explicit cChartSteps(const modPeriod::cRange& range); // closed on both sides

    [[nodiscard]] int Count() const { return m_count; }
    [[nodiscard]] bool IsYears() const { return m_isYears; }

    [[nodiscard]] int IndexOf(QDate day) const;               // -1 for a day outside
    [[nodiscard]] modPeriod::cRange RangeAt(int index) const; // cut to the period
    [[nodiscard]] int MonthsAt(int index) const;              // calendar months that it touches
    [[nodiscard]] QString Label(int index) const;
    [[nodiscard]] QString ShortLabel(int index) const;

private:
    [[nodiscard]] int MonthsTo(QDate day) const;

    modPeriod::cRange m_range;
    int m_count = 0;
    bool m_isYears = false;
};
