#include <objects/TGraphicsNetTieSchItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>

#include <QPainter>

namespace {

constexpr double halfLength = 15;
constexpr double halfHeight = 6;
constexpr double nameHeight = 8;

QPainterPath SymbolPath(int variant)
{
    QPainterPath path(QPointF(-halfLength, 0));
    path.lineTo(halfLength, 0);
    if (variant == 1) {
        path.addRect(-halfHeight, -halfHeight, 2 * halfHeight, 2 * halfHeight);
    } else if (variant == 2) {
        path.moveTo(-halfHeight, -halfHeight);
        path.lineTo(halfHeight, halfHeight);
        path.moveTo(-halfHeight, halfHeight);
        path.lineTo(halfHeight, -halfHeight);
    } else {
        path.addEllipse(QPointF(), halfHeight, halfHeight);
    }
    return path;
}

} // namespace

TGraphicsNetTieSchItem::TGraphicsNetTieSchItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    SetLayer(Osmirel::SchematicSymbols);
}

void TGraphicsNetTieSchItem::SetName(const QString& text)
{
    name = text;
    Refresh();
}

void TGraphicsNetTieSchItem::SetNameVisible(bool on)
{
    nameVisible = on;
    Refresh();
}

QRectF TGraphicsNetTieSchItem::boundingRect() const
{
    const double top = -halfHeight - 1.5 * nameHeight;
    return {-halfLength - 1, top, 2 * halfLength + 2, halfHeight + 1 - top};
}

QPainterPath TGraphicsNetTieSchItem::Outline() const
{
    QPainterPath box;
    box.addRect(-halfLength, -halfHeight, 2 * halfLength, 2 * halfHeight);
    return box;
}

void TGraphicsNetTieSchItem::Draw(QPainter& painter, double) const
{
    painter.setPen(QPen(Color(), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(SymbolPath(symbol));
    if (nameVisible) {
        const QRectF place(-halfLength, -halfHeight - 1.25 * nameHeight, 2 * halfLength, nameHeight);
        painter.fillPath(Shapes::LabelIn(place, name), Color());
    }
}

void TGraphicsNetTieSchItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("number", static_cast<int>(number))
        .Add("name", name)
        .Add("nameVisible", nameVisible)
        .Add("symbol", symbol);
}

std::unique_ptr<TGraphicsItem> TGraphicsNetTieSchItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsNetTieSchItem>();
}

void TGraphicsNetTieSchItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsNetTieSchItem&>(source);
    number = other.number;
    name = other.name;
    nameVisible = other.nameVisible;
    symbol = other.symbol;
}
