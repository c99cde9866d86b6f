#pragma once

#include <QList>
#include <QString>
#include <QVector>

class TBoard;
class TGraphicsItem;

/**
 * Which items to select: `via`, `pad[3]`, `pad[0..9],via` or `all`. Positions count from 0, in the design's order,
 * among the items of that kind.
 */
class TItemQuery
{
public:
    /** Throws `TSessionError` for a text that is no query. */
    static TItemQuery Parse(const QString& text);

    /**
     * The items in the order of the query's parts, each once. Throws `TSessionError` for a kind that the board has no
     * item of, and for a position beyond the last.
     */
    QList<TGraphicsItem*> Find(const TBoard& board) const;

private:
    struct TPart
    {
        QString kind; ///< Empty for all kinds.
        int first = 0;
        int last = -1; ///< -1 for the last one there is.
    };

    QVector<TPart> parts;
};
