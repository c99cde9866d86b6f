#pragma once

#include "tests/tree/TestSources.h"

#include <QVector>

/** The tables and the code of docs/embedding.md. */
namespace ContractPage {

inline QString Text()
{
    return Test::TextOf(QStringLiteral("docs/embedding.md"));
}

/** The cells of the rows of all tables whose heading begins like this. */
inline QVector<QStringList> Rows(const QString& text, const QString& heading)
{
    QVector<QStringList> rows;
    bool isInside = false;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        if (!line.startsWith(QLatin1Char('|'))) {
            isInside = false;
        } else if (line.startsWith(heading)) {
            isInside = true;
        } else if (isInside && !line.startsWith(QLatin1String("|---"))) {
            QStringList cells = line.mid(1).split(QLatin1Char('|'));
            for (QString& cell : cells) {
                cell = cell.trimmed();
            }
            rows.append(cells);
        }
    }
    return rows;
}

/** What stands in backquotes. */
inline QStringList Quoted(const QString& cell)
{
    static const QRegularExpression quoted(QStringLiteral("`([^`]+)`"));
    QStringList texts;
    auto matches = quoted.globalMatch(cell);
    while (matches.hasNext()) {
        texts.append(matches.next().captured(1));
    }
    return texts;
}

/** The operations that are listed, "TLayer: QString name"; those of the toolkit's classes begin with a Q. */
inline QStringList Operations(const QString& text)
{
    QStringList operations;
    for (const QStringList& row : Rows(text, QStringLiteral("| of | operation |"))) {
        for (const QString& operation : Quoted(row.value(1))) {
            operations.append(Quoted(row.value(0)).join(QLatin1Char(' ')) + QStringLiteral(": ") + operation);
        }
    }
    return operations;
}

/** The blocks of C++. */
inline QStringList Code(const QString& text)
{
    QStringList blocks = text.split(QStringLiteral("```cpp\n"));
    blocks.removeFirst();
    for (QString& block : blocks) {
        block = block.section(QStringLiteral("```"), 0, 0);
    }
    return blocks;
}

} // namespace ContractPage
