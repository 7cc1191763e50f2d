#pragma once

#include "model/modPeriod.h"
#include "views/report/cReportWish.h"

#include <QList>
#include <QString>

#include <optional>

enum class eReportKind { Income, Expense };

// Where something stands in a report: a whole section, a group of it or one of the group's categories.
struct cReportNode
{
    eReportKind Kind = eReportKind::Expense;
    std::optional<QString> Group{};    // none: the whole section
    std::optional<QString> Category{}; // none: the whole group; empty: what is booked on the main category itself

    bool operator==(const cReportNode&) const = default;
};

// The figures of one line. All amounts are whole cents.
struct cReportAmount
{
    qint64 Cents = 0;   // what the line shows: an average, a sum, or what was spent; income and expense both above zero
    qint64 Sum = 0;     // what the entries come to, before an average is made of it
    qint64 Limit = 0;   // for the whole period, carried over included; only in the reports about limits
    qint64 Carried = 0; // what of the limit the months before have left, or have taken from it
    int Entries = 0;    // how many entries were counted

    bool operator==(const cReportAmount&) const = default;
};

struct cReportCategory
{
    QString Name;  // sub-category; empty for the main category itself
    QString Label; // as the report's plain lines show it
    cReportAmount Amount;

    bool operator==(const cReportCategory&) const = default;
};

struct cReportGroup
{
    QString Name;  // main category, as it stands in the paths
    QString Label; // as the report's bold lines show it
    cReportAmount Amount;
    QList<cReportCategory> Categories{};

    bool operator==(const cReportGroup&) const = default;
};

struct cReportSection
{
    eReportKind Kind = eReportKind::Expense;
    cReportAmount Amount;
    QList<cReportGroup> Groups{};

    bool operator==(const cReportSection&) const = default;
};

// What the averages and limits of a period are reckoned with. Where the period is open, the months of its first and
// last entry bound what is counted.
struct cReportBasis
{
    QDate Start; // first and last day as the report shows them; never invalid
    QDate End;
    qint64 YearBasis = 0;   // days from 1 January of the year of `Start` to 31 December of the year of `End`
    qint64 Days = 1;        // counted days, from the first to the last one, at least 1
    qint64 DaysOfYears = 0; // `YearBasis` of the counted days
    int Years = 1;          // counted calendar years
    int Months = 1;         // counted calendar months
    QDate FirstMonth{};     // the first day of the first of them

    bool operator==(const cReportBasis&) const = default;
};

// A whole report in figures. The limit report has expenses only.
struct cReportFigures
{
    eReport Type = eReport::Average;
    QString Account; // empty: all accounts
    cReportBasis Basis;
    bool IsUnread = false; // there are no figures because the book could not be read
    cReportSection Income{eReportKind::Income, {}, {}};
    cReportSection Expense{eReportKind::Expense, {}, {}};

    [[nodiscard]] qint64 Difference() const { return Income.Amount.Cents - Expense.Amount.Cents; }
    [[nodiscard]] const cReportSection& Section(eReportKind kind) const
    {
        return kind == eReportKind::Income ? Income : Expense;
    }
    bool operator==(const cReportFigures&) const = default;
};
