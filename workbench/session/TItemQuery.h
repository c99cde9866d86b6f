#pragma once

#include <QList>
#include <QString>
#include <QVector>

class TGraphicsItem;

/**
 * Which items to select: `via`, `pad[3]`, `pad[0..9],via` or `all`. Positions count from 0, in the design's order,
 * among the items of that kind.
 */
class TItemQuery
{
public:
    /** Throws `TSessionError` for an invalid query. */
    static TItemQuery Parse(const QString& text);

    /**
     * The matching items of a document, in the order of the query's terms, each once. Throws `TSessionError`, in which
     * @p place names the document, for a kind without items in it, and for a position beyond the last.
     */
    QList<TGraphicsItem*> Find(const QList<TGraphicsItem*>& items, const QString& place) const;

private:
    struct TTerm
    {
        QString kind; ///< Empty for all kinds.
        int first = 0;
        int last = -1; ///< -1 for the last one there is.
    };

    QVector<TTerm> terms;
};
