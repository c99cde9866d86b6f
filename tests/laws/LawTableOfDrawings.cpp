#include "properties/commands/TCmdLock.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdWire.h"
#include "tests/laws/LawMaking.h"

namespace Test {

namespace {

using Fields = StateFields;

Accepting WithoutParent(const Accepting& accepts)
{
    return [accepts](const TGraphicsItem& item) { return !item.parentItem() && accepts(item); };
}

const auto primitives = WithoutParent(OfKind({0x10002, 0x10003, 0x10004, 0x10005, 0x10006, 0x10007}));
const auto filledPrimitives = WithoutParent(OfKind({0x10003, 0x10004, 0x10006}));
const auto everything = WithoutParent([](const TGraphicsItem&) { return true; });
const auto freeRectangles = WithoutParent(IsOfClass<TGraphicsRectItem>);
const auto partsAndPackages = OfKind({0x1000a, 0x1000b});

/** A polyline off the milling layer is no milling path any more. */
void SetPrimitiveLayer(Fields& item, Osmirel::Layer layer)
{
    item.Set("layer", static_cast<int>(layer));
    item.SetKind(item.Kind() == "milling" ? QString("polyline") : item.Kind());
}

QSizeF Narrowed(const QSizeF& size)
{
    // Through memory, since g++ 12 at -O2 drops the narrowing of two neighbours that it handles as one vector.
    const volatile auto width = static_cast<float>(size.width());
    const volatile auto height = static_cast<float>(size.height());
    return {static_cast<double>(width), static_cast<double>(height)};
}

CommandLaw RectSizeLaw()
{
    const auto make = [](const Items& items, const QSizeF& size) {
        return std::make_unique<TCmdRectSize>(OfClass<TGraphicsRectItem>(items), size.width(), size.height());
    };
    const auto redone = [](Fields& rectangle, const QSizeF& size) { rectangle.Set("size", Narrowed(size)); };
    return MadeLaw<TCmdRectSize>(freeRectangles, QSizeF(30.1, 20.7), QSizeF(12.3, 4.56), make, redone);
}

} // namespace

std::vector<CommandLaw> LawsOfDrawings()
{
    return {
        Law<TCmdPenWidth>(primitives, 0.17, 2.9,
                          [](Fields& item, double mm) { item.Set("penWidth", Single(Scene(mm))); })
            .WithId(1234, Merging::TakeOver),
        Law<TCmdPenStyle>(primitives, Qt::DashLine, Qt::NoPen,
                          [](Fields& item, Qt::PenStyle style) { item.Set("penStyle", static_cast<int>(style)); })
            .WithId(1235, Merging::EqualValue),
        Law<TCmdBrushStyle>(filledPrimitives, 14, 1, Sets<int>("brush")),
        Law<TCmdLayerPrim>(primitives, Osmirel::SilkBottom, Osmirel::CopperTop, SetPrimitiveLayer)
            .WithId(1264, Merging::Never),
        Law<TCmdUserColor>(everything, QColor(10, 200, 30, 128), QColor(), Sets<QColor>("color"))
            .WithId(1244, Merging::EqualValue),
        RectSizeLaw().WithId(1282, Merging::Never),
        Law<TCmdLock>(partsAndPackages, true, false, SetsFlag(512)).WithId(1260, Merging::EqualValue),
        LawOver<TCmdWireWidth, TGraphicsWireItem>(
            3.7, 0.01, [](Fields& wire, double width) { wire.Set("penWidth", Single(width)); })
            .WithId(1277, Merging::TakeOver)
            .WithCategories(1),
    };
}

} // namespace Test
