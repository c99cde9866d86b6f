#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TFootprintFrame.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"

#include <graphics/TGraphicsPolygonItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPourItem.h>

#include <algorithm>

namespace {

/** Default clearance to the board's edge, if neither board nor project has one, in nanometres. */
constexpr qint64 usualEdgeClearance = 250'000;

double Length(const TSexpression& list, std::string_view name, double otherwise = 0)
{
    const std::optional<TSexpression> found = list.Find(name);
    return found ? Measures::SceneLength(found->Value(0).Extent()) : otherwise;
}

QVector<QPolygonF> Outlines(const TSexpression& zone)
{
    QVector<QPolygonF> outlines;
    for (const TSexpression polygon : zone) {
        if (polygon.Name() == "polygon") {
            outlines.append(ShapeValues::CornersOfPoints(polygon.Get("pts")));
        }
    }
    return outlines;
}

QList<Osmirel::Layer> Layers(const TSexpression& zone, const TBoardDraft& draft)
{
    const std::optional<TSexpression> several = zone.Find("layers");
    return draft.layers.Resolve(several ? *several : zone.Get("layer"));
}

std::unique_ptr<TGraphicsKeepoutItem> Keepout(const TSexpression& zone, const QPolygonF& area, TBoardDraft& draft)
{
    auto keepout = std::make_unique<TGraphicsKeepoutItem>();
    keepout->SetArea(area);
    const std::optional<TSexpression> pours = zone.Get("keepout").Find("copperpour");
    if (pours && pours->Value(0).IsWord("allowed")) {
        // Active, it would keep out the pours that it allows: it is placed, but acts on no layer.
        draft.notShown.Count("keepouts that allow pours (acting on no layer)");
    } else {
        const QList<Osmirel::Layer> layers = Layers(zone, draft);
        for (const Osmirel::Layer layer : layers) {
            keepout->SetLayerEnable(layer, true);
        }
    }
    keepout->SetTFlag(TGraphicsItem::Lock, zone.HasFlag("locked"));
    return keepout;
}

int FillType(const std::optional<TSexpression>& fill)
{
    if (!fill || !fill->HasFlag("yes")) {
        return Qt::NoBrush;
    }
    const std::optional<TSexpression> mode = fill->Find("mode");
    return mode && mode->Value(0).IsWord("hatch") ? Qt::CrossPattern : Qt::SolidPattern;
}

/** Reads which islands, copper that touches nothing of its net, are removed. */
void ApplyIslandRemoval(const std::optional<TSexpression>& fill, TGraphicsPourItem& pour)
{
    enum Removal : int { Always = 0, Never = 1, BelowArea = 2 };
    const std::optional<TSexpression> mode = fill ? fill->Find("island_removal_mode") : std::nullopt;
    const int removal = mode ? mode->Value(0).Integer() : Always;
    const std::optional<TSexpression> area = fill ? fill->Find("island_area_min") : std::nullopt;
    // Without a net, all copper would be an island.
    pour.SetOnlyConnected(removal == Always && !pour.OwnNet().isEmpty());
    pour.SetMinimumArea(removal == BelowArea && area ? area->Value(0).Decimal() : 0);
}

void ApplyConnection(const TSexpression& zone, TGraphicsPourItem& pour, TBoardDraft& draft)
{
    const std::optional<TSexpression> connection = zone.Find("connect_pads");
    const double clearance = connection ? Length(*connection, "clearance") : 0;
    pour.SetClearanceToEtch(clearance);
    pour.SetClearanceToPour(clearance);
    pour.SetThermalEnable(!connection || !connection->HasFlag("yes"));
    if (connection && connection->HasFlag("no")) {
        draft.notShown.Count("zones without pad connections (read as connected)");
    }
    if (connection && connection->HasFlag("thru_hole_only")) {
        draft.notShown.Count("zones with thermal reliefs on drilled pads only (read as on all)");
    }
}

std::unique_ptr<TGraphicsPourItem> Pour(const TSexpression& zone, const QPolygonF& area, Osmirel::Layer layer,
                                        TBoardDraft& draft)
{
    constexpr int strongest = 255;
    const std::optional<TSexpression> fill = zone.Find("fill");
    const std::optional<TSexpression> priority = zone.Find("priority");
    auto pour = std::make_unique<TGraphicsPourItem>();
    pour->SetLayer(layer);
    pour->SetArea(area);
    pour->SetNet(draft.NetOf(zone));
    ApplyConnection(zone, *pour, draft);
    ApplyIslandRemoval(fill, *pour);
    pour->SetClearanceToBorder(Measures::SceneLength(draft.netSettings.EdgeClearance().value_or(usualEdgeClearance)));
    pour->SetLineWidth(Length(zone, "min_thickness"));
    pour->SetFillType(FillType(fill));
    pour->SetPriority(static_cast<quint8>(priority ? std::clamp(priority->Value(0).Integer(), 0, strongest) : 0));
    if (fill) {
        pour->SetThermalIsolation(Length(*fill, "thermal_gap"));
        pour->SetThermalLine(Length(*fill, "thermal_bridge_width"));
    }
    pour->SetTFlag(TGraphicsItem::Lock, zone.HasFlag("locked"));
    return pour;
}

/** A zone on a layer other than copper: a polygon. */
std::unique_ptr<TGraphicsPolygonItem> Area(const TSexpression& zone, const QPolygonF& area, Osmirel::Layer layer)
{
    auto polygon = std::make_unique<TGraphicsPolygonItem>();
    polygon->SetLayer(layer);
    polygon->SetPoints(area);
    polygon->Brush().setStyle(static_cast<Qt::BrushStyle>(FillType(zone.Find("fill"))));
    polygon->SetTFlag(TGraphicsItem::Lock, zone.HasFlag("locked"));
    return polygon;
}

void AttachPours(const TSexpression& zone, TBoardDraft& draft)
{
    const QVector<QPolygonF> outlines = Outlines(zone);
    const QList<Osmirel::Layer> layers = Layers(zone, draft);
    if (layers.isEmpty()) {
        draft.notShown.Count("zones on unknown layers");
    }
    for (const Osmirel::Layer layer : layers) {
        for (const QPolygonF& area : outlines) {
            if (Osmirel::IsCopper(layer)) {
                draft.board->Attach(Pour(zone, area, layer, draft));
            } else {
                draft.board->Attach(Area(zone, area, layer));
            }
        }
    }
}

} // namespace

void ElementReaders::ReadZone(const TSexpression& zone, TBoardDraft& draft)
{
    if (!zone.Find("keepout")) {
        AttachPours(zone, draft);
        return;
    }
    const QVector<QPolygonF> outlines = Outlines(zone);
    for (const QPolygonF& area : outlines) {
        draft.board->Attach(Keepout(zone, area, draft));
    }
}

void ElementReaders::ReadFootprintZone(const TSexpression& zone, const TFootprintFrame& footprint, TBoardDraft& draft)
{
    if (!zone.Find("keepout")) {
        AttachPours(zone, draft);
        return;
    }
    // A keepout moves with its package, though its corners are in board coordinates.
    const QVector<QPolygonF> outlines = Outlines(zone);
    for (const QPolygonF& area : outlines) {
        Keepout(zone, footprint.package.mapFromScene(area), draft).release()->setParentItem(&footprint.package);
    }
}
