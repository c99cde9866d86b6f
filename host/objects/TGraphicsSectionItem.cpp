#include <objects/TGraphicsSectionItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <graphics/TItemScene.h>

#include <algorithm>

namespace {

TGraphicsItem::LinkEnd OtherEnd(TGraphicsItem::LinkEnd end)
{
    return end == TGraphicsItem::LinkEnd::First ? TGraphicsItem::LinkEnd::Last : TGraphicsItem::LinkEnd::First;
}

QStringList NameOf(const TGraphicsItem* link)
{
    return link ? QStringList{link->PlaceName()} : QStringList();
}

} // namespace

void TGraphicsSectionItem::StorePoint(QPointF& point, const QPointF& newPoint)
{
    prepareGeometryChange();
    point = newPoint;
    MarkNet();
    Refresh();
}

void TGraphicsSectionItem::SetPoint1(const QPointF& point)
{
    StorePoint(point1, point);
}

void TGraphicsSectionItem::SetPoint2(const QPointF& point)
{
    StorePoint(point2, point);
}

void TGraphicsSectionItem::SetFirstLink(TGraphicsItem* item)
{
    StoreLink(firstLink, item);
}

void TGraphicsSectionItem::SetLastLink(TGraphicsItem* item)
{
    StoreLink(lastLink, item);
}

void TGraphicsSectionItem::SetLink(LinkEnd end, TGraphicsItem* item)
{
    StoreLink(end == LinkEnd::First ? firstLink : lastLink, item);
}

void TGraphicsSectionItem::LinkToFirst(TGraphicsItem* item)
{
    LinkTo(LinkEnd::First, item);
}

void TGraphicsSectionItem::LinkToLast(TGraphicsItem* item)
{
    LinkTo(LinkEnd::Last, item);
}

void TGraphicsSectionItem::LinkTo(LinkEnd end, TGraphicsItem* item)
{
    Unlink(end);
    if (!item || !item->CanBeLinkedTo()) {
        return;
    }
    if (auto* section = dynamic_cast<TGraphicsSectionItem*>(item)) {
        section->Unlink(OtherEnd(end));
    }
    SetLink(end, item);
    item->AcceptLink(this, end);
}

void TGraphicsSectionItem::UnlinkFrom(TGraphicsItem* item)
{
    if (item && item == firstLink) {
        Unlink(LinkEnd::First);
    } else if (item && item == lastLink) {
        Unlink(LinkEnd::Last);
    }
}

void TGraphicsSectionItem::Unlink(LinkEnd end)
{
    if (TGraphicsItem* item = Link(end)) {
        item->ReleaseLink(this, end);
        SetLink(end, nullptr);
    }
}

void TGraphicsSectionItem::AcceptLink(TGraphicsItem* section, LinkEnd end)
{
    SetLink(OtherEnd(end), section);
}

void TGraphicsSectionItem::ReleaseLink(TGraphicsItem* section, LinkEnd end)
{
    if (Link(OtherEnd(end)) == section) {
        SetLink(OtherEnd(end), nullptr);
    }
}

bool TGraphicsSectionItem::ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to)
{
    if (!from || (from != firstLink && from != lastLink)) {
        return false;
    }
    SetLink(from == firstLink ? LinkEnd::First : LinkEnd::Last, to);
    return true;
}

QVector<TGraphicsItem*> TGraphicsSectionItem::Links() const
{
    QVector<TGraphicsItem*> links;
    for (TGraphicsItem* link : {firstLink, lastLink}) {
        if (link) {
            links.append(link);
        }
    }
    return links;
}

void TGraphicsSectionItem::UpdateNet()
{
    if (Owner()) {
        Owner()->ApplyLinks();
    }
    Refresh();
}

void TGraphicsSectionItem::SetNet(const QString& name)
{
    LinkNode().SetOwnNet(name);
    Refresh();
}

void TGraphicsSectionItem::SetLayer(Osmirel::Layer newLayer)
{
    TGraphicsPenItem::SetLayer(newLayer);
    MarkNet();
}

QString TGraphicsSectionItem::PlaceName() const
{
    return TStateText(KindName()).AddPlace(static_cast<int>(Layer()), {mapToScene(point1), mapToScene(point2)}).Line();
}

QRectF TGraphicsSectionItem::boundingRect() const
{
    return WithPenMargin(QRectF(point1, point2));
}

QPainterPath TGraphicsSectionItem::Outline() const
{
    return Shapes::Capsule(point1, point2, std::max(1.0, static_cast<double>(PenWidth())));
}

void TGraphicsSectionItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    state.Add("from", point1).Add("to", point2).Add("first", NameOf(firstLink)).Add("last", NameOf(lastLink));
}

void TGraphicsSectionItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsSectionItem&>(source);
    point1 = other.point1;
    point2 = other.point2;
}
