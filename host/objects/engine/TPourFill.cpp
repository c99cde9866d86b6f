#include <objects/engine/TPourFill.h>

#include <graphics/TItemScene.h>
#include <objects/engine/Clip.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsSectionItem.h>
#include <objects/TGraphicsViaItem.h>
#include <workspace/TWorkspace.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double sceneUnitsPerMillimetre = TWorkspace::sceneUnitsPerInch / TWorkspace::millimetresPerInch;
constexpr double squareUnitsPerSquareMillimetre = sceneUnitsPerMillimetre * sceneUnitsPerMillimetre;

/** A spoke no wider than the pour's lines is reduced to a centre line, this thin, in scene units. */
constexpr double thinnestSpoke = 0.1;

/** Collects the obstacles on a pour's layer and subtracts them from its area. All in the pour's coordinates. */
class PourFiller
{
public:
    explicit PourFiller(const TGraphicsPourItem& toFill)
        : pour(toFill), net(toFill.Net()), halfLine(toFill.LineWidth() / 2)
    {
        allowed = Clip::Grown(Clip::FromPolygon(pour.Area()), -halfLine);
        const QList<TGraphicsItem*> items = pour.Owner() ? pour.Owner()->DesignItems() : QList<TGraphicsItem*>();
        for (const TGraphicsItem* item : items) {
            Gather(*item);
        }
        if (!board.empty()) {
            const Clip::Regions inside = Clip::Grown(board, -(pour.ClearanceToBorder() + halfLine));
            allowed = Clip::Intersected(allowed, inside);
        }
    }

    std::vector<Clip::Piece> Pieces() const
    {
        std::vector<Clip::Piece> pieces = Clip::PiecesOf(allowed, obstacles);
        const auto isUnwanted = [this](const Clip::Piece& piece) {
            const double square = piece.Area() + piece.Perimeter() * halfLine;
            return square < pour.MinimumArea() * squareUnitsPerSquareMillimetre || IsBareSpokes(piece)
                   || (pour.OnlyConnected() && !IsConnected(piece));
        };
        pieces.erase(std::remove_if(pieces.begin(), pieces.end(), isUnwanted), pieces.end());
        return pieces;
    }

private:
    void Gather(const TGraphicsItem& item)
    {
        switch (item.type()) {
        case ItemType::Pour: GatherPour(static_cast<const TGraphicsPourItem&>(item)); break;
        case ItemType::Keepout: GatherKeepout(static_cast<const TGraphicsKeepoutItem&>(item)); break;
        case ItemType::Outline: GatherBoard(static_cast<const TGraphicsOutlineItem&>(item)); break;
        case ItemType::Hole: GatherForeign(item); break;
        default:
            if (item.HasCopperOn(pour.Layer())) {
                GatherCopper(item);
            }
        }
    }

    void GatherPour(const TGraphicsPourItem& other)
    {
        const bool gives = &other != &pour && other.Layer() == pour.Layer() && other.FillType() != Qt::NoBrush;
        if (gives && other.Net() != net && other.IsStrongerThan(pour)) {
            AddGrown(other, pour.ClearanceToPour());
        }
    }

    void GatherKeepout(const TGraphicsKeepoutItem& keepout)
    {
        if (keepout.IsLayerEnable(pour.Layer())) {
            AddGrown(keepout, 0);
        }
    }

    void GatherBoard(const TGraphicsOutlineItem& outline)
    {
        Clip::Add(board, Clip::FromPath(outline.Path(), outline.itemTransform(&pour)));
    }

    void GatherCopper(const TGraphicsItem& item)
    {
        if (net.isEmpty() || item.Net() != net) {
            GatherForeign(item);
            return;
        }
        if (const auto* section = dynamic_cast<const TGraphicsSectionItem*>(&item)) {
            anchors.append(pour.mapFromScene(section->ScenePoint(TGraphicsItem::LinkEnd::First)));
            anchors.append(pour.mapFromScene(section->ScenePoint(TGraphicsItem::LinkEnd::Last)));
            return;
        }
        anchors.append(item.mapToItem(&pour, QPointF()));
        const auto* via = dynamic_cast<const TGraphicsViaItem*>(&item);
        if (via && HasThermal(*via)) {
            AddThermal(*via);
        }
    }

