#pragma once

#include <QtTest>

#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace DataTableRows {

inline std::vector<std::function<void()>> rows; ///< of the test that runs

}

/// A test's data table, made in its _data() function from the check of a row; each row gives a
/// value for every parameter of that check. The test itself is runRow().
///
/// Checks run when the _data() function has ended, so they capture none of its variables by
/// reference.
template <typename Check> class DataTable;

template <typename... Parameters> class DataTable<std::function<void(Parameters...)>>
{
public:
    explicit DataTable(std::function<void(Parameters...)> check)
        : m_check(std::move(check))
    {
        DataTableRows::rows.clear();
        QTest::addColumn<int>("row");
    }

    void operator()(const QByteArray& name, const std::decay_t<Parameters>&... values) const
    {
        QTest::newRow(name.constData()) << static_cast<int>(DataTableRows::rows.size());
        DataTableRows::rows.push_back([check = m_check, values...] { check(values...); });
    }

private:
    const std::function<void(Parameters...)> m_check;
};

template <typename Check>
DataTable(Check) -> DataTable<decltype(std::function{std::declval<Check>()})>;

inline void runRow()
{
    QFETCH(int, row);
    DataTableRows::rows.at(static_cast<std::size_t>(row))();
}
