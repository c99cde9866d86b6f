#pragma once

#include "properties/TPropertySet.h"

class TGraphicsRectItem;
class TPropertyFloatSpin;

/** Edits the diameter of holes without plating. The row is there, and does nothing, without any hole too. */
class PROPERTIES_EXPORT TPropertySetForHole : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the holes of @p items; the row shows the last one's diameter. */
    explicit TPropertySetForHole(const QList<TGraphicsItem*>& items);

public Q_SLOTS:
    /** The new diameter in millimetres. */
    void slotDiam(double diameter);

private:
    QList<TGraphicsRectItem*> holes;
    QPointer<TPropertyFloatSpin> diam;
};
