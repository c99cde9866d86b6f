#include "properties/commands/TCmdWire.h"

#include "properties/commands/AttributeCommandEngine.h"
#include "properties/commands/TDetachedItem.h"
#include "properties/commands/TRecreatedItems.h"

#include <objects/TGraphicsJunctionItem.h>

#include <algorithm>

namespace {

void FitJunction(TGraphicsItem* endItem)
{
    if (!endItem || endItem->type() != ItemType::Junction) {
        return;
    }
    auto* junction = static_cast<TGraphicsJunctionItem*>(endItem);
    float size = 0;
    for (const TGraphicsSectionItem* section : junction->LinkedSections()) {
        size = std::max(size, section->PenWidth());
    }
    junction->SetSize(size, size);
}

} // namespace

void Attributes::WireWidth::Write(TGraphicsWireItem& wire, double width)
{
    wire.SetPenWidth(static_cast<float>(width));
    FitJunction(wire.FirstLink());
    FitJunction(wire.LastLink());
}

template class TMergingCommand<Attributes::WireWidth, CommandId::WireWidth, MergeRule::TakeOver>;

TCmdWireWidth::TCmdWireWidth(const QList<TGraphicsWireItem*>& wires, double width) : TMergingCommand(wires, width)
{
    constexpr unsigned changesWireWidth = 1;
    AddCategory(changesWireWidth);
}

TCommandKind TCmdWireWidth::Kind() const
{
    return {"WireWidth", QT_TRANSLATE_NOOP("TCommandKind", "Change width of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "wires")};
}

void TCmdWireWidth::SetWireWidth(TGraphicsWireItem* wire, double width)
{
    if (wire) {
        Attribute::Write(*wire, width);
    }
}

TCmdWireAddNode::TCmdWireAddNode(TGraphicsWireItem* ofWire, const QPointF& point)
    : wire(ofWire), made(std::make_unique<TRecreatedItems<TGraphicsWireItem>>())
{
    if (!wire) {
        return;
    }
    const QLineF line = wire->SceneLine();
    const QPointF across(-line.dy(), line.dx());
    const QLineF perpendicular(point, point + across);
    // A wire of zero length has no direction: it is split at its first point.
    if (line.intersects(perpendicular, &node) == QLineF::NoIntersection) {
        node = line.p1();
    }
}

TCmdWireAddNode::~TCmdWireAddNode() = default;

TCommandKind TCmdWireAddNode::Kind() const
{
    return {"WireAddNode", QT_TRANSLATE_NOOP("TCommandKind", "Add a node to %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a wire")};
}

bool TCmdWireAddNode::Do()
{
    if (!wire) {
        return false;
    }
    std::unique_ptr<TGraphicsWireItem> copy(static_cast<TGraphicsWireItem*>(wire->CreateCopy()));
    copy->SetPoint1(wire->mapFromScene(node));
    made->StartOver();
    newWire = made->Make(std::move(copy));
    newWire->AttachTo(wire->Owner());
    wire->SetPoint2(wire->mapFromScene(node));
    if (TGraphicsItem* last = wire->LastLink()) {
        newWire->SetLastLink(last);
        last->ReplaceLinkedItem(wire, newWire);
    }
    wire->SetLastLink(newWire);
    newWire->SetFirstLink(wire);
    return true;
}

bool TCmdWireAddNode::Undo()
{
    if (!wire || !newWire) {
        return false;
    }
    wire->SetPoint2(wire->mapFromScene(newWire->ScenePoint(TGraphicsItem::LinkEnd::Last)));
    // Intended: if the new wire has no last link, the wire keeps its own, unless that is the new wire, which is about
    // to be removed.
    TGraphicsItem* last = newWire->LastLink();
    if (last) {
        wire->SetLastLink(last);
        last->ReplaceLinkedItem(newWire, wire);
    } else if (wire->LastLink() == newWire) {
        wire->SetLastLink(nullptr);
    }
    newWire->SetFirstLink(nullptr);
    newWire->SetLastLink(nullptr);
    made->TakeAway(newWire);
    newWire = nullptr;
    return true;
}

TCmdWireDelNode::TCmdWireDelNode(TGraphicsWireItem* keptWire, TGraphicsWireItem* removedWire)
    : kept(removedWire && removedWire != keptWire ? keptWire : nullptr),
      removed(std::make_unique<TDetachedItem<TGraphicsWireItem>>(removedWire))
{
    if (kept) {
        node = kept->ScenePoint(TGraphicsItem::LinkEnd::Last);
    }
}

TCmdWireDelNode::~TCmdWireDelNode() = default;

TCommandKind TCmdWireDelNode::Kind() const
{
    return {"WireDelNode", QT_TRANSLATE_NOOP("TCommandKind", "Remove a node from %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a wire")};
}

bool TCmdWireDelNode::Do()
{
    if (!kept) {
        return false;
    }
    TGraphicsWireItem* wire = removed->Get();
    TGraphicsItem* last = wire->LastLink();
    kept->SetPoint2(kept->mapFromScene(wire->ScenePoint(TGraphicsItem::LinkEnd::Last)));
    kept->Unlink(TGraphicsItem::LinkEnd::Last);
    wire->Unlink(TGraphicsItem::LinkEnd::Last);
    kept->LinkToLast(last);
    removed->TakeOver();
    return true;
}

bool TCmdWireDelNode::Undo()
{
    if (!kept) {
        return false;
    }
    TGraphicsWireItem* wire = removed->Get();
    removed->GiveTo(kept->Owner());
    kept->SetPoint2(kept->mapFromScene(node));
    wire->SetPoint1(wire->mapFromScene(node));
    TGraphicsItem* last = kept->LastLink();
    if (last) {
        last->ReplaceLinkedItem(kept, wire);
    }
    wire->SetLastLink(last);
    kept->SetLastLink(wire);
    wire->SetFirstLink(kept);
    return true;
}
