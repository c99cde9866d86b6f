#include "workbench/importer/board/TCopperContacts.h"

#include "workbench/importer/format/GridBoxes.h"
#include "workbench/importer/format/Measures.h"

#include <graphics/TGraphicsItem.h>

#include <algorithm>
#include <iterator>

namespace {

TBoxIndex::Box BoxOf(const TGraphicsItem* item)
{
    const QRectF box = item->sceneBoundingRect();
    return GridBoxes::Spanning(Measures::OnGrid(box.topLeft()), Measures::OnGrid(box.bottomRight()));
}

} // namespace

TCopperContacts::TCopperContacts(const QVector<TGraphicsItem*>& copper) : items(copper), boxes(copper, BoxOf)
{
    centres.reserve(items.size());
    std::transform(items.cbegin(), items.cend(), std::back_inserter(centres),
                   [](const TGraphicsItem* item) { return Measures::OnGrid(item->scenePos()); });
}

TGraphicsItem* TCopperContacts::At(const TGridPoint& place) const
{
    const QVector<int> near = boxes.Meeting(GridBoxes::Around(place));
    TGraphicsItem* nearest = nullptr;
    double nearestSquare = 0;
    for (const int number : near) {
        TGraphicsItem* item = items[number];
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
