#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/TextEffects.h"
#include "workbench/importer/schematic/PageItems.h"

#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>

#include <algorithm>

namespace {

using Port = TGraphicsPortItem;

Port::TypePortShape PortShape(const QString& word)
{
    constexpr std::pair<const char*, Port::TypePortShape> shapes[] = {
        {"input", Port::ShapeInput},
        {"output", Port::ShapeOutput},
        {"bidirectional", Port::ShapeBidirectional},
        {"tri_state", Port::ShapeTriState},
    };
    const auto found = std::find_if(std::begin(shapes), std::end(shapes),
                                    [&word](const auto& each) { return word == QLatin1String(each.first); });
    return found == std::end(shapes) ? Port::ShapePassive : found->second;
}

struct TPortPlace
{
    TGridPoint place;
    TGridPoint along; ///< The direction of the port on the sheet.
    Port::TypePortShape shape = Port::ShapePassive;
    bool showsName = true;
};

/** A port names a net; on a bus, it has the bus's name and no net. */
void AddPort(const TPortPlace& at, const QString& name, bool isOnNet, TPageDraft& page, TSchematicDraft& draft)
{
    auto port = std::make_unique<TGraphicsPortItem>();
    port->setPos(Measures::ScenePoint(at.place));
    port->setRotation(PageItems::RotationAlong(at.along));
    port->SetPortShape(at.shape);
    port->SetName(name, draft.NetColor(name));
    port->SetNameVisible(at.showsName);
    if (isOnNet) {
        page.connectionPoints.At(at.place).pins.append({port->Pin(), name, true});
    }
    page.target.Attach(std::move(port));
}

/** The port is rotated by @p turns more quarters counterclockwise than the label. */
void AddLabelPort(const TSheetLabel& label, const QString& shape, int turns, int net, TPageDraft& page,
                  TSchematicDraft& draft)
{
    const TGridPoint upwards = UnitStep(label.quarters + turns);
    const TPortPlace at{
        label.place, {upwards.x, -upwards.y}, PortShape(shape), !TextEffects::IsHidden(label.element, 1)};
    AddPort(at, net < 0 ? label.text : draft.NetName(net), net >= 0, page, draft);
}

} // namespace

void PageItems::AddPowerPorts(const TPageSymbol& symbol, TPageDraft& page, TSchematicDraft& draft)
{
    const std::vector<TSymbolField>& fields = symbol.symbol->fields;
    const bool showsValue = std::any_of(fields.begin(), fields.end(), [](const TSymbolField& field) {
        return field.key == QLatin1String("Value") && !TextEffects::IsHidden(field.element, 2);
    });
    for (const TPagePin& pin : symbol.pins) {
        const TGridPoint along = symbol.symbol->frame.Turned(UnitStep(pin.pin->quarters));
        AddPort({pin.place, along, Port::ShapePower, showsValue}, draft.NetName(pin.net), true, page, draft);
    }
}

void PageItems::AddPorts(TPageDraft& page, TSchematicDraft& draft)
{
    const TSheetFile& file = *page.page.file;
    for (std::size_t i = 0; i < file.labels.size(); ++i) {
        const TSheetLabel& label = file.labels[i];
        if (label.kind != LabelKind::Local) {
            const std::optional<TSexpression> shape = label.element.Find("shape");
            AddLabelPort(label, shape ? shape->Value(0).Text() : QString(), 0, page.page.labelNets[i], page, draft);
        }
    }
    constexpr int inwards = 2; // A pin's angle is that of its box edge; the port extends to the inside.
    for (std::size_t box = 0; box < file.boxes.size(); ++box) {
        for (std::size_t i = 0; i < file.boxes[box].pins.size(); ++i) {
            const TSheetLabel& pin = file.boxes[box].pins[i];
            AddLabelPort(pin, pin.element.Value(1).Text(), inwards, page.page.boxPinNets[box][i], page, draft);
        }
    }
}
