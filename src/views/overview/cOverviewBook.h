#pragma once

#include "model/cTemplateItem.h"
#include "model/modPeriod.h"
#include "views/list/cBalanceDays.h"
#include "views/look/cCategoryLooks.h"
#include "views/overview/cOutlook.h"
#include "views/overview/modOverview.h"
#include "views/report/cReportFigures.h"

#include <QDate>
#include <QList>
#include <QString>

struct cBookTools;

// What the overview reckons with, read from the book in a few queries.
struct cOverviewBook
{
    static constexpr int AheadDays = 60;

    [[nodiscard]] static cOverviewBook Read(const cBookTools& tools, cOutlook& outlook);
    // The days whose entries it reads.
    [[nodiscard]] static modPeriod::cRange DaysOn(QDate today);

    QDate Today;
    bool IsUnread = false;   // the book refused; all else means nothing
    bool HasEntries = false; // other than start balances
    cBalanceDays Balances{}; // from today on, so that the first value is that of now
    cOutlook::cDay Ahead{};
    modOverview::cMonth Month{};
    QList<modOverview::cChange> Changes{};
    cReportFigures Limits{}; // of this month, with what is planned
    cTemplateItemList Templates{};
    cCategoryLooks Looks{};
};
