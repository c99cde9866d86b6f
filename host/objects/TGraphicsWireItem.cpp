#include <objects/TGraphicsWireItem.h>

#include <graphics/engine/TStateText.h>

#include <QPainter>

void TGraphicsWireItem::Draw(QPainter& painter, double pixelsPerUnit) const
{
    constexpr double thinnestRound = 2.5; // Pixels; below that, caps are invisible and a plain line is faster.
    QPen line = DrawingPen();
    line.setCapStyle(PenWidth() * static_cast<float>(pixelsPerUnit) < thinnestRound ? Qt::SquareCap : Qt::RoundCap);
    painter.setCompositionMode(static_cast<QPainter::CompositionMode>(compositionMode));
    painter.setPen(line);
    if (Point1() == Point2()) {
        painter.drawPoint(Point1());
    } else {
        painter.drawLine(Point1(), Point2());
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void TGraphicsWireItem::Describe(TStateText& state) const
{
    TGraphicsSectionItem::Describe(state);
    state.Add("composition", compositionMode);
}

std::unique_ptr<TGraphicsItem> TGraphicsWireItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsWireItem>();
}

void TGraphicsWireItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsSectionItem::CopyFrom(source);
    compositionMode = static_cast<const TGraphicsWireItem&>(source).compositionMode;
}
