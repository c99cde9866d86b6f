#include <objects/TGraphicsOutlineItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>

#include <QPainter>

namespace {

QPointF At(const OutlinePointStruct& point)
{
    return {point.x, point.y};
}

QPainterPath CurveThrough(const QVector<OutlinePointStruct>& points)
{
    QPainterPath path;
    if (points.isEmpty()) {
        return path;
    }
    path.moveTo(At(points.first()));
    for (int i = 1; i < points.size(); ++i) {
        if (points[i].kind == 0) {
            path.lineTo(At(points[i]));
        } else {
            // The arc may end at the start of the curve.
            Shapes::ArcThrough(path, At(points[i]), At(points[(i + 1) % points.size()]));
            ++i;
        }
    }
    path.closeSubpath();
    return path;
}

} // namespace

TGraphicsOutlineItem::TGraphicsOutlineItem(QGraphicsItem* parent) : TGraphicsPenItem(parent)
{
    TGraphicsPenItem::SetLayer(Osmirel::BoardOutline);
    setZValue(DrawingStyle::stackingOfBoardEdge);
}

void TGraphicsOutlineItem::SetPoints(const QVector<OutlinePointStruct>& newPoints)
{
    points = newPoints;
    UpdatePath();
}

void TGraphicsOutlineItem::SetCutOuts(const QPainterPath& edges)
{
    cutOuts = edges;
    UpdatePath();
}

void TGraphicsOutlineItem::UpdatePath()
{
    prepareGeometryChange();
    path = CurveThrough(points);
    path.addPath(cutOuts);
    Refresh();
}

QRectF TGraphicsOutlineItem::boundingRect() const
{
    return WithPenMargin(path.boundingRect());
}

QPainterPath TGraphicsOutlineItem::Outline() const
{
    return Stroked(path);
}

void TGraphicsOutlineItem::Draw(QPainter& painter, double pixelsPerUnit) const
{
    QPen edge = DrawingPen();
    if (!AltColor().isValid()) {
        edge.setColor(DrawingStyle::boardEdge);
    }
    edge.setCosmetic(static_cast<double>(PenWidth()) * pixelsPerUnit < 1);
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

double TGraphicsOutlineItem::StackingHeight() const
{
    return DrawingStyle::stackingOfBoardEdge;
}

void TGraphicsOutlineItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    QStringList corners;
    for (const OutlinePointStruct& point : points) {
        corners.append(TStateText(QString()).AddPlace(point.kind, {At(point)}).Line());
    }
    state.Add("points", corners).Add("cutOuts", cutOuts);
}

std::unique_ptr<TGraphicsItem> TGraphicsOutlineItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsOutlineItem>();
}

void TGraphicsOutlineItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsOutlineItem&>(source);
    points = other.points;
    cutOuts = other.cutOuts;
    path = other.path;
}
