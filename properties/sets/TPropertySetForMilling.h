#pragma once

#include "properties/TPropertySet.h"

class TPropertyFloatSpin;

/** Edits the stroke width of milling paths. */
class PROPERTIES_EXPORT TPropertySetForMilling : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the polylines of @p selection that lie on the milling layer; the row shows the last one's width. */
    explicit TPropertySetForMilling(QList<TGraphicsItem*> selection);

public Q_SLOTS:
    /** The new width in millimetres. */
    void slotSetLineWidth(double width);

private:
    QList<TGraphicsItem*> items;
    QPointer<TPropertyFloatSpin> lineWidth;
};
