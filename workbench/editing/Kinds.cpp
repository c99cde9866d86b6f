#include "workbench/editing/Kinds.h"

#include "properties/sets/TPropertySetForBus.h"
#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNet.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForNetTieSch.h"
#include "properties/sets/TPropertySetForOutline.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPart.h"
#include "properties/sets/TPropertySetForPin.h"
#include "properties/sets/TPropertySetForPort.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForTag.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"
#include "workbench/design/TDesign.h"

#include <application/TBoard.h>
#include <workspace/TWorkspace.h>

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>

namespace {

using TItems = QList<TGraphicsItem*>;
using TLayers = QList<Osmirel::Layer>;

/** The layers that the board has, out of those given. */
TLayers OfBoard(const TLayers& layers, TDesign& design)
{
    TLayers existing;
    std::copy_if(layers.cbegin(), layers.cend(), std::back_inserter(existing),
                 [&design](Osmirel::Layer layer) { return design.Board()->LayerManager()->HasLayer(layer); });
    return existing;
}

/** The layers that texts and primitives can be moved to: all but those of packages and of the board's edge, or the one
 *  of a page. */
TLayers DrawingLayers(const TItems& selection, TDesign& design)
{
    if (selection.first()->Workspace()->Mode() == TWorkspace::SchematicMode) {
        return {Osmirel::SchematicTexts};
    }
    TLayers layers = design.Board()->LayerManager()->Layers();
    for (const Osmirel::Layer other : {Osmirel::PackagesTop, Osmirel::PackagesBottom, Osmirel::BoardOutline}) {
        layers.removeAll(other);
    }
    return layers;
}

/** Creates a set from the selection alone. */
template <class Set>
std::unique_ptr<TPropertySet> MakeSet(const TItems& selection, TDesign&)
{
    return std::make_unique<Set>(selection);
}

/** Creates a set from the selection and the project. */
template <class Set>
std::unique_ptr<TPropertySet> MakeProjectSet(const TItems& selection, TDesign& design)
{
    return std::make_unique<Set>(selection, &design.Project());
}

/** Creates a set from the selection and the layers for texts and primitives. */
template <class Set>
std::unique_ptr<TPropertySet> MakeDrawingSet(const TItems& selection, TDesign& design)
{
    return std::make_unique<Set>(selection, DrawingLayers(selection, design));
}

/** Creates a set from the selection and the schematic. */
template <class Set>
std::unique_ptr<TPropertySet> MakeSchematicSet(const TItems& selection, TDesign& design)
{
    return std::make_unique<Set>(selection, &design.Schematic());
}

std::unique_ptr<TPropertySet> MakeSetForVia(const TItems& selection, TDesign& design)
{
    return std::make_unique<TPropertySetForVia>(selection, design.Board()->ViaGroups());
}

std::unique_ptr<TPropertySet> MakeSetForPad(const TItems& selection, TDesign& design)
{
    // A surface pad lies on one of the outer sides.
    return std::make_unique<TPropertySetForPad>(selection,
                                                OfBoard({Osmirel::CopperTop, Osmirel::CopperBottom}, design));
}

std::unique_ptr<TPropertySet> MakeSetForPackage(const TItems& selection, TDesign& design)
{
    return std::make_unique<TPropertySetForPackage>(
        selection, OfBoard({Osmirel::PackagesTop, Osmirel::PackagesBottom}, design), design.Board());
}

std::unique_ptr<TPropertySet> MakeSetForPour(const TItems& selection, TDesign& design)
{
    return std::make_unique<TPropertySetForPour>(selection, design.Board()->LayerManager()->CopperLayers());
}

QString TranslatedWord(const char* word)
{
    return QCoreApplication::translate("Kinds", word);
}

} // namespace

bool TKind::Holds(const TGraphicsItem& item) const
{
    return item.type() == type && (only == Osmirel::NoLayer || item.Layer() == only);
}

