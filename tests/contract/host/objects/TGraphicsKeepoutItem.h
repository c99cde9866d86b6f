#pragma once

#include <graphics/TGraphicsItem.h>

#include <QSet>

/** A polygon that keeps pours off copper layers. */
class TGraphicsKeepoutItem : public TGraphicsItem
{
public:
    int type() const override;

    bool IsLayerEnable(Osmirel::Layer layer) const;
    void SetLayerEnable(Osmirel::Layer layer, bool on);

protected:
    QSet<int> enabled;
};
