#include "properties/sets/TPropertySetForPad.h"

#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdVia.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"
#include "properties/sets/TDisplayUnit.h"

struct TPropertySetForPad::Values
{
    // Intended: these rows show the first pad's values even if the pads differ.
    double width;
    double height;
    double drill;
    double maskClearance;
    double pasteClearance;
    // These rows show a value only if all pads share it.
    TCommonValue<QString> number;
    TCommonValue<QString> name;
    TCommonValue<Osmirel::Layer> side;
    TCommonValue<bool> smd;
    TCommonValue<TGraphicsPadItem::TypePadShape> shape;
    TCommonValue<TGraphicsViaItem::TypeThermal> thermal;
    TCommonValue<bool> maskEnable;
    TCommonValue<bool> pasteEnable;

    explicit Values(const TGraphicsPadItem& first);
    void Add(const TGraphicsPadItem& pad);
};

TPropertySetForPad::Values::Values(const TGraphicsPadItem& first)
    : width(first.Width()),
      height(first.Height()),
      drill(Attributes::ViaDrill::Read(first)),
      maskClearance(Attributes::MaskClearance::Read(first)),
      pasteClearance(Attributes::PasteClearance::Read(first))
{}

void TPropertySetForPad::Values::Add(const TGraphicsPadItem& pad)
{
    number.Add(pad.Number());
    name.Add(pad.Name());
    side.Add(pad.StartLayer());
    smd.Add(Attributes::PadType::Read(pad));
    shape.Add(Attributes::PadShape::Read(pad));
    thermal.Add(Attributes::ViaThermal::Read(pad));
    maskEnable.Add(Attributes::MaskEnable::Read(pad));
    pasteEnable.Add(Attributes::PasteEnable::Read(pad));
}

TPropertySetForPad::TPropertySetForPad(const QList<TGraphicsItem*>& selection, const QList<Osmirel::Layer>& layers)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Pad") : tr("Pads")),
      items(Selection::Pick<Attributes::Pads>(selection))
{
    if (items.isEmpty()) {
        return;
    }
    Values values(static_cast<const TGraphicsPadItem&>(*items.first()));
    for (const TGraphicsItem* item : qAsConst(items)) {
        values.Add(static_cast<const TGraphicsPadItem&>(*item));
        hasPackagePad = hasPackagePad || item->parentItem();
    }
    MakeRows(values, layers);
}

void TPropertySetForPad::MakeRows(const Values& values, const QList<Osmirel::Layer>& layers)
{
    MakeTextRows(values);
    MakeCopperRows(values, layers);
    MakeOpeningRows(values);

    TAbstractProperty* const nameOfPackagePad = hasPackagePad ? name.data() : nullptr;
    AddProperties({number, nameOfPackagePad, size, type, drill, side, shape, thermal, mask, paste});
}

void TPropertySetForPad::MakeTextRows(const Values& values)
{
    number = NewRow<TPropertyText>(tr("Number:"), QString(), false);
    RowValues::Show(*number, values.number);
    number->line->SetEditable(!hasPackagePad);
    connect(number, SIGNAL(sigTextChanged(QString)), this, SLOT(SetNumber(QString)));

    name = NewRow<TPropertyText>(tr("Name:"), QString(), false);
    RowValues::Show(*name, values.name);
    name->line->SetEditable(false);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));
}

void TPropertySetForPad::MakeCopperRows(const Values& values, const QList<Osmirel::Layer>& layers)
{
    const TDisplayUnit unit(*items.first());

    drill = NewRow<TPropertyFloatSpin>(tr("Drill:"), 0.1, 10.0, 0.1, 1);
    RowValues::Show(*drill, unit.FromScene(values.drill), unit.Suffix());
    connect(drill, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetDrill(double)));

    side = NewRow<TPropertyLayer>(tr("Side:"), layers, items.first()->Workspace());
    RowValues::Show(*side, values.side);
    side->SetEnabled(!hasPackagePad);
    connect(side, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(SetSide(Osmirel::Layer)));

    type = NewRow<TPropertyEnum>(tr("Type:"));
    type->AddItem(tr("SMT"), 1);
    type->AddItem(tr("THT"), 0);
    RowValues::Show(*type, values.smd);
    type->SetEnabled(!hasPackagePad);
    if (values.smd.AllEqual()) {
        TypeChanged(values.smd.First() ? 1 : 0);
    } else {
        drill->SetVisible(false);
        side->SetVisible(false);
    }
    connect(type, SIGNAL(sigEnumChanged(int)), this, SLOT(SetType(int)));
    connect(type, SIGNAL(sigEnumChanged(int)), this, SLOT(TypeChanged(int)));

    size = NewRow<TPropertySize>(tr("Size (W x H):"), 0.1, 100.0, 0.1, 2);
    shape = NewRow<TPropertyEnum>(tr("Shape:"));
    shape->AddItem(tr("Round"), TGraphicsPadItem::ShapeRound);
    shape->AddItem(tr("Rectangle"), TGraphicsPadItem::ShapeRectangle);
    shape->AddItem(tr("Obround"), TGraphicsPadItem::ShapeObround);
    shape->AddItem(tr("Octagon"), TGraphicsPadItem::ShapeOctagon);
    RowValues::Show(*shape, values.shape);
    if (values.shape.AllEqual()) {
        ShapeChanged(values.shape.First());
    }
    connect(shape, SIGNAL(sigEnumChanged(int)), this, SLOT(SetShape(int)));
    connect(shape, SIGNAL(sigEnumChanged(int)), this, SLOT(ShapeChanged(int)));

    // After the shape, so that the row shows the first pad's own height even where the height follows the width.
    RowValues::Show(*size, unit.FromScene(values.width), unit.FromScene(values.height), unit.Suffix());
    connect(size, SIGNAL(sigWidthChanged(double)), this, SLOT(SetWidth(double)));
    connect(size, SIGNAL(sigHeightChanged(double)), this, SLOT(SetHeight(double)));

    thermal = NewRow<TPropertyEnum>(tr("Thermal:"));
    thermal->AddItem(tr("By pour"), TGraphicsViaItem::ThermalAuto);
    thermal->AddItem(tr("Yes"), TGraphicsViaItem::ThermalYes);
    thermal->AddItem(tr("No"), TGraphicsViaItem::ThermalNo);
    RowValues::Show(*thermal, values.thermal);
    connect(thermal, SIGNAL(sigEnumChanged(int)), this, SLOT(SetThermal(int)));
}

