#pragma once

#include <QString>
#include <QStringList>

#include <array>

// An online-banking account, a row of table `account`. All columns are text; their order is the one of the table.
struct cOnlineAccount
{
    static constexpr int ColumnCount = 35;

    int ID = 0;
    std::array<QString, ColumnCount> Values;

    bool operator==(const cOnlineAccount&) const = default;
};
