#include "tests/support/TestProgram.h"
#include "tests/workbench/support/BoardTexts.h"
#include "tests/workbench/support/ImportedItems.h"

#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPackageItem.h>

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

bool IsNear(const QPointF& one, const QPointF& other)
{
    return (one - other).manhattanLength() < 1e-6;
}

/** The items of the board that have a pen of their own, drawn shapes that is. */
QList<TGraphicsPenItem*> Shapes(const TImportResult& imported)
{
    QList<TGraphicsPenItem*> shapes;
    const QList<TGraphicsItem*> items = imported.board ? imported.board->Items() : QList<TGraphicsItem*>();
    for (TGraphicsItem* item : items) {
        if (item->type() >= ItemType::Line && item->type() <= ItemType::Arc) {
            shapes.append(static_cast<TGraphicsPenItem*>(item));
        }
    }
    return shapes;
}

QRectF Millimetres(const QRectF& scene)
{
    return {scene.topLeft() / millimetre, scene.size() / millimetre};
}

} // namespace

/** What is drawn on a board: shapes, its outline, and texts. */
class TestDrawings : public QObject
{
    Q_OBJECT

private slots:
    void readsShapes_data()
    {
        QTest::addColumn<QByteArray>("shape"); // Without the prefix that says where it stands.
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("width");
        QTest::addColumn<QRectF>("box"); // In millimetres, without the pen.
        const auto row = [](const char* name, const char* shape, int type, double width, QRectF box) {
            QTest::newRow(name) << QByteArray(shape) << type << width << box;
        };
        row("line", "line (start 1 2) (end 4 6) (stroke (width 0.2) (type solid)) (layer F.SilkS)", ItemType::Line, 0.2,
            {1, 2, 3, 4});
        row("line of version 5", "line (start 1 2) (end 4 6) (angle 90) (layer F.SilkS) (width 0.2)", ItemType::Line,
            0.2, {1, 2, 3, 4});
        row("the thinnest line", "line (start 1 2) (end 4 6) (stroke (width 0) (type default)) (layer F.SilkS)",
            ItemType::Line, 0, {1, 2, 3, 4});
        row("rectangle", "rect (start 4 6) (end 1 2) (stroke (width 0.2) (type solid)) (fill none) (layer F.SilkS)",
            ItemType::Rectangle, 0.2, {1, 2, 3, 4});
        row("circle", "circle (center 1 2) (end 3 2) (width 0.1) (fill none) (layer F.SilkS)", ItemType::Ellipse, 0.1,
            {-1, 0, 4, 4});
        row("polygon", "poly (pts (xy 0 0) (xy 4 0) (xy 4 2)) (width 0.1) (layer F.SilkS)", ItemType::Polygon, 0.1,
            {0, 0, 4, 2});
        row("polygon with an arc", "poly (pts (xy 0 0) (arc (start 2 0) (mid 3 1) (end 2 2)) (xy 0 2)) (layer F.SilkS)",
            ItemType::Polygon, 0, {0, 0, 3, 2});
        row("arc", "arc (start 1 0) (mid 0 1) (end -1 0) (stroke (width 0.1) (type solid)) (layer F.SilkS)",
            ItemType::Arc, 0.1, {-1, 0, 2, 1});
        row("arc of version 5", "arc (start 0 0) (end 1 0) (angle 180) (layer F.SilkS) (width 0.1)", ItemType::Arc, 0.1,
            {-1, 0, 2, 1});
        row("arc of version 5, the other way", "arc (start 0 0) (end 1 0) (angle -180) (layer F.SilkS) (width 0.1)",
            ItemType::Arc, 0.1, {-1, -1, 2, 1});
        row("arc that is straight", "arc (start 0 0) (mid 1 0) (end 2 0) (width 0.1) (layer F.SilkS)", ItemType::Line,
            0.1, {0, 0, 2, 0});
        row("curve", "curve (pts (xy 0 0) (xy 0 4) (xy 4 4) (xy 4 0)) (width 0.1) (layer F.SilkS)", ItemType::Polyline,
            0.1, {0, 0, 4, 3});
    }

