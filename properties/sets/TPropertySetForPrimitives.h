#pragma once

#include "properties/TPropertySet.h"

class TPropertyColor;
class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyLayer;
class TPropertyPenStyle;
class TPropertySize;
class TPropertyText;

/**
 * Edits primitives. The stroke width is the first item's; a row for any other value shows it if all items share it.
 * Primitives of packages and symbols are shown too, but changed by direct writes only.
 */
class PROPERTIES_EXPORT TPropertySetForPrimitives : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the primitives of @p selection except polylines; @p layers are those that the "Layer:" row offers. */
    TPropertySetForPrimitives(QList<TGraphicsItem*> selection, QList<Osmirel::Layer> layers);

public Q_SLOTS:
    void slotSetColor(const QColor& newColor);
    /** A `Qt::BrushStyle`. */
    void slotSetFillStyle(int style);
    void slotSetLayer(Osmirel::Layer newLayer);
    void slotSetLineStyle(Qt::PenStyle style);
    /** In millimetres. */
    void slotSetLineWidth(double width);

private:
    struct Values;
    void MakeRows(const Values& values, const QList<Osmirel::Layer>& layers);
    void MakeMeasureRow(const TGraphicsItem& only);

    QList<TGraphicsItem*> items;
    QPointer<TPropertyFloatSpin> lineWidth;
    QPointer<TPropertyPenStyle> lineStyle;
    QPointer<TPropertyEnum> fillStyle;
    QPointer<TPropertyLayer> layer;
    QPointer<TPropertyColor> color;
    QPointer<TPropertySize> size;
    QPointer<TPropertyText> length;
};
