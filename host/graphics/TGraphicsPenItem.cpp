#include <graphics/TGraphicsPenItem.h>

#include <graphics/TStateText.h>

void TGraphicsPenItem::SetPenWidth(float width)
{
    prepareGeometryChange();
    penWidth = width;
    Refresh();
}

QPen TGraphicsPenItem::DrawingPen() const
{
    QPen drawing = pen;
    drawing.setWidthF(static_cast<double>(penWidth));
    drawing.setColor(Color());
    return drawing;
}

void TGraphicsPenItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("penWidth", penWidth).Add("penStyle", static_cast<int>(pen.style()));
}
