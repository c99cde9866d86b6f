#include <contract/Store.h>
#include <graphics/TGraphicsItem.h>
#include <graphics/TItemScene.h>

using ContractHost::CallOut;
using ContractHost::Store;

TGraphicsItem::~TGraphicsItem()
{
    for (TGraphicsItem* target : qAsConst(links)) {
        if (target) {
            target->holders.removeOne(this);
        }
    }
    const QVector<TGraphicsItem*> left = holders;
    for (TGraphicsItem* holder : left) {
        holder->Drop(this);
    }
}

QRectF TGraphicsItem::boundingRect() const { return {-1, -1, 2, 2}; }
void TGraphicsItem::paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) {}

bool TGraphicsItem::HasTFlag(TFlag flag) const { return flag == Selected ? isSelected() : (state.flags & flag) != 0; }
void TGraphicsItem::SetTFlag(TFlag flag, bool on) { Store(state.flags, on ? state.flags | flag : state.flags & ~flag); }
Osmirel::Layer TGraphicsItem::Layer() const { return state.layer; }
void TGraphicsItem::SetLayer(Osmirel::Layer newLayer) { Store(state.layer, newLayer); }
QColor TGraphicsItem::AltColor() const { return state.altColor; }
void TGraphicsItem::SetAltColor(const QColor& color) { Store(state.altColor, color); }
QString TGraphicsItem::Net() const { return state.net; }

void TGraphicsItem::TakeState(const TGraphicsItem& other)
{
    setPos(other.pos());
    setRotation(other.rotation());
    setVisible(other.isVisible());
    state = other.state;
}

TItemScene* TGraphicsItem::Owner() const { return dynamic_cast<TItemScene*>(scene()); }
TWorkspace* TGraphicsItem::Workspace() const { return Owner() ? Owner()->workspace : nullptr; }

void TGraphicsItem::AttachTo(TItemScene* newOwner)
{
    if (newOwner) {
        newOwner->addItem(this);
    }
    CallOut();
}

void TGraphicsItem::Detach()
{
    if (scene()) {
        scene()->removeItem(this);
    }
    CallOut();
}

void TGraphicsItem::ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to)
{
    if (to && links.contains(from)) {
        HoldAt(links.indexOf(from), to);
    } else {
        Drop(from);
    }
    CallOut();
}

void TGraphicsItem::HoldAt(int place, TGraphicsItem* target)
{
    if (TGraphicsItem* former = links.at(place)) {
        former->holders.removeOne(this);
    }
    links[place] = target;
    if (target) {
        target->holders.append(this);
    }
}

void TGraphicsItem::Hold(TGraphicsItem* target)
{
    links.append(nullptr);
    HoldAt(links.size() - 1, target);
}

void TGraphicsItem::Drop(TGraphicsItem* target)
{
    const int place = target ? links.indexOf(target) : -1;
    if (place >= 0) {
        HoldAt(place, nullptr);
        if (!hasEnds) {
            links.remove(place);
        }
    }
}

void TGraphicsItem::HoldSection(TGraphicsItem* item, TGraphicsItem* section, LinkEnd end)
{
    if (item->hasEnds) { // Sections are linked head to tail.
        item->HoldAt(end == LinkEnd::First ? 1 : 0, section);
    } else {
        item->Hold(section);
    }
}

QVector<TGraphicsItem*> TGraphicsItem::JoinedWith(TGraphicsItem* item)
{
    QVector<TGraphicsItem*> joined{item};
    for (int i = 0; i < joined.size(); ++i) {
        for (TGraphicsItem* next : joined.at(i)->links + joined.at(i)->holders) {
            if (next && !joined.contains(next)) {
                joined.append(next);
            }
        }
    }
    joined.removeFirst();
    return joined;
}
