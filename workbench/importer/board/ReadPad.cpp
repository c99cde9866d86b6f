#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/PadCopper.h"
#include "workbench/importer/board/TFootprintFrame.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"

#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>

#include <algorithm>

namespace {

using Measures::SceneLength;

/** The size of a hole in nanometres; both 0 without a hole, different for an oblong hole. */
struct TDrill
{
    qint64 width = 0;
    qint64 height = 0;

    qint64 Diameter() const { return std::min(width, height); }
};

TDrill Drill(const TSexpression& pad)
{
    QList<qint64> measures;
    if (const std::optional<TSexpression> drill = pad.Find("drill")) {
        for (const TSexpression value : *drill) {
            if (!value.IsList() && !value.IsWord("oval")) {
                measures.append(value.Extent());
            }
        }
    }
    return measures.isEmpty() ? TDrill() : TDrill{measures.first(), measures.last()};
}

bool IsPlated(const TSexpression& pad)
{
    return !pad.Value(1).IsWord("np_thru_hole");
}

/** Whether the pad is only a round hole, without plating and copper. */
bool IsBareHole(const TSexpression& pad, const TDrill& drill)
{
    const TSexpression size = pad.Get("size");
    return !IsPlated(pad) && drill.width == drill.height && size.Value(0).Extent() <= drill.width
           && size.Value(1).Extent() <= drill.width;
}

/** Holes are placed on the board directly, so that they can be selected and edited there. */
void ReadHole(const TSexpression& pad, const TDrill& drill, const TGraphicsPackageItem& package, TBoardDraft& draft)
{
    const auto diameter = static_cast<float>(SceneLength(drill.Diameter()));
    auto hole = std::make_unique<TGraphicsHoleItem>();
    hole->SetLayer(Osmirel::Milling);
    hole->setPos(package.mapToScene(ElementValues::Position(pad.Get("at"))));
    hole->SetSize(diameter, diameter);
    hole->SetTFlag(TGraphicsItem::Lock, package.HasTFlag(TGraphicsItem::Lock));
    draft.board->Attach(std::move(hole));
}

/** The layer of a single-layer pad: its copper layer; else that of its opening, paste or the first one. */
Osmirel::Layer SurfaceLayer(const QList<Osmirel::Layer>& layers, Osmirel::Layer ofPackage)
{
    const auto isPaste = [](Osmirel::Layer layer) {
        return layer == Osmirel::PasteTop || layer == Osmirel::PasteBottom;
    };
    auto found = std::find_if(layers.begin(), layers.end(), Osmirel::IsCopper);
    if (found == layers.end()) {
        found = std::find_if(layers.begin(), layers.end(), isPaste);
    }
    return found == layers.end() ? layers.value(0, ofPackage) : *found;
}

void ApplyLayers(const TSexpression& pad, TGraphicsPadItem& item, const TFootprintFrame& footprint,
                 const TBoardDraft& draft)
{
    const QList<Osmirel::Layer> layers = draft.layers.Resolve(pad.Get("layers"));
    const bool isDrilled = pad.Value(1).IsWord("thru_hole") || !IsPlated(pad);
    if (isDrilled || std::count_if(layers.begin(), layers.end(), Osmirel::IsCopper) > 1) {
        item.SetLayers(Osmirel::CopperTop, Osmirel::CopperBottom);
    } else {
        const Osmirel::Layer layer = SurfaceLayer(layers, footprint.package.Layer());
        item.SetLayers(layer, layer);
    }
    item.SetMaskEnabled(layers.contains(Osmirel::MaskTop) || layers.contains(Osmirel::MaskBottom));
    item.SetPasteEnabled(layers.contains(Osmirel::PasteTop) || layers.contains(Osmirel::PasteBottom));
}

/** The clearances depend on the size, which must be read first. */
void ApplyDefaults(const TPadDefaults& defaults, TGraphicsPadItem& item, TBoardDraft& draft)
{
    const double pasteMargin =
        SceneLength(defaults.pasteMargin) + defaults.pasteRatio * std::min(item.Width(), item.Height());
    item.SetMaskClearance(static_cast<float>(SceneLength(defaults.maskMargin)));
    item.SetPasteClearance(static_cast<float>(pasteMargin));

    enum Connection : int { None = 0, ThermalRelief = 1, Solid = 2, ThermalReliefIfDrilled = 3 };
    switch (defaults.connection.value_or(-1)) {
    case None: draft.notShown.Count("pads without zone connections"); break;
    case ThermalRelief: item.SetThermal(TGraphicsViaItem::ThermalYes); break;
    case Solid: item.SetThermal(TGraphicsViaItem::ThermalNo); break;
    case ThermalReliefIfDrilled:
        item.SetThermal(item.IsSMD() ? TGraphicsViaItem::ThermalNo : TGraphicsViaItem::ThermalYes);
        break;
    default: break;
    }
}

} // namespace

TPadDefaults ElementReaders::ReadPadDefaults(const TSexpression& element, TPadDefaults defaults)
{
    for (const TSexpression property : element) {
        const std::string_view name = property.Name();
        if (name == "solder_mask_margin") {
            defaults.maskMargin = property.Value(0).Millionths();
        } else if (name == "solder_paste_margin") {
            defaults.pasteMargin = property.Value(0).Millionths();
        } else if (name == "solder_paste_margin_ratio" || name == "solder_paste_ratio") {
            defaults.pasteRatio = property.Value(0).Decimal();
        } else if (name == "zone_connect") {
            defaults.connection = property.Value(0).Integer();
        }
    }
    return defaults;
}

void ElementReaders::ReadPad(const TSexpression& pad, const TFootprintFrame& footprint, TBoardDraft& draft)
{
    const TDrill drill = Drill(pad);
    if (IsBareHole(pad, drill)) {
        ReadHole(pad, drill, footprint.package, draft);
        return;
    }
    const TSexpression at = pad.Get("at");
    const std::optional<TSexpression> name = pad.Find("pinfunction");
    auto& item = *new TGraphicsPadItem(&footprint.package);
    item.SetNumber(ElementValues::UserName(pad.Value(0)));
    item.SetName(name ? ElementValues::UserName(name->Value(0)) : QString());
    item.setPos(ElementValues::Position(at));
    item.setRotation(Measures::SceneRotation(ElementValues::Angle(at) - footprint.angle));
    item.SetDrill(static_cast<float>(SceneLength(drill.Diameter())));
    item.SetDrillStretch({SceneLength(drill.width - drill.Diameter()), SceneLength(drill.height - drill.Diameter())});
    item.SetNet(draft.NetOf(pad));
    ReadPadCopper(pad, item, draft);
    ApplyLayers(pad, item, footprint, draft);
    ApplyDefaults(ReadPadDefaults(pad, footprint.padDefaults), item, draft);
    if (!IsPlated(pad)) {
        draft.notShown.Count("unplated slots and rings (read as plated)");
    }
    if (pad.Find("padstack")) {
        draft.notShown.Count("pads whose copper differs by layer");
    }
}
