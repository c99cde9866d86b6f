#include "workbench/importer/board/TCopperContacts.h"

#include "workbench/importer/board/TPlaceGrid.h"
#include "workbench/importer/format/Measures.h"

#include <graphics/TGraphicsItem.h>

TCopperContacts::TCopperContacts(const QVector<TGraphicsItem*>& copper)
{
    constexpr qint64 mostCells = 10'000;
    for (TGraphicsItem* item : copper) {
        const QRectF box = item->sceneBoundingRect();
        const TGridPoint first = TPlaceGrid::CellOf(Measures::OnGrid(box.topLeft()));
        const TGridPoint last = TPlaceGrid::CellOf(Measures::OnGrid(box.bottomRight()));
        centres.append(Measures::OnGrid(item->scenePos()));
        if ((last.x - first.x + 1) * (last.y - first.y + 1) > mostCells) {
            large.append(item);
            continue;
        }
        for (qint64 x = first.x; x <= last.x; ++x) {
            for (qint64 y = first.y; y <= last.y; ++y) {
                cells[{x, y}].append(item);
            }
        }
    }
}

TGraphicsItem* TCopperContacts::At(const TGridPoint& place) const
{
    const QVector<TGraphicsItem*> near = cells.value(TPlaceGrid::CellOf(place)) + large;
    TGraphicsItem* nearest = nullptr;
    double nearestSquare = 0;
    for (TGraphicsItem* item : near) {
        const QPointF point = item->mapFromScene(Measures::ScenePoint(place));
        const double square = QPointF::dotProduct(point, point);
        const bool isNearer = !nearest || square < nearestSquare;
        if (isNearer && item->boundingRect().contains(point) && item->Outline().contains(point)) {
            nearest = item;
            nearestSquare = square;
        }
    }
    return nearest;
}
