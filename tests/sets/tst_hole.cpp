#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/sets/TPropertySetForHole.h"

#include <workspace/TDoubleSpinBox.h>

namespace {

double SingleScene(double millimetres)
{
    return Test::Single(millimetres * Test::sceneUnitsPerMillimetre);
}

/** A board with holes of 1, 2 and 3 mm among other items. */
struct Holes
{
    Holes()
    {
        items = {board.AddHole(1), board.AddHole(2), board.AddHole(3)};
        auto rectangle = std::make_unique<TGraphicsRectItem>();
        rectangle->SetSize(500, 500);
        selection = {board.AddVia(), items[0], items[1], rectangle.get(), items[2], board.AddSurfacePad()};
        board.Attach(std::move(rectangle));
    }

    QList<double> Widths() const
    {
        QList<double> widths;
        for (const TGraphicsRectItem* hole : items) {
            widths.append(hole->Size().width());
        }
        return widths;
    }

    Test::TestBoard board;
    QList<TGraphicsRectItem*> items;
    QList<TGraphicsItem*> selection;
};

QString Row(const QString& value)
{
    return "TPropertyFloatSpin Diameter: 0.1..99 step 0.1 decimals 2 = " + value;
}

} // namespace

class TestHoleSet : public QObject
{
    Q_OBJECT

private slots:
    void showsTheLastHole_data()
    {
        QTest::addColumn<QList<double>>("diameters");
        QTest::addColumn<QString>("value");
        QTest::newRow("one") << QList<double>{3.2} << "3.20 mm";
        QTest::newRow("three") << QList<double>{1, 2, 3} << "3.00 mm";
        QTest::newRow("three, the other way round") << QList<double>{3, 2, 1} << "1.00 mm";
        QTest::newRow("two decimals") << QList<double>{0.456} << "0.46 mm";
        QTest::newRow("beyond the range: clamped") << QList<double>{150} << "99.00 mm";
        QTest::newRow("none: zero, clamped") << QList<double>{} << "0.10 mm";
    }

    void showsTheLastHole()
    {
        QFETCH(QList<double>, diameters);
        QFETCH(QString, value);
        Test::TestBoard board;
        QList<TGraphicsItem*> items;
        for (const double diameter : diameters) {
            items.append(board.AddHole(diameter));
        }
        const TPropertySetForHole set(items);
        QCOMPARE(set.Name(), QString("Hole"));
        QCOMPARE(Test::RowTexts(&set), QStringList{Row(value)});
    }

    void showsTheWidth()
    {
        Test::TestBoard board;
        TGraphicsHoleItem* hole = board.AddHole();
        hole->SetSize(float(SingleScene(5)), float(SingleScene(2)));
        const TPropertySetForHole set({hole});
        QCOMPARE(Test::RowTexts(&set), QStringList{Row("5.00 mm")});
    }

    void otherKindsAreSkipped()
    {
        const Holes holes;
        const TPropertySetForHole set(holes.selection);
        QCOMPARE(Test::RowTexts(&set), QStringList{Row("3.00 mm")});
    }

    void unitIsAlwaysMillimetres()
    {
        Test::TestBoard board;
        board.Workspace()->SetCurrentUnit(TWorkspace::Unit::Inch);
        const TPropertySetForHole set({board.AddHole(2)});
        QCOMPARE(Test::RowTexts(&set), QStringList{Row("2.00 mm")});
    }

    void holeWithoutAWorkspaceIsEdited()
    {
        TGraphicsHoleItem hole;
        hole.SetSize(float(SingleScene(2)), float(SingleScene(2)));
        TPropertySetForHole set({&hole});
        QCOMPARE(Test::RowTexts(&set), QStringList{Row("2.00 mm")});
        Test::CommandLog log(set);
        set.slotDiam(4);
        log.Redo();
        QCOMPARE(hole.Size().width(), SingleScene(4));
    }

    void bypassIsLookedAtForEachHole_data()
    {
        QTest::addColumn<QList<int>>("bypassing");
        QTest::newRow("none: one command over all") << QList<int>{};
        QTest::newRow("the first") << QList<int>{0};
        QTest::newRow("one in the middle") << QList<int>{1};
        QTest::newRow("the last two") << QList<int>{1, 2};
        QTest::newRow("all: no command") << QList<int>{0, 1, 2};
    }

    void bypassIsLookedAtForEachHole()
    {
        QFETCH(QList<int>, bypassing);
        const double wanted = SingleScene(2.5);
        Holes holes;
        QList<double> atOnce = holes.Widths();
        for (const int index : bypassing) {
            holes.items[index]->SetTFlag(TGraphicsItem::UndoBypass, true);
            atOnce[index] = wanted;
        }
        TPropertySetForHole set(holes.selection);
        Test::CommandLog log(set);

        Test::RowOf<TPropertyFloatSpin>(&set, "Diameter:")->spin->setValue(2.5);
        QCOMPARE(log.Names(), bypassing.size() == 3 ? QStringList{} : QStringList{"TCmdRectSize"});
        QCOMPARE(holes.Widths(), atOnce);
        log.Redo();
        for (const TGraphicsRectItem* hole : holes.items) {
            QCOMPARE(hole->Size(), QSizeF(wanted, wanted));
        }
        log.Undo();
        QCOMPARE(holes.Widths(), atOnce);
        QCOMPARE(holes.selection[3]->boundingRect().contains(QRectF(-250, -250, 500, 500)), true);
    }

    void slotTakesMillimetresBeyondTheRow()
    {
        Holes holes;
        TPropertySetForHole set(holes.selection);
        Test::CommandLog log(set);
        set.slotDiam(0.0123456789);
        log.Redo();
        QCOMPARE(holes.Widths(),
                 QList<double>({SingleScene(0.0123456789), SingleScene(0.0123456789), SingleScene(0.0123456789)}));
    }

    void heldHolesAreWrittenBeforeTheCommandIsMade()
    {
        Holes holes;
        holes.items[2]->SetTFlag(TGraphicsItem::UndoBypass, true);
        TPropertySetForHole set(holes.selection);
        QList<double> seen;
        connect(&set, &TPropertySet::sigCmd, [&](TUndoCommand* command) {
            seen = holes.Widths();
            delete command;
        });
        set.slotDiam(2.5);
        QCOMPARE(seen, QList<double>({SingleScene(1), SingleScene(2), SingleScene(2.5)}));
    }

    void rowWithoutHolesDoesNothing()
    {
        Test::TestBoard board;
        TPropertySetForHole set({board.AddVia()});
        const QString before = board.Dump();
        const Test::CommandLog log(set);
        Test::RowOf<TPropertyFloatSpin>(&set, "Diameter:")->spin->setValue(5);
        set.slotDiam(6);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(board.Dump(), before);
    }

    void textsAreTranslated()
    {
        const Test::MarkingTranslator translator;
        const TPropertySetForHole set({});
        QCOMPARE(set.Name(), QString("~Hole"));
        QCOMPARE(Test::Labels(&set), QStringList{"~Diameter:"});
        QVERIFY(translator.WasAsked("TPropertySetForHole", "Hole"));
        QVERIFY(translator.WasAsked("TPropertySetForHole", "Diameter:"));
    }
};

PROPERTIES_TEST(TestHoleSet)
#include "tst_hole.moc"
