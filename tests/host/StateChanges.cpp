#include "tests/host/StateChanges.h"

#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsRatLineItem.h>

#include <cmath>

namespace Test {

namespace {

template <class Call>
std::function<void(TGraphicsItem&)> OnVia(Call call)
{
    return On<TGraphicsViaItem>(call);
}

template <class Call>
std::function<void(TGraphicsItem&)> OnPad(Call call)
{
    return On<TGraphicsPadItem>(call);
}

template <class Call>
std::function<void(TGraphicsItem&)> OnRectangle(Call call)
{
    return On<TGraphicsRectItem>(call);
}

template <class Call>
std::function<void(TGraphicsItem&)> OnPackage(Call call)
{
    return On<TGraphicsPackageItem>(call);
}

TGraphicsItem* Via(TestBoard& board)
{
    return board.AddVia();
}

TGraphicsItem* Pad(TestBoard& board)
{
    return board.AddSurfacePad();
}

TGraphicsItem* ThroughPad(TestBoard& board)
{
    return board.AddThroughPad();
}

TGraphicsItem* PadOfPackage(TestBoard& board)
{
    return board.AddSurfacePad(1, 1, board.AddPackage());
}

TGraphicsItem* Hole(TestBoard& board)
{
    return board.AddHole();
}

TGraphicsItem* Rectangle(TestBoard& board)
{
    return Placed<TGraphicsRectItem>(board);
}

TGraphicsItem* Package(TestBoard& board)
{
    return board.AddPackage();
}

} // namespace

TGraphicsWireItem* WireBeside(const TGraphicsItem& item)
{
    auto* wire = new TGraphicsWireItem;
    wire->SetPoint2({10, 0});
    wire->AttachTo(item.Owner());
    return wire;
}

const QList<Change>& StateChanges()
{
    using Arc = TGraphicsArcItem;
    using Text = TGraphicsTextItem;
    using Wire = TGraphicsWireItem;
    using Pour = TGraphicsPourItem;
    using NetTie = TGraphicsNetTiePcbItem;
    using NetTieSymbol = TGraphicsNetTieSchItem;
    using RatLine = TGraphicsRatLineItem;
    using Via_ = TGraphicsViaItem;
    using Pad_ = TGraphicsPadItem;
    using Rect = TGraphicsRectItem;
    using Package_ = TGraphicsPackageItem;
    static const QPainterPath square = [] {
        QPainterPath path;
        path.addRect(0, 0, 3, 4);
        return path;
    }();
    static const QList<Change> changes =
        StateChangesOfSheets()
        + QList<Change>{
            {"position", Via, [](TGraphicsItem& item) { item.setPos(1.5, -2); }, {"at"}},
            {"position of a package moves its pads",
             PadOfPackage,
             [](TGraphicsItem& item) { item.parentItem()->moveBy(1, 0); },
             {"at", "in.at"}},
            {"rotation", Pad, [](TGraphicsItem& item) { item.setRotation(-22.5); }, {"rotation"}},
            {"layer", Hole, [](TGraphicsItem& item) { item.SetLayer(Osmirel::Milling); }, {"layer"}},
            {"bypass flag",
             Via,
             [](TGraphicsItem& item) { item.SetTFlag(TGraphicsItem::UndoBypass, true); },
             {"flags"}},
            {"lock flag", Package, [](TGraphicsItem& item) { item.SetTFlag(TGraphicsItem::Lock, true); }, {"flags"}},
            {"colour", Rectangle, [](TGraphicsItem& item) { item.SetAltColor(Qt::red); }, {"color"}},
            {"opacity of the colour",
             Rectangle,
             [](TGraphicsItem& item) { item.SetAltColor(QColor(0, 0, 0, 1)); },
             {"color"}},

            {"via size", Via, OnVia([](Via_& via) { via.SetSize(8, 9); }), {"width", "height"}},
            {"via width by a hair",
             Via,
             OnVia([](Via_& via) { via.SetSize(std::nextafter(via.Width(), 99), via.Height()); }),
             {"width"}},
            {"drill", Via, OnVia([](Via_& via) { via.SetDrill(2); }), {"drill"}},
            {"drill by a hair",
             Via,
             OnVia([](Via_& via) { via.SetDrill(std::nextafter(via.Drill(), 99.0F)); }),
             {"drill"}},
            {"thermal", Via, OnVia([](Via_& via) { via.SetThermal(Via_::ThermalNo); }), {"thermal"}},
            {"drill pair", Via, OnVia([](Via_& via) { via.SetViaGroup("Top - Inner 1"); }), {"drillPair", "end"}},
            {"mask", Via, OnVia([](Via_& via) { via.SetMaskEnabled(true); }), {"mask"}},
            {"mask clearance", Via, OnVia([](Via_& via) { via.SetMaskClearance(-0.5F); }), {"maskClearance"}},
            {"layers",
             Via,
             OnVia([](Via_& via) { via.SetLayers(Osmirel::Copper2, Osmirel::Copper3); }),
             {"layer", "start", "end"}},
            {"net", Via, OnVia([](Via_& via) { via.SetNet("GND"); }), {"net"}},

            {"pad width", Pad, OnPad([](Pad_& pad) { pad.SetWidth(3); }), {"width"}},
            {"pad height", Pad, OnPad([](Pad_& pad) { pad.SetHeight(3); }), {"height"}},
            {"number", Pad, OnPad([](Pad_& pad) { pad.SetNumber("1 a"); }), {"number"}},
            {"name", Pad, OnPad([](Pad_& pad) { pad.SetName("name=\""); }), {"name"}},
            {"shape", Pad, OnPad([](Pad_& pad) { pad.SetPadShape(Pad_::ShapeSquare); }), {"shape"}},
            {"side", Pad, OnPad([](Pad_& pad) { pad.SetPadSide(Osmirel::CopperBottom); }), {"layer", "start", "end"}},
            {"type to through", Pad, OnPad([](Pad_& pad) { pad.SetTypeSMD(false); }), {"end"}},
            {"type to surface", ThroughPad, OnPad([](Pad_& pad) { pad.SetTypeSMD(true); }), {"end"}},
            {"pad mask clearance", Pad, OnPad([](Pad_& pad) { pad.SetMaskClearance(1); }), {"maskClearance"}},
            {"paste", Pad, OnPad([](Pad_& pad) { pad.SetPasteEnabled(true); }), {"paste"}},
            {"paste clearance", Pad, OnPad([](Pad_& pad) { pad.SetPasteClearance(-1); }), {"pasteClearance"}},
            {"corner ratio", Pad, OnPad([](Pad_& pad) { pad.SetCornerRatio(0.25); }), {"cornerRatio"}},
            {"taper",
             Pad,
             OnPad([](Pad_& pad) {
                 pad.SetTaper({0, 1});
             }),
             {"taper"}},
            {"copper offset",
             Pad,
             OnPad([](Pad_& pad) {
                 pad.SetCopperOffset({0, 1});
             }),
             {"copperOffset"}},
            {"drill stretch",
             Pad,
             OnPad([](Pad_& pad) {
                 pad.SetDrillStretch({0, 1});
             }),
             {"drillStretch"}},
            {"extra copper", Pad, OnPad([](Pad_& pad) { pad.SetExtraCopper(square); }), {"extraCopper"}},

            {"hole size", Hole, OnRectangle([](Rect& hole) { hole.SetSize(9, 9); }), {"size"}},
            {"rectangle size", Rectangle, OnRectangle([](Rect& rect) { rect.SetSize(0, 2); }), {"size"}},
            {"pen width", Rectangle, OnRectangle([](Rect& rect) { rect.SetPenWidth(0.1F); }), {"penWidth"}},
            {"pen style", Rectangle, OnRectangle([](Rect& rect) { rect.Pen().setStyle(Qt::DotLine); }), {"penStyle"}},
            {"brush style",
             Rectangle,
             OnRectangle([](Rect& rect) { rect.Brush().setStyle(Qt::CrossPattern); }),
             {"brush"}},

            {"designator", Package, OnPackage([](Package_& package) { package.SetRefDes("R1"); }), {"refDes"}},
            {"value", Package, OnPackage([](Package_& package) { package.SetValue("4k7 \xCE\xA9"); }), {"value"}},
            {"package name",
             Package,
             OnPackage([](Package_& package) { package.SetPackageName("0402@x"); }),
             {"package"}},

            {"wire linked to a via", Via, OnVia([](Via_& via) { WireBeside(via)->LinkToFirst(&via); }), {"wires"}},
            {"wire linked to a pad", Pad, OnPad([](Pad_& pad) { WireBeside(pad)->LinkToLast(&pad); }), {"wires"}},
            {"junction linked",
             Placed<TGraphicsJunctionItem>,
             On<TGraphicsJunctionItem>(
                 [](TGraphicsJunctionItem& junction) { WireBeside(junction)->LinkToFirst(&junction); }),
             {"sections"}},
            {"junction net",
             Placed<TGraphicsJunctionItem>,
             On<TGraphicsJunctionItem>([](TGraphicsJunctionItem& junction) { junction.SetNet("GND"); }),
             {"net"}},

            {"wire ends",
             Placed<Wire>,
             On<Wire>([](Wire& wire) {
                 wire.SetPoint1({1, 2});
             }),
             {"from"}},
            {"other wire end",
             Placed<Wire>,
             On<Wire>([](Wire& wire) {
                 wire.SetPoint2({1, 2});
             }),
             {"to"}},
            {"first link", Placed<Wire>, On<Wire>([](Wire& wire) { wire.LinkToFirst(WireBeside(wire)); }), {"first"}},
            {"last link", Placed<Wire>, On<Wire>([](Wire& wire) { wire.LinkToLast(WireBeside(wire)); }), {"last"}},
            {"wire net", Placed<Wire>, On<Wire>([](Wire& wire) { wire.SetNet("GND"); }), {"net"}},
            {"wire width", Placed<Wire>, On<Wire>([](Wire& wire) { wire.SetPenWidth(0.5F); }), {"penWidth"}},
            {"wire composition",
             Placed<Wire>,
             On<Wire>([](Wire& wire) { wire.SetCompositionMode(3); }),
             {"composition"}},
            {"routing flag",
             Placed<Wire>,
             On<Wire>([](Wire& wire) { wire.SetTFlag(TGraphicsItem::Routing, true); }),
             {"flags"}},

            {"component number",
             Package,
             OnPackage([](Package_& package) { package.SetComponentNumber(12); }),
             {"component"}},
            {"locked designator",
             Package,
             OnPackage([](Package_& package) { package.SetLockRefDes(true); }),
             {"lockRefDes"}},
            {"locked value", Package, OnPackage([](Package_& package) { package.SetLockValue(true); }), {"lockValue"}},

            {"net tie number", Placed<NetTie>, On<NetTie>([](NetTie& tie) { tie.SetNumber(7); }), {"number"}},
            {"net tie name", Placed<NetTie>, On<NetTie>([](NetTie& tie) { tie.SetName("NT1"); }), {"name"}},
            {"net tie name hidden",
             Placed<NetTie>,
             On<NetTie>([](NetTie& tie) { tie.SetNameVisible(false); }),
             {"nameVisible"}},
            {"net tie symbol number",
             Placed<NetTieSymbol>,
             On<NetTieSymbol>([](NetTieSymbol& tie) { tie.SetNumber(7); }),
             {"number"}},
            {"net tie symbol name",
             Placed<NetTieSymbol>,
             On<NetTieSymbol>([](NetTieSymbol& tie) { tie.SetName("NT1"); }),
             {"name"}},
            {"net tie symbol name hidden",
             Placed<NetTieSymbol>,
             On<NetTieSymbol>([](NetTieSymbol& tie) { tie.SetNameVisible(false); }),
             {"nameVisible"}},
            {"net tie pads", Placed<NetTie>, On<NetTie>([](NetTie& tie) { tie.SetPadSize(9); }), {"padSize"}},
            {"net tie distance",
             Placed<NetTie>,
             On<NetTie>([](NetTie& tie) { tie.SetPadDistance(30); }),
             {"padDistance"}},
            {"net tie wire", Placed<NetTie>, On<NetTie>([](NetTie& tie) { tie.Pen().setWidthF(2); }), {"wireWidth"}},
            {"net tie linked",
             Placed<NetTie>,
             On<NetTie>([](NetTie& tie) { WireBeside(tie)->LinkToFirst(&tie); }),
             {"wires"}},
            {"net tie symbol variant",
             Placed<NetTieSymbol>,
             On<NetTieSymbol>([](NetTieSymbol& tie) { tie.SetSymbol(2); }),
             {"symbol"}},

            {"text", Placed<Text>, On<Text>([](Text& text) { text.SetText("other"); }), {"text"}},
            {"family", Placed<Text>, On<Text>([](Text& text) { text.Font().setFamily("Other"); }), {"family"}},
            {"text size", Placed<Text>, On<Text>([](Text& text) { text.Font().setPixelSize(77); }), {"pixels"}},
            {"weight", Placed<Text>, On<Text>([](Text& text) { text.Font().setWeight(QFont::Black); }), {"weight"}},
            {"style", Placed<Text>, On<Text>([](Text& text) { text.Font().setStyle(QFont::StyleOblique); }), {"style"}},
            {"vector", Placed<Text>, On<Text>([](Text& text) { text.SetVector(!text.IsVector()); }), {"vector"}},
            {"alignment", Placed<Text>, On<Text>([](Text& text) { text.SetAlignment(Qt::AlignRight); }), {"alignment"}},
            {"text line width", Placed<Text>, On<Text>([](Text& text) { text.SetLineWidth(3); }), {"lineWidth"}},
            {"mirrored horizontally", Placed<Text>, On<Text>([](Text& text) { text.SetMirrorH(true); }), {"flags"}},
            {"mirrored vertically", Placed<Text>, On<Text>([](Text& text) { text.SetMirrorV(true); }), {"flags"}},

            {"line",
             Placed<TGraphicsLineItem>,
             On<TGraphicsLineItem>([](TGraphicsLineItem& line) {
                 line.SetLine({1, 2, 3, 4});
             }),
             {"from", "to"}},
            {"ellipse size",
             Placed<TGraphicsEllipseItem>,
             On<TGraphicsEllipseItem>([](TGraphicsEllipseItem& ellipse) { ellipse.SetSize(1, 2); }),
             {"size"}},
            {"ellipse brush",
             Placed<TGraphicsEllipseItem>,
             On<TGraphicsEllipseItem>(
                 [](TGraphicsEllipseItem& ellipse) { ellipse.Brush().setStyle(Qt::CrossPattern); }),
             {"brush"}},
            {"points of a milling path",
             [](TestBoard& board) {
                 TGraphicsItem* milling = Placed<TGraphicsPolylineItem>(board);
                 milling->SetLayer(Osmirel::Milling);
                 return milling;
             },
             On<TGraphicsPolylineItem>(
                 [](TGraphicsPolylineItem& milling) { milling.SetPoints(QPolygonF(QRectF(0, 0, 1, 1))); }),
             {"points"}},
            {"polyline corners",
             Placed<TGraphicsPolylineItem>,
             On<TGraphicsPolylineItem>(
                 [](TGraphicsPolylineItem& polyline) { polyline.SetPoints(QPolygonF(QRectF(0, 0, 1, 1))); }),
             {"points"}},
            {"polygon corners",
             Placed<TGraphicsPolygonItem>,
             On<TGraphicsPolygonItem>(
                 [](TGraphicsPolygonItem& polygon) { polygon.SetPoints(QPolygonF(QRectF(0, 0, 1, 1))); }),
             {"points"}},
            {"polygon brush",
             Placed<TGraphicsPolygonItem>,
             On<TGraphicsPolygonItem>(
                 [](TGraphicsPolygonItem& polygon) { polygon.Brush().setStyle(Qt::CrossPattern); }),
             {"brush"}},
            {"arc", Placed<Arc>, On<Arc>([](Arc& arc) { arc.SetArc(1, 90, 45); }), {"radius", "start", "span"}},

            {"keepout area",
             Placed<TGraphicsKeepoutItem>,
             On<TGraphicsKeepoutItem>(
                 [](TGraphicsKeepoutItem& keepout) { keepout.SetArea(QPolygonF(QRectF(0, 0, 1, 1))); }),
             {"area"}},
            {"keepout layer",
             Placed<TGraphicsKeepoutItem>,
             On<TGraphicsKeepoutItem>([](TGraphicsKeepoutItem& keepout) {
                 keepout.SetLayerEnable(Osmirel::Copper3, !keepout.IsLayerEnable(Osmirel::Copper3));
             }),
             {"layers"}},
            {"outline corners",
             Placed<TGraphicsOutlineItem>,
             On<TGraphicsOutlineItem>([](TGraphicsOutlineItem& outline) {
                 outline.SetPoints({{0, 0, 0}, {1, 1, 0}});
             }),
             {"points"}},
            {"outline corner kind",
             Placed<TGraphicsOutlineItem>,
             On<TGraphicsOutlineItem>([](TGraphicsOutlineItem& outline) {
                 outline.SetPoints({{0, 0, 1}});
             }),
             {"points"}},
            {"cut-outs",
             Placed<TGraphicsOutlineItem>,
             On<TGraphicsOutlineItem>([](TGraphicsOutlineItem& outline) { outline.SetCutOuts(square); }),
             {"cutOuts"}},

            {"pour area",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetArea(QPolygonF(QRectF(0, 0, 1, 1))); }),
             {"area"}},
            {"pour clearance to etch",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetClearanceToEtch(1.5); }),
             {"clearanceToEtch"}},
            {"pour clearance to border",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetClearanceToBorder(1.5); }),
             {"clearanceToBorder"}},
            {"pour clearance to pour",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetClearanceToPour(1.5); }),
             {"clearanceToPour"}},
            {"pour filling",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetFillType(Qt::CrossPattern); }),
             {"fillType"}},
            {"pour line width", Placed<Pour>, On<Pour>([](Pour& pour) { pour.SetLineWidth(1.5); }), {"lineWidth"}},
            {"pour minimum area",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetMinimumArea(1.5); }),
             {"minimumArea"}},
            {"pour only connected",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetOnlyConnected(true); }),
             {"onlyConnected"}},
            {"pour priority", Placed<Pour>, On<Pour>([](Pour& pour) { pour.SetPriority(3); }), {"priority"}},
            {"pour thermal", Placed<Pour>, On<Pour>([](Pour& pour) { pour.SetThermalEnable(true); }), {"thermal"}},
            {"pour thermal line",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetThermalLine(1.5); }),
             {"thermalLine"}},
            {"pour thermal isolation",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetThermalIsolation(1.5); }),
             {"thermalIsolation"}},
            {"pour composition",
             Placed<Pour>,
             On<Pour>([](Pour& pour) { pour.SetCompositionMode(3); }),
             {"composition"}},
            {"pour alpha", Placed<Pour>, On<Pour>([](Pour& pour) { pour.SetAlpha(7); }), {"alpha"}},
            {"pour net", Placed<Pour>, On<Pour>([](Pour& pour) { pour.SetNet("GND"); }), {"net"}},

            {"rat line",
             Placed<RatLine>,
             On<RatLine>(
                 [](RatLine& line) {
                     line.SetLine({1, 2, 3, 4}, {});
                 }),
             {"from", "to"}},
            {"rat line priority",
             Placed<RatLine>,
             On<RatLine>([](RatLine& line) { line.SetPriority("3"); }),
             {"priority"}},
            {"rat line net", Placed<RatLine>, On<RatLine>([](RatLine& line) { line.SetLine({}, "GND"); }), {"net"}},
        };
    return changes;
}

} // namespace Test
