#include <graphics/TGraphicsTextItem.h>

#include <graphics/engine/TStateText.h>

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int defaultPixelSize = 12;
/** Glyphs are laid out at this size and scaled, so that hinting does not distort small ones. */
constexpr int layoutPixelSize = 100;
/** Below the first height in pixels a text is drawn as its box, below the second not at all. */
constexpr double smallestReadable = 5.0;
constexpr double smallestVisible = 1.5;
/** The stem width of a typical font, as a fraction of the pixel size. */
constexpr double stemOfGlyphs = 0.09;

double HorizontalShift(int alignment, double width)
{
    if ((alignment & Qt::AlignRight) != 0) {
        return -width;
    }
    return (alignment & Qt::AlignHCenter) != 0 ? -width / 2 : 0;
}

} // namespace

TGraphicsTextItem::TGraphicsTextItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    font.setPixelSize(defaultPixelSize);
}

void TGraphicsTextItem::SetMirrorH(bool on)
{
    SetTFlag(MirrorHorizontal, on);
    UpdatePath(false);
}

void TGraphicsTextItem::SetMirrorV(bool on)
{
    SetTFlag(MirrorVertical, on);
    UpdatePath(false);
}

void TGraphicsTextItem::UpdatePath(bool keepPlace)
{
    prepareGeometryChange();
    const QPointF centerBefore = keepPlace ? mapToParent(Path().boundingRect().center()) : QPointF();
    path = QPainterPath();
    if (keepPlace) {
        setPos(pos() + centerBefore - mapToParent(Path().boundingRect().center()));
    }
    update();
}

const QPainterPath& TGraphicsTextItem::Path() const
{
    if (path.isEmpty() && !text.isEmpty()) {
        path = LaidOut();
        const double margin = static_cast<double>(lineWidth) / 2 + 1;
        extent = path.boundingRect().adjusted(-margin, -margin, margin, margin);
    }
    return path;
}

QPainterPath TGraphicsTextItem::LaidOut() const
{
    QFont layoutFont = font;
    layoutFont.setPixelSize(layoutPixelSize);
    layoutFont.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(layoutFont);
    const QStringList lines = text.split(QLatin1Char('\n'));

    QPainterPath laidOut;
    double baseline = 0;
    for (const QString& line : lines) {
        laidOut.addText(HorizontalShift(alignment, metrics.horizontalAdvance(line)), baseline, layoutFont, line);
        baseline += metrics.lineSpacing();
    }
    const double top = -metrics.capHeight();
    const double bottom = baseline - metrics.lineSpacing();
    double anchor = (top + bottom) / 2;
    if ((alignment & Qt::AlignTop) != 0) {
        anchor = top;
    } else if ((alignment & Qt::AlignBottom) != 0) {
        anchor = bottom;
    }
    const double scale = static_cast<double>(font.pixelSize()) / layoutPixelSize;
    return QTransform::fromScale(IsMirroredH() ? -scale : scale, IsMirroredV() ? -scale : scale)
        .translate(0, -anchor)
        .map(laidOut);
}

void TGraphicsTextItem::Flip()
{
    TGraphicsItem::Flip();
    SetMirrorH(!IsMirroredH());
}

QRectF TGraphicsTextItem::boundingRect() const
{
    return Path().isEmpty() ? QRectF() : extent;
}

QPainterPath TGraphicsTextItem::Outline() const
{
    QPainterPath box;
    box.addRect(boundingRect());
    return box;
}

void TGraphicsTextItem::Draw(QPainter& painter, double pixelsPerUnit) const
{
    const double heightSeen = font.pixelSize() * pixelsPerUnit;
    if (heightSeen < smallestVisible) {
        return;
    }
    if (heightSeen < smallestReadable) {
        QColor faint = Color();
        faint.setAlpha(90);
        painter.fillRect(boundingRect(), faint);
        return;
    }
    // Strokes are drawn as the outlines of a font, widened until its stems have the line width.
    const double added = static_cast<double>(lineWidth) - stemOfGlyphs * font.pixelSize();
    painter.setPen(vector && added > 0 ? QPen(Color(), added, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                                       : QPen(Qt::NoPen));
    painter.setBrush(Color());
    painter.drawPath(Path());
}

void TGraphicsTextItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("text", text)
        .Add("family", font.family())
        .Add("pixels", font.pixelSize())
        .Add("weight", font.weight())
        .Add("style", static_cast<int>(font.style()))
        .Add("vector", vector)
        .Add("alignment", alignment)
        .Add("lineWidth", lineWidth);
}

std::unique_ptr<TGraphicsItem> TGraphicsTextItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsTextItem>();
}

void TGraphicsTextItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsTextItem&>(source);
    text = other.text;
    font = other.font;
    vector = other.vector;
    alignment = other.alignment;
    lineWidth = other.lineWidth;
    path = QPainterPath();
}
