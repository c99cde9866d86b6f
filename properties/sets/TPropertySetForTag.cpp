#include "properties/sets/TPropertySetForTag.h"

#include "properties/commands/TCmdTag.h"
#include "properties/commands/TCmdText.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"
#include "properties/sets/TextRows.h"

#include <objects/TGraphicsTagItem.h>

TPropertySetForTag::TPropertySetForTag(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TPropertySet(tr("Tags")),
      tags(Selection::Pick<Attributes::OfKind<ItemType::Tag>, TGraphicsTagItem>(selection)),
      texts(Selection::Pick<Attributes::OfKind<ItemType::Tag>, TGraphicsTextItem>(selection)),
      project(ofProject)
{
    if (!tags.isEmpty()) {
        MakeRows(*tags.last());
    }
}

void TPropertySetForTag::MakeRows(const TGraphicsTagItem& shown)
{
    name = NewRow<TPropertyText>(tr("Name:"), shown.Name(), false);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));

    type = NewRow<TPropertyEnum>(tr("Font type:"), QStringList{tr("Vector"), tr("True Type")});
    type->SetCurrentEnum(Attributes::TextTrueType::Read(shown) ? 1 : 0);
    connect(type, SIGNAL(sigEnumChanged(int)), this, SLOT(SetTrueTrue(int)));

    fontName = NewRow<TPropertyEnum>(tr("Font name:"));
    TextRows::AddFontNames(*fontName);
    fontName->SetCurrentText(Attributes::TextFontName::Read(shown));
    connect(fontName, SIGNAL(sigTextChanged(QString)), this, SLOT(SetFontName(QString)));

    fontSize = NewRow<TPropertyEnum>(tr("Font size:"));
    TextRows::AddFontSizes(*fontSize);
    fontSize->SetCurrentEnum(TextRows::OfferedFontSize(Attributes::TextFontSize::Read(shown)));
    connect(fontSize, SIGNAL(sigEnumChanged(int)), this, SLOT(SetFontSize(int)));

    alignment = NewRow<TPropertyEnum>(tr("Alignment:"));
    TextRows::AddAlignments(*alignment, tr("Left"), tr("Center"), tr("Right"));
    alignment->SetCurrentEnum(Attributes::TextAlign::Read(shown));
    connect(alignment, SIGNAL(sigEnumChanged(int)), this, SLOT(SetAlign(int)));

    lineWidth = NewRow<TPropertyFloatSpin>(tr("Line width:"), 0.0, 100.0, 1.0, 0);
    lineWidth->spin->setValue(static_cast<double>(shown.LineWidth()));
    connect(lineWidth, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetLine(double)));

    AddProperties({name, type, fontName, fontSize, alignment, lineWidth});
}

void TPropertySetForTag::SetName(QString newName)
{
    // Intended: the direct write does not look up the value of the name.
    EditBy(
        tags, [&] { return new TCmdTagName(tags, newName, project); },
        [&newName](TGraphicsTagItem& tag) { tag.SetName(newName, true); });
}

void TPropertySetForTag::SetTrueTrue(int outlines)
{
    Edit<TCmdTextTrueType>(texts, outlines != 0);
}

void TPropertySetForTag::SetFontName(QString family)
{
    Edit<TCmdTextFontName>(texts, family);
}

void TPropertySetForTag::SetFontSize(int points)
{
    Edit<TCmdTextFontSize>(texts, points);
}

void TPropertySetForTag::SetAlign(int newAlignment)
{
    Edit<TCmdTextAlign>(texts, newAlignment);
}

void TPropertySetForTag::SetLine(double width)
{
    WriteAll(texts, [width](TGraphicsTextItem& text) { TextRows::WriteLineWidth(text, width); });
}
