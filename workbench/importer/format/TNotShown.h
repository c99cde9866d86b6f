#pragma once

#include <QList>
#include <QPair>
#include <QString>

/** Counts the elements of a file that the design lacks, by kinds with names for users. */
class TNotShown
{
public:
    void Count(const char* kind, int count = 1);

    /** The kinds with their counts, in order of first occurrence in the file. */
    const QList<QPair<QString, int>>& Kinds() const { return kinds; }

private:
    QList<QPair<QString, int>> kinds;
};
