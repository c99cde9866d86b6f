#include <objects/TGraphicsPadItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/** A rectangle with four chamfered corners; if it is a square, all eight sides are equal. */
QPainterPath Octagon(const QRectF& box)
{
    constexpr double cutOfRegularOctagon = 0.29289321881345254; // 1 - sqrt(1/2), as a fraction of the side
    const double cut = cutOfRegularOctagon * std::min(box.width(), box.height());
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{box.left() + cut, box.top()},
                                     {box.right() - cut, box.top()},
                                     {box.right(), box.top() + cut},
                                     {box.right(), box.bottom() - cut},
                                     {box.right() - cut, box.bottom()},
                                     {box.left() + cut, box.bottom()},
                                     {box.left(), box.bottom() - cut},
                                     {box.left(), box.top() + cut}});
    path.closeSubpath();
    return path;
}

/** A rectangle whose opposite sides differ in length by @p taper. */
QPainterPath Trapezoid(const QRectF& box, const QSizeF& taper)
{
    const double dx = taper.height() / 2;
    const double dy = taper.width() / 2;
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{box.left() - dx / 2, box.top() - dy / 2},
                                     {box.right() + dx / 2, box.top() + dy / 2},
                                     {box.right() - dx / 2, box.bottom() - dy / 2},
                                     {box.left() + dx / 2, box.bottom() + dy / 2}});
    path.closeSubpath();
    return path;
}

Osmirel::Layer ThroughFrom(Osmirel::Layer start)
{
    return start == Osmirel::CopperBottom ? Osmirel::CopperTop : Osmirel::CopperBottom;
}

QPainterPath Rounded(const QRectF& box, double radius)
{
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

} // namespace

TGraphicsPadItem::TGraphicsPadItem(QGraphicsItem* parent) : TGraphicsViaItem(parent)
{
    LinkNode().SetRole(TLinkNode::Role::Names);
}

template <class Value>
void TGraphicsPadItem::StoreGeometry(Value& field, const Value& value)
{
    prepareGeometryChange();
    field = value;
    MarkNet();
    Refresh();
}

void TGraphicsPadItem::UpdateTextPaths()
{
    numberPath = QPainterPath();
    update();
}

void TGraphicsPadItem::SetWidth(double width)
{
    SetSize(width, Height());
}

void TGraphicsPadItem::SetHeight(double height)
{
    SetSize(Width(), height);
}

void TGraphicsPadItem::SetPadShape(TypePadShape shape)
{
    StoreGeometry(padShape, shape);
}

void TGraphicsPadItem::SetTypeSMD(bool smd)
{
    const Osmirel::Layer start = StartLayer();
    if (!IsSMD()) {
        farLayers.insert(start, EndLayer());
    }
    SetLayers(start, smd ? start : farLayers.value(start, ThroughFrom(start)));
}

void TGraphicsPadItem::SetPadSide(Osmirel::Layer side)
{
    if (IsSMD()) {
        SetLayers(side, side);
    }
}

void TGraphicsPadItem::SetMaskClearance(float clearance)
{
    const auto closed = static_cast<float>(-std::min(Width(), Height()) / 2);
    TGraphicsViaItem::SetMaskClearance(std::max(clearance, closed));
}

void TGraphicsPadItem::SetPasteClearance(float clearance)
{
    StoreGeometry(pasteClearance, clearance);
}

void TGraphicsPadItem::SetCornerRatio(double ratio)
{
    StoreGeometry(cornerRatio, ratio);
}

void TGraphicsPadItem::SetTaper(const QSizeF& difference)
{
    StoreGeometry(taper, difference);
}

void TGraphicsPadItem::SetCopperOffset(const QPointF& offset)
{
    StoreGeometry(copperOffset, offset);
}

void TGraphicsPadItem::SetDrillStretch(const QSizeF& stretch)
{
    StoreGeometry(drillStretch, stretch);
}

void TGraphicsPadItem::SetExtraCopper(const QPainterPath& path)
{
    StoreGeometry(extraCopper, path);
}

void TGraphicsPadItem::Flip()
{
    prepareGeometryChange();
    setPos(-pos().x(), pos().y());
    setRotation(-rotation());
    taper.setWidth(-taper.width());
    copperOffset.setX(-copperOffset.x());
    extraCopper = QTransform::fromScale(-1, 1).map(extraCopper);
    SetLayers(Osmirel::OppositeLayer(StartLayer()), Osmirel::OppositeLayer(EndLayer()));
    QHash<Osmirel::Layer, Osmirel::Layer> turned;
    for (auto far = farLayers.cbegin(); far != farLayers.cend(); ++far) {
        turned.insert(Osmirel::OppositeLayer(far.key()), Osmirel::OppositeLayer(*far));
    }
    farLayers = turned;
}

QRectF TGraphicsPadItem::boundingRect() const
{
    const double slant = (std::abs(taper.width()) + std::abs(taper.height())) / 2;
    const double margin =
        std::max({0.0, static_cast<double>(MaskClearance()), static_cast<double>(pasteClearance)}) + slant;
    const QRectF copper = OffsetCopperRect() | extraCopper.boundingRect();
    return copper.adjusted(-margin, -margin, margin, margin) | HoleRect(std::numeric_limits<double>::max());
}

