#include "properties/commands/TCmdWireLayer.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ImportedItems.h"
#include "workbench/design/LoadDesign.h"

#include <application/TProject.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsViaItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QtTest>

using ImportedItems::All;

namespace {

/** What the copper of a board consists of, by which one sees what a change of layer has done. */
struct TCopperCounts
{
    explicit TCopperCounts(TBoard& board)
    {
        const QList<TGraphicsItem*> items = board.Scene()->DesignItems();
        for (const TGraphicsItem* item : items) {
            vias += item->type() == ItemType::Via ? 1 : 0;
            junctions += item->type() == ItemType::Junction ? 1 : 0;
            links += item->Links().size();
        }
    }

    int vias = 0;
    int junctions = 0;
    int links = 0;
};

} // namespace

/** The sample board shows everything that the library edits. */
class TestSample : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        imported = ImportBoard(SampleBoardFile());
        QCOMPARE(imported.error, QString());
        QVERIFY(imported.board && imported.schematic);
    }

    void leavesNothingOut() { QVERIFY(imported.notShown.isEmpty() && imported.warnings.isEmpty()); }

    void holdsEveryKindOfABoard_data()
    {
        QTest::addColumn<int>("least");
        QTest::newRow("via") << 20;
        QTest::newRow("pad") << 50;
        QTest::newRow("hole") << 4;
        QTest::newRow("wire") << 50;
        QTest::newRow("junction") << 3;
        QTest::newRow("package") << 20;
        QTest::newRow("line") << 2;
        QTest::newRow("rectangle") << 2;
        QTest::newRow("ellipse") << 2;
        QTest::newRow("arc") << 1;
        QTest::newRow("polygon") << 2;
        QTest::newRow("polyline") << 1;
        QTest::newRow("milling") << 2;
        QTest::newRow("text") << 20;
        QTest::newRow("nettie") << 1;
        QTest::newRow("pour") << 3;
        QTest::newRow("keepout") << 1;
        QTest::newRow("outline") << 1;
        QTest::newRow("ratline") << 5;
    }

    void holdsEveryKindOfABoard()
    {
        QFETCH(int, least);
        const QString kind = QTest::currentDataTag();
        const QList<TGraphicsItem*> items = imported.board->Items();
        const auto found =
            std::count_if(items.begin(), items.end(), [&kind](const auto* item) { return item->KindName() == kind; });
        QVERIFY2(found >= least, qPrintable(QString::number(found)));
    }

    void holdsFreeDrawings()
    {
        QSet<int> free;
        const QList<TGraphicsItem*> items = imported.board->Items();
        for (const TGraphicsItem* item : items) {
            if (!item->parentItem()) {
                free.insert(item->type());
            }
        }
        for (const int type : {ItemType::Line, ItemType::Rectangle, ItemType::Ellipse, ItemType::Polyline,
                               ItemType::Polygon, ItemType::Arc, ItemType::Text}) {
            QVERIFY(free.contains(type));
        }
    }

    void holdsTextsOfAllStyles()
    {
        const auto texts = All<TGraphicsTextItem>(imported);
        const auto has = [&texts](auto predicate) { return std::any_of(texts.begin(), texts.end(), predicate); };
        QVERIFY(has([](auto* text) { return text->Font().weight() > 57; }));
        QVERIFY(has([](auto* text) { return text->Font().style() != QFont::StyleNormal; }));
        QVERIFY(has([](auto* text) { return text->IsMirroredH(); }));
        QVERIFY(has([](auto* text) { return text->Alignment() == Qt::AlignLeft + Qt::AlignBottom; }));
        QVERIFY(has([](auto* text) { return text->rotation() == -90.0; }));
        QVERIFY(has([](auto* text) { return !text->isVisible(); }));
        const auto packages = All<TGraphicsPackageItem>(imported);
        QVERIFY(std::any_of(packages.begin(), packages.end(), [](auto* package) { return package->LockRefDes(); }));
        QVERIFY(std::any_of(packages.begin(), packages.end(), [](auto* package) { return package->LockValue(); }));
    }

    void holdsNetClassesAndColors()
    {
        QCOMPARE(imported.schematic->NetClassNames(), QStringList({"Default", "Power", "USB"}));
        TNetModel& nets = *imported.schematic->NetModel();
        QCOMPARE(nets.RowCount(), 20);
        QCOMPARE(nets.NetClass("GND"), QString("Power"));
        QCOMPARE(nets.NetClass("/USB_D+"), QString("USB"));
        QCOMPARE(nets.NetClass("/LED"), QString("Default"));
        QVERIFY(nets.ColorPcb(nets.NetRow("GND")) != nets.ColorPcb(nets.NetRow("VBUS")));
        QVERIFY(nets.ColorPcb(nets.NetRow("VBUS")).isValid() && !nets.ColorPcb(nets.NetRow("/LED")).isValid());
    }

    void poursOverlapAndHaveThermals()
    {
        const auto pours = All<TGraphicsPourItem>(imported);
        int overlapping = 0;
        for (const TGraphicsPourItem* one : pours) {
            for (const TGraphicsPourItem* other : pours) {
                const bool isWithin = one != other && one->Layer() == other->Layer() && one->Net() != other->Net()
                                      && one->Area().boundingRect().contains(other->Area().boundingRect());
                overlapping += isWithin && other->Priority() > one->Priority() ? 1 : 0;
            }
            QVERIFY(one->ThermalEnable() && one->ThermalLine() > 0 && !one->FilledPath().isEmpty());
        }
        QCOMPARE(overlapping, 1);
    }

    /** Wherever a wire goes, the copper keeps together, and undoing brings back what was. */
    void wiresChangeTheirLayers()
    {
        TProject project;
        project.SetKind(TProject::InStep);
        project.SetBoard(imported.board.get());
        project.SetSchematic(imported.schematic.get());
        const QString before = imported.board->Dump();
        const TCopperCounts atFirst(*imported.board);
        const QList<Osmirel::Layer> layers = imported.board->LayerManager()->CopperLayers();
        const auto wires = All<TGraphicsWireItem>(imported);
        int withNewVias = 0;
        int withFewerJunctions = 0;
        int withCutLinks = 0;
        for (TGraphicsWireItem* wire : wires) {
            for (const Osmirel::Layer layer : layers) {
                TCmdWireLayer command(&project, {wire}, layer);
                command.redo();
                const TCopperCounts after(*imported.board);
                withNewVias += after.vias > atFirst.vias ? 1 : 0;
                withFewerJunctions += after.junctions < atFirst.junctions ? 1 : 0;
                withCutLinks += after.links < atFirst.links ? 1 : 0;
                command.undo();
                QCOMPARE(imported.board->Dump(), before);
            }
        }
        QVERIFY2(withNewVias > 20, qPrintable(QString::number(withNewVias)));
        QVERIFY2(withFewerJunctions > 5, qPrintable(QString::number(withFewerJunctions)));
        QVERIFY2(withCutLinks > 5, qPrintable(QString::number(withCutLinks)));
        project.SetBoard(nullptr);
        project.SetSchematic(nullptr);
    }

private:
    TImportResult imported;
};

PROPERTIES_TEST(TestSample)
#include "tst_sample.moc"
