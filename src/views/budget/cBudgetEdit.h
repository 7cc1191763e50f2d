#pragma once

#include "model/cLimits.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct cBookTools;

// The budget of the book while it is worked on: nothing is written before Save. Window and command line change it
// through this class. Amounts are cents.
class cBudgetEdit
{
public:
    // A category that can have a budget.
    struct cRow
    {
        cTemplateItem Item;
        QString Path;
        cBudget Budget;
        cTemplateItem StoredItem; // as the book has them
        cBudget StoredBudget;
    };

    // `year` is the one whose spending is read.
    cBudgetEdit(const cBookTools& tools, int year);

    [[nodiscard]] int Year() const { return m_year; }
    void ShowYear(int year); // what was changed stays
    // In the order of the categories.
    [[nodiscard]] const QList<cRow>& Rows() const { return m_rows; }
    // A hidden category is shown where it has a limit or was spent on.
    [[nodiscard]] bool IsShown(int row) const;
    [[nodiscard]] int RowOf(const QString& path) const; // -1: there is none
    // False when the book could not be read: there is nothing to be worked on.
    [[nodiscard]] bool IsRead() const { return m_isRead; }

    // Months are counted from 1.
    [[nodiscard]] std::optional<qint64> Own(int row, int month) const; // the month's own limit; none: the plain one
    [[nodiscard]] qint64 Limit(int row, int month) const;              // without what is carried over
    [[nodiscard]] qint64 YearLimit(int row) const;
    [[nodiscard]] std::optional<cLimit> Available(int row, int month) const; // none: no limit
    [[nodiscard]] qint64 Spent(int row, int month) const;
    [[nodiscard]] qint64 SpentIn(int row, int year, int month) const; // also of the year before
    [[nodiscard]] bool CarriesOver(int row) const { return m_rows.at(row).Budget.CarriesFrom.isValid(); }
    // The month with which that begins; invalid also where there is no limit yet.
    [[nodiscard]] QDate CarriesFrom(int row) const;

    void SetMonth(int row, int month, std::optional<qint64> cents);
    // Twelve equal months; without an amount the year has no limits of its own any more.
    void SpreadYear(int row, std::optional<qint64> cents);
    // The year's limit in one month, and nothing in the others.
    void KeepYearIn(int row, int month);
    // On from January of the year that is shown.
    void SetCarriesOver(int row, bool isOn);
    // The plain limit, unless the category has an amount for an interval instead. None removes it.
    [[nodiscard]] bool CanSetPlain(int row) const;
    void SetPlain(int row, std::optional<qint64> cents);
    // Proposes for every month what was spent in it a year before, where anything was. How many categories there are.
    int TakeLastYear();

    [[nodiscard]] bool IsChanged() const;
    // Writes what was changed as one step; false when the database refuses.
    [[nodiscard]] bool Save();

private:
    void Read();
    void Reckon();
    [[nodiscard]] QString StepName() const;
    [[nodiscard]] bool Write(cRow& row);

    const cBookTools& m_tools;
    int m_year;
    QList<cRow> m_rows;
    cSpent m_spent; // from what is carried over first, or the year before the one shown, up to its end
    cLimits m_limits;
    bool m_isRead = true;
};
