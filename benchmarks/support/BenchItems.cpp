#include "benchmarks/support/BenchItems.h"

#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsRectItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsTagItem.h>
#include <objects/TGraphicsWireItem.h>

#include <algorithm>

namespace Bench {

namespace {

/** Sizes in scene units that differ from item to item, as on a board with a handful of sizes. */
double SizeOf(int number)
{
    return 8 + number % 7;
}

TGraphicsItem* PlaceVia(ShownBoard& board, int number)
{
    auto* via = board.Place<TGraphicsViaItem>(GridPoint(number));
    via->SetSize(SizeOf(number), SizeOf(number));
    via->SetDrill(static_cast<float>(SizeOf(number) / 2));
    via->SetViaGroup(QStringLiteral("Top - Bottom"));
    return via;
}

TGraphicsItem* PlacePad(ShownBoard& board, int number)
{
    auto* pad = board.Place<TGraphicsPadItem>(GridPoint(number));
    pad->SetSize(SizeOf(number), 2 * SizeOf(number));
    pad->SetPadShape(TGraphicsPadItem::ShapeRectangle);
    pad->SetLayers(Osmirel::CopperTop, Osmirel::CopperTop);
    pad->SetNumber(QString::number(number));
    pad->SetName(QStringLiteral("P%1").arg(number));
    return pad;
}

TGraphicsItem* PlaceHole(ShownBoard& board, int number)
{
    auto* hole = board.Place<TGraphicsHoleItem>(GridPoint(number));
    hole->SetSize(static_cast<float>(SizeOf(number)), static_cast<float>(SizeOf(number)));
    return hole;
}

template <class Drawing>
Drawing* WithPen(Drawing* drawing, int number)
{
    drawing->SetLayer(Osmirel::DrawingsTop);
    drawing->SetPenWidth(static_cast<float>(SizeOf(number) / 4));
    return drawing;
}

QPolygonF Triangle(double size)
{
    return QPolygonF({{0, 0}, {size, 0}, {0, size}});
}

TGraphicsItem* PlaceDrawing(ShownBoard& board, int number)
{
    const double size = SizeOf(number);
    if (number % 2 == 0) {
        auto* rectangle = WithPen(board.Place<TGraphicsRectItem>(GridPoint(number)), number);
        rectangle->SetSize(static_cast<float>(size), static_cast<float>(2 * size));
        return rectangle;
    }
    auto* polygon = WithPen(board.Place<TGraphicsPolygonItem>(GridPoint(number)), number);
    polygon->SetPoints(Triangle(size));
    return polygon;
}

TGraphicsItem* PlaceMilling(ShownBoard& board, int number)
{
    auto* path = WithPen(board.Place<TGraphicsPolylineItem>(GridPoint(number)), number);
    path->SetPoints(Triangle(SizeOf(number)));
    path->SetLayer(Osmirel::Milling);
    return path;
}

TGraphicsItem* PlaceOutline(ShownBoard& board, int number)
{
    auto* outline = board.Place<TGraphicsOutlineItem>(GridPoint(number));
    outline->SetPoints({{0, 0, 0}, {SizeOf(number), 0, 0}, {0, SizeOf(number), 0}});
    return outline;
}

TGraphicsItem* PlaceText(ShownBoard& board, int number)
{
    auto* text = board.Place<TGraphicsTextItem>(GridPoint(number));
    text->SetLayer(Osmirel::SilkTop);
    text->SetText(QStringLiteral("T%1").arg(number));
    text->Font().setFamily(QStringLiteral("Sans"));
    text->Font().setPixelSize(number % 2 == 0 ? 12 : 16); // 3 and 4 points.
    text->UpdatePath(false);
    return text;
}

/** Wires from left to right, the second of two joined with the first by a junction. */
TGraphicsItem* PlaceWire(ShownBoard& board, int number, TGraphicsItem* previous)
{
    constexpr double length = 50;
    const QPointF at = GridPoint(number);
    auto* wire = board.Place<TGraphicsWireItem>({});
    wire->SetLayer(Osmirel::CopperTop);
    wire->SetPenWidth(static_cast<float>(SizeOf(number)));
    wire->SetPoint1(at);
    wire->SetPoint2(at + QPointF(length, 0));
    wire->SetNet(QStringLiteral("N%1").arg(number / 2));
    if (number % 2 == 0) {
        auto* junction = board.Place<TGraphicsJunctionItem>(at + QPointF(length, 0));
        junction->SetLayer(Osmirel::CopperTop);
        wire->LinkToLast(junction);
    } else {
        auto* junction = static_cast<TGraphicsJunctionItem*>(static_cast<TGraphicsWireItem*>(previous)->LastLink());
        wire->LinkToFirst(junction);
        const auto widest = static_cast<float>(std::max(SizeOf(number - 1), SizeOf(number)));
        junction->SetSize(widest, widest);
    }
    return wire;
}

TGraphicsItem* PlacePour(ShownBoard& board, int number, bool filled)
{
    auto* pour = board.Place<TGraphicsPourItem>(GridPoint(number));
    pour->SetArea(QPolygonF(QRectF(0, 0, 2 * SizeOf(number), 2 * SizeOf(number))));
    pour->SetClearanceToEtch(SizeOf(number));
    pour->SetLineWidth(SizeOf(number) / 4);
    if (filled) {
        pour->SetNet(QStringLiteral("N%1").arg(number % 7));
    }
    return pour;
}

TGraphicsItem* PlaceKeepout(ShownBoard& board, int number)
{
    auto* keepout = board.Place<TGraphicsKeepoutItem>(GridPoint(number));
    keepout->SetArea(Triangle(SizeOf(number)));
    keepout->SetLayerEnable(Osmirel::CopperTop, false);
    keepout->SetLayerEnable(Osmirel::CopperBottom, number % 2 == 0);
    return keepout;
}

TGraphicsItem* PlaceNetTie(ShownBoard& board, int number)
{
    // Ties have 16-bit numbers: beyond 65 536 they share them, and with them their values.
    const auto ofTie = static_cast<quint16>(number);
    auto* tie = board.Place<TGraphicsNetTiePcbItem>(GridPoint(number));
    tie->SetNumber(ofTie);
    tie->SetName(QStringLiteral("NT%1").arg(ofTie));
    tie->SetLayer(Osmirel::CopperTop);
    tie->SetPadSize(SizeOf(ofTie));
    tie->SetPadDistance(2 * SizeOf(ofTie));
    tie->Pen().setWidthF(SizeOf(ofTie) / 2);
    return tie;
}

TGraphicsItem* PlaceNetTieSymbol(ShownBoard& board, int number)
{
    auto* tie = board.Place<TGraphicsNetTieSchItem>(GridPoint(number));
    tie->SetNumber(static_cast<quint16>(number));
    tie->SetName(QStringLiteral("NT%1").arg(number));
    return tie;
}

TGraphicsItem* PlacePackage(ShownBoard& board, int number)
{
    auto* package = board.Place<TGraphicsPackageItem>(GridPoint(number));
    package->SetRefDes(QStringLiteral("R%1").arg(number));
    package->SetValue(QStringLiteral("%1k").arg(number % 10));
    package->SetPackageName(QStringLiteral("SO8@wide"));
    return package;
}

template <class Section>
Section* PlaceSection(ShownBoard& board, int number)
{
    auto* section = board.Place<Section>({});
    section->SetPoint1(GridPoint(number));
    section->SetPoint2(GridPoint(number) + QPointF(20, 0));
    return section;
}

TGraphicsItem* PlaceNetWire(ShownBoard& board, int number)
{
    auto* wire = PlaceSection<TGraphicsNetItem>(board, number);
    wire->SetNet(QStringLiteral("N%1").arg(number % 100));
    return wire;
}

TGraphicsItem* PlaceBus(ShownBoard& board, int number)
{
    auto* bus = PlaceSection<TGraphicsBusItem>(board, number);
    bus->SetName(QStringLiteral("D%1[0..7]").arg(number % 100));
    return bus;
}

TGraphicsItem* PlacePin(ShownBoard& board, int number)
{
    auto* pin = board.Place<TGraphicsPinItem>(GridPoint(number));
    pin->SetName(QStringLiteral("P%1").arg(number));
    pin->NumberText()->SetText(QString::number(number));
    pin->SetPinType(static_cast<TGraphicsPinItem::TypePinType>(number % 7));
    pin->SetPinStyle(static_cast<TGraphicsPinItem::TypePinStyle>(number % 2));
    pin->SetPinLength(static_cast<TGraphicsPinItem::TypePinLength>(number % 4));
    pin->SetSwap(static_cast<quint8>(number % 5));
    pin->UpdatePath();
    return pin;
}

TGraphicsItem* PlacePort(ShownBoard& board, int number)
{
    auto* port = board.Place<TGraphicsPortItem>(GridPoint(number));
    port->SetName(QStringLiteral("N%1").arg(number), {});
    return port;
}

TGraphicsItem* PlacePart(ShownBoard& board, int number)
{
    auto* part = board.Place<TGraphicsPartItem>(GridPoint(number));
    part->SetRefDes(QStringLiteral("R%1").arg(number));
    part->SetValue(QStringLiteral("%1k").arg(number % 10));
    part->SetPackageName(QStringLiteral("SO8@wide"));
    return part;
}

TGraphicsItem* PlaceTag(ShownBoard& board, int number)
{
    auto* tag = board.Place<TGraphicsTagItem>(GridPoint(number));
    tag->Font().setFamily(QStringLiteral("Sans"));
    tag->SetName(QStringLiteral("Title%1").arg(number % 10), true);
    return tag;
}

} // namespace

TGraphicsItem* PlaceItem(ShownBoard& board, Kind kind, int number, TGraphicsItem* previous)
{
    switch (kind) {
    case Kind::Via: return PlaceVia(board, number);
    case Kind::Pad: return PlacePad(board, number);
    case Kind::Hole: return PlaceHole(board, number);
    case Kind::Drawing: return PlaceDrawing(board, number);
    case Kind::Milling: return PlaceMilling(board, number);
    case Kind::Outline: return PlaceOutline(board, number);
    case Kind::Text: return PlaceText(board, number);
    case Kind::Wire: return PlaceWire(board, number, previous);
    case Kind::Pour: return PlacePour(board, number, true);
    case Kind::UnfilledPour: return PlacePour(board, number, false);
    case Kind::Keepout: return PlaceKeepout(board, number);
    case Kind::NetTie: return PlaceNetTie(board, number);
    case Kind::NetTieSymbol: return PlaceNetTieSymbol(board, number);
    case Kind::Package: return PlacePackage(board, number);
    case Kind::NetWire: return PlaceNetWire(board, number);
    case Kind::Bus: return PlaceBus(board, number);
    case Kind::Pin: return PlacePin(board, number);
    case Kind::Port: return PlacePort(board, number);
    case Kind::Part: return PlacePart(board, number);
    case Kind::Tag: break;
    }
    return PlaceTag(board, number);
}

TGraphicsTextItem* NewText()
{
    auto* text = new TGraphicsTextItem;
    text->SetLayer(Osmirel::SilkTop);
    text->Font().setPixelSize(8);
    return text;
}

} // namespace Bench
