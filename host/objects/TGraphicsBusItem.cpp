#include <objects/TGraphicsBusItem.h>

#include <graphics/engine/TStateText.h>
#include <objects/TGraphicsBusEntryItem.h>

#include <QPainter>

namespace {

constexpr float usualBusWidth = 5;

} // namespace

TGraphicsBusItem::TGraphicsBusItem(QGraphicsItem* parent) : TGraphicsSectionItem(parent)
{
    LinkNode().SetRole(TLinkNode::Role::Divides);
    TGraphicsSectionItem::SetLayer(Osmirel::SchematicBuses);
    SetPenWidth(usualBusWidth);
}

void TGraphicsBusItem::AddLinkedBusEntry(TGraphicsBusEntryItem* entry)
{
    entries.Add(entry);
}

void TGraphicsBusItem::RemoveLinkedBusEntry(TGraphicsBusEntryItem* entry)
{
    entries.Remove(entry);
}

bool TGraphicsBusItem::ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to)
{
    return TGraphicsSectionItem::ReplaceLinkedItem(from, to) || entries.Replace(from, to);
}

void TGraphicsBusItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.drawLine(Point1(), Point2());
}

void TGraphicsBusItem::Describe(TStateText& state) const
{
    TGraphicsSectionItem::Describe(state);
    state.Add("name", name);
    DescribeLinks(state, "entries", entries.Items());
}

std::unique_ptr<TGraphicsItem> TGraphicsBusItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsBusItem>();
}

void TGraphicsBusItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsSectionItem::CopyFrom(source);
    name = static_cast<const TGraphicsBusItem&>(source).name;
}
