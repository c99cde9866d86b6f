#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestMain.h"

#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForVia.h"

namespace {

using CountingVia = Test::Counting<TGraphicsViaItem>;
using CountingPad = Test::Counting<TGraphicsPadItem>;
using CountingHole = Test::Counting<TGraphicsHoleItem>;

/** A board whose items tell when they are written to, with values that the rows cannot show exactly. */
class WatchfulBoard : public Test::TestBoard
{
public:
    WatchfulBoard()
    {
        for (const double size : {8.123, 3000.5}) {
            auto* via = Place<CountingVia>();
            via->SetSize(size, size / 2);
            via->SetDrill(0);
            via->SetViaGroup("Odd");
        }
        int shape = 0;
        for (const bool surface : {true, false, true, false, true, false}) {
            auto* pad = Place<CountingPad>();
            pad->SetSize(1800.123, 0.456);
            pad->SetPadShape(static_cast<TGraphicsPadItem::TypePadShape>(++shape));
            pad->SetTypeSMD(surface);
            pad->SetMaskClearance(-1.5F);
            pad->SetPasteClearance(-1.5F);
        }
        Place<CountingHole>()->SetSize(0.5F, 0.75F);
    }

    void SetBypass(bool on)
    {
        for (TGraphicsItem* item : Items()) {
            item->SetTFlag(TGraphicsItem::UndoBypass, on);
        }
    }

    int Refreshes() const
    {
        int refreshes = 0;
        for (TGraphicsItem* item : Items()) {
            if (auto* via = dynamic_cast<CountingVia*>(item)) {
                refreshes += via->refreshes;
            } else if (auto* pad = dynamic_cast<CountingPad*>(item)) {
                refreshes += pad->refreshes;
            } else if (auto* hole = dynamic_cast<CountingHole*>(item)) {
                refreshes += hole->refreshes;
            }
        }
        return refreshes;
    }

    /** Each item alone and all together. */
    QList<QList<TGraphicsItem*>> Selections() const
    {
        QList<QList<TGraphicsItem*>> selections{Items()};
        for (TGraphicsItem* item : Items()) {
            selections.append({item});
        }
        return selections;
    }

private:
    template <class Item>
    Item* Place()
    {
        auto item = std::make_unique<Item>();
        Item* attached = item.get();
        Attach(std::move(item));
        return attached;
    }
};

using MakeSet = TPropertySet* (*)(const QList<TGraphicsItem*>& items, const WatchfulBoard& board);

TPropertySet* MakeViaSet(const QList<TGraphicsItem*>& items, const WatchfulBoard& board)
{
    return new TPropertySetForVia(items, board.ViaGroups());
}

TPropertySet* MakePadSet(const QList<TGraphicsItem*>& items, const WatchfulBoard& board)
{
    return new TPropertySetForPad(items, board.Sides());
}

TPropertySet* MakeHoleSet(const QList<TGraphicsItem*>& items, const WatchfulBoard&)
{
    return new TPropertySetForHole(items);
}

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
        for (const bool bypass : {false, true}) {
            const char* how = bypass ? ", undo bypassed" : "";
            QTest::addRow("via set%s", how) << MakeSet(MakeViaSet) << bypass;
            QTest::addRow("pad set%s", how) << MakeSet(MakePadSet) << bypass;
            QTest::addRow("hole set%s", how) << MakeSet(MakeHoleSet) << bypass;
        }
    }

    void leavesTheItemsAlone()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        Test::PanelWindow place;
        board.SetBypass(bypass);
        const QString before = board.Dump();
        const int refreshes = board.Refreshes();
        Test::RepaintLog repaints(*board.Scene());
        int sets = 0;
        for (const QList<TGraphicsItem*>& selection : board.Selections()) {
            TPropertySet* set = makeSet(selection, board);
            const Test::CommandLog log(*set);
            sets += set->Properties().isEmpty() ? 0 : 1;
            place.Show(set);
            Test::Settle();
            place.Show(nullptr);
            QCOMPARE(log.Count(), 0);
            QCOMPARE(board.Dump(), before);
        }
        QVERIFY(sets > 1);
        QCOMPARE(board.Refreshes(), refreshes);
        QCOMPARE(repaints.Take(), QRectF());
    }

    void readsTheItemsOnce_data() { leavesTheItemsAlone_data(); }

    void readsTheItemsOnce()
    {
        QFETCH(MakeSet, makeSet);
        QFETCH(bool, bypass);
        WatchfulBoard board;
        board.SetBypass(bypass);
        const std::unique_ptr<TPropertySet> set(makeSet(board.Items(), board));
        const QStringList rows = Test::RowTexts(set.get());
        for (TGraphicsItem* item : board.Items()) {
            if (auto* via = dynamic_cast<TGraphicsViaItem*>(item)) {
                via->SetSize(30, 30);
                via->SetThermal(TGraphicsViaItem::ThermalNo);
            }
        }
        QCOMPARE(Test::RowTexts(set.get()), rows);
    }
};

PROPERTIES_TEST_MAIN(TestBuilding)
#include "tst_building.moc"