QString TKind::Plural() const
{
    return TranslatedWord(many);
}

const QVector<TKind>& Kinds::All()
{
    constexpr auto makeSetForPrimitives = MakeDrawingSet<TPropertySetForPrimitives>;
    constexpr Osmirel::Layer anyLayer = Osmirel::NoLayer;
    // An item is of the first kind that matches it.
    static const QVector<TKind> kinds{
        {ItemType::Wire, QT_TRANSLATE_NOOP("Kinds", "wire"), QT_TRANSLATE_NOOP("Kinds", "wires"),
         MakeProjectSet<TPropertySetForWire>},
        {ItemType::Via, QT_TRANSLATE_NOOP("Kinds", "via"), QT_TRANSLATE_NOOP("Kinds", "vias"), MakeSetForVia},
        {ItemType::Pad, QT_TRANSLATE_NOOP("Kinds", "pad"), QT_TRANSLATE_NOOP("Kinds", "pads"), MakeSetForPad},
        {ItemType::Hole, QT_TRANSLATE_NOOP("Kinds", "hole"), QT_TRANSLATE_NOOP("Kinds", "holes"),
         MakeSet<TPropertySetForHole>},
        {ItemType::Package, QT_TRANSLATE_NOOP("Kinds", "package"), QT_TRANSLATE_NOOP("Kinds", "packages"),
         MakeSetForPackage},
        {ItemType::NetTiePcb, QT_TRANSLATE_NOOP("Kinds", "net tie"), QT_TRANSLATE_NOOP("Kinds", "net ties"),
         MakeProjectSet<TPropertySetForNetTiePcb>},
        {ItemType::Pour, QT_TRANSLATE_NOOP("Kinds", "pour"), QT_TRANSLATE_NOOP("Kinds", "pours"), MakeSetForPour},
        {ItemType::Keepout, QT_TRANSLATE_NOOP("Kinds", "keepout"), QT_TRANSLATE_NOOP("Kinds", "keepouts"),
         MakeSet<TPropertySetForKeepout>},
        {ItemType::Outline, QT_TRANSLATE_NOOP("Kinds", "outline"), QT_TRANSLATE_NOOP("Kinds", "outlines"),
         MakeSet<TPropertySetForOutline>},
        {ItemType::Polyline, QT_TRANSLATE_NOOP("Kinds", "milling"), QT_TRANSLATE_NOOP("Kinds", "millings"),
         MakeSet<TPropertySetForMilling>, Osmirel::Milling},
        {ItemType::Part, QT_TRANSLATE_NOOP("Kinds", "part"), QT_TRANSLATE_NOOP("Kinds", "parts"),
         MakeSet<TPropertySetForPart>, anyLayer, true},
        {ItemType::Pin, QT_TRANSLATE_NOOP("Kinds", "pin"), QT_TRANSLATE_NOOP("Kinds", "pins"),
         MakeSet<TPropertySetForPin>, anyLayer, true},
        {ItemType::NetWire, QT_TRANSLATE_NOOP("Kinds", "net wire"), QT_TRANSLATE_NOOP("Kinds", "net wires"),
         MakeSchematicSet<TPropertySetForNet>, anyLayer, true},
        {ItemType::Port, QT_TRANSLATE_NOOP("Kinds", "port"), QT_TRANSLATE_NOOP("Kinds", "ports"),
         MakeSchematicSet<TPropertySetForPort>, anyLayer, true},
        {ItemType::Bus, QT_TRANSLATE_NOOP("Kinds", "bus"), QT_TRANSLATE_NOOP("Kinds", "buses"),
         MakeSet<TPropertySetForBus>, anyLayer, true},
        {ItemType::BusEntry, QT_TRANSLATE_NOOP("Kinds", "bus entry"), QT_TRANSLATE_NOOP("Kinds", "bus entries"),
         nullptr, anyLayer, true},
        {ItemType::NetTieSch, QT_TRANSLATE_NOOP("Kinds", "net tie symbol"),
         QT_TRANSLATE_NOOP("Kinds", "net tie symbols"), MakeProjectSet<TPropertySetForNetTieSch>, anyLayer, true},
        {ItemType::Tag, QT_TRANSLATE_NOOP("Kinds", "tag"), QT_TRANSLATE_NOOP("Kinds", "tags"),
         MakeProjectSet<TPropertySetForTag>, anyLayer, true},
        {ItemType::Junction, QT_TRANSLATE_NOOP("Kinds", "junction"), QT_TRANSLATE_NOOP("Kinds", "junctions"), nullptr},
        {ItemType::Text, QT_TRANSLATE_NOOP("Kinds", "text"), QT_TRANSLATE_NOOP("Kinds", "texts"),
         MakeDrawingSet<TPropertySetForText>},
        {ItemType::Line, QT_TRANSLATE_NOOP("Kinds", "line"), QT_TRANSLATE_NOOP("Kinds", "lines"), makeSetForPrimitives},
        {ItemType::Rectangle, QT_TRANSLATE_NOOP("Kinds", "rectangle"), QT_TRANSLATE_NOOP("Kinds", "rectangles"),
         makeSetForPrimitives},
        {ItemType::Ellipse, QT_TRANSLATE_NOOP("Kinds", "ellipse"), QT_TRANSLATE_NOOP("Kinds", "ellipses"),
         makeSetForPrimitives},
        // The set of primitives shows no rows for these.
        {ItemType::Polyline, QT_TRANSLATE_NOOP("Kinds", "polyline"), QT_TRANSLATE_NOOP("Kinds", "polylines"),
         makeSetForPrimitives},
        {ItemType::Polygon, QT_TRANSLATE_NOOP("Kinds", "polygon"), QT_TRANSLATE_NOOP("Kinds", "polygons"),
         makeSetForPrimitives},
        {ItemType::Arc, QT_TRANSLATE_NOOP("Kinds", "arc"), QT_TRANSLATE_NOOP("Kinds", "arcs"), makeSetForPrimitives},
    };
    return kinds;
}

