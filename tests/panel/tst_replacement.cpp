#include "tests/panel/KindsBoard.h"
#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestMain.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyAngleEnum.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyPadShape.h"
#include "properties/rows/TPropertyPenStyle.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"

#include <workspace/TDoubleSpinBox.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QUndoStack>

namespace {

/** A user's edit of one row of one set. */
struct UserEdit
{
    const char* name;
    Test::MakeKindsSet makeSet;
    const char* label;
    const char* signature; ///< of the row's signal that reports the edit first
    void (*edit)(Test::PanelWindow& place, TAbstractProperty* row);
    int commandsOfSignal = 1; ///< What the set makes of the signal before others hear of it; 0 for a write at once.
};

template <class Row>
Row* As(TAbstractProperty* row)
{
    return qobject_cast<Row*>(row);
}

void StepSpin(Test::PanelWindow&, TAbstractProperty* row)
{
    As<TPropertyFloatSpin>(row)->spin->setFocus();
    QTest::keyClick(As<TPropertyFloatSpin>(row)->spin, Qt::Key_Up);
}

void ClickSpinArrow(Test::PanelWindow&, TAbstractProperty* row)
{
    auto* box = As<TPropertyFloatSpin>(row)->spin;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 6, 4));
}

void TypeIntoSpin(Test::PanelWindow&, TAbstractProperty* row)
{
    auto* box = As<TPropertyFloatSpin>(row)->spin;
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_4);
}

