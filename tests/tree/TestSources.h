#pragma once

#include "tests/support/Places.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

namespace Test {

/**
 * All that the sources of a test, "area.name", say: its own, and those of its folder or of the laws that belong to a
 * header which it includes: `LawTable.h` has `LawTable.cpp` and `LawTableOfPads.cpp`. Empty when there is no such test.
 */
inline QString SourcesOf(const QString& test)
{
    const QString area = test.section(QLatin1Char('.'), 0, 0);
    const bool isOfWorkbench = QDir(SourcePath(QStringLiteral("tests/workbench/%1").arg(area))).exists();
    const QString folder =
        (isOfWorkbench ? QStringLiteral("tests/workbench/%1/") : QStringLiteral("tests/%1/")).arg(area);
    const QString own = folder + QStringLiteral("tst_%1.cpp").arg(test.section(QLatin1Char('.'), 1));
    if (!QFile::exists(SourcePath(own))) {
        return {};
    }
    const QString text = TextOf(own);
    QString sources = text;
    for (const QString& place : {folder, QStringLiteral("tests/laws/")}) {
        const QDir dir(SourcePath(place));
        const QStringList headers = dir.entryList({QStringLiteral("*.h")});
        for (const QString& header : headers) {
            if (text.contains(QStringLiteral("#include \"%1%2\"").arg(place, header))) {
                const QStringList files = dir.entryList({header.chopped(2) + QLatin1Char('*')});
                for (const QString& file : files) {
                    sources += TextOf(place + file);
                }
            }
        }
    }
    return sources;
}

} // namespace Test