void TPropertySetForPad::MakeOpeningRows(const Values& values)
{
    const TDisplayUnit unit(*items.first());

    mask = NewRow<TPropertyFloatSpin>(tr("Mask:"), 0.0, 10.0, 0.1, 2);
    RowValues::ShowCheck(*mask, values.maskEnable);
    RowValues::Show(*mask, unit.FromScene(values.maskClearance), unit.Suffix());
    mask->SetEnabled(!hasPackagePad);
    connect(mask, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetMaskClearance(double)));
    connect(mask, SIGNAL(sigCheckChanged(bool)), this, SLOT(SetMaskEnable(bool)));

    paste = NewRow<TPropertyFloatSpin>(tr("Paste:"), 0.0, 10.0, 0.1, 2);
    RowValues::ShowCheck(*paste, values.pasteEnable);
    RowValues::Show(*paste, unit.FromScene(values.pasteClearance), unit.Suffix());
    paste->SetEnabled(!hasPackagePad);
    connect(paste, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetPasteClearance(double)));
    connect(paste, SIGNAL(sigCheckChanged(bool)), this, SLOT(SetPasteEnable(bool)));
}

void TPropertySetForPad::SetNumber(QString newNumber)
{
    Edit<TCmdPadNumber>(items, newNumber);
}

void TPropertySetForPad::SetName(QString) {}

void TPropertySetForPad::SetType(int smd)
{
    Edit<TCmdPadType>(items, smd != 0, [](TGraphicsItem& item) {
        // Intended: the direct write always makes surface pads, whichever type was chosen.
        static_cast<TGraphicsPadItem&>(item).SetTypeSMD(true);
    });
}

void TPropertySetForPad::SetDrill(double newDrill)
{
    // Intended: the direct write also sets surface pads, which the command skips.
    Edit<TCmdViaDrill>(items, newDrill);
}

void TPropertySetForPad::SetSide(Osmirel::Layer newSide)
{
    Edit<TCmdPadSide>(items, newSide);
}

void TPropertySetForPad::SetShape(int newShape)
{
    Edit<TCmdPadShape>(items, newShape);
}

void TPropertySetForPad::SetWidth(double width)
{
    Edit<TCmdPadWidth>(items, width);
}

void TPropertySetForPad::SetHeight(double height)
{
    Edit<TCmdPadHeight>(items, height);
}

void TPropertySetForPad::SetThermal(int newThermal)
{
    Edit<TCmdViaTherm>(items, newThermal);
}

void TPropertySetForPad::SetMaskEnable(bool on)
{
    Edit<TCmdMaskEn>(items, on);
}

void TPropertySetForPad::SetMaskClearance(double clearance)
{
    const auto own = static_cast<float>(Units::SceneFromMillimetres(clearance));
    Edit<TCmdMaskClearance>(items, clearance, [own](TGraphicsItem& item) {
        // Intended: the direct write goes through the pad's own setter, the command through the via's.
        static_cast<TGraphicsPadItem&>(item).SetMaskClearance(own);
    });
}

void TPropertySetForPad::SetPasteEnable(bool on)
{
    Edit<TCmdPasteEn>(items, on);
}

void TPropertySetForPad::SetPasteClearance(double clearance)
{
    Edit<TCmdPasteClearance>(items, clearance);
}

void TPropertySetForPad::TypeChanged(int smd)
{
    if (drill && side) {
        drill->SetVisible(smd == 0);
        side->SetVisible(smd == 1);
    }
}

void TPropertySetForPad::ShapeChanged(int newShape)
{
    if (size) {
        size->height->setEnabled(newShape == TGraphicsPadItem::ShapeRectangle);
        size->SetDoubleHeight(newShape == TGraphicsPadItem::ShapeObround);
    }
}
