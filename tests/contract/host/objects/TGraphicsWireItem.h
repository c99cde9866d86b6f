#pragma once

#include <objects/TGraphicsSectionItem.h>

/** A straight piece of track on one copper layer. */
class TGraphicsWireItem : public TGraphicsSectionItem
{
public:
    int type() const override;

    int CompositionMode() const;
    void SetCompositionMode(int mode);
    TGraphicsItem* CreateCopy() const;
    void Assign(const TGraphicsItem& other);

protected:
    int compositionMode = 0;
};
