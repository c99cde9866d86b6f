#pragma once

#include <QTest>

#include <algorithm>
#include <vector>

namespace Test {

/** A row of test data for each command of a table of laws. */
template <class Law>
void AddRowForEach(const std::vector<Law>& table)
{
    QTest::addColumn<int>("unused");
    for (const Law& law : table) {
        QTest::newRow(qPrintable(law.name)) << 0;
    }
}

/** The law that the current row is about. */
template <class Law>
const Law& CurrentRowOf(const std::vector<Law>& table)
{
    return *std::find_if(table.begin(), table.end(),
                         [](const Law& law) { return law.name == QTest::currentDataTag(); });
}

} // namespace Test
