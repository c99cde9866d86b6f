#include "tests/panel/KindsBoard.h"
#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyText.h"

#include <workspace/TDoubleSpinBox.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QMetaMethod>
#include <QUndoStack>

namespace {

/** An application with one set shown and an undo stack that takes its commands. */
template <class Set>
class Session
{
public:
    Session()
    {
        TGraphicsPadItem* first = board.AddThroughPad();
        TGraphicsPadItem* second = board.AddThroughPad();
        first->SetNumber("1");
        second->SetNumber("2");
        vias = {board.AddVia(0.6), board.AddVia(0.8)};
        pads = {first, second};
        before = board.Dump();
    }

    void Show(Set* shown)
    {
        set = shown;
        QObject::connect(set, &TPropertySet::sigCmd, [this](TUndoCommand* command) { stack.push(command); });
        place.Show(set);
    }

    Test::TestBoard board;
    QList<TGraphicsItem*> vias;
    QList<TGraphicsItem*> pads;
    QString before;
    QUndoStack stack;
    Test::PanelWindow place;
    Set* set = nullptr;
};

class PadSession : public Session<TPropertySetForPad>
{
public:
    PadSession()
    {
        Show(new TPropertySetForPad(pads, board.Sides()));
        line = Test::RowOf<TPropertyText>(set, "Number:")->line;
    }

    void TypeNumber(const QString& text) { Test::TypeHalfText(Test::FindRow(set, "Number:"), text); }

    TLineEdit* line;
};

class ViaSession : public Session<TPropertySetForVia>
{
public:
    ViaSession()
    {
        Show(new TPropertySetForVia(vias, board.ViaGroups()));
        diameter = Test::RowOf<TPropertyFloatSpin>(set, "Diameter:")->spin;
        thermal = Test::RowOf<TPropertyEnum>(set, "Thermal:")->Box();
    }

    TDoubleSpinBox* diameter;
    QComboBox* thermal;
};

} // namespace

Q_DECLARE_METATYPE(Test::MakeKindsSet)

/** What goes on around an editor that has the focus. */
class TestLiveEdit : public QObject
{
    Q_OBJECT

private slots:
    void returnEndsInOneState()
    {
        PadSession session;
        session.TypeNumber("A7");
        QTest::keyClick(session.line->edit, Qt::Key_Return);
        Test::Settle();
        QVERIFY(session.stack.count() > 0);
        for (const TGraphicsItem* pad : session.pads) {
            QCOMPARE(static_cast<const TGraphicsPadItem*>(pad)->Number(), QString("A7"));
        }
        const QString after = session.board.Dump();
        while (session.stack.canUndo()) {
            session.stack.undo();
        }
        QCOMPARE(session.board.Dump(), session.before);
        while (session.stack.canRedo()) {
            session.stack.redo();
        }
        QCOMPARE(session.board.Dump(), after);
    }

    void returnEndsInOneStateOfEveryKind_data()
    {
        QTest::addColumn<Test::MakeKindsSet>("makeSet");
        QTest::addColumn<QString>("label");
        QTest::newRow("pad") << Test::MakePadSet << "Number:";
        QTest::newRow("net tie") << Test::MakeNetTieSet << "Name:";
        QTest::newRow("net tie symbol") << Test::MakeNetTieSymbolSet << "Name:";
        QTest::newRow("pin, name") << Test::MakePinSet << "Name:";
        QTest::newRow("pin, number") << Test::MakePinSet << "Number:";
        QTest::newRow("port") << Test::MakePortSet << "Name:";
        QTest::newRow("tag") << Test::MakeTagSet << "Name:";
    }

    void returnEndsInOneStateOfEveryKind()
    {
        QFETCH(Test::MakeKindsSet, makeSet);
        QFETCH(QString, label);
        Test::KindsBoard board;
        Test::PanelWindow place;
        QUndoStack stack;
        const QString before = board.DumpAll();
        TPropertySet* set = makeSet(board);
        connect(set, &TPropertySet::sigCmd, &stack, [&stack](TUndoCommand* command) { stack.push(command); });
        place.Show(set);
        auto* row = Test::RowOf<TPropertyText>(set, label);
        Test::TypeHalfText(row, "new");
        QTest::keyClick(row->line->edit, Qt::Key_Return);
        Test::Settle();
        const QString once = board.DumpAll();
        QVERIFY(once != before);
        emit row->line->textChanged("new"); // The toolkit may end an edit twice.
        QCOMPARE(board.DumpAll(), once);
        QVERIFY(stack.count() > 1);
        stack.setIndex(0);
        QCOMPARE(board.DumpAll(), before);
        stack.setIndex(stack.count());
        QCOMPARE(board.DumpAll(), once);
    }

