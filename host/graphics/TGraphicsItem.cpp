#include <graphics/TGraphicsItem.h>

#include <graphics/engine/TStateText.h>
#include <graphics/TItemScene.h>
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
    // An item that is constructed into a scene was added before it could be notified.
    owner = qobject_cast<TItemScene*>(scene());
    if (owner) {
        owner->Join(*this);
    }
}

TGraphicsItem::~TGraphicsItem()
{
    if (owner) {
        owner->MarkNet(TGraphicsItem::Net());
    }
    linkNode.Release();
    if (owner) {
        owner->Leave(*this);
    }
}

void TGraphicsItem::AttachTo(TItemScene* newOwner)
{
    if (newOwner && newOwner != owner) {
        SetWorkspace(newOwner->Workspace());
        newOwner->addItem(this);
    }
}

void TGraphicsItem::Detach()
{
    if (owner) {
        owner->removeItem(this);
    }
}

TGraphicsItem* TGraphicsItem::CreateCopy() const
{
    std::unique_ptr<TGraphicsItem> copy = CreateEmpty();
    copy->CopyFrom(*this);
    return copy.release();
}

void TGraphicsItem::Assign(const TGraphicsItem& other)
{
    if (&other == this) {
        return;
    }
    prepareGeometryChange();
    setSelected(false);
    const QList<QGraphicsItem*> own = childItems();
    for (QGraphicsItem* child : own) {
        if (dynamic_cast<TGraphicsItem*>(child)) {
            delete child;
        }
    }
    TWorkspace* const ownWorkspace = workspace;
    CopyFrom(other);
    if (owner) {
        SetWorkspace(ownWorkspace);
    }
    MarkNet();
    Refresh();
}

void TGraphicsItem::CopyFrom(const TGraphicsItem& source)
{
    flagWord = source.flagWord & ~static_cast<unsigned>(Selected);
    layer = source.layer;
    workspace = source.workspace;
    altColor = source.altColor;
    linkNode.SetOwnNet(source.OwnNet());
    setPos(source.pos());
    setRotation(source.rotation());
    setZValue(source.zValue());
    const QGraphicsItem* parent = source.parentItem();
    setVisible(source.isVisible() || (parent && !parent->isVisible()));
    for (const QGraphicsItem* child : source.childItems()) {
        if (const auto* designChild = dynamic_cast<const TGraphicsItem*>(child)) {
            designChild->CreateCopy()->setParentItem(this);
        }
    }
}

QVector<TGraphicsItem*> TGraphicsItem::ChildrenOfKind(ItemType::Number kind) const
{
    QVector<TGraphicsItem*> found;
    const QList<QGraphicsItem*> children = childItems();
    for (QGraphicsItem* child : children) {
        if (child->type() == kind) {
            found.append(static_cast<TGraphicsItem*>(child));
        }
    }
    // The toolkit lists children in stacking order, which changes with their layers.
    std::stable_sort(found.begin(), found.end(), [](const TGraphicsItem* left, const TGraphicsItem* right) {
        return left->DesignOrder() < right->DesignOrder();
    });
    return found;
}

bool TGraphicsItem::ReplaceLinkedItem(TGraphicsItem*, TGraphicsItem*)
{
    return false;
}

void TGraphicsItem::AcceptLink(TGraphicsItem*, LinkEnd) {}

void TGraphicsItem::ReleaseLink(TGraphicsItem*, LinkEnd) {}

bool TGraphicsItem::TakesEnd(const QPointF& point, Osmirel::Layer ofLayer) const
{
    return HasCopperOn(ofLayer) && boundingRect().contains(point) && Outline().contains(point);
}

void TGraphicsItem::StoreLink(TGraphicsItem*& link, TGraphicsItem* target)
{
    // The new link is added before the old one is removed: storing the same item again is not a change.
    if (target) {
        linkNode.Hold(target->linkNode);
    }
    if (link) {
        linkNode.Drop(link->linkNode);
    }
    link = target;
}

void TGraphicsItem::MarkNet() const
{
    if (owner) {
        owner->MarkNet(Net());
    }
}

void TGraphicsItem::MarkPours() const
{
    if (owner) {
        owner->MarkPours();
    }
}

QString TGraphicsItem::PlaceName() const
{
    return TStateText(KindName()).AddPlace(static_cast<int>(layer), {scenePos()}).Line();
}

void TGraphicsItem::DescribeLinks(TStateText& state, const char* name, const QVector<TGraphicsItem*>& links)
{
    QStringList places;
    for (const TGraphicsItem* link : links) {
        places.append(link->PlaceName());
    }
    places.sort();
    state.Add(name, places);
}

void TGraphicsItem::SetTFlag(TFlag flag, bool on)
{
    flagWord = on ? flagWord | flag : flagWord & ~static_cast<unsigned>(flag);
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

void TGraphicsItem::Flip()
{
    setPos(-pos().x(), pos().y());
    setRotation(-rotation());
    SetLayer(Osmirel::OppositeLayer(layer));
}

void TGraphicsItem::SetAltColor(const QColor& color)
{
    if (color != altColor) {
        linkNode.ColorChanges();
    }
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
        .Add("flags", static_cast<int>(flagWord & ~static_cast<unsigned>(Selected)))
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
    } else if (change == ItemSceneHasChanged) {
        auto* newOwner = qobject_cast<TItemScene*>(value.value<QGraphicsScene*>());
        if (owner && owner != newOwner) {
            owner->Leave(*this);
        }
        linkNode.SceneChanges(owner, newOwner);
        owner = newOwner;
        if (owner) {
            workspace = workspace ? workspace : owner->Workspace();
            owner->Join(*this);
        }
    }
    return QGraphicsItem::itemChange(change, value);
}
