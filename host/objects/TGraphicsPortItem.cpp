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

bool HasOwnNet(const TGraphicsItem& item)
{
    return item.type() == ItemType::Junction || dynamic_cast<const TGraphicsSectionItem*>(&item);
}

} // namespace

TGraphicsPortItem::TGraphicsPortItem(QGraphicsItem* parent) : TGraphicsItem(parent), pin(new TGraphicsPinItem(this))
{
    setFlag(ItemSendsGeometryChanges); // The name is to stay readable.
    SetLayer(Osmirel::SchematicNets);
    pin->LinkNode().SetRole(TLinkNode::Role::Names);
    pin->SetPinLength(TGraphicsPinItem::LengthZero);
    pin->UpdatePath();
}

void TGraphicsPortItem::SetName(const QString& newName, const QColor& color)
{
    const bool isNew = newName != name;
    if (!isNew && pin && pin->LinkNode().IsColored(name, color)) {
        return; // As when all ports of a net are renamed: the first of them has done it.
    }
    const Items named = isNew ? Renamed(newName) : OfName(name);
    for (TGraphicsItem* item : named) {
        if (isNew) {
            GiveName(*item, newName);
        }
        item->SetAltColor(color);
    }
    const QVector<TGraphicsItem*> items = ConnectedItems();
    for (TGraphicsItem* item : items) {
        if (!item->parentItem() && item->OwnNet().isEmpty()) {
            item->SetAltColor(color);
        }
    }
    if (!isNew && pin) {
        pin->LinkNode().NoteColored(name, color);
    }
}

void TGraphicsPortItem::SetAltColor(const QColor& color)
{
    if (pin && color != AltColor()) {
        pin->LinkNode().ColorChanges();
    }
    TGraphicsItem::SetAltColor(color);
}

TGraphicsPortItem::Items TGraphicsPortItem::OfName(const QString& wanted) const
{
    Items found;
    const QVector<TGraphicsItem*> items = ConnectedItems() << pin;
    for (TGraphicsItem* item : items) {
        auto* port = item ? dynamic_cast<TGraphicsPortItem*>(item->parentItem()) : nullptr;
        if (port ? port->name == wanted : item && HasOwnNet(*item) && item->OwnNet() == wanted) {
            found.insert(port ? port : item);
        }
    }
    return found;
}

TGraphicsPortItem::Items TGraphicsPortItem::Renamed(const QString& newName)
{
    static quint64 moment = 0;
    ++moment;
    Items ofOldName = OfName(name);
    ofOldName.insert(this);
    if (name.isEmpty() && ConnectedItems().isEmpty() && done.isEmpty() && undone.isEmpty()) {
        return ofOldName; // The first name of a new port is nothing that later renamings take back.
    }
    const std::shared_ptr<Renaming> last = done.isEmpty() ? nullptr : done.last();
    if (last && last->from == newName && last->to == name && ofOldName.contains(last->items)) {
        last->spared = OfName(newName);
        last->changedAt = moment;
        Move(last, last->items, &TGraphicsPortItem::done, &TGraphicsPortItem::undone);
        return last->items;
    }
    std::shared_ptr<Renaming> renaming = Repeated(newName, ofOldName);
    if (!renaming) {
        renaming = std::make_shared<Renaming>(Renaming{name, newName, ofOldName, {}});
    }
    renaming->changedAt = moment;
    Move(renaming, renaming->items, &TGraphicsPortItem::undone, &TGraphicsPortItem::done);
    return renaming->items;
}

std::shared_ptr<TGraphicsPortItem::Renaming> TGraphicsPortItem::Repeated(const QString& newName,
                                                                         const Items& ofOldName) const
{
    for (int i = undone.size() - 1; i >= 0; --i) {
        const std::shared_ptr<Renaming>& each = undone[i];
        const bool isSame = each->from == name && each->to == newName && ofOldName.contains(each->items);
        // What has come to the old name since, other than by renamings, is to be taken along: a new renaming.
        if (isSame && (each->items + each->spared + ChangedSince(each->changedAt)).contains(ofOldName)) {
            return each;
        }
    }
    return nullptr;
}

TGraphicsPortItem::Items TGraphicsPortItem::ChangedSince(quint64 moment) const
{
    Items changed;
    const QVector<TGraphicsItem*> items = ConnectedItems();
    for (const TGraphicsItem* item : items) {
        const auto* port = dynamic_cast<const TGraphicsPortItem*>(item->parentItem());
        const TRenamings renamings = port ? port->done + port->undone : TRenamings();
        for (const std::shared_ptr<Renaming>& each : renamings) {
            if (each->changedAt > moment) {
                changed += each->items;
            }
        }
    }
    return changed;
}

void TGraphicsPortItem::Move(const std::shared_ptr<Renaming>& renaming, const Items& items,
                             TRenamings TGraphicsPortItem::*from, TRenamings TGraphicsPortItem::*to)
{
    for (TGraphicsItem* item : items) {
        if (auto* port = dynamic_cast<TGraphicsPortItem*>(item)) {
            (port->*from).removeOne(renaming);
            (port->*to).append(renaming);
        }
    }
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
