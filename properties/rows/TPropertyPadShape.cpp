#include "properties/rows/TPropertyPadShape.h"

TPropertyPadShape::TPropertyPadShape(const QString& label) : TPropertyChoice(label)
{
    ReportRowChanges();
    Append(tr("Round"), TGraphicsPadItem::ShapeRound);
    Append(tr("Square"), TGraphicsPadItem::ShapeSquare);
    Append(tr("Octangle"), TGraphicsPadItem::ShapeOctagon);
    Append(tr("Obround"), TGraphicsPadItem::ShapeObround);
    Append(tr("Rectangle"), TGraphicsPadItem::ShapeRectangle);
    Append(tr("Octangle(long)"), TGraphicsPadItem::ShapeLongOctagon);
}

TGraphicsPadItem::TypePadShape TPropertyPadShape::CurrentPadShape() const
{
    return static_cast<TGraphicsPadItem::TypePadShape>(CurrentData().toInt());
}

void TPropertyPadShape::SetCurrentPadShape(TGraphicsPadItem::TypePadShape shape)
{
    SetCurrentData(static_cast<int>(shape));
}

void TPropertyPadShape::slotRowChanged(int row)
{
    ReportItem(row, [this, row] {
        emit sigPadShapeChanged(static_cast<TGraphicsPadItem::TypePadShape>(DataAt(row).toInt()));
    });
}
