#pragma once

#include "model/modBudget.h"

#include <optional>

// What may be spent on a category in a period, in cents.
struct cLimit
{
    qint64 Own = 0;     // of its months
    qint64 Carried = 0; // left of the months before, or below zero what was spent too much in them

    [[nodiscard]] qint64 Total() const { return Own + Carried; }
    bool operator==(const cLimit&) const = default;
};

// The limits of all categories. Whatever shows a limit or what is left of it asks here.
class cLimits
{
public:
    // What cannot have a limit is passed over. Of several rows with the same path the first one with a plain limit
    // holds.
    void Add(const cTemplateItem& item, const cBudget& budget);
    // What was spent from the earliest month on that carries over; of all accounts, because what is left belongs to the
    // category.
    void SetSpent(const cSpent& spent) { m_spent = spent; }

    // The earliest month from which on anything is carried over; invalid: nothing is.
    [[nodiscard]] QDate CarriesFrom() const;
    // The month with which that begins for a category; invalid: it carries nothing, or has no limit yet. What was spent
    // before it had any was allowed.
    [[nodiscard]] QDate CarriesFrom(const QString& path) const;
    // By the keys of modBudget::KeyOf, in no order.
    [[nodiscard]] QStringList Paths() const { return m_lines.keys(); }
    // The limit of so many months from `first` on; none when the category has none in all of them.
    [[nodiscard]] std::optional<cLimit> Of(const QString& path, QDate first, int months) const;

private:
    struct cLine
    {
        cTemplateItem Item;
        cBudget Budget;
    };

    [[nodiscard]] static bool HasLimit(const cLine& line, QDate first, QDate end);
    [[nodiscard]] qint64 Carried(const QString& path, const cLine& line, QDate month) const;

    QHash<QString, cLine> m_lines;
    cSpent m_spent;
};
