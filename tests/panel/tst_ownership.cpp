#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/PlainSet.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertySeparator.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForVia.h"

#include <workspace/TDoubleSpinBox.h>

#include <QApplication>
#include <QUndoStack>

#include <memory>

namespace {

/** A set with a row of each fate. */
struct WatchedSet
{
    QPointer<Test::PlainSet> set = new Test::PlainSet;
    Test::RowWatch shown{set->Add<TPropertyText>("Shown", "text", false)};
    Test::RowWatch separator{set->Add<TPropertySeparator>("Group")};
    Test::RowWatch kept{set->Keep<TPropertyFloatSpin>("Never shown", 0, 1, 0.1, 1)};

    bool RowsAreGone() const { return !shown.row && !separator.row && !kept.row; }
    bool EditorsAreGone() const { return !shown.editor && !kept.editor; }
    bool IsComplete() const { return shown.row && shown.editor && separator.row && kept.row && kept.editor; }
};

int LineEdits()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return static_cast<int>(std::count_if(widgets.cbegin(), widgets.cend(),
                                          [](const QWidget* widget) { return widget->inherits("TLineEdit"); }));
}

} // namespace

/** Who deletes sets, rows and editors, in whatever order things go away. */
class TestOwnership : public QObject
{
    Q_OBJECT

private slots:
    void setThatWasNeverShownFreesAll()
    {
        const WatchedSet watched;
        QVERIFY(watched.IsComplete());
        delete watched.set;
        QVERIFY(watched.RowsAreGone());
        Test::Settle();
        QVERIFY(watched.EditorsAreGone());
    }

    void setThatWasShownFreesAll_data()
    {
        QTest::addColumn<bool>("visible");
        QTest::newRow("in a visible panel") << true;
        QTest::newRow("in a panel that nobody saw") << false;
    }

    void setThatWasShownFreesAll()
    {
        QFETCH(bool, visible);
        Test::PanelWindow place;
        const WatchedSet watched;
        if (visible) {
            place.Show(watched.set);
        } else {
            place.panel->SetPropertySet(watched.set);
        }
        QVERIFY(watched.IsComplete());
        place.panel->SetPropertySet(nullptr);
        QVERIFY(!watched.set);
        QVERIFY(watched.RowsAreGone());
        Test::Settle();
        QVERIFY(watched.EditorsAreGone());
    }

