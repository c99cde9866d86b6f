#include "properties/commands/TCmdWire.h"

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

TCmdWireWidth::TCmdWireWidth(const QList<TGraphicsWireItem*>& wires, double width) : TMergingCommand(wires, width)
{
    constexpr unsigned changesWireWidth = 1;
    AddCategory(changesWireWidth);
}

void TCmdWireWidth::SetWireWidth(TGraphicsWireItem* wire, double width)
{
    if (wire) {
        Attribute::Write(*wire, width);
    }
}

TCmdWireAddNode::TCmdWireAddNode(TGraphicsWireItem* ofWire, const QPointF& point) : wire(ofWire)
{
    if (!wire) {
        return;
    }
    const QLineF line = wire->SceneLine();
    const QPointF across(-line.dy(), line.dx());
    const QLineF perpendicular(point, point + across);
    // A wire without length has no direction: it is split where it is.
    if (line.intersects(perpendicular, &node) == QLineF::NoIntersection) {
        node = line.p1();
    }
}

void TCmdWireAddNode::Do()
{
    if (!wire) {
        return;
    }
    newWire = static_cast<TGraphicsWireItem*>(wire->CreateCopy());
    newWire->AttachTo(wire->Owner());
    wire->SetPoint2(wire->mapFromScene(node));
    newWire->SetPoint1(newWire->mapFromScene(node));
    if (TGraphicsItem* last = wire->LastLink()) {
        newWire->SetLastLink(last);
        last->ReplaceLinkedItem(wire, newWire);
    }
    wire->SetLastLink(newWire);
    newWire->SetFirstLink(wire);
}

void TCmdWireAddNode::Undo()
{
    if (!wire || !newWire) {
        return;
    }
    wire->SetPoint2(wire->mapFromScene(newWire->ScenePoint(TGraphicsItem::LinkEnd::Last)));
    // Intended: without a last link of the new wire, the wire's own is left as it is until the new wire is gone.
    if (TGraphicsItem* last = newWire->LastLink()) {
        wire->SetLastLink(last);
        last->ReplaceLinkedItem(newWire, wire);
    }
    newWire->SetFirstLink(nullptr);
    newWire->SetLastLink(nullptr);
    // Taken off first: for an item that is deleted on its scene, the toolkit searches the whole scene at the next
    // change.
    newWire->Detach();
    delete newWire;
    newWire = nullptr;
}

TCmdWireDelNode::TCmdWireDelNode(TGraphicsWireItem* keptWire, TGraphicsWireItem* removedWire)
    : kept(removedWire ? keptWire : nullptr), removed(removedWire)
{
    if (kept) {
        node = kept->ScenePoint(TGraphicsItem::LinkEnd::Last);
    }
}

void TCmdWireDelNode::Do()
{
    if (!kept) {
        return;
    }
    TGraphicsWireItem* wire = removed.Get();
    TGraphicsItem* last = wire->LastLink();
    kept->SetPoint2(kept->mapFromScene(wire->ScenePoint(TGraphicsItem::LinkEnd::Last)));
    kept->Unlink(TGraphicsItem::LinkEnd::Last);
    wire->Unlink(TGraphicsItem::LinkEnd::Last);
    kept->LinkToLast(last);
    removed.Detach();
}

void TCmdWireDelNode::Undo()
{
    if (!kept) {
        return;
    }
    TGraphicsWireItem* wire = removed.Get();
    removed.Attach();
    kept->SetPoint2(kept->mapFromScene(node));
    wire->SetPoint1(wire->mapFromScene(node));
    TGraphicsItem* last = kept->LastLink();
    if (last) {
        last->ReplaceLinkedItem(kept, wire);
    }
    wire->SetLastLink(last);
    kept->SetLastLink(wire);
    wire->SetFirstLink(kept);
}