const TKind* Kinds::Of(const TGraphicsItem& item)
{
    const auto found =
        std::find_if(All().cbegin(), All().cend(), [&item](const TKind& kind) { return kind.Holds(item); });
    return found == All().cend() ? nullptr : found;
}

QString Kinds::Word(const TGraphicsItem& item)
{
    const TKind* kind = Of(item);
    return kind ? QString::fromLatin1(kind->one).remove(QLatin1Char(' ')) : item.KindName();
}

QString Kinds::Counted(int count, const TKind* kind)
{
    const char* one = kind ? kind->one : QT_TRANSLATE_NOOP("Kinds", "item");
    const char* many = kind ? kind->many : QT_TRANSLATE_NOOP("Kinds", "items");
    return QStringLiteral("%1 %2").arg(QString::number(count), TranslatedWord(count == 1 ? one : many));
}

const TKind* Kinds::OfFirst(const QList<TGraphicsItem*>& selection)
{
    return selection.isEmpty() ? nullptr : Of(*selection.first());
}

std::unique_ptr<TPropertySet> Kinds::MakePropertySet(const QList<TGraphicsItem*>& selection, TDesign& design)
{
    const TKind* kind = OfFirst(selection);
    return kind && kind->makeSet ? kind->makeSet(selection, design) : nullptr;
}

QString Kinds::Summary(const QList<TGraphicsItem*>& items)
{
    QHash<const TKind*, int> counts;
    for (const TGraphicsItem* item : items) {
        ++counts[Of(*item)];
    }
    QStringList parts;
    std::for_each(All().cbegin(), All().cend(), [&](const TKind& kind) {
        if (const int count = counts.value(&kind)) {
            parts.append(Counted(count, &kind));
        }
    });
    return parts.join(QStringLiteral(", "));
}
