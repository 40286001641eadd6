#pragma once

#include <QtTest>

/// A test's data table: the columns are named once, each row gives a value for every one of them.
template <typename... Columns> class DataTable
{
public:
    template <typename... Names> explicit DataTable(Names... names)
    {
        (QTest::addColumn<Columns>(names), ...);
    }

    void row(const char* name, const Columns&... values) const
    {
        (QTest::newRow(name) << ... << values);
    }
};
