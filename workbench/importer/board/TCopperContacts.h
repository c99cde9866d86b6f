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

    /** The item whose copper is there, the first with the nearest centre of several; null if there is none. */
    TGraphicsItem* At(const TGridPoint& place) const;
    /** Where the items' own positions are. */
    const QVector<TGridPoint>& Centres() const { return centres; }

private:
    QVector<TGraphicsItem*> items;
    QVector<TGridPoint> centres;
    TBoxIndex boxes; ///< On the file's grid, by the items' numbers.
};
