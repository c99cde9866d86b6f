#include "tests/panel/UserEdits.h"

#include "tests/support/Observers.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"

#include <workspace/TDoubleSpinBox.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>

namespace Test {

namespace {

template <class Row>
Row* As(TAbstractProperty* row)
{
    return qobject_cast<Row*>(row);
}

void StepSpin(PanelWindow&, TAbstractProperty* row)
{
    As<TPropertyFloatSpin>(row)->spin->setFocus();
    QTest::keyClick(As<TPropertyFloatSpin>(row)->spin, Qt::Key_Up);
}

void ClickSpinArrow(PanelWindow&, TAbstractProperty* row)
{
    auto* box = As<TPropertyFloatSpin>(row)->spin;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 6, 4));
}

void TypeIntoSpin(PanelWindow&, TAbstractProperty* row)
{
    auto* box = As<TPropertyFloatSpin>(row)->spin;
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_4);
}

void ClickCheck(PanelWindow&, TAbstractProperty* row)
{
    QCheckBox* box = As<TPropertyFloatSpin>(row)->check;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

void ToggleCheckByKey(PanelWindow&, TAbstractProperty* row)
{
    As<TPropertyFloatSpin>(row)->check->setFocus();
    QTest::keyClick(As<TPropertyFloatSpin>(row)->check, Qt::Key_Space);
}

QComboBox* BoxOf(TAbstractProperty* row)
{
    return qobject_cast<QComboBox*>(row->Editor());
}

void ChooseFirst(PanelWindow&, TAbstractProperty* row)
{
    BoxOf(row)->setFocus();
    QTest::keyClick(BoxOf(row), Qt::Key_Home);
}

void TypeAndReturn(PanelWindow&, TAbstractProperty* row)
{
    TypeHalfText(row, "77");
    QTest::keyClick(As<TPropertyText>(row)->line->edit, Qt::Key_Return);
}

void TypeAndReturnToTheLine(PanelWindow&, TAbstractProperty* row)
{
    TypeHalfText(row, "77");
    QTest::keyClick(As<TPropertyText>(row)->line, Qt::Key_Return);
}

void TypeAndLeave(PanelWindow& place, TAbstractProperty* row)
{
    TypeHalfText(row, "77");
    place.elsewhere->setFocus();
}

void TypeAndPress(PanelWindow&, TAbstractProperty* row)
{
    const DebugLines silence;
    TypeHalfText(row, "77");
    QTest::mousePress(As<TPropertyText>(row)->line, Qt::LeftButton);
}

void StepWidth(PanelWindow&, TAbstractProperty* row)
{
    As<TPropertySize>(row)->width->setFocus();
    QTest::keyClick(As<TPropertySize>(row)->width, Qt::Key_Up);
}

void StepDoubledWidth(PanelWindow& place, TAbstractProperty* row)
{
    QVERIFY(!As<TPropertySize>(row)->height->isEnabled());
    StepWidth(place, row);
}

void StepWholeNumber(PanelWindow&, TAbstractProperty* row)
{
    QTest::keyClick(row->Editor(), Qt::Key_Up);
}

void ClickBox(PanelWindow&, TAbstractProperty* row)
{
    QCheckBox* box = row->Editor()->findChildren<QCheckBox*>().value(0);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

void ClickShowBox(PanelWindow&, TAbstractProperty* row)
{
    QCheckBox* box = As<TPropertyText>(row)->visible;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

} // namespace

void NextItem(PanelWindow&, TAbstractProperty* row)
{
    BoxOf(row)->setFocus();
    QTest::keyClick(BoxOf(row), Qt::Key_Down);
}

void ChooseFromOpenList(PanelWindow&, TAbstractProperty* row)
{
    BoxOf(row)->setFocus();
    BoxOf(row)->showPopup();
    QTest::keyClick(BoxOf(row)->view(), Qt::Key_End);
    QTest::keyClick(BoxOf(row)->view(), Qt::Key_Return);
}

const std::vector<UserEdit>& UserEdits()
{
    static const std::vector<UserEdit> edits{
        {"number, key", MakeViaSet, "Diameter:", "sigValueChanged(double)", StepSpin},
        {"number, arrow", MakeViaSet, "Drill:", "sigValueChanged(double)", ClickSpinArrow},
        {"number, typed", MakeViaSet, "Mask:", "sigValueChanged(double)", TypeIntoSpin},
        {"enable box, mouse", MakeViaSet, "Mask:", "sigCheckChanged(bool)", ClickCheck},
        {"choice by value", MakeViaSet, "Thermal:", "sigEnumChanged(int)", NextItem},
        {"choice by text", MakeViaSet, "Drill pair:", "sigTextChanged(QString)", NextItem},
        {"choice from the open list", MakeViaSet, "Thermal:", "sigEnumChanged(int)", ChooseFromOpenList},
        {"text, Return", MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndReturn},
        {"text, Return given to the line", MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndReturnToTheLine},
        {"text, focus lost", MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndLeave},
        {"text, mouse press", MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndPress},
        {"width with a doubled, locked height", MakePadSet, "Size (W x H):", "sigWidthChanged(double)",
         StepDoubledWidth},
        {"following height", MakePadSet, "Size (W x H):", "sigHeightChanged(double)", StepDoubledWidth, 2},
        {"type, which shows and hides rows", MakePadSet, "Type:", "sigEnumChanged(int)", NextItem},
        {"type from the open list", MakePadSet, "Type:", "sigEnumChanged(int)", ChooseFromOpenList},
        {"shape, which makes the height follow", MakePadSet, "Shape:", "sigEnumChanged(int)", ChooseFromOpenList, 3},
        {"layer", MakePadSet, "Side:", "sigLayerChanged(Osmirel::Layer)", NextItem},
        {"mask of a pad, key", MakePadSet, "Mask:", "sigCheckChanged(bool)", ToggleCheckByKey},
        {"paste of a pad, mouse", MakePadSet, "Paste:", "sigCheckChanged(bool)", ClickCheck},
        {"hole", MakeHoleSet, "Diameter:", "sigValueChanged(double)", StepSpin},
        {"net of a pour", MakePourSet, "Net:", "sigTextChanged(QString)", TypeAndReturn},
        {"priority of a pour", MakePourSet, "Priority:", "sigValueChanged(int)", StepWholeNumber},
        {"filling of a pour, with two slots", MakePourSet, "Fill type:", "sigEnumChanged(int)", ChooseFromOpenList},
        {"thermal of a pour", MakePourSet, "Thermal enable:", "sigStateChanged(bool)", ClickBox},
        {"width of a wire", MakeWireSet, "Width:", "sigValueChanged(double)", StepSpin},
        {"layer of a wire", MakeWireSet, "Layer:", "sigLayerChanged(Osmirel::Layer)", NextItem},
        {"side of a package", MakePackageSet, "Side:", "sigLayerChanged(Osmirel::Layer)", NextItem},
        {"name of a net tie", MakeNetTieSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
        {"show box of a net tie", MakeNetTieSet, "Name:", "sigVisibleChanged(bool)", ClickShowBox},
        {"pad size of a net tie", MakeNetTieSet, "Pad size:", "sigValueChanged(double)", StepSpin},
        {"font of a text", MakeTextSet, "Font name:", "sigTextChanged(QString)", ChooseFromOpenList},
        {"bold of a text", MakeTextSet, "Bold:", "sigStateChanged(bool)", ClickBox},
        {"mirror of a text", MakeTextSet, "Mirror:", "sigChecked1(bool)", ClickBox},
        {"colour of a text", MakeTextSet, "Color:", "sigColorChanged(QColor)", NextItem},
        {"line style of a drawing", MakeDrawingSet, "Line style:", "sigPenStyleChanged(Qt::PenStyle)", NextItem},
        {"filling of a drawing", MakeDrawingSet, "Fill style:", "sigEnumChanged(int)", ChooseFromOpenList},
        {"width of a milling path", MakeMillingSet, "Line width:", "sigValueChanged(double)", StepSpin},
        {"layer of a keepout", MakeKeepoutSet, "Inner 2", "sigStateChanged(bool)", ClickBox},
        {"class of a net", MakeNetSet, "Net class:", "sigTextChanged(QString)", ChooseFirst},
        {"level of a net", MakeNetSet, "Level:", "sigTextChanged(QString)", ChooseFromOpenList},
        {"colour of a net", MakeNetSet, "Color:", "sigColorChanged(QColor)", NextItem},
        {"name of a bus", MakeBusSet, "Name", "sigTextChanged(QString)", TypeAndReturn, 0},
        {"name of a pin", MakePinSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
        {"show box of a pin's number", MakePinSet, "Number:", "sigVisibleChanged(bool)", ClickShowBox},
        {"type of a pin", MakePinSet, "Type:", "sigEnumChanged(int)", NextItem},
        {"name of a port", MakePortSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
        {"show box of a port", MakePortSet, "Name:", "sigVisibleChanged(bool)", ClickShowBox},
        {"lock of a part", MakePartSet, "Lock:", "sigChecked1(bool)", ClickBox, 0},
        {"name of a tag", MakeTagSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
        {"font of a tag", MakeTagSet, "Font name:", "sigTextChanged(QString)", ChooseFromOpenList},
        {"size of a tag", MakeTagSet, "Font size:", "sigEnumChanged(int)", NextItem},
        {"line width of a tag", MakeTagSet, "Line width:", "sigValueChanged(double)", StepSpin, 0},
        {"symbol of a net tie", MakeNetTieSymbolSet, "Symbol:", "sigEnumChanged(int)", NextItem},
    };
    return edits;
}

} // namespace Test
