#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <QVector>

class TGraphicsItem;

/** The vias, pads and net ties that the tracks of one net can end on, on one layer. */
class TCopperContacts
{
public:
    explicit TCopperContacts(const QVector<TGraphicsItem*>& copper);

    /** The item with copper at a place, the one with the nearest centre if there are several; null if there is none. */
    TGraphicsItem* At(const TGridPoint& place) const;
    /** The positions of the items. */
    const QVector<TGridPoint>& Centres() const { return centres; }

private:
    QHash<TGridPoint, QVector<TGraphicsItem*>> cells;
    QVector<TGraphicsItem*> large; ///< Items that would occupy too many cells.
    QVector<TGridPoint> centres;
};
