#pragma once

#include <objects/TGraphicsSectionItem.h>

/** A straight piece of a net on a page. */
class TGraphicsNetItem : public TGraphicsSectionItem
{
public:
    int type() const override;
};
