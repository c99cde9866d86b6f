#include "properties/commands/TRecreatedItems.h"

#include <objects/TGraphicsViaItem.h>
#include <objects/TGraphicsWireItem.h>

namespace {

void MakeLikeAnyItem(TGraphicsItem& item, const TGraphicsItem& model)
{
    for (unsigned bit = 1; bit != 0; bit <<= 1) {
        const auto flag = static_cast<TGraphicsItem::TFlag>(bit);
        if (item.HasTFlag(flag) != model.HasTFlag(flag)) {
            item.SetTFlag(flag, model.HasTFlag(flag));
        }
    }
    item.SetLayer(model.Layer());
    item.SetAltColor(model.AltColor());
    item.setPos(model.pos());
    item.setRotation(model.rotation());
    item.setVisible(model.isVisible());
}

} // namespace

void MakeLike(TGraphicsViaItem& via, const TGraphicsViaItem& model)
{
    via.SetViaGroup(model.ViaGroup());
    via.SetLayers(model.StartLayer(), model.EndLayer()); // They may differ from those of the drill pair.
    via.SetSize(model.Width(), model.Height());
    via.SetDrill(model.Drill());
    via.SetThermal(model.Thermal());
    via.SetMaskEnabled(model.MaskEnabled());
    via.SetMaskClearance(model.MaskClearance());
    via.SetNet(model.OwnNet());
    MakeLikeAnyItem(via, model);
}

void MakeLike(TGraphicsWireItem& wire, const TGraphicsWireItem& model)
{
    wire.SetPoint1(model.Point1());
    wire.SetPoint2(model.Point2());
    wire.SetPenWidth(model.PenWidth());
    wire.Pen() = model.Pen();
    wire.SetCompositionMode(model.CompositionMode());
    wire.SetNet(model.OwnNet());
    MakeLikeAnyItem(wire, model);
}
