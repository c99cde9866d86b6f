#include "tests/panel/UserEdits.h"
#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

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

using Test::UserEdit;

template <class Row>
Row* As(TAbstractProperty* row)
{
    return qobject_cast<Row*>(row);
}

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
     "sigColorChanged(QColor)", Test::NextItem},
    {"angle", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyAngleEnum>("L"); },
     "sigAngleChanged(float)", Test::NextItem},
    {"pad shape", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyPadShape>("L"); },
     "sigPadShapeChanged(TGraphicsPadItem::TypePadShape)", Test::ChooseFromOpenList},
    {"pen style", [](Test::PlainSet& set) -> TAbstractProperty* { return set.Add<TPropertyPenStyle>("L"); },
     "sigPenStyleChanged(Qt::PenStyle)", Test::NextItem},
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
        for (const UserEdit& userEdit : Test::UserEdits()) {
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

PROPERTIES_TEST(TestReplacement)
#include "tst_replacement.moc"
