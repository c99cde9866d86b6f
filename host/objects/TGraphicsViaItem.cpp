#include <objects/TGraphicsViaItem.h>

#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>
#include <objects/TGraphicsSectionItem.h>
#include <workspace/TWorkspace.h>

#include <QPainter>

#include <algorithm>
#include <tuple>

TGraphicsViaItem::TGraphicsViaItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    TGraphicsItem::SetLayer(Osmirel::CopperTop);
    setZValue(DrawingStyle::stackingOfDrilled);
}

void TGraphicsViaItem::SetSize(double width, double height)
{
    prepareGeometryChange();
    StoreSize({width, height});
    MarkNet();
    Refresh();
}

void TGraphicsViaItem::SetViaGroup(const QString& name)
{
    if (name != viaGroup) {
        const TLayers current(startLayer, endLayer);
        if (current != LayersOfPair(viaGroup)) {
            otherLayers.insert(viaGroup, current);
        }
        viaGroup = name;
        std::tie(startLayer, endLayer) = otherLayers.contains(name) ? otherLayers.take(name) : LayersOfPair(name);
    }
    MarkNet();
    Refresh();
}

TGraphicsViaItem::TLayers TGraphicsViaItem::LayersOfPair(const QString& name) const
{
    const TDrillPair* pair = Workspace() ? Workspace()->Layers().DrillPair(name) : nullptr;
    return pair ? TLayers{pair->first, pair->last} : TLayers{Osmirel::CopperTop, Osmirel::CopperBottom};
}

void TGraphicsViaItem::SetMaskClearance(float clearance)
{
    prepareGeometryChange();
    StoreMaskClearance(clearance);
    Refresh();
}

void TGraphicsViaItem::SetLayers(Osmirel::Layer start, Osmirel::Layer end)
{
    startLayer = start;
    endLayer = end;
    SetLayer(start);
    MarkNet();
    Refresh();
}

QList<Osmirel::Layer> TGraphicsViaItem::EtchLayers() const
{
    return Workspace() ? Workspace()->Layers().CopperLayers(startLayer, endLayer) : QList<Osmirel::Layer>();
}

bool TGraphicsViaItem::HasCopperOn(Osmirel::Layer copper) const
{
    const auto [first, last] = std::minmax(startLayer, endLayer);
    return Osmirel::IsCopper(copper) && copper >= first && copper <= last
           && (!Workspace() || Workspace()->Layers().HasLayer(copper));
}

void TGraphicsViaItem::SetNet(const QString& name)
{
    LinkNode().SetOwnNet(name);
    Refresh();
}

void TGraphicsViaItem::AddLinkedWire(TGraphicsSectionItem* wire)
{
    linked.Add(wire);
}

void TGraphicsViaItem::RemoveLinkedWire(TGraphicsSectionItem* wire)
{
    linked.Remove(wire);
}

bool TGraphicsViaItem::IsOnVisibleLayer() const
{
    if (startLayer == endLayer) {
        return TGraphicsItem::IsOnVisibleLayer();
    }
    const QList<Osmirel::Layer> layers = EtchLayers();
    return layers.isEmpty() || std::any_of(layers.cbegin(), layers.cend(), [this](Osmirel::Layer copper) {
               return Workspace()->Layers().IsVisible(copper);
           });
}

QRectF TGraphicsViaItem::boundingRect() const
{
    const double margin = std::max(0.0, static_cast<double>(maskClearance));
    return CopperRect().adjusted(-margin, -margin, margin, margin);
}

QPainterPath TGraphicsViaItem::Outline() const
{
    QPainterPath path;
    path.addEllipse(CopperRect());
    return path;
}

QColor TGraphicsViaItem::MainColor() const
{
    if (startLayer == endLayer || AltColor().isValid()) {
        return Color();
    }
    const auto [top, bottom] = std::minmax(startLayer, endLayer);
    const bool isThrough = top <= Osmirel::CopperTop && bottom >= Osmirel::CopperBottom;
    return isThrough ? DrawingStyle::plating : DrawingStyle::blindPlating;
}

void TGraphicsViaItem::Draw(QPainter& painter, double) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(MainColor());
    painter.drawEllipse(CopperRect());

    const double shownDrill = std::min({static_cast<double>(drill), Width(), Height()});
    painter.setBrush(DrawingStyle::hole);
    painter.drawEllipse(QPointF(), shownDrill / 2, shownDrill / 2);

    if (maskEnabled) {
        const auto margin = static_cast<double>(maskClearance);
        QPainterPath opening;
        opening.addEllipse(CopperRect().adjusted(-margin, -margin, margin, margin));
        DrawOpening(painter, Osmirel::MaskTop, Osmirel::MaskBottom, opening);
    }
}

void TGraphicsViaItem::DrawOpening(QPainter& painter, Osmirel::Layer top, Osmirel::Layer bottom,
                                   const QPainterPath& opening) const
{
    if (!Workspace()) {
        return;
    }
    painter.setBrush(Qt::NoBrush);
    for (const Osmirel::Layer side : {top, bottom}) {
        const TLayer* sideLayer = Workspace()->Layers().Layer(side);
        const bool hasCopperThere = side == top
                                        ? startLayer == Osmirel::CopperTop || endLayer == Osmirel::CopperTop
                                        : startLayer == Osmirel::CopperBottom || endLayer == Osmirel::CopperBottom;
        if (sideLayer && sideLayer->visible && hasCopperThere) {
            QPen pen(sideLayer->color, 1);
            pen.setCosmetic(true);
            painter.setPen(pen);
            painter.drawPath(opening);
        }
    }
}

double TGraphicsViaItem::StackingHeight() const
{
    return startLayer == endLayer ? TGraphicsItem::StackingHeight() : DrawingStyle::stackingOfDrilled;
}

void TGraphicsViaItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("width", Width())
        .Add("height", Height())
        .Add("drill", drill)
        .Add("thermal", static_cast<int>(thermal))
        .Add("drillPair", viaGroup)
        .Add("start", static_cast<int>(startLayer))
        .Add("end", static_cast<int>(endLayer))
        .Add("mask", maskEnabled)
        .Add("maskClearance", maskClearance);
    DescribeLinks(state, "wires", Links());
}

std::unique_ptr<TGraphicsItem> TGraphicsViaItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsViaItem>();
}

void TGraphicsViaItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsViaItem&>(source);
    size = other.size;
    drill = other.drill;
    thermal = other.thermal;
    viaGroup = other.viaGroup;
    maskEnabled = other.maskEnabled;
    maskClearance = other.maskClearance;
    startLayer = other.startLayer;
    endLayer = other.endLayer;
    otherLayers = other.otherLayers;
}
