#include "properties/sets/TPropertySetForText.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdText.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"
#include "properties/sets/TextRows.h"

#include <algorithm>
#include <iterator>

using TextsAndTags = Attributes::OfKind<ItemType::Text, ItemType::Tag>;

struct TPropertySetForText::Values
{
    bool outlines = false; ///< The first text's.
    double lineWidth = 0;  ///< Intended: the last text's.
    bool onlyAngleAndLine = false;
    TCommonValue<QString> family;
    TCommonValue<int> size;
    TCommonValue<bool> bold;
    TCommonValue<bool> italic;
    TCommonValue<Qt::AlignmentFlag> alignment;
    TCommonValue<int> angle;
    TCommonValue<bool> mirrorH;
    TCommonValue<bool> mirrorV;
    TCommonValue<Osmirel::Layer> layer;
    TCommonValue<QColor> color;

    void Add(const TGraphicsTextItem& text);
};

void TPropertySetForText::Values::Add(const TGraphicsTextItem& text)
{
    onlyAngleAndLine = onlyAngleAndLine || text.HasTFlag(TGraphicsItem::OnlyAngleAndLine);
    lineWidth = static_cast<double>(text.LineWidth());
    family.Add(Attributes::TextFontName::Read(text));
    size.Add(Attributes::TextFontSize::Read(text));
    bold.Add(Attributes::TextBold::Read(text));
    italic.Add(Attributes::TextItalic::Read(text));
    alignment.Add(Attributes::TextAlign::Read(text));
    angle.Add(Attributes::TextAngle::Read(text));
    mirrorH.Add(Attributes::TextMirrH::Read(text));
    mirrorV.Add(Attributes::TextMirrV::Read(text));
    layer.Add(Attributes::TextLayer::Read(text));
    color.Add(Attributes::UserColor::Read(text));
}

TPropertySetForText::TPropertySetForText(const QList<TGraphicsItem*>& selection, QList<Osmirel::Layer> layers)
    : TPropertySet(tr("Text")), texts(Selection::Pick<TextsAndTags, TGraphicsTextItem>(selection))
{
    if (texts.isEmpty()) {
        return;
    }
    Values values;
    values.outlines = Attributes::TextTrueType::Read(*texts.first());
    for (const TGraphicsTextItem* text : qAsConst(texts)) {
        values.Add(*text);
    }
    MakeFontRows(values);
    MakePlacementRows(values, layers);
    AddRows(values.onlyAngleAndLine, layers.size() > 1);
}

void TPropertySetForText::MakeFontRows(const Values& values)
{
    type = NewRow<TPropertyEnum>(tr("Type:"), QStringList{tr("Vector"), tr("True Type")});
    type->SetCurrentEnum(values.outlines ? 1 : 0);
    connect(type, SIGNAL(sigEnumChanged(int)), this, SLOT(SetTrueTrue(int)));

    fontName = NewRow<TPropertyEnum>(tr("Font name:"));
    TextRows::AddFontNames(*fontName);
    RowValues::Show(*fontName, values.family);
    connect(fontName, SIGNAL(sigTextChanged(QString)), this, SLOT(SetFontName(QString)));

    fontSize = NewRow<TPropertyEnum>(tr("Font size:"));
    TextRows::AddFontSizes(*fontSize);
    RowValues::ShowIfShared(*fontSize, values.size.AllEqual(),
                            [&] { fontSize->SetCurrentEnum(TextRows::OfferedFontSize(values.size.First())); });
    connect(fontSize, SIGNAL(sigEnumChanged(int)), this, SLOT(SetFontSize(int)));

    bold = NewRow<TPropertyCheck>(tr("Bold:"));
    RowValues::Show(*bold, values.bold);
    connect(bold, SIGNAL(sigStateChanged(bool)), this, SLOT(SetBold(bool)));

    italic = NewRow<TPropertyCheck>(tr("Italic:"));
    RowValues::Show(*italic, values.italic);
    connect(italic, SIGNAL(sigStateChanged(bool)), this, SLOT(SetItalic(bool)));

    color = NewRow<TPropertyColor>(tr("Color:"), values.color.AllEqual() ? values.color.First() : QColor());
    color->SetMixed(!values.color.AllEqual());
    connect(color, SIGNAL(sigColorChanged(QColor)), this, SLOT(SetColor(QColor)));

    lineWidth = NewRow<TPropertyFloatSpin>(tr("Line width:"), 0.0, 100.0, 1.0, 0);
    lineWidth->spin->setValue(values.lineWidth);
    connect(lineWidth, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetLine(double)));
}

