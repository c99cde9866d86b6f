#include <objects/TGraphicsJunctionItem.h>

#include <graphics/engine/TStateText.h>
#include <objects/TGraphicsSectionItem.h>

#include <QPainter>

TGraphicsJunctionItem::TGraphicsJunctionItem(QGraphicsItem* parent) : TGraphicsRectItem(parent)
{
    Pen().setStyle(Qt::NoPen);
}

void TGraphicsJunctionItem::AddLinkedSection(TGraphicsSectionItem* section)
{
    linked.Add(section);
}

void TGraphicsJunctionItem::RemoveLinkedSection(TGraphicsSectionItem* section)
{
    linked.Remove(section);
}

void TGraphicsJunctionItem::SetNet(const QString& name)
{
    LinkNode().SetOwnNet(name);
    Refresh();
}

void TGraphicsJunctionItem::SetLayer(Osmirel::Layer newLayer)
{
    TGraphicsRectItem::SetLayer(newLayer);
    MarkNet();
}

QPainterPath TGraphicsJunctionItem::Outline() const
{
    QPainterPath path;
    path.addEllipse(Rect());
    return path;
}

void TGraphicsJunctionItem::Draw(QPainter& painter, double) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Color());
    painter.drawEllipse(Rect());
}

void TGraphicsJunctionItem::Describe(TStateText& state) const
{
    TGraphicsRectItem::Describe(state);
    DescribeLinks(state, "sections", Links());
}

std::unique_ptr<TGraphicsItem> TGraphicsJunctionItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsJunctionItem>();
}
