#include <objects/TGraphicsPortItem.h>

#include <graphics/Shapes.h>
#include <graphics/TStateText.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsSectionItem.h>

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr double lineWidth = 2;
constexpr double nameHeight = 11;
constexpr double halfHeight = 9;
constexpr double pointLength = 9;
constexpr double shownWithoutName = 12;
constexpr double powerStem = 12;

void SetNetOf(TGraphicsItem& item, const QString& net)
{
    if (item.type() == ItemType::Junction) {
        static_cast<TGraphicsJunctionItem&>(item).SetNet(net);
    } else if (auto* section = dynamic_cast<TGraphicsSectionItem*>(&item)) {
        section->SetNet(net);
    }
}

bool HasOwnNet(const TGraphicsItem& item)
{
    return item.type() == ItemType::Junction || dynamic_cast<const TGraphicsSectionItem*>(&item);
}

} // namespace

TGraphicsPortItem::TGraphicsPortItem(QGraphicsItem* parent) : TGraphicsItem(parent), pin(new TGraphicsPinItem(this))
{
    SetLayer(Osmirel::SchematicNets);
    pin->LinkNode().SetRole(TLinkNode::Role::Names);
    pin->SetPinLength(TGraphicsPinItem::LengthZero);
    pin->UpdatePath();
}

void TGraphicsPortItem::SetName(const QString& newName, const QColor& color)
{
    Carry(newName, color);
    StoreName(newName);
    SetAltColor(color);
}

void TGraphicsPortItem::SetAltColor(const QColor& color)
{
    if (pin && color != AltColor()) {
        pin->LinkNode().ColorChanges();
    }
    TGraphicsItem::SetAltColor(color);
}

void TGraphicsPortItem::Carry(const QString& newName, const QColor& color)
{
    const QString oldName = name;
    const bool onlyColors = newName == oldName;
    if (onlyColors && pin && pin->LinkNode().IsColored(newName, color)) {
        return; // As when all ports of a net are renamed: the first one has done it.
    }
    const bool isTakenBack =
        !onlyColors && !carried.isEmpty() && carried.last().from == newName && carried.last().to == oldName;
    const QSet<const TGraphicsItem*> given = isTakenBack ? carried.takeLast().items : QSet<const TGraphicsItem*>();
    Carried now{oldName, newName, {}};
    const QVector<TGraphicsItem*> items = ConnectedItems();
    for (TGraphicsItem* item : items) {
        auto* port = dynamic_cast<TGraphicsPortItem*>(item->parentItem());
        TGraphicsItem* named = port ? port : item;
        const QString namedNow = port ? port->name : item->OwnNet();
        const bool isOfOldName = namedNow == oldName && (!isTakenBack || given.contains(named));
        if ((port || HasOwnNet(*item)) && isOfOldName && !onlyColors) {
            now.items.insert(named);
            if (port) {
                port->StoreName(newName);
            } else {
                SetNetOf(*item, newName);
            }
        }
        const bool followsOnly = !item->parentItem() && item->OwnNet().isEmpty();
        if (isOfOldName || followsOnly) {
            named->SetAltColor(color);
        }
    }
    if (onlyColors && pin) {
        pin->LinkNode().NoteColored(newName, color);
    } else if (!onlyColors && !isTakenBack) {
        carried.append(now);
    }
}

void TGraphicsPortItem::StoreName(const QString& newName)
{
    name = newName;
    if (pin) {
        pin->NameNet(newName);
    }
    ExtentChanges();
}

void TGraphicsPortItem::SetNameVisible(bool on)
{
    nameVisible = on;
    ExtentChanges();
}

void TGraphicsPortItem::SetPortShape(TypePortShape shape)
{
    portShape = shape;
    ExtentChanges();
}

void TGraphicsPortItem::ExtentChanges()
{
    prepareGeometryChange();
    namePath = QPainterPath();
    Refresh();
}

QString TGraphicsPortItem::Net() const
{
    const bool isWired = pin && !pin->LinkedSections().isEmpty();
    return isWired ? pin->LinkedSections().first()->Net() : name;
}

