#pragma once

#include "tests/support/Places.h"
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

namespace Test {

/** The text of a file of the project, named from its root. */
inline QString TextOf(const QString& file)
{
    QFile text(SourcePath(file));
    if (!text.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(file));
    }
    return QString::fromUtf8(text.readAll());
}

/** All that the sources of a test, "area.name", say: its own, and those that the tests of its area share. */
inline QString SourcesOf(const QString& test)
{
    const QString folder = QStringLiteral("tests/%1/").arg(test.section(QLatin1Char('.'), 0, 0));
    const QString own = QStringLiteral("tst_%1.cpp").arg(test.section(QLatin1Char('.'), 1));
    if (!QFile::exists(SourcePath(folder + own))) {
        return {};
    }
    QString sources = TextOf(folder + own);
    const QStringList files = QDir(SourcePath(folder)).entryList({QStringLiteral("*.cpp")}, QDir::Files);
    for (const QString& file : files) {
        if (!file.startsWith(QLatin1String("tst_"))) {
            sources += TextOf(folder + file);
        }
    }
    return sources;
}

} // namespace Test
