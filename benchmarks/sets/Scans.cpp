#include "benchmarks/sets/Scans.h"
#include "benchmarks/sets/ScansOfItems.h"

#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsRectItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsWireItem.h>

namespace Bench {

namespace {

Qt::BrushStyle BrushOf(const TGraphicsItem& drawing)
{
    return drawing.type() == ItemType::Polygon ? static_cast<const TGraphicsPolygonItem&>(drawing).Brush().style()
                                               : static_cast<const TGraphicsRectItem&>(drawing).Brush().style();
}

} // namespace

void ScanVias(const Items& items)
{
    const TGraphicsViaItem* first = nullptr;
    bool sameGroup = true;
    bool sameMask = true;
    for (const TGraphicsItem* item : items) {
        if (item->type() != ItemType::Via) {
            continue;
        }
        const auto* via = static_cast<const TGraphicsViaItem*>(item);
        first = first ? first : via;
        sameGroup = sameGroup && via->ViaGroup() == first->ViaGroup();
        sameMask = sameMask && via->MaskEnabled() == first->MaskEnabled();
    }
    Use(sameGroup, sameMask);
}

void ScanPads(const Items& items)
{
    const TGraphicsPadItem* first = nullptr;
    bool sameNumber = true;
    bool sameName = true;
    bool sameSide = true;
    bool sameType = true;
    bool sameShape = true;
    bool sameThermal = true;
    bool sameMask = true;
    bool samePaste = true;
    bool inPackage = false;
    for (const TGraphicsItem* item : items) {
        if (item->type() != ItemType::Pad) {
            continue;
        }
        const auto* pad = static_cast<const TGraphicsPadItem*>(item);
        first = first ? first : pad;
        sameNumber = sameNumber && pad->Number() == first->Number();
        sameName = sameName && pad->Name() == first->Name();
        sameSide = sameSide && pad->StartLayer() == first->StartLayer();
        sameType = sameType && pad->IsSMD() == first->IsSMD();
        sameShape = sameShape && pad->PadShape() == first->PadShape();
        sameThermal = sameThermal && pad->Thermal() == first->Thermal();
        sameMask = sameMask && pad->MaskEnabled() == first->MaskEnabled();
        samePaste = samePaste && pad->PasteEnabled() == first->PasteEnabled();
        inPackage = inPackage || pad->parentItem();
    }
    Use(sameNumber, sameName, sameSide, sameType, sameShape, sameThermal, sameMask, samePaste, inPackage);
}

void ScanHoles(const Items& items)
{
    double lastDiameter = 0;
    for (const TGraphicsItem* item : items) {
        if (item->type() == ItemType::Hole) {
            lastDiameter = static_cast<const TGraphicsHoleItem*>(item)->Size().width();
        }
    }
    Use(lastDiameter);
}

void ScanWires(const Items& items)
{
    const TGraphicsWireItem* first = nullptr;
    const TGraphicsWireItem* last = nullptr;
    QString net;
    bool sameNet = true;
    ForEach<TGraphicsWireItem>(items, ItemType::Wire, [&](const TGraphicsWireItem& wire) {
        if (!first) {
            first = &wire;
            net = wire.Net();
        }
        last = &wire;
        sameNet = sameNet && wire.Net() == net;
    });
    if (last) {
        Use(sameNet, last->PenWidth(), last->Layer(), last->CompositionMode());
    }
}

void ScanPackages(const Items& items)
{
    const TGraphicsPackageItem* first = nullptr;
    bool sameRefDes = true;
    bool sameValue = true;
    bool sameName = true;
    bool sameId = true;
    bool sameLockOfRefDes = true;
    bool sameLockOfValue = true;
    bool sameSide = true;
    ForEach<TGraphicsPackageItem>(items, ItemType::Package, [&](const TGraphicsPackageItem& package) {
        first = first ? first : &package;
        sameRefDes = sameRefDes && package.RefDes() == first->RefDes();
        sameValue = sameValue && package.Value() == first->Value();
        sameName =
            sameName && NameWithoutQualifier(package.PackageName()) == NameWithoutQualifier(first->PackageName());
        sameId = sameId && package.ComponentNumber() == first->ComponentNumber();
        sameLockOfRefDes = sameLockOfRefDes && package.LockRefDes() == first->LockRefDes();
        sameLockOfValue = sameLockOfValue && package.LockValue() == first->LockValue();
        sameSide = sameSide && package.Layer() == first->Layer();
    });
    Use(sameRefDes, sameValue, sameName, sameId, sameLockOfRefDes, sameLockOfValue, sameSide);
}

void ScanTexts(const Items& items)
{
    const TGraphicsTextItem* first = nullptr;
    float lastWidth = 0;
    bool sameFamily = true;
    bool sameSize = true;
    bool sameWeight = true;
    bool sameStyle = true;
    bool sameAlignment = true;
    bool sameAngle = true;
    bool sameFlags = true;
    bool sameLayer = true;
    bool sameColor = true;
    ForEach<TGraphicsTextItem>(items, ItemType::Text, [&](const TGraphicsTextItem& text) {
        first = first ? first : &text;
        lastWidth = text.LineWidth();
        sameFamily = sameFamily && text.Font().family() == first->Font().family();
        sameSize = sameSize && text.Font().pixelSize() == first->Font().pixelSize();
        sameWeight = sameWeight && text.Font().weight() == first->Font().weight();
        sameStyle = sameStyle && text.Font().style() == first->Font().style();
        sameAlignment = sameAlignment && text.Alignment() == first->Alignment();
        sameAngle = sameAngle && qFuzzyCompare(1 + text.rotation(), 1 + first->rotation());
        sameFlags = sameFlags && text.TFlags() == first->TFlags();
        sameLayer = sameLayer && text.Layer() == first->Layer();
        sameColor = sameColor && text.AltColor() == first->AltColor();
    });
    Use(sameFamily, sameSize, sameWeight, sameStyle, sameAlignment, sameAngle, sameFlags, sameLayer, sameColor,
        lastWidth);
}

void ScanDrawings(const Items& items)
{
    const TGraphicsPenItem* first = nullptr;
    bool sameStyle = true;
    bool sameLayer = true;
    bool sameColor = true;
    bool sameBrush = true;
    for (const TGraphicsItem* item : items) {
        const int kind = item->type();
        if (kind != ItemType::Rectangle && kind != ItemType::Polygon) {
            continue;
        }
        const auto* drawing = static_cast<const TGraphicsPenItem*>(item);
        first = first ? first : drawing;
        sameStyle = sameStyle && drawing->Pen().style() == first->Pen().style();
        sameLayer = sameLayer && drawing->Layer() == first->Layer();
        sameColor = sameColor && drawing->AltColor() == first->AltColor();
        sameBrush = sameBrush && BrushOf(*drawing) == BrushOf(*first);
    }
    Use(sameStyle, sameLayer, sameColor, sameBrush);
}

void ScanMillings(const Items& items)
{
    float lastWidth = 0;
    ForEach<TGraphicsPolylineItem>(items, ItemType::Polyline, [&lastWidth](const TGraphicsPolylineItem& path) {
        if (path.Layer() == Osmirel::Milling) {
            lastWidth = path.PenWidth();
        }
    });
    Use(lastWidth);
}

void ScanNetTies(const Items& items)
{
    Use(FirstOf<TGraphicsNetTiePcbItem>(items, ItemType::NetTiePcb));
}

void ScanNetTieSymbols(const Items& items)
{
    Use(FirstOf<TGraphicsNetTieSchItem>(items, ItemType::NetTieSch));
}

void ScanKeepouts(const Items& items)
{
    Use(FirstOf<TGraphicsKeepoutItem>(items, ItemType::Keepout));
}

void ScanOutlines(const Items& items)
{
    Use(LastOf<TGraphicsOutlineItem>(items, ItemType::Outline));
}

void ScanPours(const Items& items)
{
    Use(LastOf<TGraphicsPourItem>(items, ItemType::Pour));
}

} // namespace Bench