QVector<TGraphicsItem*> TGraphicsPortItem::ConnectedItems() const
{
    QVector<TGraphicsItem*> items;
    const TLinkIsland* island = pin ? pin->Island() : nullptr;
    if (island) {
        for (const TLinkNode* node : island->members) {
            if (&node->Item() != pin) {
                items.append(&node->Item());
            }
        }
    }
    return items;
}

const QPainterPath& TGraphicsPortItem::NamePath() const
{
    if (namePath.isEmpty() && nameVisible && !name.isEmpty()) {
        const double start = portShape == ShapePower ? powerStem + lineWidth : pointLength + lineWidth;
        namePath = Shapes::LabelFrom({start, 0}, nameHeight, name, Shapes::IsOnItsHead(rotation()));
    }
    return namePath;
}

QRectF TGraphicsPortItem::boundingRect() const
{
    return Outline().boundingRect().adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
}

QPainterPath TGraphicsPortItem::Outline() const
{
    const double textEnd = NamePath().isEmpty() ? shownWithoutName : NamePath().boundingRect().right() + lineWidth;
    QPainterPath path;
    if (portShape == ShapePower) {
        path.addRect(0, -halfHeight, std::max(textEnd, powerStem), 2 * halfHeight);
        return path;
    }
    const bool pointsIn = portShape == ShapeInput || portShape == ShapeBidirectional || portShape == ShapeTriState;
    const bool pointsOut = portShape == ShapeOutput || portShape == ShapeBidirectional || portShape == ShapeTriState;
    const double left = pointsIn ? pointLength : 0;
    const double end = textEnd + (pointsOut ? pointLength : 0);
    path.addPolygon(QPolygonF({{left, -halfHeight},
                               {textEnd, -halfHeight},
                               {end, pointsOut ? 0 : -halfHeight},
                               {end, pointsOut ? 0 : halfHeight},
                               {textEnd, halfHeight},
                               {left, halfHeight},
                               {0, pointsIn ? 0 : halfHeight},
                               {0, pointsIn ? 0 : -halfHeight}}));
    path.closeSubpath();
    return path;
}

void TGraphicsPortItem::Draw(QPainter& painter, double) const
{
    painter.setPen(QPen(Color(), lineWidth));
    painter.setBrush(Qt::NoBrush);
    if (portShape == ShapePower) {
        painter.drawLine(QPointF(), QPointF(powerStem, 0));
        painter.drawLine(QPointF(powerStem, -halfHeight), QPointF(powerStem, halfHeight));
    } else {
        painter.drawPath(Outline());
    }
    painter.fillPath(NamePath(), Color());
}

QVariant TGraphicsPortItem::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemRotationHasChanged) {
        ExtentChanges();
    } else if (change == ItemChildRemovedChange && value.value<QGraphicsItem*>() == pin) {
        pin = nullptr;
    }
    return TGraphicsItem::itemChange(change, value);
}

void TGraphicsPortItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("name", name).Add("nameVisible", nameVisible).Add("shape", static_cast<int>(portShape));
}

std::unique_ptr<TGraphicsItem> TGraphicsPortItem::CreateEmpty() const
{
    auto empty = std::make_unique<TGraphicsPortItem>();
    delete std::exchange(empty->pin, nullptr); // The copy of this one's comes in its place.
    return empty;
}

void TGraphicsPortItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPortItem&>(source);
    const QList<QGraphicsItem*> children = childItems();
    const auto copy = std::find_if(children.cbegin(), children.cend(),
                                   [](const QGraphicsItem* child) { return child->type() == ItemType::Pin; });
    pin = copy == children.cend() ? nullptr : static_cast<TGraphicsPinItem*>(*copy);
    if (pin) {
        pin->LinkNode().SetRole(TLinkNode::Role::Names);
    }
    nameVisible = other.nameVisible;
    portShape = other.portShape;
    StoreName(other.name);
}
