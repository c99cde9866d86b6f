#pragma once

#include "properties/TPropertySet.h"

class TGraphicsRectItem;
class TPropertyFloatSpin;

/** Edits the diameter of holes without plating. Without a hole the row is still shown, and editing it is a no-op. */
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