    bool HasThermal(const TGraphicsViaItem& via) const
    {
        return via.Thermal() == TGraphicsViaItem::ThermalYes
               || (via.Thermal() == TGraphicsViaItem::ThermalAuto && pour.ThermalEnable());
    }

    void GatherForeign(const TGraphicsItem& item)
    {
        const double margin = pour.ClearanceToEtch();
        const auto* section = dynamic_cast<const TGraphicsSectionItem*>(&item);
        if (section) {
            if (IsNear(item, margin)) {
                obstacles.push_back(Clip::Capsule(pour.mapFromScene(section->ScenePoint(TGraphicsItem::LinkEnd::First)),
                                                  pour.mapFromScene(section->ScenePoint(TGraphicsItem::LinkEnd::Last)),
                                                  static_cast<double>(section->PenWidth()) / 2 + margin + halfLine));
            }
            return;
        }
        AddGrown(item, margin);
    }

    bool IsNear(const TGraphicsItem& item, double margin) const
    {
        const double reach = margin + halfLine;
        const QRectF box = item.mapRectToItem(&pour, item.boundingRect()).adjusted(-reach, -reach, reach, reach);
        return box.intersects(pour.boundingRect());
    }

    void AddGrown(const TGraphicsItem& item, double margin)
    {
        if (IsNear(item, margin)) {
            Clip::Add(obstacles,
                      Clip::Grown(Clip::FromPath(item.Outline(), item.itemTransform(&pour)), margin + halfLine));
        }
    }

    /** Subtracts the thermal gap around a pad, except for four spokes along the pad's axes. */
    void AddThermal(const TGraphicsViaItem& via)
    {
        if (!IsNear(via, pour.ThermalIsolation())) {
            return;
        }
        const double isolation = pour.ThermalIsolation() + halfLine;
        const QTransform toPour = via.itemTransform(&pour);
        const Clip::Regions hole = Clip::Grown(Clip::FromPath(via.Outline(), toPour), isolation);
        const double halfSpoke = std::max(thinnestSpoke, pour.ThermalLine() - pour.LineWidth()) / 2;
        const QRectF extent = via.Outline().boundingRect();
        const double reach = isolation + halfLine + 1;
        QPainterPath spokes; // They cross at the pad's centre: the crossing is copper too, and connects them.
        spokes.setFillRule(Qt::WindingFill);
        spokes.addRect(extent.left() - reach, -halfSpoke, extent.width() + 2 * reach, 2 * halfSpoke);
        spokes.addRect(-halfSpoke, extent.top() - reach, 2 * halfSpoke, extent.height() + 2 * reach);
        Clip::Add(obstacles, Clip::Subtracted(hole, Clip::FromPath(spokes, toPour)));
        thermals.append(Clip::BoundsOf(hole));
    }

    /** Whether a piece consists only of the spokes of a pad that the pour does not reach. */
    bool IsBareSpokes(const Clip::Piece& piece) const
    {
        const QRectF box = piece.Bounds();
        return std::any_of(thermals.cbegin(), thermals.cend(),
                           [&box](const QRectF& hole) { return hole.adjusted(-1, -1, 1, 1).contains(box); });
    }

    bool IsConnected(const Clip::Piece& piece) const
    {
        return std::any_of(anchors.cbegin(), anchors.cend(),
                           [&piece](const QPointF& anchor) { return piece.Contains(anchor); });
    }

    const TGraphicsPourItem& pour;
    const QString net;
    const double halfLine;
    Clip::Regions allowed;
    Clip::Regions board;
    Clip::Regions obstacles;
    QVector<QPointF> anchors; ///< Points on the copper of the pour's net.
    QVector<QRectF> thermals;
};

double DistanceTo(const QLineF& line, const QPointF& point)
{
    const QPointF along = line.p2() - line.p1();
    const double square = QPointF::dotProduct(along, along);
    const double share = square > 0 ? std::clamp(QPointF::dotProduct(point - line.p1(), along) / square, 0.0, 1.0) : 0;
    return QLineF(point, line.p1() + share * along).length();
}

