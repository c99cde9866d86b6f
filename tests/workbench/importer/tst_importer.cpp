#include "tests/support/TestProgram.h"
#include "tests/workbench/support/BoardTexts.h"
#include "tests/workbench/support/ImportedItems.h"

#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>

#include <QtTest>

#include <cmath>

using BoardTexts::Board;
using BoardTexts::BoardWithLayers;
using BoardTexts::Footprint;
using ImportedItems::All;
using ImportedItems::Import;
using ImportedItems::millimetre;
using ImportedItems::NotShown;
using ImportedItems::Only;

namespace {

TImportResult ImportPad(const QByteArray& pad)
{
    return Import(Board(Footprint("    (pad " + pad + ")")));
}

TImportResult ImportVia(const QByteArray& via)
{
    return Import(
        BoardWithLayers("(0 \"F.Cu\" signal) (1 \"In1.Cu\" signal) (31 \"B.Cu\" signal)", "(via " + via + ")"));
}

bool IsNear(const QPointF& one, const QPointF& other)
{
    return (one - other).manhattanLength() < 1e-9;
}

} // namespace

class TestImporter : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryDialect_data()
    {
        QTest::addColumn<int>("version");
        for (int version = 5; version <= 9; ++version) {
            QTest::addRow("version %d", version) << version;
        }
    }

    void readsEveryDialect()
    {
        QFETCH(int, version);
        const TImportResult imported = Import(BoardTexts::InDialect(version));
        QCOMPARE(imported.error, QString());

        const auto* package = Only<TGraphicsPackageItem>(imported);
        QVERIFY(package);
        QCOMPARE(package->RefDes(), QString("R1"));
        QCOMPARE(package->Value(), QString("4k7 1%"));
        QCOMPARE(package->PackageName(), QString("R_0603@Lib"));
        QCOMPARE(package->Layer(), Osmirel::PackagesBottom);
        QVERIFY(package->HasTFlag(TGraphicsItem::Lock));

        const auto vias = All<TGraphicsViaItem>(imported);
        QCOMPARE(vias.size(), 2);
        QCOMPARE(vias[0]->Net(), QString("GND"));
        QVERIFY(!vias[0]->HasTFlag(TGraphicsItem::Lock) && vias[1]->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!vias[0]->MaskEnabled());
        QCOMPARE(vias[1]->ViaGroup(), QString("F.Cu - In1.Cu"));
        QCOMPARE(imported.board->ViaGroups(), QStringList({"F.Cu - B.Cu", "F.Cu - In1.Cu"}));
        QVERIFY(imported.notShown.isEmpty());

        QCOMPARE(imported.board->Dump(), Import(BoardTexts::InDialect(7)).board->Dump());
    }

    void placesPads_data()
    {
        QTest::addColumn<QByteArray>("footprintAt");
        QTest::addColumn<QByteArray>("padAt");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("turned"); // Clockwise, in the scene.
        const auto row = [](const char* name, const char* footprintAt, const char* padAt, double x, double y,
                            double turned) {
            QTest::newRow(name) << QByteArray(footprintAt) << QByteArray(padAt) << x << y << turned;
        };
        const double half = std::sqrt(0.5);
        const double sine = std::sin(std::acos(-1) / 6);
        const double cosine = std::cos(std::acos(-1) / 6);
        row("straight", "10 20", "2 1", 12, 21, 0);
        row("only the pad is turned", "10 20", "2 1 90", 12, 21, -90);
        row("90", "10 20 90", "2 1 90", 11, 18, -90);
        row("180", "10 20 180", "2 1 180", 8, 19, 180);
        row("270", "10 20 270", "2 1 270", 9, 22, 90);
        row("-90", "10 20 -90", "2 1 270", 9, 22, 90);
        row("45", "10 20 45", "2 0 45", 10 + 2 * half, 20 - 2 * half, -45);
        row("30, pad across", "10 20 30", "2 1 120", 10 + 2 * cosine + sine, 20 - 2 * sine + cosine, -120);
        row("the pad's angle is that of the board", "10 20 90", "2 1", 11, 18, 0);
        row("negative places", "-10 -20 90", "-2 -1 90", -11, -18, -90);
    }

    void placesPads()
    {
        QFETCH(QByteArray, footprintAt);
        QFETCH(QByteArray, padAt);
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, turned);
        const QByteArray pads = "(pad \"1\" smd rect (at " + padAt
                                + ") (size 1 2) (layers \"@\"))"
                                  "(pad \"\" np_thru_hole circle (at "
                                + padAt + ") (size 1 1) (drill 1) (layers \"*.Cu\"))";
        // The file has the sides turned over already: the same rules hold on both.
        for (const char* side : {"F.Cu", "B.Cu"}) {
            const QByteArray footprint = "(footprint \"A\" (layer \"@\") (at " + footprintAt + ") " + pads + ")";
            const TImportResult imported = Import(Board(QByteArray(footprint).replace('@', side)));
            QCOMPARE(imported.error, QString());
            const auto* pad = Only<TGraphicsPadItem>(imported);
            const auto* hole = Only<TGraphicsHoleItem>(imported);
            QVERIFY(pad && hole);
            QVERIFY(IsNear(pad->scenePos(), QPointF(x, y) * millimetre));
            QVERIFY(IsNear(hole->pos(), QPointF(x, y) * millimetre));
            QVERIFY(!hole->parentItem());
            const QPointF alongWidth = pad->mapToScene(1, 0) - pad->scenePos();
            const double radians = turned * std::acos(-1) / 180;
            QVERIFY(IsNear(alongWidth, {std::cos(radians), std::sin(radians)}));
            QCOMPARE(pad->parentItem()->type(), int(ItemType::Package));
        }
    }

    void readsPadShapes_data()
    {
        using Pad = TGraphicsPadItem;
        QTest::addColumn<QByteArray>("shape");
        QTest::addColumn<int>("padShape");
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<double>("cornerRatio");
        QTest::addColumn<QSizeF>("taper");
        const auto row = [](const char* name, const char* shape, int padShape, QSizeF size, double cornerRatio = 0,
                            QSizeF taper = {0, 0}) {
            QTest::newRow(name) << QByteArray(shape) << padShape << size << cornerRatio << taper;
        };
        row("circle", "circle (at 0 0) (size 1 2)", Pad::ShapeRound, {1, 1});
        row("rect", "rect (at 0 0) (size 1 2)", Pad::ShapeRectangle, {1, 2});
        row("oval", "oval (at 0 0) (size 1 2)", Pad::ShapeObround, {1, 2});
        row("roundrect", "roundrect (at 0 0) (size 1 2) (roundrect_rratio 0.2)", Pad::ShapeRectangle, {1, 2}, 0.2);
        row("trapezoid, wider below", "trapezoid (at 0 0) (size 1 2) (rect_delta 0.5 0)", Pad::ShapeRectangle, {1, 2},
            0, {0, -1});
        row("trapezoid, higher on the left", "trapezoid (at 0 0) (size 1 2) (rect_delta 0 0.5)", Pad::ShapeRectangle,
            {1, 2}, 0, {1, 0});
        row("octagon",
            "roundrect (at 0 0) (size 1 2) (roundrect_rratio 0) (chamfer_ratio 0.2929) "
            "(chamfer top_left top_right bottom_left bottom_right)",
            Pad::ShapeLongOctagon, {1, 2});
        row("one chamfer", "roundrect (at 0 0) (size 1 2) (roundrect_rratio 0) (chamfer_ratio 0.2) (chamfer top_left)",
            Pad::ShapeRectangle, {1, 2});
        row("custom, round", "custom (at 0 0) (size 1 2) (options (clearance outline) (anchor circle)) (primitives)",
            Pad::ShapeRound, {1, 1});
        row("custom without options", "custom (at 0 0) (size 1 2) (primitives)", Pad::ShapeRound, {1, 1});
        row("custom, rectangular", "custom (at 0 0) (size 1 2) (options (anchor rect)) (primitives)",
            Pad::ShapeRectangle, {1, 2});
    }

    void readsPadShapes()
    {
        QFETCH(QByteArray, shape);
        QFETCH(QSizeF, size);
        QFETCH(QSizeF, taper);
        const TImportResult imported = ImportPad("1 smd " + shape + " (layers F.Cu)");
        QCOMPARE(imported.error, QString());
        const auto* pad = Only<TGraphicsPadItem>(imported);
        QTEST(int(pad->PadShape()), "padShape");
        QTEST(pad->CornerRatio(), "cornerRatio");
        QCOMPARE(QSizeF(pad->Width(), pad->Height()), size * millimetre);
        QCOMPARE(pad->Taper(), taper * millimetre);
        QCOMPARE(NotShown(imported, "chamfers of pads"), shape.contains("0.2)") && shape.contains("chamfer") ? 1 : 0);
    }

    void readsPrimitives_data()
    {
        QTest::addColumn<QByteArray>("primitives");
        QTest::addColumn<QRectF>("bounds"); // All in millimetres.
        QTest::addColumn<QVector<QPointF>>("copper");
        QTest::addColumn<QVector<QPointF>>("bare");
        const auto row = [](const char* name, const char* primitives, QRectF bounds, QVector<QPointF> copper,
                            QVector<QPointF> bare) {
            QTest::newRow(name) << QByteArray(primitives) << bounds << copper << bare;
        };
        row("polygon", "(gr_poly (pts (xy 0 0) (xy 4 0) (xy 4 2)) (width 0) (fill yes))", {0, 0, 4, 2}, {{3, 1}},
            {{1, 1}});
        row("polygon the other way round", "(gr_poly (pts (xy 0 0) (xy 4 2) (xy 4 0)) (width 0))", {0, 0, 4, 2},
            {{3, 1}}, {{1, 1}});
        row("polygon with an edge", "(gr_poly (pts (xy 0 0) (xy 4 0) (xy 4 2) (xy 0 2)) (width 0.5))",
            {-0.25, -0.25, 4.5, 2.5}, {{2, 1}, {2, 2.2}}, {{2, 2.3}});
        row("only the edge", "(gr_poly (pts (xy 0 0) (xy 4 0) (xy 4 2) (xy 0 2)) (stroke (width 0.5)) (fill no))",
            {-0.25, -0.25, 4.5, 2.5}, {{2, 2.2}}, {{2, 1}});
        row("polygon with an arc", "(gr_poly (pts (arc (start 1 0) (mid 0 1) (end -1 0))) (width 0))", {-1, 0, 2, 1},
            {{0, 0.9}}, {{0.9, 0.9}});
        row("rectangle", "(gr_rect (start 4 2) (end 1 1) (width 0) (fill yes))", {1, 1, 3, 1}, {{2, 1.5}},
            {{0.5, 1.5}});
        row("line", "(gr_line (start 1 0) (end 5 0) (width 1))", {0.5, -0.5, 5, 1}, {{3, 0.4}, {5.4, 0}}, {{3, 0.6}});
        row("disc", "(gr_circle (center 3 0) (end 3 1) (width 0))", {2, -1, 2, 2}, {{3, 0}}, {{2.1, 0.9}});
        row("ring", "(gr_circle (center 3 0) (end 3 1) (width 0.5) (fill none))", {1.75, -1.25, 2.5, 2.5},
            {{3, 1.2}, {3, 0.8}}, {{3, 0}});
        row("arc", "(gr_arc (start 1 0) (mid 0 -1) (end -1 0) (width 0.5))", {-1.25, -1.25, 2.5, 1.5}, {{0, -1.2}},
            {{0, 1}, {0, -0.5}});
        row("the oldest arc", "(gr_arc (start 0 0) (end 1 0) (angle 180) (width 0.5))", {-1.25, -0.25, 2.5, 1.5},
            {{0, 1.2}}, {{0, -1}});
        row("curve", "(gr_curve (pts (xy 0 0) (xy 0 2) (xy 4 2) (xy 4 0)) (width 0.5))", {-0.25, -0.25, 4.5, 2},
            {{2, 1.5}}, {{2, 0}});
        row("two shapes", "(gr_rect (start 0 0) (end 2 1) (width 0)) (gr_rect (start 1 0) (end 3 1) (width 0))",
            {0, 0, 3, 1}, {{1.5, 0.5}, {2.5, 0.5}}, {{1, 2}});
    }

    void readsPrimitives()
    {
        QFETCH(QByteArray, primitives);
        QFETCH(QRectF, bounds);
        QFETCH(QVector<QPointF>, copper);
        QFETCH(QVector<QPointF>, bare);
        // The drawing is seen from the copper, which the offset shifts off the hole.
        for (const QPointF& offset : {QPointF(0, 0), QPointF(0.5, -1)}) {
            const TImportResult imported =
                ImportPad("1 thru_hole custom (at 0 0) (size 0.1 0.1) (layers *.Cu) (drill 0.05 (offset "
                          + QByteArray::number(offset.x()) + ' ' + QByteArray::number(offset.y())
                          + ")) (options (anchor rect)) (primitives " + primitives + ")");
            QCOMPARE(imported.error, QString());
            const auto* pad = Only<TGraphicsPadItem>(imported);
            const QRectF found = pad->ExtraCopper().boundingRect();
            const double tolerance = 0.02 * millimetre;
            QVERIFY(IsNear(pad->CopperOffset(), offset * millimetre));
            QVERIFY((found.topLeft() - (bounds.topLeft() + offset) * millimetre).manhattanLength() < tolerance);
            QVERIFY((found.bottomRight() - (bounds.bottomRight() + offset) * millimetre).manhattanLength() < tolerance);
            for (const QPointF& point : copper) {
                QVERIFY(pad->Outline().contains((point + offset) * millimetre));
            }
            for (const QPointF& point : bare) {
                QVERIFY(!pad->Outline().contains((point + offset) * millimetre));
            }
        }
    }

    void readsPadLayers_data()
    {
        using namespace Osmirel;
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("layers");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::addColumn<bool>("mask");
        QTest::addColumn<bool>("paste");
        const auto row = [](const char* type, const char* layers, int start, int end, bool mask, bool paste) {
            QTest::addRow("%s %s", type, layers)
                << QByteArray(type) << QByteArray(layers) << start << end << mask << paste;
        };
        row("smd", "F.Cu F.Paste F.Mask", CopperTop, CopperTop, true, true);
        row("smd", "B.Cu B.Mask", CopperBottom, CopperBottom, true, false);
        row("smd", "F.Cu", CopperTop, CopperTop, false, false);
        row("connect", "F.Cu F.Mask", CopperTop, CopperTop, true, false);
        row("smd", "In1.Cu", Copper2, Copper2, false, false);
        row("smd", "F&B.Cu F.Paste", CopperTop, CopperBottom, false, true);
        row("thru_hole", "*.Cu *.Mask", CopperTop, CopperBottom, true, false);
        row("thru_hole", "*.Cu *.Mask F.Paste F.SilkS", CopperTop, CopperBottom, true, true);
        row("thru_hole", "F.Cu", CopperTop, CopperBottom, false, false);
        row("smd", "F.Paste", PasteTop, PasteTop, false, true);
        row("smd", "B.Mask", MaskBottom, MaskBottom, true, false);
        row("smd", "F.Mask B.Paste", PasteBottom, PasteBottom, true, true);
        row("smd", "F.SilkS", SilkTop, SilkTop, false, false);
        row("smd", "", PackagesTop, PackagesTop, false, false);
        row("smd", "Unknown.Layer", PackagesTop, PackagesTop, false, false);
    }

    void readsPadLayers()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, layers);
        const QByteArray pad = "(pad 1 " + type + " rect (at 0 0) (size 1 1) (layers " + layers + "))";
        const TImportResult imported = Import(BoardWithLayers(
            "(0 \"F.Cu\" signal) (1 \"In1.Cu\" signal) (2 \"In2.Cu\" signal) (31 \"B.Cu\" signal)", Footprint(pad)));
        QCOMPARE(imported.error, QString());
        const auto* item = Only<TGraphicsPadItem>(imported);
        QTEST(int(item->StartLayer()), "start");
        QTEST(int(item->EndLayer()), "end");
        QTEST(item->MaskEnabled(), "mask");
        QTEST(item->PasteEnabled(), "paste");
        QCOMPARE(item->Layer(), item->StartLayer());
    }

    void readsDrills_data()
    {
        QTest::addColumn<QByteArray>("drill");
        QTest::addColumn<double>("diameter");
        QTest::addColumn<QSizeF>("stretch");
        const auto row = [](const char* drill, double diameter, QSizeF stretch) {
            QTest::newRow(drill) << QByteArray(drill) << diameter << stretch;
        };
        row("", 0, {0, 0});
        row("(drill 0.8)", 0.8, {0, 0});
        row("(drill oval 0.6 1.7)", 0.6, {0, 1.1});
        row("(drill oval 1.7 0.6 (offset 1 2))", 0.6, {1.1, 0});
        row("(drill oval 0.8)", 0.8, {0, 0});
        row("(drill (offset 1 2))", 0, {0, 0});
    }

    void readsDrills()
    {
        QFETCH(QByteArray, drill);
        QFETCH(double, diameter);
        QFETCH(QSizeF, stretch);
        const TImportResult imported = ImportPad("1 thru_hole oval (at 0 0) (size 2 3) " + drill + " (layers *.Cu)");
        const auto* pad = Only<TGraphicsPadItem>(imported);
        QVERIFY(pad);
        QCOMPARE(pad->Drill(), float(diameter * millimetre));
        QCOMPARE(pad->DrillStretch(), stretch * millimetre);
        QCOMPARE(pad->CopperOffset(), drill.contains("offset") ? QPointF(1, 2) * millimetre : QPointF());
    }

    void tellsHolesFromPads_data()
    {
        QTest::addColumn<bool>("isHole");
        QTest::newRow("np_thru_hole circle (at 1 2) (size 3.2 3.2) (drill 3.2)") << true;
        QTest::newRow("np_thru_hole circle (at 1 2) (size 3 3) (drill 3.2)") << true;
        QTest::newRow("np_thru_hole circle (at 1 2) (size 5 5) (drill 3.2)") << false;
        QTest::newRow("np_thru_hole oval (at 1 2) (size 1 2) (drill oval 1 2)") << false;
        QTest::newRow("thru_hole circle (at 1 2) (size 3.2 3.2) (drill 3.2)") << false;
    }

    void tellsHolesFromPads()
    {
        QFETCH(bool, isHole);
        const QByteArray pad = QTest::currentDataTag();
        const TImportResult imported = ImportPad("\"\" " + pad + " (layers *.Cu *.Mask)");
        QCOMPARE(All<TGraphicsHoleItem>(imported).size(), isHole ? 1 : 0);
        QCOMPARE(All<TGraphicsPadItem>(imported).size(), isHole ? 0 : 1);
        QCOMPARE(NotShown(imported, "unplated slots and rings (read as plated)"),
                 !isHole && pad.startsWith("np_thru_hole") ? 1 : 0);
        if (isHole) {
            QCOMPARE(float(Only<TGraphicsHoleItem>(imported)->Size().width()), float(3.2 * millimetre));
        }
    }

    void inheritsClearances_data()
    {
        QTest::addColumn<QByteArray>("ofFootprint");
        QTest::addColumn<QByteArray>("ofPad");
        QTest::addColumn<double>("mask");
        QTest::addColumn<double>("paste");
        QTest::addColumn<int>("thermal");
        const auto row = [](const char* name, const char* ofFootprint, const char* ofPad, double mask, double paste,
                            int thermal) {
            QTest::newRow(name) << QByteArray(ofFootprint) << QByteArray(ofPad) << mask << paste << thermal;
        };
        row("of the board", "", "", 0.05, -0.02, 0);
        row("of the footprint", "(solder_mask_margin 0.1) (solder_paste_margin -0.1)", "", 0.1, -0.1, 0);
        row("of the pad", "(solder_mask_margin 0.1)", "(solder_mask_margin 0.3) (solder_paste_margin 0.2)", 0.3, 0.2,
            0);
        row("ratio to the shorter side", "(solder_paste_ratio -0.1)", "", 0.05, -0.12, 0);
        row("the pad's own ratio", "(solder_paste_ratio -0.1)", "(solder_paste_margin_ratio 0.1)", 0.05, 0.08, 0);
        row("no opening smaller than nothing", "", "(solder_mask_margin -3)", -0.5, -0.02, 0);
        row("connected with thermal reliefs", "", "(zone_connect 1)", 0.05, -0.02, 1);
        row("connected without", "(zone_connect 1)", "(zone_connect 2)", 0.05, -0.02, 2);
        row("with, if drilled", "(zone_connect 3)", "", 0.05, -0.02, 2);
        row("not connected", "(zone_connect 2)", "(zone_connect 0)", 0.05, -0.02, 0);
    }

    void inheritsClearances()
    {
        QFETCH(QByteArray, ofFootprint);
        QFETCH(QByteArray, ofPad);
        QFETCH(double, mask);
        QFETCH(double, paste);
        const QByteArray setup = "(setup (pad_to_mask_clearance 0.05) (pad_to_paste_clearance -0.02))";
        const QByteArray pad = "(pad 1 smd rect (at 0 0) (size 1 2) (layers F.Cu) " + ofPad + ")";
        const TImportResult imported = Import(Board(Footprint(pad + ofFootprint) + setup));
        QCOMPARE(imported.error, QString());
        const auto* item = Only<TGraphicsPadItem>(imported);
        QCOMPARE(item->MaskClearance(), float(mask * millimetre));
        QCOMPARE(item->PasteClearance(), float(paste * millimetre));
        QTEST(int(item->Thermal()), "thermal");
        QCOMPARE(NotShown(imported, "pads without zone connections"), ofPad.contains("connect 0") ? 1 : 0);
    }

    void readsVias_data()
    {
        QTest::addColumn<QByteArray>("via");
        QTest::addColumn<double>("drill");
        QTest::addColumn<QString>("pair");
        QTest::addColumn<bool>("locked");
        const auto row = [](const char* name, const char* via, double drill, const char* pair, bool locked = false) {
            QTest::newRow(name) << QByteArray(via) << drill << QString(pair) << locked;
        };
        row("through", "(at 1 2) (size 0.6) (drill 0.3) (layers F.Cu B.Cu) (net 1)", 0.3, "F.Cu - B.Cu");
        row("without layers", "(at 1 2) (size 0.6) (drill 0.3) (net 1)", 0.3, "F.Cu - B.Cu");
        row("without drill", "(at 1 2) (size 0.6) (layers F.Cu B.Cu) (net 1)", 0.3, "F.Cu - B.Cu");
        row("blind", "blind (at 1 2) (size 0.6) (drill 0.2) (layers F.Cu In1.Cu) (net 1)", 0.2, "F.Cu - In1.Cu");
        row("micro", "micro (at 1 2) (size 0.6) (drill 0.1) (layers F.Cu In1.Cu) (net 1)", 0.1, "F.Cu - In1.Cu");
        row("from below", "blind (at 1 2) (size 0.6) (layers B.Cu In1.Cu) (net 1)", 0.3, "In1.Cu - B.Cu");
        row("locked by a word", "locked (at 1 2) (size 0.6) (drill 0.3) (net 1)", 0.3, "F.Cu - B.Cu", true);
        row("locked by a list", "(at 1 2) (size 0.6) (drill 0.3) (locked yes) (net 1)", 0.3, "F.Cu - B.Cu", true);
        row("not locked", "(at 1 2) (size 0.6) (drill 0.3) (locked no) (net 1)", 0.3, "F.Cu - B.Cu");
    }

    void readsVias()
    {
        QFETCH(QByteArray, via);
        QFETCH(double, drill);
        const TImportResult imported = ImportVia(via);
        QCOMPARE(imported.error, QString());
        const auto* item = Only<TGraphicsViaItem>(imported);
        const auto diameter = double(float(0.6 * millimetre));
        QVERIFY(item->Width() == diameter && item->Height() == diameter); // Single precision survives any undo.
        QVERIFY(IsNear(item->pos(), QPointF(1, 2) * millimetre));
        QCOMPARE(item->Drill(), float(drill * millimetre));
        QTEST(item->ViaGroup(), "pair");
        QTEST(item->HasTFlag(TGraphicsItem::Lock), "locked");
        QCOMPARE(item->Net(), QString("GND"));
        const TDrillPair* pair = imported.board->LayerManager()->DrillPair(item->ViaGroup());
        QVERIFY(pair && pair->first < pair->last);
        QCOMPARE(item->StartLayer(), pair->first);
        QCOMPARE(item->EndLayer(), pair->last);
        QCOMPARE(imported.board->ViaGroups().first(), QString("F.Cu - B.Cu"));
    }

    void takesDrillsFromNetClasses()
    {
        const QByteArray vias = "(via (at 0 0) (size 1) (net 1)) (via micro (at 1 0) (size 1) (net 1))"
                                "(via (at 2 0) (size 1) (net 2)) (via micro (at 3 0) (size 1) (net 2))";
        const QByteArray netClass = "(net_class Power \"\" (via_drill 0.7) (uvia_drill 0.2) (add_net /I/O))";
        const TImportResult imported = Import(Board(vias + "(setup (via_drill 0.4) (uvia_drill 0.1))" + netClass));
        QCOMPARE(imported.error, QString());
        QList<float> drills;
        for (const TGraphicsViaItem* via : All<TGraphicsViaItem>(imported)) {
            drills.append(via->Drill());
        }
        const auto scene = [](double length) { return float(length * millimetre); };
        QCOMPARE(drills, QList<float>({scene(0.4), scene(0.1), scene(0.7), scene(0.2)}));
    }

    void opensTheMaskOverVias_data()
    {
        QTest::addColumn<bool>("open");
        QTest::newRow("(setup)") << false;
        QTest::newRow("(setup (pcbplotparams (viasonmask false)))") << false;
        QTest::newRow("(setup (pcbplotparams (viasonmask true)))") << true;
        QTest::newRow("(setup (tenting front back))") << false;
        QTest::newRow("(setup (tenting none))") << true;
        QTest::newRow("(setup (tenting (front yes) (back yes)))") << false;
        QTest::newRow("(setup (tenting (front yes) (back no)))") << true;
    }

    void opensTheMaskOverVias()
    {
        QFETCH(bool, open);
        const QByteArray vias = "(via (at 0 0) (size 1) (net 1)) (via (at 0 0) (size 1) (net 1) (tenting none))"
                                "(via (at 0 0) (size 1) (net 1) (tenting front back))";
        const TImportResult imported = Import(Board(vias + QTest::currentDataTag()));
        const auto items = All<TGraphicsViaItem>(imported);
        QCOMPARE(items[0]->MaskEnabled(), open);
        QVERIFY(items[1]->MaskEnabled());
        QVERIFY(!items[2]->MaskEnabled());
    }
};

PROPERTIES_TEST(TestImporter)
#include "tst_importer.moc"
