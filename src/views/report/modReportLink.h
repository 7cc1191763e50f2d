#pragma once

#include "model/modPeriod.h"
#include "views/report/cReportFigures.h"

#include <QString>

#include <variant>

// The texts of the links in a report. They are written and read here and nowhere else.
namespace modReportLink {

// Opens the category management at this category.
struct cEditCategory
{
    QString Path;
    bool operator==(const cEditCategory&) const = default;
};

// Shows the entries of a line.
struct cShowEntries
{
    cReportNode Node;        // exactly as the link has it
    cReportNode Cut;         // the same up to a "(" in it; to be tried when there is no such node
    modPeriod::cRange Range; // days of the report
    QString Account;         // empty: all accounts
    QString Path;            // category path as the entries have it

    bool operator==(const cShowEntries&) const = default;
};

// Opens the system's browser.
struct cOpenPage
{
    QString Url;
    bool operator==(const cOpenPage&) const = default;
};

// std::monostate: a link of no known kind, or one without data; nothing happens.
using cLink = std::variant<std::monostate, cEditCategory, cShowEntries, cOpenPage>;

[[nodiscard]] cLink Parse(const QString& link);

// The link of a report's line; without `Links` its five fields stay empty. `category` is empty for the line of a group.
struct cLine
{
    eReportLinks Links = eReportLinks::On;
    eReportKind Kind = eReportKind::Expense;
    modPeriod::cRange Range;
    QString Account; // empty: all accounts
    QString Group;
    QString Category;
};
[[nodiscard]] QString ShowEntries(const cLine& line);

} // namespace modReportLink
