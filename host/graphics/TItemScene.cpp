#include <graphics/TItemScene.h>

#include <graphics/TGraphicsItem.h>

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <utility>

TItemScene::TItemScene(TWorkspace* ofDocument, QObject* parent) : QGraphicsScene(parent), workspace(ofDocument) {}

TItemScene::~TItemScene()
{
    // The scene is still the owner of the items during their destruction.
    closing = true;
    linkChanges = {};
    // The toolkit searches its list of unpolished items for each one removed: polish them all first.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    clear();
}

QList<TGraphicsItem*> TItemScene::DesignItems() const
{
    QList<TGraphicsItem*> items;
    items.reserve(numbered.size());
    std::copy_if(numbered.cbegin(), numbered.cend(), std::back_inserter(items),
                 [](const TGraphicsItem* item) { return item != nullptr; });
    return items;
}

QList<QGraphicsItem*> TItemScene::ItemsNear(const QRectF& rect)
{
    if (numbered.size() > 2 * numberedWhenFitted) {
        setSceneRect(itemsBoundingRect());
        numberedWhenFitted = numbered.size();
    }
    return items(rect, Qt::IntersectsItemBoundingRect);
}

void TItemScene::ApplyLinks()
{
    if (!linkChanges.IsEmpty()) {
        TLinkNode::Apply(linkChanges);
    }
}

void TItemScene::MarkNet(const QString& net)
{
    if (closing || net.isEmpty() || net == lastMarkedNet) {
        return;
    }
    const bool isFirst = markedNets.isEmpty() && !markedPours;
    markedNets.insert(net);
    lastMarkedNet = net;
    if (isFirst) {
        emit sigMarked();
    }
}

void TItemScene::MarkPours()
{
    if (closing) {
        return;
    }
    const bool isFirst = markedNets.isEmpty() && !markedPours;
    markedPours = true;
    if (isFirst) {
        emit sigMarked();
    }
}

QSet<QString> TItemScene::TakeMarkedNets()
{
    lastMarkedNet.clear();
    return std::exchange(markedNets, {});
}

bool TItemScene::TakeMarkedPours()
{
    return std::exchange(markedPours, false);
}

void TItemScene::Join(TGraphicsItem& item)
{
    if (!item.IsDerived()) {
        Number(item);
        MarkNet(item.Net());
    }
}

void TItemScene::Leave(TGraphicsItem& item)
{
    if (closing) {
        return;
    }
    ApplyLinks();
    MarkNet(item.Net());
    if (IsNumbered(item)) {
        numbered[item.DesignOrder() - 1] = nullptr;
    }
}

bool TItemScene::IsNumbered(const TGraphicsItem& item) const
{
    return numbered.value(item.DesignOrder() - 1) == &item;
}

void TItemScene::Number(TGraphicsItem& item)
{
    // Children are reported first, but come after their parent.
    auto* parent = dynamic_cast<TGraphicsItem*>(item.parentItem());
    if (parent && parent->scene() == this && !IsNumbered(*parent)) {
        Number(*parent);
    }
    if (IsNumbered(item)) {
        return;
    }
    const int place = item.DesignOrder() - 1;
    const bool isPlaceFree = place >= 0 && place < numbered.size() && !numbered[place];
    if (isPlaceFree) {
        numbered[place] = &item;
    } else {
        numbered.append(&item);
        item.SetDesignOrder(numbered.size());
    }
}