    void readsShapes()
    {
        QFETCH(QByteArray, shape);
        QFETCH(double, width);
        QFETCH(QRectF, box);
        const TImportResult onBoard = Import(Board("(gr_" + shape + ")"));
        const TImportResult inFootprint = Import(Board("(footprint A (layer F.Cu) (at 10 20 90) (fp_" + shape + "))"));
        for (const TImportResult* imported : {&onBoard, &inFootprint}) {
            QCOMPARE(imported->error, QString());
            QVERIFY(imported->notShown.isEmpty());
            const auto shapes = Shapes(*imported);
            QCOMPARE(shapes.size(), 1);
            TGraphicsPenItem* item = shapes.first();
            QTEST(int(item->type()), "type");
            QCOMPARE(item->PenWidth(), float(width * millimetre));
            QCOMPARE(item->Layer(), Osmirel::SilkTop);
            const double margin = std::max(1.0, width * millimetre) / 2; // A finer pen has room to be picked.
            const QRectF drawn = item->mapRectToParent(item->boundingRect().adjusted(margin, margin, -margin, -margin));
            const QRectF found = Millimetres(drawn);
            QVERIFY((found.topLeft() - box.topLeft()).manhattanLength() < 0.01);
            QVERIFY((found.bottomRight() - box.bottomRight()).manhattanLength() < 0.01);
        }
        const auto* package = Only<TGraphicsPackageItem>(inFootprint);
        QCOMPARE(Shapes(inFootprint).first()->parentItem(), package);
        QVERIFY(!Shapes(onBoard).first()->parentItem());
    }

    void readsStyles_data()
    {
        QTest::addColumn<int>("pen");
        QTest::addColumn<int>("brush");
        const auto row = [](const char* style, int pen, int brush) { QTest::newRow(style) << pen << brush; };
        row("(stroke (width 0.1) (type default)) (fill none)", Qt::SolidLine, Qt::NoBrush);
        row("(stroke (width 0.1) (type dash)) (fill solid)", Qt::DashLine, Qt::SolidPattern);
        row("(stroke (width 0.1) (type dot)) (fill yes)", Qt::DotLine, Qt::SolidPattern);
        row("(stroke (width 0.1) (type dash_dot)) (fill no)", Qt::DashDotLine, Qt::NoBrush);
        row("(stroke (width 0.1) (type dash_dot_dot)) (fill hatch)", Qt::DashDotDotLine, Qt::BDiagPattern);
        row("(stroke (width 0.1) (type solid)) (fill reverse_hatch)", Qt::SolidLine, Qt::FDiagPattern);
        row("(stroke (width 0.1) (type solid)) (fill cross_hatch)", Qt::SolidLine, Qt::DiagCrossPattern);
        row("(width 0.1)", Qt::SolidLine, Qt::NoBrush);
    }

    void readsStyles()
    {
        const QByteArray style = QTest::currentDataTag();
        const TImportResult imported = Import(Board("(gr_rect (start 0 0) (end 1 1) " + style
                                                    + " (layer F.SilkS))(gr_circle (center 0 0) (end 1 1) " + style
                                                    + " (layer F.SilkS) (locked yes))"));
        const auto* rectangle = Only<TGraphicsRectItem>(imported);
        const auto* ellipse = Only<TGraphicsEllipseItem>(imported);
        QVERIFY(rectangle && ellipse);
        QTEST(int(rectangle->Pen().style()), "pen");
        QTEST(int(rectangle->Brush().style()), "brush");
        QTEST(int(ellipse->Pen().style()), "pen");
        QTEST(int(ellipse->Brush().style()), "brush");
        QVERIFY(ellipse->HasTFlag(TGraphicsItem::Lock) && !rectangle->HasTFlag(TGraphicsItem::Lock));
    }