    void padRowsThatAreNotAddedAreFreed_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("set was shown") << true;
        QTest::newRow("set was never shown") << false;
    }

    void padRowsThatAreNotAddedAreFreed()
    {
        QFETCH(bool, shown);
        Test::TestBoard board;
        Test::PanelWindow place;
        place.Show(nullptr);
        const int before = LineEdits();
        auto set = std::make_unique<TPropertySetForPad>(QList<TGraphicsItem*>{board.AddSurfacePad()}, board.Sides());
        QVERIFY(!Test::Labels(set.get()).contains("Name:"));
        QVERIFY(LineEdits() > before);
        if (shown) {
            place.Show(set.release());
            place.panel->SetPropertySet(nullptr);
        }
        set.reset();
        Test::Settle();
        QCOMPARE(LineEdits(), before);
    }

    void noSetIsShownWhileTheFormerOneGoes()
    {
        Test::PanelWindow place;
        auto* former = new Test::PlainSet;
        place.Show(former);
        QList<TPropertySet*> shown;
        connect(former, &QObject::destroyed, [&] { shown.append(place.panel->PropertySet()); });
        auto* next = new Test::PlainSet;
        place.panel->SetPropertySet(next);
        QCOMPARE(shown, QList<TPropertySet*>{nullptr});
        QCOMPARE(place.panel->PropertySet(), next);
    }

    void panelTakesItsSetAlong()
    {
        auto parent = std::make_unique<QWidget>();
        auto* panel = new TPropertyWidget(parent.get());
        const WatchedSet watched;
        panel->SetPropertySet(watched.set);
        delete panel;
        QVERIFY(!watched.set);
        QVERIFY(watched.RowsAreGone());
        QVERIFY(watched.EditorsAreGone());
    }

    void windowTakesPanelAndSetAlong()
    {
        const WatchedSet watched;
        {
            Test::PanelWindow place;
            place.Show(watched.set);
        }
        QVERIFY(!watched.set);
        QVERIFY(watched.RowsAreGone());
        QVERIFY(watched.EditorsAreGone());
    }

    void setDeletedBeforeThePanel()
    {
        Test::PanelWindow place;
        const WatchedSet watched;
        place.Show(watched.set);
        delete watched.set;
        QVERIFY(watched.RowsAreGone());
        QCOMPARE(place.Tree()->topLevelItemCount(), 0);
        QVERIFY(!place.panel->PropertySet());

        auto* next = new Test::PlainSet("Next");
        next->Add<TPropertyCheck>("Label");
        place.Show(next);
        QCOMPARE(place.Tree()->topLevelItemCount(), 1);
        QVERIFY(watched.EditorsAreGone());
    }

    void treeDeletedBeforeTheRows()
    {
        Test::PanelWindow place;
        const WatchedSet watched;
        place.Show(watched.set);
        delete place.Tree();
        QVERIFY(!watched.shown.row);
        QVERIFY(!watched.shown.editor);
        QVERIFY(watched.set);
        QCOMPARE(watched.set->Properties(), QList<TAbstractProperty*>());
        place.panel->SetPropertySet(nullptr);
        QVERIFY(!watched.set);
        QVERIFY(watched.RowsAreGone());
        Test::Settle();
        QVERIFY(watched.EditorsAreGone());
    }

    void treeDeletedBeforeThePanel()
    {
        auto parent = std::make_unique<QWidget>();
        auto* panel = new TPropertyWidget(parent.get());
        const WatchedSet watched;
        panel->SetPropertySet(watched.set);
        delete panel->Tree();
        parent.reset();
        QVERIFY(!watched.set);
        Test::Settle();
        QVERIFY(watched.EditorsAreGone());
    }

    void slotsOfRowsThatATreeTookAlong()
    {
        Test::TestBoard board;
        Test::PanelWindow place;
        auto* set = new TPropertySetForPad({board.AddSurfacePad()}, board.Sides());
        place.Show(set);
        const Test::CommandLog log(*set);
        delete place.Tree();
        set->TypeChanged(0);
        set->ShapeChanged(5);
        set->SetWidth(2);
        QCOMPARE(log.Names(), QStringList{"TCmdPadWidth"});
    }

    void destroyingASetTouchesNoItem_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("shown") << true;
        QTest::newRow("never shown") << false;
    }

    void destroyingASetTouchesNoItem()
    {
        QFETCH(bool, shown);
        auto board = std::make_unique<Test::TestBoard>();
        Test::PanelWindow place;
        QPointer<TPropertySet> set(new TPropertySetForVia({board->AddVia(), board->AddVia()}, board->ViaGroups()));
        if (shown) {
            place.Show(set);
        }
        board.reset();
        if (shown) {
            place.panel->SetPropertySet(nullptr);
        } else {
            delete set;
        }
        QVERIFY(!set);
    }

    void itemDeletedWhileShownAndThenReplaced()
    {
        Test::TestBoard board;
        Test::PanelWindow place;
        TGraphicsItem* first = board.AddVia();
        TGraphicsItem* second = board.AddVia();
        place.Show(new TPropertySetForVia({first, second}, board.ViaGroups()));
        delete first;
        Test::Settle();
        auto* next = new TPropertySetForVia({second}, board.ViaGroups());
        place.Show(next);
        QCOMPARE(place.panel->PropertySet(), static_cast<TPropertySet*>(next));
        QCOMPARE(place.Tree()->topLevelItemCount(), 5);
    }

    void commandsOutliveSetAndPanel()
    {
        Test::TestBoard board;
        QUndoStack stack;
        TGraphicsViaItem* via = board.AddVia();
        const QString before = board.Dump();
        {
            Test::PanelWindow place;
            auto* set = new TPropertySetForVia({via}, board.ViaGroups());
            connect(set, &TPropertySet::sigCmd, [&stack](TUndoCommand* command) { stack.push(command); });
            place.Show(set);
            Test::RowOf<TPropertyFloatSpin>(set, "Diameter:")->spin->setValue(0.9);
        }
        QCOMPARE(stack.count(), 1);
        const QString after = board.Dump();
        QVERIFY(after != before);
        stack.undo();
        QCOMPARE(board.Dump(), before);
        stack.redo();
        QCOMPARE(board.Dump(), after);
    }

    void aCommandOfASilencedSetIsDeleted()
    {
        Test::TestBoard board;
        TPropertySetForVia set({board.AddVia()}, board.ViaGroups());
        const Test::CommandLog log(set);
        const QString before = board.Dump();
        set.blockSignals(true);
        set.SetDiam(2); // The leak sanitizer tells whether the command is left over.
        set.blockSignals(false);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(board.Dump(), before);
    }

    void commandWithoutAReceiverChangesNothing()
    {
        Test::TestBoard board;
        TPropertySetForVia set({board.AddVia()}, board.ViaGroups());
        const QString before = board.Dump();
        set.SetDiam(2);
        QCOMPARE(board.Dump(), before);
    }
};

PROPERTIES_TEST(TestOwnership)
#include "tst_ownership.moc"
