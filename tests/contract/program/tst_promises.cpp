#include "properties/commands/TCmdComponent.h"
#include "properties/commands/TCmdNet.h"
#include "properties/commands/TCmdNetTie.h"
#include "properties/commands/TCmdPackage.h"
#include "properties/commands/TCmdPart.h"
#include "properties/commands/TCmdPort.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdVia.h"
#include "properties/commands/TCmdWire.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForNet.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPort.h"
#include "properties/sets/TPropertySetForWire.h"
#include "properties/TPropertyWidget.h"

#include <contract/CalledOut.h>
#include <contract/TDesign.h>
#include <workspace/TDoubleSpinBox.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>
#include <QUndoStack>

#include <memory>
#include <typeinfo>

using ContractHost::TDesign;

namespace {

/** A window with the panel over one pad, and all commands that come out of it. */
struct Application
{
    TDesign design;
    QUndoStack undoStack;
    QStringList commands; ///< Their classes.
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QPointer<TPropertyWidget> panel = new TPropertyWidget(window.get());
    QPointer<TPropertySet> set;
    bool isActive = false;

    Application()
    {
        set = new TPropertySetForPad({design.pad}, {});
        QObject::connect(set, &TPropertySet::sigCmd, [this](TUndoCommand* command) {
            commands.append(QString::fromLatin1(typeid(*command).name()).section(QLatin1String("TCmd"), 1));
            undoStack.push(command);
        });
        panel->SetPropertySet(set);
        window->resize(400, 400);
        window->show();
        window->activateWindow();
        isActive = QTest::qWaitForWindowActive(window.get());
    }

    template <class Row>
    Row* RowOf(const char* label) const
    {
        for (TAbstractProperty* row : set->Properties()) {
            if (row->text(TAbstractProperty::labelColumn) == QLatin1String(label)) {
                return dynamic_cast<Row*>(row);
            }
        }
        return nullptr;
    }

    TDoubleSpinBox* Width() const { return RowOf<TPropertySize>("Size (W x H):")->width; }

    QLineEdit* TypeHalfANumber() const
    {
        TLineEdit* line = RowOf<TPropertyText>("Number:")->line;
        QTest::mouseDClick(line, Qt::LeftButton);
        QTest::keyClicks(line->edit, "half");
        return line->edit;
    }

    QStringList TakeCommands() { return std::exchange(commands, {}); }
};

/** How often a command calls the host. */
int CallsOf(std::unique_ptr<TUndoCommand> command)
{
    int calls = 0;
    ContractHost::CalledOut = [&calls] { ++calls; };
    command->redo();
    ContractHost::CalledOut = nullptr;
    return calls;
}

template <class Command, class... Arguments>
int CallsOf(Arguments&&... arguments)
{
    return CallsOf(std::make_unique<Command>(std::forward<Arguments>(arguments)...));
}

} // namespace

/** What docs/embedding.md says that an application meets. */
class TestPromises : public QObject
{
    Q_OBJECT

private slots:
    void oneEditMayMakeSeveralCommands()
    {
        Application application;
        auto* shape = application.RowOf<TPropertyEnum>("Shape:");
        application.Width()->stepUp();
        QCOMPARE(application.TakeCommands(), QStringList({"PadWidth", "PadHeight", "PadHeight"}));
        shape->SetCurrentEnum(TGraphicsPadItem::ShapeObround);
        QCOMPARE(application.TakeCommands(), QStringList({"PadShape", "PadHeight", "PadHeight"}));
        shape->SetCurrentEnum(TGraphicsPadItem::ShapeRectangle);
        QCOMPARE(application.TakeCommands(), QStringList("PadShape"));
        application.Width()->stepUp();
        QCOMPARE(application.TakeCommands(), QStringList("PadWidth"));
        QTest::keyClick(application.TypeHalfANumber(), Qt::Key_Return);
        QCOMPARE(application.TakeCommands(), QStringList({"PadNumber", "PadNumber"}));
        QCOMPARE(application.undoStack.count(), 3 + 3 + 1 + 1 + 2);
    }

    void rebuildingOnAPushCutsAnEditShort()
    {
        Application application;
        connect(&application.undoStack, &QUndoStack::indexChanged, application.panel,
                [&] { application.panel->SetPropertySet(new TPropertySetForPad({application.design.pad}, {})); });
        application.Width()->stepUp();
        QCOMPARE(application.commands, QStringList("PadWidth"));
        QVERIFY(!application.set);
    }

