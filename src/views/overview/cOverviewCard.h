#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

enum class eOverviewCard { Balances, Month, Due, Limits, Tasks, Changes };
enum class eOverviewTone { Plain, Income, Expense, Warning, Quiet };

// Something that can be done about a line right where it stands.
struct cOverviewAction
{
    QString Text;
    std::function<void()> Run;
};

struct cOverviewLine
{
    QString Text;
    QString Figure{}; // at the right end
    eOverviewTone Tone = eOverviewTone::Plain;
    std::function<void()> Follow{}; // what a click leads to; none: it is only read
    std::optional<int> Percent{};   // of a bar below the line; over 100 where more was spent than may be
    QList<cOverviewAction> Actions{};
    QVariant Look{}; // of a category; see cCategoryLooks::Shown
};

// A balance day by day from today on, in cents.
struct cOverviewCurve
{
    QList<qint64> Cents;
    int Lowest = -1; // place of the smallest value; -1: there is none to be pointed out
    QString Text;    // the same in words, for those who cannot see it
};

// One subject of the overview, ready to be shown.
struct cOverviewCard
{
    eOverviewCard Card = eOverviewCard::Balances;
    QString Title;
    QString Figure{}; // the most important number
    eOverviewTone Tone = eOverviewTone::Plain;
    std::function<void()> Follow{}; // of the title
    QString FollowText{};           // what that shows
    cOverviewCurve Curve{};
    QList<cOverviewLine> Lines{};
    QString Empty{}; // said where there are no lines
};
