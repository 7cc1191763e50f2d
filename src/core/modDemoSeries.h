#pragma once

#include "core/modDemo.h"
#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QList>

// What comes and goes by itself in the example household.
namespace modDemo {

struct cDemoSeries
{
    cEntryItem Entry;
    cEntryItemFixModList Mods; // EntryRelation is set once the entry has its ID
};

// The first day of the book.
[[nodiscard]] QDate FirstDay(const cDemoPlan& plan);

// Salaries, rent, contracts, insurances, savings.
[[nodiscard]] QList<cDemoSeries> Series(const cDemoPlan& plan);

} // namespace modDemo
