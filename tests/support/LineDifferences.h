#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>

namespace Test {

/** The first ten lines in which two dumps differ, as they are and as they should be; empty if there are none. */
inline QString LineDifferences(const QString& actual, const QString& expected)
{
    const QStringList lines = actual.split(QLatin1Char('\n'));
    const QStringList wanted = expected.split(QLatin1Char('\n'));
    QStringList differences;
    for (int i = 0; i < std::max(lines.size(), wanted.size()) && differences.size() < 10; ++i) {
        if (lines.value(i) != wanted.value(i)) {
            differences.append(QStringLiteral("line %1 is\n  %2\nand should be\n  %3")
                                   .arg(QString::number(i), lines.value(i), wanted.value(i)));
        }
    }
    return differences.join(QLatin1Char('\n'));
}

} // namespace Test