    void keepsLayersApart_data()
    {
        using namespace Osmirel;
        QTest::addColumn<int>("layer");
        QTest::newRow("F.Cu") << int(CopperTop);
        QTest::newRow("B.SilkS") << int(SilkBottom);
        QTest::newRow("F.Fab") << int(DrawingsTop);
        QTest::newRow("F.CrtYd") << int(CourtyardTop);
        QTest::newRow("B.CrtYd") << int(CourtyardBottom);
        QTest::newRow("B.Adhes") << int(AdhesiveBottom);
        QTest::newRow("Dwgs.User") << int(UserDrawings);
        QTest::newRow("Cmts.User") << int(UserComments);
        QTest::newRow("Eco1.User") << int(UserEco1);
        QTest::newRow("Eco2.User") << int(UserEco2);
        QTest::newRow("Margin") << int(Margin);
        QTest::newRow("User.1") << int(User1);
        QTest::newRow("User.9") << int(User9);
    }

    void keepsLayersApart()
    {
        QFETCH(int, layer);
        const QByteArray name = QTest::currentDataTag();
        const QByteArray row = name == "F.Cu" ? QByteArray() : "(40 " + name + " user Own.Name)";
        const TImportResult imported =
            Import(BoardWithLayers("(0 F.Cu signal) (31 B.Cu signal)" + row,
                                   "(gr_line (start 0 0) (end 1 1) (layer " + name + ") (width 0.1))"));
        QCOMPARE(imported.error, QString());
        const auto* line = Only<TGraphicsLineItem>(imported);
        QVERIFY(line);
        QCOMPARE(int(line->Layer()), layer);
        const TLayer* found = imported.board->LayerManager()->Layer(line->Layer());
        QVERIFY(found);
        QCOMPARE(found->name, QString(name));
        // It can be hidden by itself.
        imported.board->LayerManager()->SetVisible(line->Layer(), false);
        QVERIFY(!line->IsOnVisibleLayer());
    }

    void millsOnTheLayerOfThatName_data()
    {
        QTest::addColumn<int>("corners"); // 0 for as many as it takes.
        QTest::newRow("gr_line (start 0 0) (end 1 1)") << 2;
        QTest::newRow("gr_arc (start 1 0) (mid 0 1) (end -1 0)") << 0;
        QTest::newRow("gr_poly (pts (xy 0 0) (xy 4 0) (xy 4 2))") << 4;
        QTest::newRow("gr_rect (start 0 0) (end 1 1)") << 5;
    }

    void millsOnTheLayerOfThatName()
    {
        QFETCH(int, corners);
        const QByteArray shape = QTest::currentDataTag();
        const TImportResult imported =
            Import(BoardWithLayers("(0 F.Cu signal) (31 B.Cu signal) (50 User.1 user Milling)",
                                   "(" + shape + " (stroke (width 1) (type solid)) (layer User.1))"));
        QCOMPARE(imported.error, QString());
        const auto* path = Only<TGraphicsPolylineItem>(imported);
        QVERIFY(path);
        QCOMPARE(path->Layer(), Osmirel::Milling);
        QCOMPARE(path->KindName(), QString("milling"));
        QCOMPARE(path->PenWidth(), float(millimetre));
        QVERIFY(corners == 0 ? path->Points().size() > 8 : path->Points().size() == corners);
        QVERIFY(!imported.board->LayerManager()->HasLayer(Osmirel::User1));
    }

    void countsWhatShapesCannotSay()
    {
        const TImportResult imported =
            Import(Board("(gr_line (start 0 0) (end 1 1) (layer F.Cu) (width 0.1) (net 1))"
                         "(gr_rect (start 0 0) (end 1 1) (layers F.Cu F.Mask) (width 0.1))"
                         "(gr_line (start 0 0) (end 1 1) (layer Rescue) (width 0.1))"
                         "(gr_text \"x\" (at 0 0) (layer Rescue)) (gr_text \"x\" (at 0 0) (layer F.SilkS knockout))"));
        QCOMPARE(imported.error, QString());
        QCOMPARE(NotShown(imported, "nets of graphic shapes"), 1);
        QCOMPARE(NotShown(imported, "further layers of graphic shapes"), 1);
        QCOMPARE(NotShown(imported, "graphic shapes on unknown layers"), 1);
        QCOMPARE(NotShown(imported, "texts on unknown layers"), 1);
        QCOMPARE(NotShown(imported, "knockouts of texts (drawn plain)"), 1);
        QCOMPARE(Shapes(imported).size(), 2);
        QCOMPARE(All<TGraphicsTextItem>(imported).size(), 1);
    }

