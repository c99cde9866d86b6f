#include <objects/TGraphicsRatLineItem.h>

#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>

#include <QPainter>

#include <algorithm>

namespace {

/** 0 for no priority, 1 to 9. */
int Level(const QString& priority)
{
    return std::clamp(priority.toInt(), 0, 9);
}

} // namespace

TGraphicsRatLineItem::TGraphicsRatLineItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    setFlag(ItemIsSelectable, false);
    setAcceptedMouseButtons(Qt::NoButton);
    LinkNode().SetRole(TLinkNode::Role::Divides);
    setZValue(DrawingStyle::stackingOfRatLines);
}

void TGraphicsRatLineItem::SetLine(const QLineF& newLine, const QString& net)
{
    prepareGeometryChange();
    line = newLine;
    LinkNode().SetOwnNet(net);
    Refresh();
}

void TGraphicsRatLineItem::Refresh()
{
    setZValue(StackingHeight());
    update();
}

QRectF TGraphicsRatLineItem::boundingRect() const
{
    return QRectF(line.p1(), line.p2()).normalized().adjusted(-1, -1, 1, 1);
}

QPainterPath TGraphicsRatLineItem::Outline() const
{
    return {};
}

void TGraphicsRatLineItem::Draw(QPainter& painter, double) const
{
    QColor color = AltColor().isValid() ? AltColor() : DrawingStyle::ratLine;
    color.setAlpha(std::min(255, DrawingStyle::ratLine.alpha() + 12 * Level(priority)));
    QPen pen(color, 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLine(line);
}

double TGraphicsRatLineItem::StackingHeight() const
{
    return DrawingStyle::stackingOfRatLines + 0.01 * Level(priority);
}

void TGraphicsRatLineItem::Describe(TStateText& state) const
{
    // Without the attributes that all items have: position and colour follow from the net.
    state.Add("net", Net()).Add("from", line.p1()).Add("to", line.p2()).Add("priority", priority);
}

std::unique_ptr<TGraphicsItem> TGraphicsRatLineItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsRatLineItem>();
}

void TGraphicsRatLineItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsRatLineItem&>(source);
    line = other.line;
    priority = other.priority;
}