    void undoAndRedoWhileTextIsTyped()
    {
        PadSession session;
        session.set->SetWidth(3);
        const QString widened = session.board.Dump();
        session.TypeNumber("half");
        session.stack.undo();
        Test::Settle();
        QCOMPARE(session.board.Dump(), session.before);
        QVERIFY(session.line->edit->hasFocus());
        QCOMPARE(session.line->edit->text(), QString("half"));
        session.stack.redo();
        Test::Settle();
        QCOMPARE(session.board.Dump(), widened);
        QCOMPARE(session.stack.count(), 1);
        QTest::keyClick(session.line->edit, Qt::Key_Escape);
        QCOMPARE(session.stack.count(), 1);
        QCOMPARE(session.board.Dump(), widened);
    }

    void undoAndRedoWhileABoxHasTheFocus()
    {
        ViaSession session;
        session.diameter->setFocus();
        QTest::keyClick(session.diameter, Qt::Key_Up);
        const QString once = session.board.Dump();
        QTest::keyClick(session.diameter, Qt::Key_Up);
        const QString twice = session.board.Dump();
        QCOMPARE(session.stack.count(), 2);
        session.stack.undo();
        QCOMPARE(session.board.Dump(), once);
        session.stack.undo();
        QCOMPARE(session.board.Dump(), session.before);
        session.stack.redo();
        session.stack.redo();
        QCOMPARE(session.board.Dump(), twice);
        session.place.elsewhere->setFocus();
        QCOMPARE(session.stack.count(), 2);
        QCOMPARE(session.board.Dump(), twice);
    }

    void undoWhileANumberIsHalfTyped()
    {
        ViaSession session;
        session.set->SetDrill(0.5);
        session.diameter->setKeyboardTracking(false);
        session.diameter->setFocus();
        session.diameter->selectAll();
        QTest::keyClicks(session.diameter, "2.");
        session.stack.undo();
        QCOMPARE(session.board.Dump(), session.before);
        QCOMPARE(session.stack.count(), 1);
        QVERIFY(session.diameter->hasFocus());
        QVERIFY(session.diameter->text().startsWith("2."));
    }

    void undoWhileAListIsOpen()
    {
        ViaSession session;
        session.set->SetThermal(1);
        session.thermal->setFocus();
        session.thermal->showPopup();
        session.stack.undo();
        QCOMPARE(session.board.Dump(), session.before);
        QTest::keyClick(session.thermal->view(), Qt::Key_End);
        QTest::keyClick(session.thermal->view(), Qt::Key_Return);
        QCOMPARE(session.stack.count(), 1); // The new command took the place of the undone one.
        session.stack.undo();
        QCOMPARE(session.board.Dump(), session.before);
    }

    void languageChangeWhileTextIsTyped()
    {
        PadSession session;
        session.TypeNumber("half");
        const Test::MarkingTranslator translator;
        session.place.panel->UpdateTranslate();
        Test::Settle();
        QCOMPARE(session.place.panel->windowTitle(), QString("~Properties"));
        QVERIFY(session.line->edit->isVisible());
        QVERIFY(session.line->edit->hasFocus());
        QCOMPARE(session.line->edit->text(), QString("half"));
        QCOMPARE(session.stack.count(), 0);
        QTest::keyClick(session.line->edit, Qt::Key_Return);
        QCOMPARE(static_cast<TGraphicsPadItem*>(session.pads.first())->Number(), QString("half"));
    }

