#pragma once

#include <QtTest/QTest>

#include <initializer_list>
#include <tuple>

/// Gives a test its columns and its rows; the first value of each row is the row's name.
template <typename... Columns>
void addTable(std::initializer_list<const char *> columns,
              std::initializer_list<std::tuple<QByteArray, Columns...>> rows)
{
    auto column = columns.begin();
    (QTest::addColumn<Columns>(*column++), ...);
    const auto add = [](const QByteArray &name, const auto &...values) {
        (QTest::newRow(name.constData()) << ... << values);
    };
    for (const auto &row : rows)
        std::apply(add, row);
}