void TPropertySetForText::MakePlacementRows(const Values& values, const QList<Osmirel::Layer>& layers)
{
    alignment = NewRow<TPropertyEnum>(tr("Alignment:"));
    TextRows::AddAlignments(*alignment, tr("Left"), tr("Center"), tr("Right"));
    RowValues::Show(*alignment, values.alignment);
    connect(alignment, SIGNAL(sigEnumChanged(int)), this, SLOT(SetAlign(int)));

    angle = NewRow<TPropertyEnum>(tr("Angle:"));
    constexpr QChar degreeSign(0x00b0);
    for (const int degrees : {0, 90, 180, 270}) {
        angle->AddItem(QString::number(degrees) + degreeSign, degrees);
    }
    RowValues::Show(*angle, values.angle);
    connect(angle, SIGNAL(sigEnumChanged(int)), this, SLOT(SetAngle(int)));

    mirror = NewRow<TPropertyCheck2>(tr("Mirror:"), tr("Hor."), tr("Ver."));
    RowValues::Show(*mirror, values.mirrorH, values.mirrorV);
    connect(mirror, SIGNAL(sigChecked1(bool)), this, SLOT(SetMirrorH(bool)));
    connect(mirror, SIGNAL(sigChecked2(bool)), this, SLOT(SetMirrorV(bool)));

    layer = NewRow<TPropertyLayer>(tr("Layer:"), layers, texts.first()->Workspace());
    RowValues::Show(*layer, values.layer);
    connect(layer, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(SetLayer(Osmirel::Layer)));
}

void TPropertySetForText::AddRows(bool onlyAngleAndLine, bool hasLayers)
{
    if (onlyAngleAndLine) {
        AddProperties({angle, lineWidth});
        return;
    }
    TAbstractProperty* const layerOfSeveral = hasLayers ? layer.data() : nullptr;
    AddProperties({type, fontName, fontSize, alignment, mirror, bold, italic, angle, layerOfSeveral, color, lineWidth});
}

void TPropertySetForText::SetColor(const QColor& newColor)
{
    QList<TGraphicsItem*> items;
    items.reserve(texts.size());
    std::copy(texts.cbegin(), texts.cend(), std::back_inserter(items));
    Edit<TCmdUserColor>(items, newColor);
}

void TPropertySetForText::SetFontSize(int points)
{
    Edit<TCmdTextFontSize>(texts, points);
}

void TPropertySetForText::SetLayer(Osmirel::Layer newLayer)
{
    Edit<TCmdTextLayer>(texts, newLayer);
}

void TPropertySetForText::SetBold(bool on)
{
    Edit<TCmdTextBold>(texts, on);
}

void TPropertySetForText::SetItalic(bool on)
{
    Edit<TCmdTextItalic>(texts, on);
}

void TPropertySetForText::SetAlign(int newAlignment)
{
    Edit<TCmdTextAlign>(texts, newAlignment);
}

void TPropertySetForText::SetAngle(int degrees)
{
    Edit<TCmdTextAngle>(texts, degrees);
}

void TPropertySetForText::SetTrueTrue(int outlines)
{
    Edit<TCmdTextTrueType>(texts, outlines != 0);
}

void TPropertySetForText::SetFontName(QString family)
{
    Edit<TCmdTextFontName>(texts, family);
}

void TPropertySetForText::SetMirrorV(bool on)
{
    Edit<TCmdTextMirrV>(texts, on);
}

void TPropertySetForText::SetMirrorH(bool on)
{
    Edit<TCmdTextMirrH>(texts, on);
}

void TPropertySetForText::SetLine(double width)
{
    WriteAll(texts, [width](TGraphicsTextItem& text) { TextRows::WriteLineWidth(text, width); });
}
