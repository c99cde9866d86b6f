#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestMain.h"

#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForNetTieSch.h"
#include "properties/sets/TPropertySetForOutline.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QApplication>

#include <numeric>

namespace {

/** A board whose items tell when they are written to, with values that the rows cannot show exactly. */
class WatchfulBoard : public Test::TestBoard
{
public:
    WatchfulBoard()
    {
        project.SetBoard(this);
        project.SetSchematic(&schematic);
        project.SetKind(TProject::InStep);
        schematic.NetModel()->AddNet("GND", "of no schematic", Qt::red, QColor(1, 2, 3, 4), 77);
        AddCopper();
        AddDrawings();
        AddComponents();
        for (TGraphicsItem* item : Items()) {
            item->SetAltColor(QColor(1, 2, item->DesignOrder()));
        }
    }

    ~WatchfulBoard() { project.SetBoard(nullptr); }

    void SetBypass(bool on)
    {
        for (TGraphicsItem* item : Items()) {
            item->SetTFlag(TGraphicsItem::UndoBypass, on);
        }
    }

    int Refreshes() const
    {
        return std::accumulate(refreshes.cbegin(), refreshes.cend(), 0,
                               [](int sum, const int* count) { return sum + *count; });
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

    TSchematic schematic;
    TProject project;

private:
    void AddCopper()
    {
        for (const double size : {8.123, 3000.5}) {
            auto* via = Place<TGraphicsViaItem>();
            via->SetSize(size, size / 2);
            via->SetDrill(0);
            via->SetViaGroup("Odd");
        }
        int shape = 0;
        for (const bool surface : {true, false, true, false, true, false}) {
            auto* pad = Place<TGraphicsPadItem>();
            pad->SetSize(1800.123, 0.456);
            pad->SetPadShape(static_cast<TGraphicsPadItem::TypePadShape>(++shape));
            pad->SetTypeSMD(surface);
            pad->SetMaskClearance(-1.5F);
            pad->SetPasteClearance(-1.5F);
        }
        Place<TGraphicsHoleItem>()->SetSize(0.5F, 0.75F);
        auto* junction = Place<TGraphicsJunctionItem>();
        for (const float width : {0.00123F, 77777.0F}) {
            auto* wire = Place<TGraphicsWireItem>();
            wire->SetPenWidth(width);
            wire->SetLayer(Osmirel::Copper5);
            wire->SetNet("GND");
            wire->LinkToFirst(junction);
            wire->SetCompositionMode(99);
        }
        for (const double length : {0.00123, 77777.0}) {
            auto* pour = Place<TGraphicsPourItem>();
            pour->SetClearanceToEtch(length);
            pour->SetMinimumArea(length);
            pour->SetFillType(Qt::Dense3Pattern);
            pour->SetPriority(200);
            pour->SetAlpha(300);
            pour->SetCompositionMode(99);
        }
    }

    void AddDrawings()
    {
        AddPen<TGraphicsLineItem>();
        AddPen<TGraphicsRectItem>()->SetSize(-1.234F, 77777.0F);
        AddPen<TGraphicsEllipseItem>()->Brush().setStyle(Qt::Dense3Pattern);
        AddPen<TGraphicsPolygonItem>();
        AddPen<TGraphicsArcItem>();
        for (const float width : {0.00123F, 77777.0F}) {
            auto* path = AddPen<TGraphicsPolylineItem>();
            path->SetLayer(Osmirel::Milling);
            path->SetPenWidth(width);
        }
        for (const int pixels : {1, 777}) {
            auto* text = Place<TGraphicsTextItem>();
            text->Font().setPixelSize(pixels);
            text->Font().setWeight(80);
            text->Font().setStyle(QFont::StyleOblique);
            text->setRotation(12.5);
            text->SetAlignment(Qt::AlignTop);
            text->SetLineWidth(0.3F);
            text->UpdatePath(false);
        }
        Place<TGraphicsKeepoutItem>()->SetLayerEnable(Osmirel::Copper2, true);
        Place<TGraphicsKeepoutItem>();
        Place<TGraphicsOutlineItem>()->SetPoints({{0, 0, 0}, {1.234, 77777, 0}});
    }

    void AddComponents()
    {
        for (const char* name : {"a@b", "@"}) {
            auto* package = Place<TGraphicsPackageItem>();
            package->SetPackageName(name);
            package->SetLockValue(true);
            package->SetLayer(Osmirel::CopperBottom);
        }
        for (const double length : {0.00123, 77777.0}) {
            auto* tie = Place<TGraphicsNetTiePcbItem>();
            tie->SetPadSize(length);
            tie->Pen().setWidthF(length);
        }
        Place<TGraphicsNetTieSchItem>()->SetSymbol(7);
        Place<TGraphicsNetTieSchItem>()->SetNameVisible(false);
    }

    template <class Item>
    Item* Place()
    {
        auto item = std::make_unique<Test::Counting<Item>>();
        auto* attached = item.get();
        refreshes.append(&attached->refreshes);
        Attach(std::move(item));
        return attached;
    }

    template <class Item>
    Item* AddPen()
    {
        Item* item = Place<Item>();
        item->SetPenWidth(0.00123F);
        item->Pen().setStyle(Qt::CustomDashLine);
        return item;
    }

    QList<const int*> refreshes;
};

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
        delete makeSet(board.Items(), board);
        Test::Settle();
        QCOMPARE(QApplication::allWidgets().size(), before);

        place.Show(makeSet(board.Items(), board));
        QVERIFY(QApplication::allWidgets().size() > before);
        place.Show(nullptr);
        Test::Settle();
        QCOMPARE(QApplication::allWidgets().size(), before);
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
            item->SetLayer(Osmirel::Copper3);
            item->SetAltColor(Qt::red);
            item->setRotation(90);
            item->SetTFlag(TGraphicsItem::UndoBypass, !bypass);
        }
        QCOMPARE(Test::RowTexts(set.get()), rows);
    }
};

PROPERTIES_TEST_MAIN(TestBuilding)
#include "tst_building.moc"