void ClickCheck(Test::PanelWindow&, TAbstractProperty* row)
{
    QCheckBox* box = As<TPropertyFloatSpin>(row)->check;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

void ToggleCheckByKey(Test::PanelWindow&, TAbstractProperty* row)
{
    As<TPropertyFloatSpin>(row)->check->setFocus();
    QTest::keyClick(As<TPropertyFloatSpin>(row)->check, Qt::Key_Space);
}

QComboBox* BoxOf(TAbstractProperty* row)
{
    return qobject_cast<QComboBox*>(row->Editor());
}

void NextItem(Test::PanelWindow&, TAbstractProperty* row)
{
    BoxOf(row)->setFocus();
    QTest::keyClick(BoxOf(row), Qt::Key_Down);
}

void ChooseFirst(Test::PanelWindow&, TAbstractProperty* row)
{
    BoxOf(row)->setFocus();
    QTest::keyClick(BoxOf(row), Qt::Key_Home);
}

void ChooseFromOpenList(Test::PanelWindow&, TAbstractProperty* row)
{
    BoxOf(row)->setFocus();
    BoxOf(row)->showPopup();
    QTest::keyClick(BoxOf(row)->view(), Qt::Key_End);
    QTest::keyClick(BoxOf(row)->view(), Qt::Key_Return);
}

void TypeAndReturn(Test::PanelWindow&, TAbstractProperty* row)
{
    Test::TypeHalfText(row, "77");
    QTest::keyClick(As<TPropertyText>(row)->line->edit, Qt::Key_Return);
}

void TypeAndReturnToTheLine(Test::PanelWindow&, TAbstractProperty* row)
{
    Test::TypeHalfText(row, "77");
    QTest::keyClick(As<TPropertyText>(row)->line, Qt::Key_Return);
}

void TypeAndLeave(Test::PanelWindow& place, TAbstractProperty* row)
{
    Test::TypeHalfText(row, "77");
    place.elsewhere->setFocus();
}

void TypeAndPress(Test::PanelWindow&, TAbstractProperty* row)
{
    const Test::DebugLines silence;
    Test::TypeHalfText(row, "77");
    QTest::mousePress(As<TPropertyText>(row)->line, Qt::LeftButton);
}

void StepWidth(Test::PanelWindow&, TAbstractProperty* row)
{
    As<TPropertySize>(row)->width->setFocus();
    QTest::keyClick(As<TPropertySize>(row)->width, Qt::Key_Up);
}

void StepDoubledWidth(Test::PanelWindow& place, TAbstractProperty* row)
{
    QVERIFY(!As<TPropertySize>(row)->height->isEnabled());
    StepWidth(place, row);
}

void StepWholeNumber(Test::PanelWindow&, TAbstractProperty* row)
{
    QTest::keyClick(row->Editor(), Qt::Key_Up);
}

void ClickBox(Test::PanelWindow&, TAbstractProperty* row)
{
    QCheckBox* box = row->Editor()->findChildren<QCheckBox*>().value(0);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

void ClickShowBox(Test::PanelWindow&, TAbstractProperty* row)
{
    QCheckBox* box = As<TPropertyText>(row)->visible;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

const UserEdit userEdits[] = {
    {"number, key", Test::MakeViaSet, "Diameter:", "sigValueChanged(double)", StepSpin},
    {"number, arrow", Test::MakeViaSet, "Drill:", "sigValueChanged(double)", ClickSpinArrow},
    {"number, typed", Test::MakeViaSet, "Mask:", "sigValueChanged(double)", TypeIntoSpin},
    {"enable box, mouse", Test::MakeViaSet, "Mask:", "sigCheckChanged(bool)", ClickCheck},
    {"choice by value", Test::MakeViaSet, "Thermal:", "sigEnumChanged(int)", NextItem},
    {"choice by text", Test::MakeViaSet, "Drill pair:", "sigTextChanged(QString)", NextItem},
    {"choice from the open list", Test::MakeViaSet, "Thermal:", "sigEnumChanged(int)", ChooseFromOpenList},
    {"text, Return", Test::MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndReturn},
    {"text, Return given to the line", Test::MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndReturnToTheLine},
    {"text, focus lost", Test::MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndLeave},
    {"text, mouse press", Test::MakePadSet, "Number:", "sigTextChanged(QString)", TypeAndPress},
    {"width with a doubled, locked height", Test::MakePadSet, "Size (W x H):", "sigWidthChanged(double)",
     StepDoubledWidth},
    {"following height", Test::MakePadSet, "Size (W x H):", "sigHeightChanged(double)", StepDoubledWidth, 2},
    {"type, which shows and hides rows", Test::MakePadSet, "Type:", "sigEnumChanged(int)", NextItem},
    {"type from the open list", Test::MakePadSet, "Type:", "sigEnumChanged(int)", ChooseFromOpenList},
    {"shape, which makes the height follow", Test::MakePadSet, "Shape:", "sigEnumChanged(int)", ChooseFromOpenList, 3},
    {"layer", Test::MakePadSet, "Side:", "sigLayerChanged(Osmirel::Layer)", NextItem},
    {"mask of a pad, key", Test::MakePadSet, "Mask:", "sigCheckChanged(bool)", ToggleCheckByKey},
    {"paste of a pad, mouse", Test::MakePadSet, "Paste:", "sigCheckChanged(bool)", ClickCheck},
    {"hole", Test::MakeHoleSet, "Diameter:", "sigValueChanged(double)", StepSpin},
    {"net of a pour", Test::MakePourSet, "Net:", "sigTextChanged(QString)", TypeAndReturn},
    {"priority of a pour", Test::MakePourSet, "Priority:", "sigValueChanged(int)", StepWholeNumber},
    {"filling of a pour, with two slots", Test::MakePourSet, "Fill type:", "sigEnumChanged(int)", ChooseFromOpenList},
    {"thermal of a pour", Test::MakePourSet, "Thermal enable:", "sigStateChanged(bool)", ClickBox},
    {"width of a wire", Test::MakeWireSet, "Width:", "sigValueChanged(double)", StepSpin},
    {"layer of a wire", Test::MakeWireSet, "Layer:", "sigLayerChanged(Osmirel::Layer)", NextItem},
    {"side of a package", Test::MakePackageSet, "Side:", "sigLayerChanged(Osmirel::Layer)", NextItem},
    {"name of a net tie", Test::MakeNetTieSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
    {"show box of a net tie", Test::MakeNetTieSet, "Name:", "sigVisibleChanged(bool)", ClickShowBox},
    {"pad size of a net tie", Test::MakeNetTieSet, "Pad size:", "sigValueChanged(double)", StepSpin},
    {"font of a text", Test::MakeTextSet, "Font name:", "sigTextChanged(QString)", ChooseFromOpenList},
    {"bold of a text", Test::MakeTextSet, "Bold:", "sigStateChanged(bool)", ClickBox},
    {"mirror of a text", Test::MakeTextSet, "Mirror:", "sigChecked1(bool)", ClickBox},
    {"colour of a text", Test::MakeTextSet, "Color:", "sigColorChanged(QColor)", NextItem},
    {"line style of a drawing", Test::MakeDrawingSet, "Line style:", "sigPenStyleChanged(Qt::PenStyle)", NextItem},
    {"filling of a drawing", Test::MakeDrawingSet, "Fill style:", "sigEnumChanged(int)", ChooseFromOpenList},
    {"width of a milling path", Test::MakeMillingSet, "Line width:", "sigValueChanged(double)", StepSpin},
    {"layer of a keepout", Test::MakeKeepoutSet, "Inner 2", "sigStateChanged(bool)", ClickBox},
    {"class of a net", Test::MakeNetSet, "Net class:", "sigTextChanged(QString)", ChooseFirst},
    {"level of a net", Test::MakeNetSet, "Level:", "sigTextChanged(QString)", ChooseFromOpenList},
    {"colour of a net", Test::MakeNetSet, "Color:", "sigColorChanged(QColor)", NextItem},
    {"name of a bus", Test::MakeBusSet, "Name", "sigTextChanged(QString)", TypeAndReturn, 0},
    {"name of a pin", Test::MakePinSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
    {"show box of a pin's number", Test::MakePinSet, "Number:", "sigVisibleChanged(bool)", ClickShowBox},
    {"type of a pin", Test::MakePinSet, "Type:", "sigEnumChanged(int)", NextItem},
    {"name of a port", Test::MakePortSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
    {"show box of a port", Test::MakePortSet, "Name:", "sigVisibleChanged(bool)", ClickShowBox},
    {"lock of a part", Test::MakePartSet, "Lock:", "sigChecked1(bool)", ClickBox, 0},
    {"name of a tag", Test::MakeTagSet, "Name:", "sigTextChanged(QString)", TypeAndReturn},
    {"font of a tag", Test::MakeTagSet, "Font name:", "sigTextChanged(QString)", ChooseFromOpenList},
    {"size of a tag", Test::MakeTagSet, "Font size:", "sigEnumChanged(int)", NextItem},
    {"line width of a tag", Test::MakeTagSet, "Line width:", "sigValueChanged(double)", StepSpin, 0},
    {"symbol of a net tie", Test::MakeNetTieSymbolSet, "Symbol:", "sigEnumChanged(int)", NextItem},
};

enum class Moment { InCommand, InRowSignal };
enum class Next { NoSet, AnotherSet, SameKind };

/** An application that shows another set as soon as it hears of an edit. */
class HastyApplication : public QObject
{
    Q_OBJECT

public:
    HastyApplication(const UserEdit& edit, Next nextShown) : userEdit(edit), next(nextShown) {}

    void Run(Moment moment)
    {
        set = userEdit.makeSet(board);
        connect(set, SIGNAL(sigCmd(TUndoCommand*)), SLOT(Push(TUndoCommand*)));
        replacesInCommand = moment == Moment::InCommand;
        place.Show(set);
        TAbstractProperty* row = Test::FindRow(set, userEdit.label);
        if (moment == Moment::InRowSignal) {
            QVERIFY(connect(row, QByteArray("2") + userEdit.signature, this, SLOT(Replace())));
        }
        userEdit.edit(place, row);
        Test::Settle();
    }

    Test::KindsBoard board;
    QUndoStack stack;
    Test::PanelWindow place;
    QPointer<TPropertySet> set;

private slots:
    void Push(TUndoCommand* command)
    {
        stack.push(command);
        if (replacesInCommand) {
            Replace();
        }
    }

    void Replace()
    {
        switch (next) {
        case Next::NoSet: place.panel->SetPropertySet(nullptr); break;
        case Next::AnotherSet: place.panel->SetPropertySet(Test::MakeHoleSet(board)); break;
        case Next::SameKind: place.panel->SetPropertySet(userEdit.makeSet(board)); break;
        }
    }

private:
    const UserEdit& userEdit;
    Next next;
    bool replacesInCommand = false;
};

/** The edits of rows that no set here has, each in a set of its own. */
struct LooseRow
{
    const char* name;
    TAbstractProperty* (*add)(Test::PlainSet& set);
    const char* signature;
    void (*edit)(Test::PanelWindow& place, TAbstractProperty* row);
};

const LooseRow looseRows[] = {
    {"whole number", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyIntSpin>("L", 0, 9, 1); },
     "sigValueChanged(int)",
     [](Test::PanelWindow&, TAbstractProperty* row) { QTest::keyClick(row->Editor(), Qt::Key_Up); }},
    {"check box", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyCheck>("L"); },
     "sigStateChanged(bool)",
     [](Test::PanelWindow&, TAbstractProperty* row) {
         auto* box = row->Editor()->findChild<QCheckBox*>();
         QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
     }},
    {"one of two check boxes",
     [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyCheck2>("L", "1", "2"); },
     "sigChecked2(bool)",
     [](Test::PanelWindow&, TAbstractProperty* row) {
         QTest::keyClick(As<TPropertyCheck2>(row)->Editor()->findChildren<QCheckBox*>().value(1), Qt::Key_Space);
     }},
    {"show box", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyText>("L", "t", false); },
     "sigVisibleChanged(bool)",
     [](Test::PanelWindow&, TAbstractProperty* row) {
         As<TPropertyText>(row)->visible->show();
         QTest::keyClick(As<TPropertyText>(row)->visible, Qt::Key_Space);
     }},
    {"colour", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyColor>("L", QColor()); },
     "sigColorChanged(QColor)", NextItem},
    {"angle", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyAngleEnum>("L"); },
     "sigAngleChanged(float)", NextItem},
    {"pad shape", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyPadShape>("L"); },
     "sigPadShapeChanged(TGraphicsPadItem::TypePadShape)", ChooseFromOpenList},
    {"pen style", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyPenStyle>("L"); },
     "sigPenStyleChanged(Qt::PenStyle)", NextItem},
    {"number set by the program",
     [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyFloatSpin>("L", 0, 9, 1, 1); },
     "sigValueChanged(double)",
     [](Test::PanelWindow&, TAbstractProperty* row) { As<TPropertyFloatSpin>(row)->spin->setValue(5); }},
    {"check box set by the program",
     [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyCheck>("L"); }, "sigStateChanged(bool)",
     [](Test::PanelWindow&, TAbstractProperty* row) { As<TPropertyCheck>(row)->SetCurrentState(true); }},
};

