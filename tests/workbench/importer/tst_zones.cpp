#include "tests/support/TestProgram.h"
#include "tests/workbench/support/BoardTexts.h"
#include "tests/workbench/support/ImportedItems.h"

#include <graphics/TGraphicsPolygonItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using BoardTexts::Board;
using BoardTexts::BoardWithLayers;
using ImportedItems::All;
using ImportedItems::millimetre;
using ImportedItems::NotShown;
using ImportedItems::Only;

namespace {

constexpr auto square = "(polygon (pts (xy 0 0) (xy 10 0) (xy 10 10) (xy 0 10)))";

TImportResult Import(const QByteArray& elements)
{
    return ImportBoardText(Board(elements), QStringLiteral("board"));
}

QList<int> Sorted(QList<int> list)
{
    std::sort(list.begin(), list.end());
    return list;
}

TImportResult ImportWithProject(const QByteArray& elements, const QByteArray& project)
{
    return ImportBoardText({Board(elements), "board", project, "project", {}});
}

} // namespace

/** Pours, keepouts, net ties, and the nets with their classes. */
class TestZones : public QObject
{
    Q_OBJECT

private slots:
    void readsPours_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::newRow("version 5") << QByteArray(
            "(zone (net 1) (net_name GND) (layer F.Cu) (tstamp 0) (hatch edge 0.508) (priority 3)"
            "(connect_pads (clearance 0.3)) (min_thickness 0.25)"
            "(fill yes (arc_segments 16) (thermal_gap 0.4) (thermal_bridge_width 0.5)) @ "
            "(filled_polygon (pts (xy 1 1) (xy 2 1) (xy 2 2))))");
        QTest::newRow("version 6") << QByteArray(
            R"((zone locked (net 1) (net_name "GND") (layer "F.Cu") (tstamp 1-2) (hatch edge 0.508) (priority 3))"
            "(connect_pads (clearance 0.3)) (min_thickness 0.25) (filled_areas_thickness no)"
            "(fill yes (thermal_gap 0.4) (thermal_bridge_width 0.5)) @ "
            R"((filled_polygon (layer "F.Cu") (pts (xy 1 1) (xy 2 1) (xy 2 2)))))");
        QTest::newRow("version 8") << QByteArray(
            R"((zone (net 1) (net_name "GND") (locked yes) (layers "F.Cu") (uuid "1") (name "x") (hatch edge 0.5))"
            "(priority 3) (connect_pads (clearance 0.3)) (min_thickness 0.25) (filled_areas_thickness no)"
            "(fill yes (thermal_gap 0.4) (thermal_bridge_width 0.5)) @)");
    }

    void readsPours()
    {
        QFETCH(QByteArray, zone);
        const TImportResult imported = Import(zone.replace("@", square));
        QCOMPARE(imported.error, QString());
        QVERIFY(imported.notShown.isEmpty());
        const auto* pour = Only<TGraphicsPourItem>(imported);
        QVERIFY(pour);
        QCOMPARE(pour->Net(), QString("GND"));
        QCOMPARE(pour->Layer(), Osmirel::CopperTop);
        QCOMPARE(pour->Area(),
                 QPolygonF({{0, 0}, {10 * millimetre, 0}, {10 * millimetre, 10 * millimetre}, {0, 10 * millimetre}}));
        QCOMPARE(pour->ClearanceToEtch(), 0.3 * millimetre);
        QCOMPARE(pour->ClearanceToPour(), 0.3 * millimetre);
        QCOMPARE(pour->LineWidth(), 0.25 * millimetre);
        QCOMPARE(pour->ThermalIsolation(), 0.4 * millimetre);
        QCOMPARE(pour->ThermalLine(), 0.5 * millimetre);
        QCOMPARE(int(pour->Priority()), 3);
        QCOMPARE(pour->FillType(), int(Qt::SolidPattern));
        QVERIFY(pour->ThermalEnable());
        QVERIFY(pour->OnlyConnected());
        QCOMPARE(pour->HasTFlag(TGraphicsItem::Lock), zone.contains("locked"));
    }

    void readsPourOptions_data()
    {
        QTest::addColumn<int>("fill");
        QTest::addColumn<bool>("thermal");
        QTest::addColumn<bool>("onlyConnected");
        QTest::addColumn<double>("area");
        const auto row = [](const char* options, int fill, bool thermal, bool onlyConnected, double area = 0) {
            QTest::newRow(options) << fill << thermal << onlyConnected << area;
        };
        row("(net 1) (connect_pads (clearance 0)) (fill yes)", Qt::SolidPattern, true, true);
        row("(net 1) (connect_pads yes (clearance 0)) (fill yes)", Qt::SolidPattern, false, true);
        row("(net 1) (connect_pads no (clearance 0)) (fill yes)", Qt::SolidPattern, true, true);
        row("(net 1) (connect_pads thru_hole_only (clearance 0)) (fill yes)", Qt::SolidPattern, true, true);
        row("(net 1) (fill (thermal_gap 0.5))", Qt::NoBrush, true, true);
        row("(net 1)", Qt::NoBrush, true, true);
        row("(net 1) (fill yes (mode hatch) (hatch_thickness 1))", Qt::CrossPattern, true, true);
        row("(net 1) (fill yes (island_removal_mode 1) (island_area_min 7))", Qt::SolidPattern, true, false);
        row("(net 1) (fill yes (island_removal_mode 2) (island_area_min 7.5))", Qt::SolidPattern, true, false, 7.5);
        row("(net 0) (fill yes)", Qt::SolidPattern, true, false);
    }

    void readsPourOptions()
    {
        const QByteArray options = QTest::currentDataTag();
        const TImportResult imported = Import("(zone " + options + " (layer B.Cu) " + square + ")");
        QCOMPARE(imported.error, QString());
        const auto* pour = Only<TGraphicsPourItem>(imported);
        QVERIFY(pour);
        QTEST(pour->FillType(), "fill");
        QTEST(pour->ThermalEnable(), "thermal");
        QTEST(pour->OnlyConnected(), "onlyConnected");
        QTEST(pour->MinimumArea(), "area");
        QCOMPARE(NotShown(imported, "zones without pad connections (read as connected)"),
                 options.contains("connect_pads no") ? 1 : 0);
        QCOMPARE(NotShown(imported, "zones with thermal reliefs on drilled pads only (read as on all)"),
                 options.contains("thru_hole_only") ? 1 : 0);
    }

    void makesOnePourOfEachLayerAndPolygon_data()
    {
        using namespace Osmirel;
        QTest::addColumn<QByteArray>("layers");
        QTest::addColumn<QList<int>>("pours"); // The layers of what one polygon gives.
        QTest::newRow("one") << QByteArray(R"((layer "In1.Cu"))") << QList<int>{Copper2};
        QTest::newRow("two") << QByteArray(R"((layers "F.Cu" "B.Cu"))") << QList<int>{CopperTop, CopperBottom};
        QTest::newRow("both sides") << QByteArray("(layers F&B.Cu)") << QList<int>{CopperTop, CopperBottom};
        QTest::newRow("all") << QByteArray("(layers *.Cu)") << QList<int>{CopperTop, Copper2, CopperBottom};
    }

    void makesOnePourOfEachLayerAndPolygon()
    {
        QFETCH(QByteArray, layers);
        QFETCH(QList<int>, pours);
        const QByteArray zone = "(zone (net 1) " + layers + " (fill yes) " + square
                                + "(polygon (pts (xy 20 0) (arc (start 30 0) (mid 35 5) (end 30 10)) (xy 20 10))))";
        const TImportResult imported = ImportBoardText(
            BoardWithLayers("(0 F.Cu signal) (1 In1.Cu signal) (31 B.Cu signal)", zone), QStringLiteral("board"));
        QCOMPARE(imported.error, QString());
        QList<int> found;
        for (const TGraphicsPourItem* pour : All<TGraphicsPourItem>(imported)) {
            found.append(pour->Layer());
            const bool isSquare = pour->Area().size() == 4;
            QCOMPARE(pour->Area().boundingRect().right() > 34.9 * millimetre, !isSquare);
        }
        QCOMPARE(Sorted(found), Sorted(pours + pours));
    }

    void areasWithoutCopperAreDrawn()
    {
        const TImportResult imported = Import(QByteArray("(zone (net 0) (layers F.Mask Unknown) (fill yes) ") + square
                                              + ")(zone (layer Unknown) " + square + ")");
        QCOMPARE(imported.error, QString());
        const auto* area = Only<TGraphicsPolygonItem>(imported);
        QVERIFY(area && All<TGraphicsPourItem>(imported).isEmpty());
        QCOMPARE(area->Layer(), Osmirel::MaskTop);
        QCOMPARE(area->Brush().style(), Qt::SolidPattern);
        QCOMPARE(NotShown(imported, "zones on unknown layers"), 1);
    }

    void poursAreFilled()
    {
        const TImportResult imported = Import(
            QByteArray("(zone (net 1) (layer F.Cu) (connect_pads (clearance 0.5)) (min_thickness 0.2) (fill yes) ")
            + square + ")(via (at 5 5) (size 1) (drill 0.5) (net 1)) (via (at 8 8) (size 1) (drill 0.5) (net 2))");
        const auto* pour = Only<TGraphicsPourItem>(imported);
        QVERIFY(pour->IsFilledAt(QPointF(2, 2) * millimetre));
        QVERIFY(!pour->IsFilledAt(QPointF(8, 8.8) * millimetre)); // Kept off the other net.
        QVERIFY(!pour->IsFilledAt(QPointF(11, 5) * millimetre));
    }

    void keepsOffTheEdge_data()
    {
        QTest::addColumn<QByteArray>("project");
        QTest::addColumn<double>("clearance");
        QTest::newRow("the project's") << QByteArray(
            R"({"board": {"design_settings": {"rules": {"min_copper_edge_clearance": 0.5}}}})")
                                       << 0.5;
        QTest::newRow("none at all") << QByteArray(
            R"({"board": {"design_settings": {"rules": {"min_copper_edge_clearance": 0}}}})")
                                     << 0.0;
        QTest::newRow("the usual one") << QByteArray("{}") << 0.25;
        QTest::newRow("no project") << QByteArray() << 0.25;
    }

    void keepsOffTheEdge()
    {
        QFETCH(QByteArray, project);
        QFETCH(double, clearance);
        const TImportResult imported =
            ImportWithProject(QByteArray("(zone (net 1) (layer F.Cu) (fill yes) ") + square + ")", project);
        QCOMPARE(Only<TGraphicsPourItem>(imported)->ClearanceToBorder(), clearance * millimetre);
    }

    void readsKeepouts_data()
    {
        using namespace Osmirel;
        QTest::addColumn<QByteArray>("layers");
        QTest::addColumn<QByteArray>("allowed");
        QTest::addColumn<QList<int>>("acting");
        const QByteArray none = "(tracks not_allowed) (vias not_allowed) (copperpour not_allowed)";
        QTest::newRow("one layer") << QByteArray("(layer F.Cu)") << none << QList<int>{CopperTop};
        QTest::newRow("several") << QByteArray("(layers F.Cu B.Cu)") << none << QList<int>{CopperTop, CopperBottom};
        QTest::newRow("all") << QByteArray("(layers *.Cu)") << none << QList<int>{CopperTop, CopperBottom};
        QTest::newRow("no copper among them") << QByteArray("(layers F.Cu F.Mask)") << none << QList<int>{CopperTop};
        QTest::newRow("lets pours in") << QByteArray("(layer F.Cu)")
                                       << QByteArray("(tracks not_allowed) (vias allowed) (copperpour allowed)")
                                       << QList<int>{};
    }

    void readsKeepouts()
    {
        QFETCH(QByteArray, layers);
        QFETCH(QByteArray, allowed);
        QFETCH(QList<int>, acting);
        const QByteArray zone = R"((zone (net 0) (net_name "") )" + layers + " (hatch edge 0.5) (keepout " + allowed
                                + ") (fill (thermal_gap 0.5)) " + square + ")";
        const TImportResult onBoard = Import(zone);
        const TImportResult inFootprint = Import("(footprint A (layer F.Cu) (at 3 4 90) " + zone + ")");
        for (const TImportResult* imported : {&onBoard, &inFootprint}) {
            QCOMPARE(imported->error, QString());
            const auto* keepout = Only<TGraphicsKeepoutItem>(*imported);
            QVERIFY(keepout);
            QList<int> found;
            for (int layer = Osmirel::CopperTop; layer <= Osmirel::CopperBottom; ++layer) {
                if (keepout->IsLayerEnable(static_cast<Osmirel::Layer>(layer))) {
                    found.append(layer);
                }
            }
            QCOMPARE(found, acting);
            // Its corners are those on the board in footprints too.
            const QRectF box = keepout->mapToScene(keepout->Area()).boundingRect();
            QVERIFY((box.bottomRight() - QPointF(10, 10) * millimetre).manhattanLength() < 1e-6);
            QVERIFY(box.topLeft().manhattanLength() < 1e-6);
            QCOMPARE(imported->notShown.size(), acting.isEmpty() ? 1 : 0);
        }
        QCOMPARE(Only<TGraphicsKeepoutItem>(inFootprint)->parentItem(), Only<TGraphicsPackageItem>(inFootprint));
    }

    void readsNetTies_data()
    {
        QTest::addColumn<QByteArray>("footprint"); // An at sign stands for the two pads.
        QTest::newRow("pad groups") << QByteArray(
            R"((footprint "Lib:Bridge" (layer F.Cu) (at 10 20 90) (property "Reference" "NT1" (at 0 0) (layer )"
            R"(F.SilkS)) (net_tie_pad_groups "1, 2") @))");
        QTest::newRow("by name") << QByteArray(
            "(module NetTie:NetTie-2_SMD locked (layer F.Cu) (at 10 20 90) (fp_text reference NT1 (at 0 0) (layer "
            "F.SilkS)) (attr virtual) @)");
        QTest::newRow("by keyword") << QByteArray(
            R"((module Bridge (layer F.Cu) (at 10 20 90) (tags "net tie") (fp_text reference NT1 (at 0 0) (layer )"
            "F.SilkS)) @)");
    }

    void readsNetTies()
    {
        QFETCH(QByteArray, footprint);
        const QByteArray pads =
            "(fp_poly (pts (xy -0.5 -0.1) (xy 0.5 -0.1) (xy 0.5 0.1) (xy -0.5 0.1)) (layer F.Cu) (width 0))"
            "(pad 1 smd circle (at -0.5 0 90) (size 0.5 0.5) (layers F.Cu) (net 1 GND))"
            R"((pad 2 smd circle (at 0.5 0 90) (size 0.5 0.5) (layers F.Cu) (net 2 "/I{slash}O")))";
        const QByteArray tracks = "(segment (start 10 20.5) (end 10 30) (width 0.2) (layer F.Cu) (net 1))"
                                  "(segment (start 10 10) (end 10 19.4) (width 0.2) (layer F.Cu) (net 2))"
                                  "(segment (start 10 20.5) (end 0 0) (width 0.2) (layer B.Cu) (net 1))";
        const TImportResult imported = Import(footprint.replace("@", pads) + tracks);
        QCOMPARE(imported.error, QString());
        QVERIFY(All<TGraphicsPackageItem>(imported).isEmpty() && imported.notShown.isEmpty());
        const auto* tie = Only<TGraphicsNetTiePcbItem>(imported);
        QVERIFY(tie);
        QCOMPARE(tie->Name(), QString("NT1"));
        QVERIFY(tie->NameVisible());
        QCOMPARE(int(tie->Number()), 1);
        QCOMPARE(tie->Layer(), Osmirel::CopperTop);
        QCOMPARE(float(tie->PadSize()), float(0.5 * millimetre));
        QCOMPARE(tie->PadDistance(), millimetre);
        QCOMPARE(float(tie->Pen().widthF()), float(0.2 * millimetre));
        QCOMPARE(tie->HasTFlag(TGraphicsItem::Lock), footprint.contains("locked"));
        QCOMPARE(tie->pos(), QPointF(10, 20) * millimetre);
        QVERIFY((tie->mapToScene(tie->PadDistance() / 2, 0) - QPointF(10, 19.5) * millimetre).manhattanLength() < 1e-6);
        const auto wires = All<TGraphicsWireItem>(imported);
        QCOMPARE(wires[0]->FirstLink(), tie);
        QCOMPARE(wires[1]->LastLink(), tie);
        QVERIFY(!wires[2]->FirstLink());
        QCOMPARE(wires[0]->Net(), QString("GND"));
        QCOMPARE(wires[1]->Net(), QString("/I/O"));
    }

    void otherTiesStayPackages_data()
    {
        QTest::addColumn<QByteArray>("pads");
        QTest::newRow("three pads") << QByteArray("(pad 1 smd circle (at 0 0) (size 1 1) (layers F.Cu))"
                                                  "(pad 2 smd circle (at 1 0) (size 1 1) (layers F.Cu))"
                                                  "(pad 3 smd circle (at 2 0) (size 1 1) (layers F.Cu))");
        QTest::newRow("different layers") << QByteArray("(pad 1 smd circle (at 0 0) (size 1 1) (layers F.Cu))"
                                                        "(pad 2 smd circle (at 1 0) (size 1 1) (layers B.Cu))");
        QTest::newRow("drilled") << QByteArray(
            "(pad 1 thru_hole circle (at 0 0) (size 1 1) (drill 0.5) (layers *.Cu))"
            "(pad 2 thru_hole circle (at 1 0) (size 1 1) (drill 0.5) (layers *.Cu))");
        QTest::newRow("one number") << QByteArray("(pad 1 smd circle (at 0 0) (size 1 1) (layers F.Cu))"
                                                  "(pad 1 smd circle (at 1 0) (size 1 1) (layers F.Cu))");
        QTest::newRow("no pads") << QByteArray();
    }

    void otherTiesStayPackages()
    {
        QFETCH(QByteArray, pads);
        const TImportResult imported = Import("(footprint NetTie (layer F.Cu) (at 0 0) " + pads + ")");
        QCOMPARE(imported.error, QString());
        QVERIFY(Only<TGraphicsPackageItem>(imported) && All<TGraphicsNetTiePcbItem>(imported).isEmpty());
    }

    void numbersTies()
    {
        const QByteArray tie = "(footprint NetTie (layer F.Cu) (at 0 0) (pad 1 smd circle (at 0 0) (size 1 1) (layers "
                               "F.Cu)) (pad 2 smd circle (at 1 0) (size 1 1) (layers F.Cu)) (fp_line (start 0 0) (end "
                               "1 1) (layer F.SilkS) (width 0.1)))";
        const TImportResult imported = Import(tie + tie);
        const auto ties = All<TGraphicsNetTiePcbItem>(imported);
        QCOMPARE(ties.size(), 2);
        QVERIFY(ties[0]->Number() != ties[1]->Number());
        QCOMPARE(NotShown(imported, "graphic shapes and texts of net ties"), 2);
        QVERIFY(!ties[0]->NameVisible());
    }

    void readsNetClasses_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QByteArray>("project");
        QTest::addColumn<QStringList>("classes");
        QTest::addColumn<QString>("classOfGround");
        QTest::addColumn<QString>("classOfOther");
        const auto row = [](const char* name, const char* elements, const char* project, const QStringList& classes,
                            const char* classOfGround, const char* classOfOther) {
            QTest::newRow(name) << QByteArray(elements) << QByteArray(project) << classes << QString(classOfGround)
                                << QString(classOfOther);
        };
        const QStringList both = {"Default", "Power"};
        row("none", "", "", {"Default"}, "Default", "Default");
        row("version 5",
            R"((net_class Default "" (clearance 0.2) (add_net "/I{slash}O")) (net_class Power "" (add_net GND)))", "",
            both, "Power", "Default");
        row("version 6", "",
            R"({"net_settings": {"classes": [{"name": "Default"}, {"name": "Power", "nets": ["GND"]}]}})", both,
            "Power", "Default");
        row("version 7", "",
            R"({"net_settings": {"classes": [{"name": "Default"}, {"name": "Power"}],
                "netclass_patterns": [{"netclass": "Power", "pattern": "/I{slash}O"}]}})",
            both, "Default", "Power");
        row("wildcards", "",
            R"({"net_settings": {"classes": [{"name": "Default"}, {"name": "Power"}],
                "netclass_patterns": [{"netclass": "Power", "pattern": "G?D"}]}})",
            both, "Power", "Default");
        row("wildcards over slashes", "",
            R"({"net_settings": {"classes": [{"name": "Default"}, {"name": "Power"}],
                "netclass_patterns": [{"netclass": "Power", "pattern": "*O"}]}})",
            both, "Default", "Power");
        row("assignments", "",
            R"({"net_settings": {"classes": [{"name": "Default"}, {"name": "Power"}],
                "netclass_assignments": {"GND": "Power", "/I{slash}O": ["Power"]}}})",
            both, "Power", "Power");
        row("a class that is not listed", "",
            R"({"net_settings": {"netclass_patterns": [{"netclass": "Power", "pattern": "GND"}]}})", both, "Power",
            "Default");
        row("nothing of nets", "", "{}", {"Default"}, "Default", "Default");
        row("other types", "", R"({"net_settings": {"classes": 3, "netclass_patterns": {}, "net_colors": null}})",
            {"Default"}, "Default", "Default");
    }

    void readsNetClasses()
    {
        QFETCH(QByteArray, elements);
        QFETCH(QByteArray, project);
        const TImportResult imported = ImportWithProject(elements, project);
        QCOMPARE(imported.error, QString());
        QVERIFY(imported.warnings.isEmpty());
        QVERIFY(imported.schematic);
        QTEST(imported.schematic->NetClassNames(), "classes");
        const TNetModel& nets = *imported.schematic->NetModel();
        QCOMPARE(nets.RowCount(), 2);
        QTEST(nets.NetClass("GND"), "classOfGround");
        QTEST(nets.NetClass("/I/O"), "classOfOther");
        QCOMPARE(nets.Priority("GND"), QString("Default"));
        QVERIFY(!nets.ColorPcb(0).isValid() && !nets.ColorSch(0).isValid());
    }

    void readsNetColors()
    {
        const QByteArray project = R"json({"net_settings": {
            "classes": [{"name": "Default", "pcb_color": "rgba(0, 0, 0, 0.000)"},
                        {"name": "Power", "pcb_color": "rgba(1, 2, 3, 0.500)", "schematic_color": "rgb(4, 5, 6)"}],
            "netclass_patterns": [{"netclass": "Power", "pattern": "*"}],
            "net_colors": {"/I{slash}O": "rgb(7, 8, 9)", "GND": "nonsense"}}})json";
        const TImportResult imported = ImportWithProject({}, project);
        const TNetModel& nets = *imported.schematic->NetModel();
        QCOMPARE(nets.ColorPcb(nets.NetRow("GND")), QColor(1, 2, 3));
        QCOMPARE(nets.ColorSch(nets.NetRow("GND")), QColor(4, 5, 6));
        QCOMPARE(nets.ColorPcb(nets.NetRow("/I/O")), QColor(7, 8, 9));
        QCOMPARE(nets.ColorSch(nets.NetRow("/I/O")), QColor(7, 8, 9));
    }

    void aBrokenProjectLosesNothingElse()
    {
        const TImportResult imported = ImportWithProject("(via (at 0 0) (size 1) (net 1))", "{\n\"net_settings\": [}");
        QCOMPARE(imported.error, QString());
        QVERIFY(imported.board && imported.schematic);
        QCOMPARE(imported.schematic->NetModel()->RowCount(), 2);
        QCOMPARE(imported.warnings.size(), 1);
        QVERIFY2(imported.warnings.first().startsWith("project:2: "), qPrintable(imported.warnings.first()));
    }

    void readsTheProjectBesideTheBoard_data()
    {
        QTest::addColumn<QByteArray>("project");
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<bool>("warns");
        QTest::newRow("there") << QByteArray(R"({"net_settings": {"classes": [{"name": "Power"}]}})") << QByteArray()
                               << false;
        QTest::newRow("missing") << QByteArray() << QByteArray() << true;
        QTest::newRow("missing, and not needed")
            << QByteArray() << QByteArray(R"((net_class Power "" (add_net GND)))") << false;
    }

    void readsTheProjectBesideTheBoard()
    {
        QFETCH(QByteArray, project);
        QFETCH(QByteArray, elements);
        QFETCH(bool, warns);
        const QTemporaryDir folder;
        const auto write = [&folder](const char* name, const QByteArray& text) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(text), qint64(text.size()));
        };
        write("my.board.kicad_pcb", Board(elements));
        if (!project.isEmpty()) {
            write("my.board.kicad_pro", project);
        }
        const TImportResult imported = ImportBoard(folder.filePath("my.board.kicad_pcb"));
        QCOMPARE(imported.error, QString());
        QCOMPARE(!imported.warnings.isEmpty(), warns);
        QVERIFY(!warns || imported.warnings.first().contains("my.board.kicad_pro: "));
        QCOMPARE(imported.schematic->IsExistNetClass("Power"), !warns);
    }
};

PROPERTIES_TEST(TestZones)
#include "tst_zones.moc"
