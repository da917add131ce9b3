#ifndef ZEL_ROWS_H
#define ZEL_ROWS_H

#include <QtTest>

#include <array>
#include <tuple>

/// Gives the test function whose data it is a row for each tuple: its name, then a value for each column.
template <class... Values, std::size_t Count>
void addRows(const std::array<const char*, sizeof...(Values)>& columns,
             const std::tuple<const char*, Values...> (&rows)[Count])
{
    auto column = columns.begin();
    (QTest::addColumn<Values>(*column++), ...);
    for (const auto& row : rows)
        std::apply([](const char* name, const Values&... values) { (QTest::newRow(name) << ... << values); },
                   row);
}

#endif
