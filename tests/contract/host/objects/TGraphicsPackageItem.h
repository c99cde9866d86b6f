#pragma once

#include <objects/TGraphicsComponentItem.h>

/** A component's footprint on the board. */
class TGraphicsPackageItem : public TGraphicsComponentItem
{
public:
    int type() const override;

    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);
};
