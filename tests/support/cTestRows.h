#pragma once

#include <QTest>

// The columns of a data-driven test; called with a name and a value for each of them it adds a row.
template <typename... tTypes>
class cTestRows
{
    template <typename>
    using tName = const char*;

public:
    explicit cTestRows(tName<tTypes>... names) { (QTest::addColumn<tTypes>(names), ...); }

    void operator()(const char* row, const tTypes&... values) const { (QTest::newRow(row) << ... << values); }
};
