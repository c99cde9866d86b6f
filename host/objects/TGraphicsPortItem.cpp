#include <objects/TGraphicsPortItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsSectionItem.h>

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr double portLineWidth = 2;
constexpr double portNameHeight = 11;
constexpr double portHalfHeight = 9;
constexpr double pointLength = 9;
constexpr double shownWithoutName = 12;
constexpr double powerStem = 12;

bool HasOwnNet(const TGraphicsItem& item)
{
    return item.type() == ItemType::Junction || dynamic_cast<const TGraphicsSectionItem*>(&item);
}

} // namespace

TGraphicsPortItem::TGraphicsPortItem(QGraphicsItem* parent) : TGraphicsItem(parent), pin(new TGraphicsPinItem(this))
{
    setFlag(ItemSendsGeometryChanges); // Keeps the name readable.
    SetLayer(Osmirel::SchematicNets);
    pin->LinkNode().SetRole(TLinkNode::Role::Names);
    pin->SetPinLength(TGraphicsPinItem::LengthZero);
    pin->UpdatePath();
}

void TGraphicsPortItem::SetName(const QString& newName, const QColor& color)
{
    if (newName != name) {
        Rename(newName, color);
    } else if (pin && pin->LinkNode().IsColored(name, color)) {
        return; // For example if all ports of a net are renamed: the first one has done it.
    } else {
        const TFormers wired = Wired();
        for (auto each = wired.cbegin(); each != wired.cend(); ++each) {
            if (each->name == name) {
                each.key()->SetAltColor(color);
            }
        }
    }
    ColorNameless(color);
    if (pin) {
        pin->LinkNode().NoteColored(name, color);
    }
}

void TGraphicsPortItem::Rename(const QString& newName, const QColor& color)
{
    const TFormers wired = Wired();
    const bool takesBack = TakesBack(newName, wired);
    const TFormers former = takesBack ? renamings.takeLast().from : TFormers();
    const bool isOfOneName =
        std::all_of(wired.cbegin(), wired.cend(), [this](const Former& each) { return each.name == name; });
    if (!takesBack && !(isOfOneName && renamings.isEmpty())) {
        renamings.append({newName, wired});
    }
    for (auto each = wired.cbegin(); each != wired.cend(); ++each) {
        const Former given = former.value(each.key(), {newName, color});
        GiveName(*each.key(), given.name);
        each.key()->SetAltColor(given.name == newName ? color : given.color);
    }
}

/** Whether a new name reverts the last renaming. That depends on this port's own name and renamings alone, not on
 * whether a command is undone; but a reverted renaming can be repeated with the same result. */
bool TGraphicsPortItem::TakesBack(const QString& newName, const TFormers& wired)
{
    if (renamings.isEmpty()) {
        return false;
    }
    const Renaming& last = renamings.last();
    const auto isAsGiven = [&last](const auto& each) {
        return last.from.contains(each.first) && each.second.name == last.to;
    };
    return last.from.value(this).name == newName && wired.size() == last.from.size()
           && std::all_of(wired.constKeyValueBegin(), wired.constKeyValueEnd(), isAsGiven);
}

/** Items that are wired to the port and take their net from others, such as bus entries. */
void TGraphicsPortItem::ColorNameless(const QColor& color)
{
    const QVector<TGraphicsItem*> items = ConnectedItems();
    for (TGraphicsItem* item : items) {
        if (!item->parentItem() && item->OwnNet().isEmpty()) {
            item->SetAltColor(color);
        }
    }
}

void TGraphicsPortItem::SetAltColor(const QColor& color)
{
    if (pin && color != AltColor()) {
        pin->LinkNode().ColorChanges();
    }
    TGraphicsItem::SetAltColor(color);
}

TGraphicsPortItem::TFormers TGraphicsPortItem::Wired()
{
    TFormers wired{{this, {name, AltColor()}}};
    const QVector<TGraphicsItem*> items = ConnectedItems();
    for (TGraphicsItem* item : items) {
        if (auto* port = dynamic_cast<TGraphicsPortItem*>(item->parentItem())) {
            wired.insert(port, {port->name, port->AltColor()});
        } else if (HasOwnNet(*item)) {
            wired.insert(item, {item->OwnNet(), item->AltColor()});
        }
    }
    return wired;
}

void TGraphicsPortItem::GiveName(TGraphicsItem& item, const QString& newName)
{
    if (auto* port = dynamic_cast<TGraphicsPortItem*>(&item)) {
        port->StoreName(newName);
    } else if (auto* junction = dynamic_cast<TGraphicsJunctionItem*>(&item)) {
        junction->SetNet(newName);
    } else if (auto* section = dynamic_cast<TGraphicsSectionItem*>(&item)) {
        section->SetNet(newName);
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
        const double start = portShape == ShapePower ? powerStem + portLineWidth : pointLength + portLineWidth;
        namePath = Shapes::LabelFrom({start, 0}, portNameHeight, name, Shapes::IsOnItsHead(rotation()));
    }
    return namePath;
}

QRectF TGraphicsPortItem::boundingRect() const
{
    return Outline().boundingRect().adjusted(-portLineWidth, -portLineWidth, portLineWidth, portLineWidth);
}

QPainterPath TGraphicsPortItem::Outline() const
{
    const double textEnd = NamePath().isEmpty() ? shownWithoutName : NamePath().boundingRect().right() + portLineWidth;
    QPainterPath path;
    if (portShape == ShapePower) {
        path.addRect(0, -portHalfHeight, std::max(textEnd, powerStem), 2 * portHalfHeight);
        return path;
    }
    const bool pointsIn = portShape == ShapeInput || portShape == ShapeBidirectional || portShape == ShapeTriState;
    const bool pointsOut = portShape == ShapeOutput || portShape == ShapeBidirectional || portShape == ShapeTriState;
    const double left = pointsIn ? pointLength : 0;
    const double end = textEnd + (pointsOut ? pointLength : 0);
    path.addPolygon(QPolygonF({{left, -portHalfHeight},
                               {textEnd, -portHalfHeight},
                               {end, pointsOut ? 0 : -portHalfHeight},
                               {end, pointsOut ? 0 : portHalfHeight},
                               {textEnd, portHalfHeight},
                               {left, portHalfHeight},
                               {0, pointsIn ? 0 : portHalfHeight},
                               {0, pointsIn ? 0 : -portHalfHeight}}));
    path.closeSubpath();
    return path;
}

void TGraphicsPortItem::Draw(QPainter& painter, double) const
{
    painter.setPen(QPen(Color(), portLineWidth));
    painter.setBrush(Qt::NoBrush);
    if (portShape == ShapePower) {
        painter.drawLine(QPointF(), QPointF(powerStem, 0));
        painter.drawLine(QPointF(powerStem, -portHalfHeight), QPointF(powerStem, portHalfHeight));
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
    delete std::exchange(empty->pin, nullptr); // Replaced by the copy of this one's child.
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
