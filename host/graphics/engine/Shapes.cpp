#include <graphics/engine/Shapes.h>

#include <QFont>
#include <QLineF>
#include <QRectF>
#include <QTransform>

#include <algorithm>
#include <cmath>

QPainterPath Shapes::Capsule(const QPointF& from, const QPointF& to, double width)
{
    const QLineF line(from, to);
    const auto circle = [width](const QPointF& center) {
        return QRectF(center.x() - width / 2, center.y() - width / 2, width, width);
    };
    QPainterPath path;
    if (line.isNull()) {
        path.addEllipse(circle(from));
        return path;
    }
    // The same orientation as the toolkit's ellipses, so that overlapping paths of both add up.
    path.arcMoveTo(circle(to), line.angle() + 90);
    path.arcTo(circle(to), line.angle() + 90, -180);
    path.arcTo(circle(from), line.angle() - 90, -180);
    path.closeSubpath();
    return path;
}

QPolygonF Shapes::Mirrored(const QPolygonF& polygon)
{
    QPolygonF mirrored = polygon;
    for (QPointF& point : mirrored) {
        point.setX(-point.x());
    }
    return mirrored;
}

void Shapes::ArcThrough(QPainterPath& path, const QPointF& middle, const QPointF& to)
{
    const QPointF from = path.currentPosition();
    const QPointF toMiddle = middle - from;
    const QPointF toEnd = to - from;
    const double turn = toMiddle.x() * toEnd.y() - toMiddle.y() * toEnd.x();
    constexpr double straight = 1e-9;
    if (std::abs(turn) < straight) {
        path.lineTo(middle);
        path.lineTo(to);
        return;
    }
    const double squareToMiddle = QPointF::dotProduct(toMiddle, toMiddle);
    const double squareToEnd = QPointF::dotProduct(toEnd, toEnd);
    const QPointF toCenter((toEnd.y() * squareToMiddle - toMiddle.y() * squareToEnd) / (2 * turn),
                           (toMiddle.x() * squareToEnd - toEnd.x() * squareToMiddle) / (2 * turn));
    const double radius = std::hypot(toCenter.x(), toCenter.y());
    const QPointF center = from + toCenter;
    const double startAngle = QLineF(center, from).angle();
    const double endAngle = QLineF(center, to).angle();
    // Angles are counter-clockwise on screen, while y grows downwards: a positive rotation is clockwise.
    double span = endAngle - startAngle;
    if (turn > 0 && span > 0) {
        span -= 360;
    } else if (turn < 0 && span < 0) {
        span += 360;
    }
    path.arcTo(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius), startAngle, span);
    path.lineTo(to);
}

QPainterPath Shapes::Label(const QString& text)
{
    constexpr int layoutSize = 100;
    QFont font;
    font.setPixelSize(layoutSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF extent = path.boundingRect();
    return QTransform::fromScale(1.0 / layoutSize, 1.0 / layoutSize)
        .translate(-extent.center().x(), -extent.center().y())
        .map(path);
}

QPainterPath Shapes::LabelIn(const QRectF& place, const QString& text)
{
    const QPainterPath label = Label(text);
    constexpr double share = 0.8;
    const double narrowing = std::max(label.boundingRect().width(), 0.1);
    const double scale = share * std::min(place.height(), place.width() / narrowing);
    return QTransform::fromTranslate(place.center().x(), place.center().y()).scale(scale, scale).map(label);
}

QPainterPath Shapes::LabelFrom(const QPointF& start, double height, const QString& text, bool turned)
{
    const QPainterPath label = Label(text);
    QTransform place;
    place.translate(start.x() + height * label.boundingRect().width() / 2, start.y()).scale(height, height);
    if (turned) {
        place.rotate(180);
    }
    return place.map(label);
}

bool Shapes::IsOnItsHead(double rotation)
{
    const double turned = std::fmod(std::fmod(rotation, 360) + 360, 360);
    return turned >= 90 && turned < 270;
}