/** A simplified polygon, without corners nearer than @p step to the last kept one, except for the ends. */
QPolygonF WithFewerCorners(const QPolygonF& polygon, double step)
{
    QPolygonF fewer;
    fewer.append(polygon.first());
    for (const QPointF& point : polygon) {
        if ((point - fewer.last()).manhattanLength() >= step) {
            fewer.append(point);
        }
    }
    fewer.append(polygon.last());
    return fewer;
}

/** The visible area of the painter's device, in item coordinates. */
QRectF ShownBy(const QPainter& painter)
{
    const QRectF device(0, 0, painter.device()->width(), painter.device()->height());
    return painter.deviceTransform().inverted().mapRect(device);
}

} // namespace

TPourFill::TPourFill(const TGraphicsPourItem& pour) : lineWidth(pour.LineWidth())
{
    if (pour.FillType() == Qt::NoBrush) {
        return;
    }
    solid = pour.FillType() == Qt::SolidPattern;
    const std::vector<Clip::Piece> pieces = PourFiller(pour).Pieces();
    for (const Clip::Piece& piece : pieces) {
        const QVector<QPolygonF> polygons = piece.Polygons();
        for (const QPolygonF& polygon : polygons) {
            curves.append({polygon, polygon.boundingRect()});
        }
    }
    if (!solid) {
        constexpr double thinnestGap = 0.5 * sceneUnitsPerMillimetre;
        const double pitch = lineWidth + std::max(2 * lineWidth, thinnestGap);
        const bool vertical = pour.FillType() == Qt::VerPattern || pour.FillType() == Qt::CrossPattern;
        const bool horizontal = pour.FillType() != Qt::VerPattern;
        for (const Clip::Piece& piece : pieces) {
            piece.AddHatch(hatchLines, pitch, horizontal, vertical);
        }
    }
}

QPainterPath TPourFill::Path() const
{
    QPainterPath path;
    for (const Curve& curve : curves) {
        path.addPolygon(curve.points);
    }
    return path;
}

bool TPourFill::HasCopperAt(const QPointF& point) const
{
    const double halfLine = lineWidth / 2;
    int around = 0;
    for (const Curve& curve : curves) {
        if (curve.bounds.adjusted(-halfLine, -halfLine, halfLine, halfLine).contains(point)) {
            for (int i = 1; i < curve.points.size(); ++i) {
                if (DistanceTo({curve.points[i - 1], curve.points[i]}, point) <= halfLine) {
                    return true;
                }
            }
            around += curve.points.containsPoint(point, Qt::OddEvenFill) ? 1 : 0;
        }
    }
    return (solid && around % 2 == 1) || std::any_of(hatchLines.cbegin(), hatchLines.cend(), [&](const QLineF& line) {
               return DistanceTo(line, point) <= halfLine;
           });
}

QVector<TPourFill::Curve> TPourFill::Coarsened() const
{
    constexpr double step = 3.0;
    QVector<Curve> coarse;
    for (const Curve& curve : curves) {
        coarse.append({WithFewerCorners(curve.points, step), curve.bounds});
    }
    return coarse;
}

void TPourFill::Draw(QPainter& painter, const QColor& color, double pixelsPerUnit) const
{
    constexpr double thinnestSeen = 3.0; // Pixels; thinner edges are not worth the time to draw them.
    constexpr double coarseScale = 0.5;
    const bool isCoarse = pixelsPerUnit < coarseScale;
    if (isCoarse && coarseCurves.isEmpty()) {
        coarseCurves = Coarsened();
    }
    const QRectF shown = ShownBy(painter).adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
    QPainterPath path;
    for (const Curve& curve : isCoarse ? coarseCurves : curves) {
        if (curve.bounds.intersects(shown)) {
            path.addPolygon(curve.points);
        }
    }
    const QPen line(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(lineWidth * pixelsPerUnit < thinnestSeen ? QPen(Qt::NoPen) : line);
    painter.setBrush(solid ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPath(path);
    if (!hatchLines.isEmpty()) {
        painter.setPen(line);
        painter.drawLines(hatchLines);
    }
}