/** Shows nothing any more, and counts how often it was asked to. */
class Clearer : public QObject
{
    Q_OBJECT

public:
    explicit Clearer(TPropertyWidget* shown) : panel(shown) {}

    int count = 0;

public slots:
    void Clear()
    {
        ++count;
        panel->SetPropertySet(nullptr);
    }

private:
    TPropertyWidget* panel;
};

} // namespace

Q_DECLARE_METATYPE(const UserEdit*)
Q_DECLARE_METATYPE(const LooseRow*)
Q_DECLARE_METATYPE(Moment)
Q_DECLARE_METATYPE(Next)

/** The application replaces a set while one of its own signals is under way. */
class TestReplacement : public QObject
{
    Q_OBJECT

private slots:
    void whileASetReports_data()
    {
        QTest::addColumn<const UserEdit*>("userEdit");
        QTest::addColumn<Moment>("moment");
        QTest::addColumn<Next>("next");
        for (const UserEdit& userEdit : userEdits) {
            if (userEdit.commandsOfSignal > 0) {
                QTest::addRow("%s: command, no set", userEdit.name) << &userEdit << Moment::InCommand << Next::NoSet;
                QTest::addRow("%s: command, another set", userEdit.name)
                    << &userEdit << Moment::InCommand << Next::AnotherSet;
                QTest::addRow("%s: command, same kind", userEdit.name)
                    << &userEdit << Moment::InCommand << Next::SameKind;
            }
            QTest::addRow("%s: row, no set", userEdit.name) << &userEdit << Moment::InRowSignal << Next::NoSet;
            QTest::addRow("%s: row, same kind", userEdit.name) << &userEdit << Moment::InRowSignal << Next::SameKind;
        }
    }

