#include "properties/commands/TCmdKeepout.h"

#include <objects/TGraphicsKeepoutItem.h>

TCmdKeepoutLayEn::TCmdKeepoutLayEn(QList<TGraphicsKeepoutItem*> keepouts, Osmirel::Layer onLayer, bool enable)
    : items(std::move(keepouts)), layer(onLayer), newValue(enable)
{
    items.removeAll(nullptr);
    oldValues.reserve(items.size());
    for (const TGraphicsKeepoutItem* keepout : qAsConst(items)) {
        oldValues.append(keepout->IsLayerEnable(layer));
    }
}

void TCmdKeepoutLayEn::Do()
{
    for (TGraphicsKeepoutItem* keepout : qAsConst(items)) {
        keepout->SetLayerEnable(layer, newValue);
    }
}

void TCmdKeepoutLayEn::Undo()
{
    auto oldValue = oldValues.cbegin();
    for (TGraphicsKeepoutItem* keepout : qAsConst(items)) {
        keepout->SetLayerEnable(layer, *oldValue++);
    }
}