    void closesTheOutline_data()
    {
        QTest::addColumn<QByteArray>("edges"); // An at sign stands for what all of them end with.
        QTest::addColumn<int>("points");       // Of the outer edge; 0 for no outline.
        QTest::addColumn<QRectF>("box");       // In millimetres.
        QTest::addColumn<bool>("hasCutOuts");
        QTest::addColumn<int>("drawings"); // What has no place in the outline.
        const auto row = [](const char* name, const char* edges, int points, QRectF box, bool hasCutOuts = false,
                            int drawings = 0) {
            QTest::newRow(name) << QByteArray(edges) << points << box << hasCutOuts << drawings;
        };
        row("lines in order",
            "(gr_line (start 0 0) (end 8 0) @)(gr_line (start 8 0) (end 8 6) @)(gr_line (start 8 6) (end 0 6) @)"
            "(gr_line (start 0 6) (end 0 0) @)",
            4, {0, 0, 8, 6});
        row("lines in any order and direction",
            "(gr_line (start 8 6) (end 8 0) @)(gr_line (start 0 6) (end 0 0) @)(gr_line (start 8 0) (end 0 0) @)"
            "(gr_line (start 8 6) (end 0 6) @)",
            4, {0, 0, 8, 6});
        row("small gaps",
            "(gr_line (start 0 0) (end 8 0) @)(gr_line (start 8.05 0) (end 8 6) @)(gr_line (start 8 6) (end 0 5.95) @)"
            "(gr_line (start 0 6) (end 0 0) @)",
            4, {0, 0, 8.05, 6});
        row("an arc",
            "(gr_line (start 0 0) (end 8 0) @)(gr_arc (start 8 0) (mid 11 3) (end 8 6) @)"
            "(gr_line (start 8 6) (end 0 6) @)(gr_line (start 0 6) (end 0 0) @)",
            5, {0, 0, 11, 6});
        row("an arc of version 5",
            "(gr_line (start 0 0) (end 8 0) @)(gr_arc (start 8 3) (end 8 0) (angle 180) @)"
            "(gr_line (start 8 6) (end 0 6) @)(gr_line (start 0 6) (end 0 0) @)",
            5, {0, 0, 11, 6});
        row("a rectangle", "(gr_rect (start 0 0) (end 8 6) @)", 4, {0, 0, 8, 6});
        row("a circle", "(gr_circle (center 3 3) (end 6 3) @)", 4, {0, 0, 6, 6});
        row("a polygon", "(gr_poly (pts (xy 0 0) (xy 8 0) (xy 4 6)) @)", 3, {0, 0, 8, 6});
        row("a cut-out drawn first", "(gr_circle (center 3 3) (end 4 3) @)(gr_rect (start 0 0) (end 8 6) @)", 4,
            {0, 0, 8, 6}, true);
        row("in a footprint", "(footprint A (layer F.Cu) (at 10 20 90) (fp_rect (start 0 0) (end 8 6) @))", 4,
            {10, 12, 6, 8});
        row("partly in a footprint",
            "(footprint A (layer F.Cu) (at 8 0) (fp_line (start 0 0) (end 0 6) @))(gr_line (start 0 0) (end 8 0) @)"
            "(gr_line (start 8 6) (end 0 6) @)(gr_line (start 0 6) (end 0 0) @)",
            4, {0, 0, 8, 6});
        row("a line too many", "(gr_rect (start 0 0) (end 8 6) @)(gr_line (start 3 0) (end 3 6) @)", 4, {0, 0, 8, 6},
            false, 1);
        row("not closed", "(gr_line (start 0 0) (end 8 0) @)(gr_line (start 8 0) (end 8 6) @)", 0, {}, false, 2);
        row("not closed in a footprint", "(footprint A (layer F.Cu) (at 10 20 90) (fp_line (start 0 0) (end 8 6) @))",
            0, {}, false, 1);
        row("one arc", "(gr_arc (start 8 0) (mid 11 3) (end 8 6) @)", 0, {}, false, 1);
        row("none", "", 0, {});
    }