    void aNumberIsReportedAsItIsTyped()
    {
        Application application;
        application.RowOf<TPropertyEnum>("Shape:")->SetCurrentEnum(TGraphicsPadItem::ShapeRectangle);
        application.TakeCommands();
        application.Width()->setFocus();
        application.Width()->selectAll();
        QTest::keyClicks(application.Width(), "2.5");
        QCOMPARE(application.TakeCommands(), QStringList({"PadWidth", "PadWidth"}));
    }

    void keysStartAcceptedAndModifiersAreNotLookedAt()
    {
        TDesign design;
        TPropertySetForWire set({design.wire}, &design.project);
        QKeyEvent other(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QVERIFY(other.isAccepted());
        set.KeyPressEvent(&other);
        QVERIFY(other.isAccepted());
        QKeyEvent withControl(QEvent::KeyPress, Qt::Key_O, Qt::ControlModifier);
        withControl.ignore();
        set.KeyPressEvent(&withControl);
        QVERIFY(withControl.isAccepted());
    }

    void numberBoxesAndLineEditorsKeepTheUndoKeys()
    {
        Application application;
        QVERIFY(application.isActive);
        int undone = 0;
        QAction undo;
        undo.setShortcut(QKeySequence::Undo);
        connect(&undo, &QAction::triggered, [&undone] { ++undone; });
        application.window->addAction(&undo);
        application.Width()->setFocus();
        QTest::keySequence(application.Width(), QKeySequence::Undo);
        QTest::keySequence(application.TypeHalfANumber(), QKeySequence::Undo);
        QCOMPARE(undone, 0);
        QComboBox* shape = application.RowOf<TPropertyEnum>("Shape:")->Box();
        shape->setFocus();
        QTest::keySequence(shape, QKeySequence::Undo);
        QCOMPARE(undone, 1);
    }

    void aWindowThatGoesCommitsAHalfTypedText_data()
    {
        QTest::addColumn<bool>("isDestroyed");
        QTest::addColumn<bool>("isCleared");
        QTest::newRow("closed") << false << false;
        QTest::newRow("destroyed") << true << false;
        QTest::newRow("destroyed without a set") << true << true;
    }
    void aWindowThatGoesCommitsAHalfTypedText()
    {
        QFETCH(bool, isDestroyed);
        QFETCH(bool, isCleared);
        Application application;
        QVERIFY(application.isActive);
        application.TypeHalfANumber();
        if (isCleared) {
            application.panel->SetPropertySet(nullptr);
        }
        if (isDestroyed) {
            application.window.reset();
        } else {
            application.window->close();
        }
        QCOMPARE(application.commands, isCleared ? QStringList() : QStringList("PadNumber"));
        QCOMPARE(application.design.pad->Number(), isCleared ? "1" : "half");
    }

    void aReceiverMayDoAnything_data()
    {
        QTest::addColumn<bool>("isPanelDeleted");
        QTest::newRow("another set") << false;
        QTest::newRow("panel deleted") << true;
    }
    void aReceiverMayDoAnything()
    {
        QFETCH(bool, isPanelDeleted);
        Application application;
        connect(application.set, &TPropertySet::sigCmd, [&] {
            if (isPanelDeleted) {
                delete application.panel;
            } else {
                application.panel->SetPropertySet(new TPropertySetForPad({application.design.pad}, {}));
            }
        });
        application.Width()->stepUp();
        QVERIFY(!application.set);
        QCOMPARE(application.panel.isNull(), isPanelDeleted);
        QCOMPARE(application.commands, QStringList("PadWidth"));
    }

    void theLatestSetWins()
    {
        Application application;
        const QPointer<TPropertySet> inner = new TPropertySetForPad({application.design.pad}, {});
        const QPointer<TPropertySet> outer = new TPropertySetForPad({application.design.pad}, {});
        connect(application.set, &QObject::destroyed, [&] { application.panel->SetPropertySet(inner); });
        application.panel->SetPropertySet(outer);
        QVERIFY(inner && !outer);
        QCOMPARE(application.panel->PropertySet(), inner.data());
    }

    void someCommandsCallTheHostOverNothing()
    {
        TDesign design;
        const auto pcbTies = QList<TGraphicsNetTiePcbItem*>();
        QCOMPARE(CallsOf<TCmdViaDiam>(QList<TGraphicsItem*>(), 1.0), 0);
        QCOMPARE(CallsOf<TCmdPortName>(QList<TGraphicsPortItem*>(), "N9", &design.schematic), 0);
        QCOMPARE(CallsOf<TCmdPkgSide>(QList<TGraphicsPackageItem*>(), Osmirel::PackagesTop, &design.board), 1);
        QCOMPARE(CallsOf<TCmdPkgConnect>(QList<TGraphicsItem*>(), &design.board), 1);
        QCOMPARE(CallsOf<TCmdPkgDisconnect>(QList<TGraphicsItem*>(), &design.board), 1);
        QCOMPARE(CallsOf<TCmdPartConnect>(QList<TGraphicsItem*>(), &design.project), 1);
        QCOMPARE(CallsOf<TCmdPartDisconnect>(QList<TGraphicsItem*>(), &design.project), 1);
        QCOMPARE(CallsOf<TCmdNetPrio>(QStringList(), "1", &design.project), 1);
        QCOMPARE(CallsOf<TCmdNetTieName>(pcbTies, "N", &design.project), 0);
        QCOMPARE(CallsOf<TCmdCmpValue>(QList<unsigned short>(), "1k", &design.project), 1);
    }

    void aSchematicMayLackItsModels()
    {
        TDesign design;
        design.schematic.netModel = nullptr;
        design.schematic.cmpModel = nullptr;
        QVERIFY(TPropertySetForNet({design.netWire}, &design.schematic).Properties().isEmpty());
        QVERIFY(!TPropertySetForWire({design.wire}, &design.project).Properties().isEmpty());
        QVERIFY(!TPropertySetForPort({design.port}, &design.schematic).Properties().isEmpty());

        QUndoStack stack;
        stack.push(new TCmdNetClass("N1", "Power", &design.project));
        stack.push(new TCmdNetPrio({"N1"}, "3", &design.project));
        stack.push(new TCmdNetColorSch("N1", Qt::green, &design.schematic));
        stack.push(new TCmdNetColorPcb("N1", Qt::green, &design.project));
        stack.push(new TCmdCmpValue({1}, "22k", &design.project));
        stack.setIndex(0);
        design.schematic.netModel = &design.nets;
        design.schematic.cmpModel = &design.components;
        stack.setIndex(stack.count());
        QCOMPARE(design.nets.NetClass("N1"), "Power");
        QCOMPARE(design.nets.Priority("N1"), "3");
        QCOMPARE(design.components.items[1].value, "22k");
        stack.setIndex(0);
        QCOMPARE(design.nets.NetClass("N1"), "Default");
        QCOMPARE(design.nets.Priority("N1"), "0");
        QCOMPARE(design.components.items[1].value, "10k");
    }

    void commandsTakeMillimetresOrSceneUnits()
    {
        TDesign design;
        CallsOf<TCmdViaDiam>(QList<TGraphicsItem*>{design.via}, 25.4);
        QCOMPARE(design.via->Width(), 300.0);
        CallsOf<TCmdPenWidth>(QList<TGraphicsItem*>{design.rectangle}, 25.4);
        QCOMPARE(design.rectangle->PenWidth(), 300.0F);
        CallsOf<TCmdWireWidth>(QList<TGraphicsWireItem*>{design.wire}, 30.0);
        QCOMPARE(design.wire->PenWidth(), 30.0F);
        CallsOf<TCmdRectSize>(QList<TGraphicsRectItem*>{design.rectangle}, 30.0, 20.0);
        QCOMPARE(design.rectangle->Size(), QSizeF(30, 20));
        const QList<TGraphicsNetTiePcbItem*> ties{design.netTie};
        CallsOf<TCmdNetTiePadSz>(ties, 30.0, &design.project);
        QCOMPARE(design.netTie->PadSize(), 30.0);
        CallsOf<TCmdNetTieWireWidth>(ties, 30.0, &design.project);
        QCOMPARE(design.netTie->Pen().widthF(), 30.0);
    }
};

QTEST_MAIN(TestPromises)
#include "tst_promises.moc"
