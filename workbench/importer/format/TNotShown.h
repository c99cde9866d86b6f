#pragma once

#include <QList>
#include <QPair>
#include <QString>

/** Counts what a file holds and the board does not, by kinds that are named in the words of the user. */
class TNotShown
{
public:
    void Count(const char* kind, int count = 1);

    /** The kinds, in the order in which the file brought them up, with their counts. */
    const QList<QPair<QString, int>>& Kinds() const { return kinds; }

private:
    QList<QPair<QString, int>> kinds;
};