    void closesTheOutline()
    {
        QFETCH(QByteArray, edges);
        QFETCH(int, points);
        QFETCH(QRectF, box);
        QFETCH(bool, hasCutOuts);
        QFETCH(int, drawings);
        const TImportResult imported = Import(Board(edges.replace('@', "(layer Edge.Cuts) (width 0.1)")));
        QCOMPARE(imported.error, QString());
        QVERIFY(imported.notShown.isEmpty());
        const auto outlines = All<TGraphicsOutlineItem>(imported);
        QCOMPARE(outlines.size(), points > 0 ? 1 : 0);
        if (points > 0) {
            const TGraphicsOutlineItem& outline = *outlines.first();
            QCOMPARE(outline.Points().size(), points);
            const QRectF found = Millimetres(outline.Path().boundingRect());
            QVERIFY((found.topLeft() - box.topLeft()).manhattanLength() < 0.01);
            QVERIFY((found.bottomRight() - box.bottomRight()).manhattanLength() < 0.01);
            QCOMPARE(outline.CutOuts().isEmpty(), !hasCutOuts);
            QCOMPARE(outline.PenWidth(), float(0.1 * millimetre));
            QCOMPARE(outline.Layer(), Osmirel::BoardOutline);
        }
        QCOMPARE(Shapes(imported).size(), drawings);
        for (const TGraphicsPenItem* shape : Shapes(imported)) {
            QCOMPARE(shape->Layer(), Osmirel::BoardOutline);
        }
    }

    void readsTexts_data()
    {
        QTest::addColumn<QByteArray>("effects");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<double>("line"); // In millimetres.
        QTest::addColumn<bool>("bold");
        QTest::addColumn<bool>("italic");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<bool>("mirrored");
        const auto row = [](const char* name, const char* effects, int pixels, double line, bool bold = false,
                            bool italic = false, int alignment = Qt::AlignCenter, bool mirrored = false) {
            QTest::newRow(name) << QByteArray(effects) << pixels << line << bold << italic << alignment << mirrored;
        };
        row("plain", "(font (size 1 1) (thickness 0.15))", 12, 0.15);
        row("the height counts, not the width", "(font (size 2 1) (thickness 0.15))", 24, 0.15);
        row("bare words", "(font (size 1 1) (thickness 0.2) bold italic)", 12, 0.2, true, true);
        row("flags as lists", "(font (size 1 1) (thickness 0.2) (bold yes) (italic yes))", 12, 0.2, true, true);
        row("flags denied", "(font (size 1 1) (thickness 0.2) (bold no) (italic no))", 12, 0.2);
        row("no thickness", "(font (size 0.8 0.8))", 9, 0.1);
        row("no thickness, bold", "(font (size 0.5 0.5) bold)", 6, 0.1, true);
        row("left", "(font (size 1 1) (thickness 0.1)) (justify left)", 12, 0.1, false, false, Qt::AlignLeft);
        row("right, mirrored", "(font (size 1 1) (thickness 0.1)) (justify right mirror)", 12, 0.1, false, false,
            Qt::AlignRight, true);
        row("top", "(font (size 1 1) (thickness 0.1)) (justify top)", 12, 0.1, false, false,
            Qt::AlignHCenter | Qt::AlignTop);
        row("left bottom", "(font (size 1 1) (thickness 0.1)) (justify left bottom)", 12, 0.1, false, false,
            Qt::AlignLeft | Qt::AlignBottom);
        row("only mirrored", "(font (size 1 1) (thickness 0.1)) (justify mirror)", 12, 0.1, false, false,
            Qt::AlignCenter, true);
        row("tiny", "(font (size 0.01 0.01) (thickness 0.001))", 1, 0.001);
    }

