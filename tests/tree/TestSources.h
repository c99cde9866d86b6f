#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace Test {

/** The text of a file of the project, named from its root. */
inline QString TextOf(const QString& file)
{
    QFile text(QStringLiteral(PROPERTIES_SOURCE_DIR "/") + file);
    if (!text.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(file));
    }
    return QString::fromUtf8(text.readAll());
}

/** All that the sources of a test program, "area.name", say; empty when there is no such program. */
inline QString SourcesOf(const QString& program)
{
    const QString folder = QStringLiteral("tests/%1/").arg(program.section(QLatin1Char('.'), 0, 0));
    QString list = TextOf(folder + QStringLiteral("CMakeLists.txt"));
    static const QRegularExpression variable(QStringLiteral(R"(set\((\w+) ([^)]*)\))"));
    auto variables = variable.globalMatch(list);
    while (variables.hasNext()) {
        const QRegularExpressionMatch match = variables.next();
        list.replace(QStringLiteral("${%1}").arg(match.captured(1)), match.captured(2));
    }
    const QRegularExpression added(
        QStringLiteral(R"(properties_add_test\(%1\s+SOURCES ([^)]*)\))").arg(QRegularExpression::escape(program)));
    const QStringList words = added.match(list).captured(1).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QString sources;
    for (const QString& word : words) {
        if (QFile::exists(QStringLiteral(PROPERTIES_SOURCE_DIR "/") + folder + word)) {
            sources += TextOf(folder + word);
        }
    }
    return sources;
}

} // namespace Test
