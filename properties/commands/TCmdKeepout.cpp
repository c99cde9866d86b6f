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

TCommandKind TCmdKeepoutLayEn::Kind() const
{
    return {"KeepoutLayEn", QT_TRANSLATE_NOOP("TCommandKind", "Switch a layer of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "keepouts")};
}

bool TCmdKeepoutLayEn::Do()
{
    for (TGraphicsKeepoutItem* keepout : qAsConst(items)) {
        keepout->SetLayerEnable(layer, newValue);
    }
    return true;
}

bool TCmdKeepoutLayEn::Undo()
{
    auto oldValue = oldValues.cbegin();
    for (TGraphicsKeepoutItem* keepout : qAsConst(items)) {
        keepout->SetLayerEnable(layer, *oldValue++);
    }
    return true;
}