    void whileASetReports()
    {
        QFETCH(const UserEdit*, userEdit);
        QFETCH(Moment, moment);
        QFETCH(Next, next);
        HastyApplication application(*userEdit, next);
        const QString before = application.board.DumpAll();
        application.Run(moment);
        QVERIFY(!application.set);
        QCOMPARE(application.place.panel->PropertySet() == nullptr, next == Next::NoSet);
        QCOMPARE(application.place.Tree()->topLevelItemCount() == 0, next == Next::NoSet);

        const int commands = moment == Moment::InRowSignal ? userEdit->commandsOfSignal : 1;
        QCOMPARE(application.stack.count(), commands);
        const QString after = application.board.DumpAll();
        QVERIFY(after != before);
        if (commands == 1) { // A height that followed is not undone to what it was.
            application.stack.undo();
            QCOMPARE(application.board.DumpAll(), before);
            application.stack.redo();
            QCOMPARE(application.board.DumpAll(), after);
        }
    }

    void whileARowReports_data()
    {
        QTest::addColumn<const LooseRow*>("looseRow");
        for (const LooseRow& looseRow : looseRows) {
            QTest::newRow(looseRow.name) << &looseRow;
        }
    }

    void whileARowReports()
    {
        QFETCH(const LooseRow*, looseRow);
        Test::PanelWindow place;
        const QPointer<Test::PlainSet> set(new Test::PlainSet);
        TAbstractProperty* row = looseRow->add(*set);
        Clearer clearer(place.panel);
        QVERIFY(connect(row, QByteArray("2") + looseRow->signature, &clearer, SLOT(Clear())));
        place.Show(set);
        row->Editor()->setFocus();
        looseRow->edit(place, row);
        Test::Settle();
        QVERIFY(!set);
        QCOMPARE(clearer.count, 1);
        QCOMPARE(place.Tree()->topLevelItemCount(), 0);
    }
};

PROPERTIES_TEST_MAIN(TestReplacement)
#include "tst_replacement.moc"