    void readsTexts()
    {
        QFETCH(QByteArray, effects);
        QFETCH(double, line);
        const TImportResult imported =
            Import(Board(R"((gr_text "two\nlines" (at 3 4 30) (layer F.SilkS) (effects )" + effects + "))"));
        QCOMPARE(imported.error, QString());
        const auto* text = Only<TGraphicsTextItem>(imported);
        QVERIFY(text);
        QCOMPARE(text->Text(), QString("two\nlines"));
        QTEST(text->Font().pixelSize(), "pixels");
        QCOMPARE(text->LineWidth(), float(line * millimetre));
        QTEST(text->Font().weight() > 57, "bold");
        QTEST(text->Font().style() != QFont::StyleNormal, "italic");
        QTEST(text->Alignment(), "alignment");
        QTEST(text->IsMirroredH(), "mirrored");
        QVERIFY(text->IsVector());
        QCOMPARE(text->Layer(), Osmirel::SilkTop);
        QCOMPARE(text->rotation(), -30.0);
        QVERIFY(IsNear(text->pos(), QPointF(3, 4) * millimetre));
    }

    void readsTextsOfFootprints_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<bool>("locked");
        const auto row = [](const char* text, const char* shown, bool hidden = false, bool locked = false) {
            QTest::newRow(text) << QByteArray(text) << QString(shown) << hidden << locked;
        };
        row("(fp_text user hello (at 1 2 120) (layer F.Fab))", "hello");
        row("(fp_text user hello (at 1 2 120) (layer F.Fab) hide)", "hello", true);
        row("(fp_text user hide (at 1 2 120) (layer F.Fab))", "hide");
        row(R"((fp_text user "hello" (at 1 2 120 unlocked) (layer "F.Fab")))", "hello");
        row(R"((fp_text user "hello" locked (at 1 2 120) (layer "F.Fab")))", "hello", false, true);
        row(R"((fp_text user "hello" (at 1 2 120) (layer "F.Fab") (hide yes)))", "hello", true);
        row(R"((fp_text user "hello" (at 1 2 120) (layer "F.Fab") (effects (font (size 1 1)) hide)))", "hello", true);
        row(R"((property "Datasheet" "a.pdf" (at 1 2 120) (layer "F.Fab") (hide yes)))", "a.pdf", true);
        row(R"((fp_text user "${REFERENCE}" (at 1 2 120) (layer "F.Fab")))", "U1");
        row(R"((fp_text user "is ${VALUE} of ${FOOTPRINT_NAME}" (at 1 2 120) (layer "F.Fab")))", "is 4k7 of Part");
        row(R"((fp_text user "${MPN}, ${TITLE}, ${LAYER}" (at 1 2 120) (layer "F.Fab")))", "X-1, My board, F.Fab");
        row(R"((fp_text user "${UNKNOWN} $" (at 1 2 120) (layer "F.Fab")))", "${UNKNOWN} $");
        row("(fp_text user %R (at 1 2 120) (layer F.Fab))", "%R");
        row("(fp_text user ~ (at 1 2 120) (layer F.Fab))", "");
    }

    void readsTextsOfFootprints()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, hidden);
        QFETCH(bool, locked);
        const TImportResult imported =
            Import(Board("(footprint \"Lib:Part\" (layer F.Cu) (at 10 20 90) " + text
                         + "(property \"Reference\" \"U1\") (property \"Value\" \"4k7\") (property \"MPN\" \"X-1\"))"
                           "(title_block (title \"My board\"))"));
        QCOMPARE(imported.error, QString());
        const auto* item = Only<TGraphicsTextItem>(imported);
        const auto* package = Only<TGraphicsPackageItem>(imported);
        QVERIFY(item && package);
        QTEST(item->Text(), "shown");
        QCOMPARE(!item->isVisible(), hidden);
        QCOMPARE(item->HasTFlag(TGraphicsItem::Lock), locked);
        QCOMPARE(item->Layer(), Osmirel::DrawingsTop);
        QCOMPARE(item->parentItem(), package);
        QVERIFY(IsNear(item->pos(), QPointF(1, 2) * millimetre));
        QCOMPARE(item->rotation(), -30.0); // The file's angle is that on the board.
        QVERIFY(!package->RefDesText() && !package->ValueText());
    }

    void resolvesTheOldestNames()
    {
        const TImportResult imported =
            Import(Board("(module Part (layer F.Cu) (at 0 0) (fp_text user \"%R/%V\" (at 0 0) "
                         "(layer F.Fab)) (fp_text reference U1 (at 0 0) (layer F.SilkS)))"));
        QCOMPARE(imported.error, QString());
        const auto texts = All<TGraphicsTextItem>(imported);
        QVERIFY(std::any_of(texts.begin(), texts.end(), [](auto* text) { return text->Text() == "U1/"; }));
    }

    void textsFollowTheirPackage_data()
    {
        QTest::addColumn<QByteArray>("reference");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("version 5") << QByteArray("(fp_text reference R1 (at 0 -1 90) (layer F.SilkS) hide)")
                                   << QByteArray("(fp_text value 4k7 locked (at 0 1 90) (layer F.Fab))");
        QTest::newRow("version 8")
            << QByteArray(R"((property "Reference" "R1" (at 0 -1 90) (layer "F.SilkS") (hide yes)))")
            << QByteArray(R"((property "Value" "4k7" (at 0 1 90) (layer "F.Fab") (locked yes)))");
    }

    void textsFollowTheirPackage()
    {
        QFETCH(QByteArray, reference);
        QFETCH(QByteArray, value);
        const TImportResult imported =
            Import(Board("(footprint A (layer F.Cu) (at 10 20 90) " + value + reference + ")"));
        QCOMPARE(imported.error, QString());
        auto* package = Only<TGraphicsPackageItem>(imported);
        QVERIFY(package);
        auto* refDes = dynamic_cast<TGraphicsTextItem*>(package->RefDesText());
        auto* valueText = dynamic_cast<TGraphicsTextItem*>(package->ValueText());
        QVERIFY(refDes && valueText);
        QCOMPARE(refDes->Text(), QString("R1"));
        QCOMPARE(refDes->rotation(), 0.0);
        QCOMPARE(refDes->Layer(), Osmirel::SilkTop);
        QVERIFY(!refDes->isVisible() && valueText->isVisible());
        QVERIFY(!package->LockRefDes() && package->LockValue());
        QVERIFY(valueText->HasTFlag(TGraphicsItem::Lock) && !refDes->HasTFlag(TGraphicsItem::Lock));
        package->SetRefDes("R7");
        package->SetValue("10k");
        QCOMPARE(refDes->Text(), QString("R7"));
        QCOMPARE(valueText->Text(), QString("10k"));
    }

    void readsTextBoxes_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<QPointF>("anchor"); // In millimetres.
        QTest::addColumn<bool>("hasBorder");
        QTest::newRow("centred") << QByteArray("(start 1 2) (end 5 8) (layer F.SilkS)") << QPointF(3, 5) << true;
        QTest::newRow("left top") << QByteArray("(start 1 2) (end 5 8) (layer F.SilkS) (effects (font (size 1 1)) "
                                                "(justify left top)) (border yes)")
                                  << QPointF(1, 2) << true;
        QTest::newRow("no border") << QByteArray("(start 1 2) (end 5 8) (layer F.SilkS) (border no)") << QPointF(3, 5)
                                   << false;
        QTest::newRow("corners") << QByteArray("(pts (xy 0 3) (xy 3 0) (xy 6 3) (xy 3 6)) (angle 45) (layer F.SilkS)")
                                 << QPointF(3, 3) << true;
    }

    void readsTextBoxes()
    {
        QFETCH(QByteArray, box);
        QFETCH(QPointF, anchor);
        QFETCH(bool, hasBorder);
        const TImportResult onBoard =
            Import(Board("(gr_text_box \"${TITLE}\" " + box + ") (title_block (title \"T\"))"));
        const TImportResult inFootprint = Import(Board(Footprint("(fp_text_box \"T\" " + box + ")")));
        for (const TImportResult* imported : {&onBoard, &inFootprint}) {
            QCOMPARE(imported->error, QString());
            const auto* text = Only<TGraphicsTextItem>(*imported);
            QVERIFY(text);
            QCOMPARE(text->Text(), QString("T"));
            QVERIFY(IsNear(text->pos(), anchor * millimetre));
            QCOMPARE(text->rotation(), box.contains("angle") ? -45.0 : 0.0);
            QCOMPARE(All<TGraphicsPolygonItem>(*imported).size(), hasBorder ? 1 : 0);
            QCOMPARE(bool(text->parentItem()), imported == &inFootprint);
        }
    }
};

PROPERTIES_TEST(TestDrawings)
#include "tst_drawings.moc"
