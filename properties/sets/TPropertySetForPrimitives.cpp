#include "properties/sets/TPropertySetForPrimitives.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"
#include "properties/sets/TDisplayUnit.h"

#include <graphics/TGraphicsLineItem.h>

#include <cmath>

namespace {

/** All except polylines, which are milling paths. */
struct EditedPrimitives
{
    static bool Accepts(const TGraphicsItem& item)
    {
        return Attributes::AnyPrimitive::Accepts(item) && item.type() != ItemType::Polyline;
    }
};

} // namespace

struct TPropertySetForPrimitives::Values
{
    double lineWidth = 0; ///< The first item's.
    TCommonValue<Qt::PenStyle> lineStyle;
    TCommonValue<Osmirel::Layer> layer;
    TCommonValue<QColor> color;
    TCommonValue<Qt::BrushStyle> fillStyle; ///< Of the closed shapes only.
    bool hasFilled = false;

    void Add(const TGraphicsPenItem& item);
};

void TPropertySetForPrimitives::Values::Add(const TGraphicsPenItem& item)
{
    lineStyle.Add(Attributes::PenStyle::Read(item));
    layer.Add(item.Layer());
    color.Add(item.AltColor());
    if (Attributes::FilledPrimitive::Accepts(item)) {
        fillStyle.Add(Attributes::BrushStyle::Read(item));
        hasFilled = true;
    }
}

TPropertySetForPrimitives::TPropertySetForPrimitives(QList<TGraphicsItem*> selection, QList<Osmirel::Layer> layers)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Primitive") : tr("Primitives")),
      items(Selection::Pick<EditedPrimitives>(selection))
{
    if (items.isEmpty()) {
        return;
    }
    Values values;
    values.lineWidth = Attributes::PenWidth::Read(static_cast<const TGraphicsPenItem&>(*items.first()));
    for (const TGraphicsItem* item : qAsConst(items)) {
        values.Add(static_cast<const TGraphicsPenItem&>(*item));
    }
    MakeRows(values, layers);
}

void TPropertySetForPrimitives::MakeRows(const Values& values, const QList<Osmirel::Layer>& layers)
{
    const TDisplayUnit unit(*items.first());

    // Intended: the value is in the display unit, the suffix always millimetres.
    lineWidth = NewRow<TPropertyFloatSpin>(tr("Line width:"), 0.0, 9999.99, 0.1, 2);
    RowValues::Show(*lineWidth, unit.FromScene(values.lineWidth), tr(" mm"));
    connect(lineWidth, SIGNAL(sigValueChanged(qreal)), this, SLOT(slotSetLineWidth(double)));

    lineStyle = NewRow<TPropertyPenStyle>(tr("Line style:"));
    RowValues::Show(*lineStyle, values.lineStyle);
    connect(lineStyle, SIGNAL(sigPenStyleChanged(Qt::PenStyle)), this, SLOT(slotSetLineStyle(Qt::PenStyle)));

    fillStyle = NewRow<TPropertyEnum>(tr("Fill style:"));
    fillStyle->AddItem(tr("No fill"), Qt::NoBrush);
    fillStyle->AddItem(tr("Solid"), Qt::SolidPattern);
    fillStyle->AddItem(tr("Points"), Qt::Dense7Pattern);
    fillStyle->AddItem(tr("Horiz."), Qt::HorPattern);
    fillStyle->AddItem(tr("Vert."), Qt::VerPattern);
    fillStyle->AddItem(tr("Cross"), Qt::CrossPattern);
    fillStyle->AddItem(tr("Diag. Fwd"), Qt::FDiagPattern);
    fillStyle->AddItem(tr("Diag. Bck"), Qt::BDiagPattern);
    fillStyle->AddItem(tr("Diag. Cross"), Qt::DiagCrossPattern);
    RowValues::Show(*fillStyle, values.fillStyle);
    connect(fillStyle, SIGNAL(sigEnumChanged(int)), this, SLOT(slotSetFillStyle(int)));

    layer = NewRow<TPropertyLayer>(tr("Layer:"), layers, items.first()->Workspace());
    RowValues::Show(*layer, values.layer);
    connect(layer, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(slotSetLayer(Osmirel::Layer)));

    color = NewRow<TPropertyColor>(tr("Color:"), values.color.AllEqual() ? values.color.First() : QColor());
    color->SetMixed(!values.color.AllEqual());
    connect(color, SIGNAL(sigColorChanged(QColor)), this, SLOT(slotSetColor(QColor)));

    AddProperties({lineWidth, lineStyle});
    if (values.hasFilled) {
        AddProperty(fillStyle);
    }
    if (layers.size() > 1) {
        AddProperty(layer);
    }
    // Intended: an item that is still being drawn has its layer's colour.
    if (!items.first()->HasTFlag(TGraphicsItem::UndoBypass)) {
        AddProperty(color);
    }
    if (items.size() == 1) {
        MakeMeasureRow(*items.first());
    }
}

void TPropertySetForPrimitives::MakeMeasureRow(const TGraphicsItem& only)
{
    if (only.type() == ItemType::Rectangle || only.type() == ItemType::Ellipse) {
        const QSizeF measures = static_cast<const TGraphicsRectItem&>(only).Size();
        size = NewRow<TPropertySize>(tr("Size:"), 0.0, 9999.0, 1.0, 2);
        RowValues::Show(*size, Units::MillimetresFromScene(std::abs(measures.width())),
                        Units::MillimetresFromScene(std::abs(measures.height())), tr(" mm"));
        size->SetEnabled(false);
        AddProperty(size);
    } else if (only.type() == ItemType::Line) {
        const double measure = static_cast<const TGraphicsLineItem&>(only).Line().length();
        const QString text = RowValues::Millimetres(Units::MillimetresFromScene(measure));
        length = NewRow<TPropertyText>(tr("Length:"), text, false);
        length->SetEnabled(false);
        AddProperty(length);
    }
}

void TPropertySetForPrimitives::slotSetColor(const QColor& newColor)
{
    Edit<TCmdUserColor>(items, newColor);
}

void TPropertySetForPrimitives::slotSetFillStyle(int style)
{
    Edit<TCmdBrushStyle>(items, style, [converted = Attributes::BrushStyle::FromEditor(style)](TGraphicsItem& item) {
        if (converted && Attributes::FilledPrimitive::Accepts(item)) {
            Attributes::BrushStyle::Write(item, *converted);
        }
    });
}

void TPropertySetForPrimitives::slotSetLayer(Osmirel::Layer newLayer)
{
    Edit<TCmdLayerPrim>(items, newLayer);
}

void TPropertySetForPrimitives::slotSetLineStyle(Qt::PenStyle style)
{
    Edit<TCmdPenStyle>(items, style);
}

void TPropertySetForPrimitives::slotSetLineWidth(double width)
{
    Edit<TCmdPenWidth>(items, width);
}
