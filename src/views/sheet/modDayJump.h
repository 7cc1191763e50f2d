#pragma once

#include "model/modPeriod.h"

#include <QDate>
#include <QModelIndex>
#include <QString>

class cEntryListModel;

// Where a typed day leads in the entry list.
namespace modDayJump {

struct cFound
{
    QModelIndex Row; // invalid when the list is empty or the text is no day
    QString Text;    // what the user is told; empty when the row is of this very day
    bool IsDay = true;
};

// `range` are the days that the list shows; distances such as "+7" count from `today`.
[[nodiscard]] cFound Find(const cEntryListModel& list, const QString& typed, QDate today,
                          const modPeriod::cRange& range);

} // namespace modDayJump
