#include <graphics/TGraphicsItem.h>

#include <graphics/TStateText.h>
#include <workspace/TWorkspace.h>

#include <QPainter>
#include <QPen>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

TGraphicsItem::TGraphicsItem(QGraphicsItem* parent) : QGraphicsItem(parent)
{
    setFlag(ItemIsSelectable);
    if (const auto* item = dynamic_cast<TGraphicsItem*>(parent)) {
        workspace = item->workspace;
    }
}

void TGraphicsItem::SetTFlag(TFlag flag, bool on)
{
    flags = on ? flags | flag : flags & ~static_cast<unsigned>(flag);
    update();
}

void TGraphicsItem::SetWorkspace(TWorkspace* newWorkspace)
{
    workspace = newWorkspace;
    for (QGraphicsItem* child : childItems()) {
        if (auto* item = dynamic_cast<TGraphicsItem*>(child)) {
            item->SetWorkspace(newWorkspace);
        }
    }
}

void TGraphicsItem::SetLayer(Osmirel::Layer newLayer)
{
    layer = newLayer;
    setZValue(StackingHeight());
    update();
}

void TGraphicsItem::SetAltColor(const QColor& color)
{
    altColor = color;
    update();
}

void TGraphicsItem::Refresh()
{
    update();
}

bool TGraphicsItem::IsOnVisibleLayer() const
{
    return !workspace || workspace->Layers().IsVisible(layer);
}

QString TGraphicsItem::StateLine() const
{
    TStateText state(KindName());
    Describe(state);
    return state.Line();
}

void TGraphicsItem::Describe(TStateText& state) const
{
    state.Add("at", scenePos())
        .Add("rotation", rotation())
        .Add("layer", static_cast<int>(layer))
        .Add("flags", static_cast<int>(flags & ~static_cast<unsigned>(Selected)))
        .Add("color", altColor)
        .Add("net", Net());
    if (const auto* parent = dynamic_cast<TGraphicsItem*>(parentItem())) {
        state.Add("in", parent->KindName()).Add("in.at", parent->scenePos());
    }
    if (!isVisible() && (!parentItem() || parentItem()->isVisible())) {
        state.Add("visible", false);
    }
}

QPainterPath TGraphicsItem::shape() const
{
    return IsOnVisibleLayer() ? Outline() : QPainterPath();
}

void TGraphicsItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    if (!IsOnVisibleLayer()) {
        return;
    }
    const double pixelsPerUnit = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    const QRectF extent = boundingRect();
    const double pixels = std::max(extent.width(), extent.height()) * pixelsPerUnit;
    constexpr double smallestDetailed = 3;
    constexpr double smallestWithBoldHighlight = 12;
    if (pixels < smallestDetailed) {
        painter->fillRect(extent, isSelected() ? QColor(Qt::white) : MainColor());
        return;
    }
    Draw(*painter, pixelsPerUnit);
    if (isSelected()) {
        QPen highlight(Qt::white, pixels < smallestWithBoldHighlight ? 1 : 2);
        highlight.setCosmetic(true);
        painter->setPen(highlight);
        painter->setBrush(QColor(255, 255, 255, 70));
        painter->drawPath(Outline());
    }
}

QColor TGraphicsItem::LayerColor(Osmirel::Layer ofLayer) const
{
    return workspace ? workspace->Layers().Color(ofLayer) : QColor(Qt::gray);
}

QColor TGraphicsItem::Color() const
{
    return altColor.isValid() ? altColor : LayerColor(layer);
}

QVariant TGraphicsItem::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemSelectedHasChanged) {
        SetTFlag(Selected, value.toBool());
    }
    return QGraphicsItem::itemChange(change, value);
}
