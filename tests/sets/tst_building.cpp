#include "tests/sets/WatchfulBoard.h"
#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestProgram.h"

#include "properties/sets/TPropertySetForBus.h"
#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNet.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForNetTieSch.h"
#include "properties/sets/TPropertySetForOutline.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPart.h"
#include "properties/sets/TPropertySetForPin.h"
#include "properties/sets/TPropertySetForPort.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForTag.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"

#include <QApplication>

namespace {

using Test::WatchfulBoard;
using Items = QList<TGraphicsItem*>;
using MakeSet = TPropertySet* (*)(const Items& items, WatchfulBoard& board);

struct SetMaker
{
    const char* name;
    MakeSet make;
};

const SetMaker setMakers[] = {
    {"via",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForVia(items, board.ViaGroups());
     }},
    {"pad",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForPad(items, board.Sides());
     }},
    {"hole", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForHole(items); }},
    {"wire",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForWire(items, &board.project);
     }},
    {"package",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForPackage(items, board.Sides(), &board);
     }},
    {"net tie",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForNetTiePcb(items, &board.project);
     }},
    {"net tie symbol",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForNetTieSch(items, &board.project);
     }},
    {"text",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForText(items, board.Sides());
     }},
    {"primitives",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForPrimitives(items, board.Sides());
     }},
    {"milling", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForMilling(items); }},
    {"keepout", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForKeepout(items); }},
    {"outline", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForOutline(items); }},
    {"pour",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForPour(items, board.Sides());
     }},
    {"net",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForNet(items, &board.schematic);
     }},
    {"bus", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForBus(items); }},
    {"pin", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForPin(items); }},
    {"port",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForPort(items, &board.schematic);
     }},
    {"part", [](const Items& items, WatchfulBoard&) -> TPropertySet* { return new TPropertySetForPart(items); }},
    {"tag",
     [](const Items& items, WatchfulBoard& board) -> TPropertySet* {
         return new TPropertySetForTag(items, &board.project);
     }},
};

} // namespace

Q_DECLARE_METATYPE(MakeSet)

/** Building, showing and destroying a set writes nothing and says nothing, bypass or not. */
class TestBuilding : public QObject
{
    Q_OBJECT

private slots:
    void leavesTheItemsAlone_data()
    {
        QTest::addColumn<MakeSet>("makeSet");
        QTest::addColumn<bool>("bypass");
        for (const SetMaker& maker : setMakers) {
            QTest::addRow("%s set", maker.name) << maker.make << false;
            QTest::addRow("%s set, undo bypassed", maker.name) << maker.make << true;
        }
    }

    void leavesTheItemsAlone()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        Test::PanelWindow place;
        board.SetBypass(bypass);
        const QString before = board.DumpAll();
        const int refreshes = board.Refreshes();
        Test::RepaintLog repaints(*board.Scene());
        Test::RepaintLog sheetRepaints(*board.sheet->Scene());
        int sets = 0;
        for (const QList<TGraphicsItem*>& selection : board.Selections()) {
            TPropertySet* set = makeSet(selection, board);
            const Test::CommandLog log(*set);
            sets += set->Properties().isEmpty() ? 0 : 1;
            place.Show(set);
            Test::Settle();
            place.Show(nullptr);
            QCOMPARE(log.Count(), 0);
            QCOMPARE(board.DumpAll(), before);
        }
        QVERIFY(sets > 1);
        QCOMPARE(board.Refreshes(), refreshes);
        QCOMPARE(repaints.Take(), QRectF());
        QCOMPARE(sheetRepaints.Take(), QRectF());
    }

    void takesAllItsWidgetsAlong_data() { leavesTheItemsAlone_data(); }

    /** Rows that are made and not shown, too. */
    void takesAllItsWidgetsAlong()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        Test::PanelWindow place;
        place.Show(nullptr);
        board.SetBypass(bypass);
        const int before = QApplication::allWidgets().size();
        delete makeSet(board.AllItems(), board);
        Test::Settle();
        QCOMPARE(QApplication::allWidgets().size(), before);

        place.Show(makeSet(board.AllItems(), board));
        QVERIFY(QApplication::allWidgets().size() > before);
        place.Show(nullptr);
        Test::Settle();
        QCOMPARE(QApplication::allWidgets().size(), before);
    }

    void nullsAreSkipped_data() { leavesTheItemsAlone_data(); }

    void nullsAreSkipped()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        board.SetBypass(bypass);
        for (const QList<TGraphicsItem*>& selection : board.Selections()) {
            const std::unique_ptr<TPropertySet> plain(makeSet(selection, board));
            const std::unique_ptr<TPropertySet> holed(makeSet(Items{nullptr} + selection + Items{nullptr}, board));
            QCOMPARE(holed->Name(), plain->Name());
            QCOMPARE(Test::RowTexts(holed.get()), Test::RowTexts(plain.get()));
        }
        const std::unique_ptr<TPropertySet> ofNone(makeSet({}, board));
        const std::unique_ptr<TPropertySet> ofNulls(makeSet({nullptr, nullptr}, board));
        QCOMPARE(ofNulls->Name(), ofNone->Name());
        QCOMPARE(Test::RowTexts(ofNulls.get()), Test::RowTexts(ofNone.get()));
    }

    void noEditorIsAWindowOnceTheSetIsShown_data() { leavesTheItemsAlone_data(); }

    /** Those of rows that are made and not shown neither. */
    void noEditorIsAWindowOnceTheSetIsShown()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        board.SetBypass(bypass);
        Test::PanelWindow place;
        place.Show(nullptr);
        const QWidgetList before = QApplication::topLevelWidgets();
        place.Show(makeSet(board.AllItems(), board));
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            QVERIFY2(before.contains(window) || window->parent(), window->metaObject()->className());
        }
    }

    void unshownEditorsStayHiddenInAPanelThatIsShownLater_data() { leavesTheItemsAlone_data(); }

    void unshownEditorsStayHiddenInAPanelThatIsShownLater()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        board.SetBypass(bypass);
        Test::PanelWindow place;
        place.panel->SetPropertySet(makeSet(board.AllItems(), board));
        place.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&place.window));
        QVERIFY(place.Tree()->isVisible());
        for (const QWidget* child : place.panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            QVERIFY2(child == place.Tree() || !child->isVisible(), child->metaObject()->className());
        }
    }

    void readsTheItemsOnce_data() { leavesTheItemsAlone_data(); }

    void readsTheItemsOnce()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        board.SetBypass(bypass);
        const std::unique_ptr<TPropertySet> set(makeSet(board.AllItems(), board));
        const QStringList rows = Test::RowTexts(set.get());
        for (TGraphicsItem* item : board.AllItems()) {
            item->SetLayer(Osmirel::Copper3);
            item->SetAltColor(Qt::red);
            item->setRotation(90);
            item->SetTFlag(TGraphicsItem::UndoBypass, !bypass);
        }
        QCOMPARE(Test::RowTexts(set.get()), rows);
    }
};

PROPERTIES_TEST(TestBuilding)
#include "tst_building.moc"