QRectF TGraphicsPadItem::OffsetCopperRect() const
{
    QRectF box = CopperRect();
    if (padShape == ShapeSquare) {
        box.setHeight(box.width());
        box.moveCenter(QPointF());
    }
    return box.translated(copperOffset);
}

QRectF TGraphicsPadItem::HoleRect(double diameter) const
{
    const double shown = std::min({diameter, Width(), Height()});
    const double width = shown + drillStretch.width();
    const double height = shown + drillStretch.height();
    return {-width / 2, -height / 2, width, height};
}

QPainterPath TGraphicsPadItem::Outline() const
{
    const QPainterPath path = CopperGrownBy(0);
    return extraCopper.isEmpty() ? path : path.united(extraCopper);
}

QPainterPath TGraphicsPadItem::CopperGrownBy(double margin) const
{
    QRectF box = OffsetCopperRect();
    box.adjust(-margin, -margin, margin, margin);
    const double shorterSide = std::min(box.width(), box.height());
    switch (padShape) {
    case ShapeRound: {
        QPainterPath path;
        path.addEllipse(box);
        return path;
    }
    case ShapeObround: return Rounded(box, shorterSide / 2);
    case ShapeOctagon:
    case ShapeLongOctagon: return Octagon(box);
    case ShapeSquare:
    case ShapeRectangle: break;
    }
    return taper.isNull() ? Rounded(box, cornerRatio * shorterSide) : Trapezoid(box, taper);
}

void TGraphicsPadItem::Draw(QPainter& painter, double pixelsPerUnit) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(MainColor());
    painter.drawPath(Outline());
    DrawHole(painter);
    if (MaskEnabled()) {
        DrawOpening(painter, Osmirel::MaskTop, Osmirel::MaskBottom,
                    CopperGrownBy(static_cast<double>(MaskClearance())));
    }
    if (pasteEnabled) {
        DrawOpening(painter, Osmirel::PasteTop, Osmirel::PasteBottom,
                    CopperGrownBy(static_cast<double>(pasteClearance)));
    }
    DrawNumber(painter, pixelsPerUnit);
}

void TGraphicsPadItem::DrawHole(QPainter& painter) const
{
    const auto diameter = static_cast<double>(Drill());
    if (IsSMD() || diameter <= 0) {
        return;
    }
    const QRectF hole = HoleRect(diameter);
    const double radius = std::min(hole.width(), hole.height()) / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(DrawingStyle::hole);
    painter.drawRoundedRect(hole, radius, radius);
}

void TGraphicsPadItem::DrawNumber(QPainter& painter, double pixelsPerUnit) const
{
    const QRectF box = OffsetCopperRect();
    const double textHeight = 0.6 * std::min(box.width(), box.height());
    if (number.isEmpty() || textHeight * pixelsPerUnit < DrawingStyle::smallestReadableText) {
        return;
    }
    if (numberPath.isEmpty()) {
        numberPath = Shapes::Label(number);
    }
    // The number reads upright at every rotation of the package, and is never mirrored.
    const double turned = std::fmod(parentItem() ? parentItem()->rotation() + rotation() : rotation(), 360.0);
    const double radians = qDegreesToRadians(turned);
    const double room = std::min(box.width() / std::max(std::abs(std::cos(radians)), 1e-6),
                                 box.height() / std::max(std::abs(std::sin(radians)), 1e-6));
    const double fitting = std::min(textHeight, 0.8 * room / std::max(numberPath.boundingRect().width(), 0.1));
    painter.save();
    painter.translate(box.center());
    painter.rotate(-turned);
    painter.scale(fitting, fitting);
    painter.setPen(Qt::NoPen);
    painter.setBrush(DrawingStyle::textOnCopper);
    painter.drawPath(numberPath);
    painter.restore();
}

void TGraphicsPadItem::Describe(TStateText& state) const
{
    TGraphicsViaItem::Describe(state);
    state.Add("number", number)
        .Add("name", name)
        .Add("shape", static_cast<int>(padShape))
        .Add("paste", pasteEnabled)
        .Add("pasteClearance", pasteClearance)
        .Add("cornerRatio", cornerRatio)
        .Add("taper", taper)
        .Add("copperOffset", copperOffset)
        .Add("drillStretch", drillStretch)
        .Add("extraCopper", extraCopper);
}

std::unique_ptr<TGraphicsItem> TGraphicsPadItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPadItem>();
}

void TGraphicsPadItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsViaItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPadItem&>(source);
    number = other.number;
    name = other.name;
    padShape = other.padShape;
    pasteEnabled = other.pasteEnabled;
    pasteClearance = other.pasteClearance;
    cornerRatio = other.cornerRatio;
    taper = other.taper;
    copperOffset = other.copperOffset;
    drillStretch = other.drillStretch;
    extraCopper = other.extraCopper;
    farLayers = other.farLayers;
}
