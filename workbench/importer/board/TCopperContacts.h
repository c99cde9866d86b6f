#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <graphics/engine/TBoxIndex.h>

#include <QVector>

class TGraphicsItem;

/** The vias, pads and net ties that the tracks of one net can end on, on one layer. */
class TCopperContacts
{
public:
    explicit TCopperContacts(const QVector<TGraphicsItem*>& copper);

    /** The item with copper at a place, of several the first with the nearest centre; null if there is none. */
    TGraphicsItem* At(const TGridPoint& place) const;
    /** The positions of the items. */
    const QVector<TGridPoint>& Centres() const { return centres; }

private:
    QVector<TGraphicsItem*> items;
    QVector<TGridPoint> centres;
    TBoxIndex boxes; ///< On the file's grid, by the items' numbers.
};
