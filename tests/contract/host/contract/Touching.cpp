#include <contract/CalledOut.h>
#include <contract/Touching.h>
#include <objects/TGraphicsSectionItem.h>

#include <QGraphicsScene>

namespace {

/** Each section of the targets' scene once for each of its ends. */
QVector<TGraphicsItem*> EndsAround(const QVector<TGraphicsItem*>& targets)
{
    QVector<TGraphicsItem*> ends;
    const QGraphicsScene* scene = targets.isEmpty() ? nullptr : targets.first()->scene();
    for (QGraphicsItem* item : scene ? scene->items() : QList<QGraphicsItem*>()) {
        if (auto* section = dynamic_cast<TGraphicsSectionItem*>(item)) {
            ends += {section, section};
        }
    }
    return ends;
}

/** Acts on the first end of a section, and of a target, that suits; whether there was one. */
template <class Act>
bool ActOnEnd(TGraphicsSectionItem* section, const QVector<TGraphicsItem*>& targets, Act act)
{
    for (const auto end : {TGraphicsItem::LinkEnd::First, TGraphicsItem::LinkEnd::Last}) {
        for (TGraphicsItem* target : targets) {
            if (act(section, end, target)) {
                return true;
            }
        }
    }
    return false;
}

template <class Act>
QVector<TGraphicsItem*> ActOnEnds(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& sections,
                                  Act act)
{
    QVector<TGraphicsItem*> changed;
    for (TGraphicsItem* item : sections.isEmpty() ? EndsAround(targets) : sections) {
        auto* section = dynamic_cast<TGraphicsSectionItem*>(item);
        if (section && ActOnEnd(section, targets, act)) {
            changed.append(section);
        }
    }
    ContractHost::CallOut();
    return changed;
}

} // namespace

QVector<TGraphicsItem*> Touching::Link(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& sections)
{
    return ActOnEnds(targets, sections, [](auto* section, auto end, TGraphicsItem* target) {
        const bool suits = !section->Link(end) && target->sceneBoundingRect().contains(section->ScenePoint(end));
        if (suits) {
            section->LinkTo(end, target);
        }
        return suits;
    });
}

QVector<TGraphicsItem*> Touching::Cut(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& sections)
{
    return ActOnEnds(targets, sections, [](auto* section, auto end, TGraphicsItem* target) {
        const bool suits = section->Link(end) == target;
        if (suits) {
            section->Unlink(end);
        }
        return suits;
    });
}

QVector<TGraphicsItem*> Touching::ChildrenOf(const TGraphicsItem& parent, ItemType::Number kind)
{
    QVector<TGraphicsItem*> children;
    for (QGraphicsItem* child : parent.childItems()) {
        if (child->type() == kind) {
            children.append(static_cast<TGraphicsItem*>(child));
        }
    }
    return children;
}