    void languageChangeWhileANumberIsTyped()
    {
        ViaSession session;
        session.diameter->setKeyboardTracking(false);
        session.diameter->setFocus();
        session.diameter->selectAll();
        QTest::keyClicks(session.diameter, "2.");
        const Test::MarkingTranslator translator;
        session.place.panel->UpdateTranslate();
        Test::Settle();
        QVERIFY(session.diameter->hasFocus());
        QVERIFY(session.diameter->text().startsWith("2."));
        QCOMPARE(session.stack.count(), 0);
        QCOMPARE(session.board.Dump(), session.before);
    }

    void languageChangeWhileAListIsOpen()
    {
        ViaSession session;
        session.thermal->setFocus();
        session.thermal->showPopup();
        const Test::MarkingTranslator translator;
        session.place.panel->UpdateTranslate();
        Test::Settle();
        QCOMPARE(session.stack.count(), 0);
        QTest::keyClick(session.thermal->view(), Qt::Key_End);
        QTest::keyClick(session.thermal->view(), Qt::Key_Return);
        QCOMPARE(session.stack.count(), 1);
        QCOMPARE(static_cast<TGraphicsViaItem*>(session.vias.first())->Thermal(), TGraphicsViaItem::ThermalNo);
    }

    void setMadeAfterALanguageChangeIsTranslated()
    {
        ViaSession session;
        const Test::MarkingTranslator translator;
        session.Show(new TPropertySetForVia(session.vias, session.board.ViaGroups()));
        QCOMPARE(session.place.window.windowTitle(), QString("~Properties - ~Vias"));
        QCOMPARE(Test::Labels(session.set).value(0), QString("~Diameter:"));
    }

    void slotsWithoutItemsDoNothing()
    {
        Test::TestBoard board;
        TSchematic schematic;
        TProject project;
        project.SetSchematic(&schematic);
        qRegisterMetaType<Qt::PenStyle>();
        const QList<TGraphicsItem*> package{board.AddPackage()};
        const QList<TGraphicsItem*> via{board.AddVia()};
        TPropertySetForVia vias(package, board.ViaGroups());
        TPropertySetForPad pads(package, board.Sides());
        TPropertySetForHole holes(package);
        TPropertySetForWire wires(package, &project);
        TPropertySetForPackage packages(via, board.Sides(), &board);
        TPropertySetForNetTiePcb ties(package, &project);
        TPropertySetForNetTieSch symbols(package, &project);
        TPropertySetForText texts(package, board.Sides());
        TPropertySetForPrimitives drawings(package, board.Sides());
        TPropertySetForMilling paths(package);
        TPropertySetForKeepout keepouts(package);
        TPropertySetForPour pours(package, board.Sides());
        TPropertySetForNet nets(package, &schematic);
        TPropertySetForBus buses(package);
        TPropertySetForPin pins(package);
        TPropertySetForPort ports(package, &schematic);
        TPropertySetForPart parts(package);
        TPropertySetForTag tags(package, &project);
        const QString before = board.Dump();
        for (TPropertySet* set : std::initializer_list<TPropertySet*>{
                 &vias, &pads, &holes, &wires, &packages, &ties, &symbols, &texts, &drawings, &paths, &keepouts, &pours,
                 &nets, &buses, &pins, &ports, &parts, &tags}) {
            const Test::CommandLog log(*set);
            const QMetaObject* kind = set->metaObject();
            int count = 0;
            int called = 0;
            for (int i = kind->methodOffset(); i < kind->methodCount(); ++i) {
                if (kind->method(i).methodType() == QMetaMethod::Slot) {
                    ++count;
                    called += Call(set, kind->method(i)) ? 1 : 0;
                }
            }
            QVERIFY2(called == count && called > 0, kind->className());
            QCOMPARE(log.Count(), 0);
            QCOMPARE(board.Dump(), before);
        }
    }

private:
    /** Calls a slot of one argument with the default value of its type. */
    static bool Call(QObject* set, const QMetaMethod& method)
    {
        const int type = method.parameterType(0);
        const QVariant value(type, nullptr);
        return method.parameterCount() == 1
               && method.invoke(set, Qt::DirectConnection,
                                QGenericArgument(QMetaType::typeName(type), value.constData()));
    }
};

PROPERTIES_TEST(TestLiveEdit)
#include "tst_liveedit.moc"
