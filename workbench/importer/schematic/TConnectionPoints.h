#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <QVector>

#include <vector>

class TGraphicsBusEntryItem;
class TGraphicsJunctionItem;
class TGraphicsPinItem;

/** The items that meet at one point of a page. */
struct TConnectionPoint
{
    struct TPin
    {
        TGraphicsPinItem* item;
        QString net;
        bool isOfPort;
    };

    struct TEnd
    {
        int line;
        int end; ///< 0 for the start of the line, 1 for its other end.
    };

    TGridPoint place;
    QVector<TPin> pins;
    bool hasJunction = false; ///< Whether the file has a junction here.
    QVector<TGraphicsBusEntryItem*> entries;
    QVector<TEnd> ends;

    /** Whether lines that pass through the point are cut here. */
    bool CutsLines() const { return hasJunction || !pins.isEmpty() || !entries.isEmpty(); }
    /** Whether only the ends of two lines are here. */
    bool IsBend() const { return !CutsLines() && ends.size() == 2 && ends[0].line != ends[1].line; }
};

/** The points of a page with connections, in order of first occurrence. */
class TConnectionPoints
{
public:
    TConnectionPoint& At(const TGridPoint& place)
    {
        const auto known = indexOf.constFind(place);
        if (known != indexOf.constEnd()) {
            return list[*known];
        }
        indexOf.insert(place, list.size());
        list.push_back({place, {}, false, {}, {}});
        return list.back();
    }

    std::vector<TConnectionPoint>& All() { return list; }

private:
    std::vector<TConnectionPoint> list;
    QHash<TGridPoint, std::size_t> indexOf;
};
