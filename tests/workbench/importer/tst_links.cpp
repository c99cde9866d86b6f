#include "properties/commands/TCmdPackage.h"
#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/BoardTexts.h"
#include "tests/workbench/support/ImportedItems.h"
#include "tests/workbench/support/RealDesigns.h"
#include "tests/workbench/support/TBoardText.h"

#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsRatLineItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QElapsedTimer>
#include <QGraphicsView>
#include <QtTest>
#include <QUndoStack>

#include <cmath>

using BoardTexts::Board;
using BoardTexts::Footprint;
using ImportedItems::All;
using ImportedItems::millimetre;

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

TImportResult Import(const QByteArray& elements)
{
    return ImportBoardText(Board(elements), QStringLiteral("board"));
}

QByteArray Segment(const char* from, const char* to, const char* rest = "(width 0.2) (layer F.Cu) (net 1)")
{
    return QByteArray("(segment (start ") + from + ") (end " + to + ") " + rest + ")\n";
}

/** Such as "0.last" for the last end of the first wire, "junction", or "pad 2". */
QString Name(const TGraphicsItem* item, const QList<TGraphicsWireItem*>& wires)
{
    if (!item) {
        return QStringLiteral("-");
    }
    if (const auto* pad = dynamic_cast<const TGraphicsPadItem*>(item)) {
        return QStringLiteral("pad") + pad->Number();
    }
    const auto wire = std::find(wires.begin(), wires.end(), item);
    return wire == wires.end() ? item->KindName() : QString::number(wire - wires.begin());
}

/** What the wires are linked to at both ends: "- 0>1 0" for each wire "first>last". */
QString Topology(const TImportResult& imported)
{
    const auto wires = All<TGraphicsWireItem>(imported);
    QStringList links;
    for (const TGraphicsWireItem* wire : wires) {
        links.append(Name(wire->FirstLink(), wires) + QLatin1Char('>') + Name(wire->LastLink(), wires));
    }
    return links.join(QLatin1Char(' '));
}

/** How many links the item at the other side of a wire's end holds to the wire. */
int HeldBy(const TGraphicsItem* linked, TGraphicsWireItem* wire)
{
    return linked->Links().count(wire);
}

/** Where copper of the design is looked for: all wires, vias, pads and net ties by cells of a grid. */
class CopperMap
{
public:
    explicit CopperMap(const QList<TGraphicsItem*>& items)
    {
        for (TGraphicsItem* item : items) {
            if (item->CanBeLinkedTo() && item->type() != ItemType::Junction && item->type() != ItemType::RatLine) {
                const QRectF box = item->sceneBoundingRect();
                for (int x = Cell(box.left()); x <= Cell(box.right()); ++x) {
                    for (int y = Cell(box.top()); y <= Cell(box.bottom()); ++y) {
                        cells[{x, y}].append(item);
                    }
                }
            }
        }
    }

    /** Copper of the wire's layer and net at a place, that the wire does not hang together with anyway. */
    const TGraphicsItem* At(const QPointF& place, const TGraphicsWireItem& wire) const
    {
        for (const TGraphicsItem* item : cells.value({Cell(place.x()), Cell(place.y())})) {
            const bool isOfIsland = item == &wire || (item->Island() && item->Island() == wire.Island());
            if (!isOfIsland && item->HasCopperOn(wire.Layer()) && item->OwnNet() == wire.OwnNet()
                && Covers(*item, item->mapFromScene(place))) {
                return item;
            }
        }
        return nullptr;
    }

private:
    static int Cell(double coordinate) { return static_cast<int>(std::floor(coordinate / millimetre)); }

    static bool Covers(const TGraphicsItem& item, const QPointF& point)
    {
        if (const auto* wire = dynamic_cast<const TGraphicsSectionItem*>(&item)) {
            const QPointF along = wire->Point2() - wire->Point1();
            const double square = QPointF::dotProduct(along, along);
            const double share =
                square > 0 ? qBound(0.0, QPointF::dotProduct(point - wire->Point1(), along) / square, 1.0) : 0;
            return QLineF(point, wire->Point1() + share * along).length() < double(wire->PenWidth()) / 2 - 1e-3;
        }
        return item.boundingRect().contains(point) && item.Outline().contains(point);
    }

    QHash<QPair<int, int>, QVector<const TGraphicsItem*>> cells;
};

} // namespace

/** How the ends of tracks are linked: on boards of a few tracks, and on boards that nobody here drew. */
class TestLinks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        designs = Test::RealDesigns("*.kicad_pcb");
        designs.append(Test::SourcePath("workbench/samples/sample.kicad_pcb"));
    }

    void linksEnds_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QString>("topology");
        const auto row = [](const char* name, const QByteArray& elements, const char* topology) {
            QTest::newRow(name) << elements << QString(topology);
        };
        const QByteArray via = "(via (at 2 0) (size 0.8) (drill 0.4) (net 1))";
        const QByteArray pads =
            Footprint("(pad 1 smd rect (at 0 0) (size 2 1) (layers F.Cu) (net 1 GND))"
                      "(pad 2 smd rect (at 5 0) (size 2 1) (layers B.Cu) (net 1 GND))"
                      R"((pad 3 thru_hole circle (at 10 0) (size 2 2) (drill 1) (layers *.Cu) (net 2 "/I{slash}O")))");
        const auto bottom = "(width 0.2) (layer B.Cu) (net 1)";
        const auto other = "(width 0.2) (layer F.Cu) (net 2)";

        row("a track alone", Segment("0 0", "1 0"), "->-");
        row("head to tail", Segment("0 0", "1 0") + Segment("1 0", "2 0"), "->1 0>-");
        row("the second drawn first", Segment("1 0", "2 0") + Segment("0 0", "1 0"), "1>- ->0");
        row("first to first", Segment("1 0", "0 0") + Segment("1 0", "2 0"), "junction>- junction>-");
        row("last to last", Segment("0 0", "1 0") + Segment("2 0", "1 0"), "->junction ->junction");
        row("three meet", Segment("0 0", "1 0") + Segment("1 0", "2 0") + Segment("1 0", "1 1"),
            "->junction junction>- junction>-");
        row("three of no net",
            Segment("0 0", "1 0", "(width 0.2) (layer F.Cu) (net 0)")
                + Segment("1 0", "2 0", "(width 0.2) (layer F.Cu)")
                + Segment("1 0", "1 1", "(width 0.2) (layer F.Cu) (net 0)"),
            "->junction junction>- junction>-");
        row("a loop", Segment("0 0", "1 0") + Segment("1 0", "0 1") + Segment("0 1", "0 0"), "2>1 0>2 1>0");
        row("two tracks in the same place", Segment("0 0", "1 0") + Segment("0 0", "1 0"),
            "junction>junction junction>junction");
        row("different layers", Segment("0 0", "1 0") + Segment("1 0", "2 0", bottom), "->- ->-");
        row("different nets", Segment("0 0", "1 0") + Segment("1 0", "2 0", other), "->- ->-");
        row("a micrometre apart", Segment("0 0", "1 0") + Segment("1.001 0", "2 0"), "->junction junction>-");
        row("copper that does not touch", Segment("0 0", "1 0") + Segment("1.2 0", "2 0"), "->- ->-");

        row("on a track's middle", Segment("0 0", "4 0") + Segment("2 0", "2 3"), "->junction junction>- junction>-");
        row("across each other", Segment("0 0", "4 0") + Segment("2 -1", "2 1"), "->- ->-");
        row("on a slanted track", Segment("0 0", "3 1") + Segment("1.5 0.5", "1.5 3"),
            "->junction junction>- junction>-");
        row("nearly on a slanted track", Segment("0 0", "3 1") + Segment("1 0.333333", "1 3"),
            "->junction junction>- junction>-");
        row("two on one track", Segment("0 0", "6 0") + Segment("4 0", "4 3") + Segment("2 0", "2 3"),
            "->junction junction>junction junction>- junction>- junction>-");
        row("both sides of a track", Segment("0 0", "4 0") + Segment("2 -3", "2 0") + Segment("2 0", "2 3"),
            "->junction junction>- ->junction junction>-");
        row("on the middle of another net", Segment("0 0", "4 0") + Segment("2 0", "2 3", other), "->- ->-");
        row("on the middle on another layer", Segment("0 0", "4 0") + Segment("2 0", "2 3", bottom), "->- ->-");
        row("tracks along each other", Segment("0 0", "4 0") + Segment("2 0", "6 0"),
            "->junction junction>junction junction>junction junction>-");
        row("beside a track's middle line", Segment("0 0", "4 0") + Segment("2 0.09", "2 3"),
            "->junction junction>- junction>-");
        row("beside a track's end", Segment("0 0", "4 0") + Segment("3.95 0.05", "4 3"), "->junction junction>-");

        row("no length", Segment("1 0", "1 0"), "->-");
        row("no length at an end", Segment("0 0", "1 0") + Segment("1 0", "1 0"), "->junction junction>junction");
        row("no length on a track's middle", Segment("0 0", "4 0") + Segment("2 0", "2 0"),
            "->junction junction>- junction>junction");
        row("no length on a pad", pads + Segment("0 0", "0 0"), "pad1>pad1");
        row("no length on a via", via + Segment("2 0", "2 0"), "via>via");

        row("a via", via + Segment("0 0", "2 0"), "->via");
        row("a via between layers", via + Segment("0 0", "2 0") + Segment("2 0", "4 0", bottom), "->via via>-");
        row("two tracks on a via", via + Segment("0 0", "2 0") + Segment("2 0", "4 0"), "->via via>-");
        row("off a via's centre", via + Segment("0 0", "1.7 0") + Segment("2.2 0.2", "4 0"), "->via via>-");
        row("over a via", via + Segment("0 0", "4 0"), "->via via>-");
        row("over a via of another net", via + Segment("0 0", "4 0", other), "->-");
        row("on a via of another net", via + Segment("0 0", "2 0", other), "->-");
        row("a blind via", "(via blind (at 2 0) (size 0.8) (layers F.Cu F.Cu) (net 1))" + Segment("0 0", "2 0", bottom),
            "->-");
        row("a pad", pads + Segment("0 0", "0 4"), "pad1>-");
        row("off a pad's centre", pads + Segment("0.9 0.4", "0 4"), "pad1>-");
        row("beside a pad", pads + Segment("1.05 0", "3 0"), "->-");
        row("two tracks on a pad", pads + Segment("0 4", "0.5 0") + Segment("0.5 0", "4 4"), "->pad1 pad1>-");
        row("a pad of the other side", pads + Segment("5 0", "5 4"), "->-");
        row("the same from there", pads + Segment("5 0", "5 4", bottom), "pad2>-");
        row("a pad of another net", pads + Segment("10 0", "10 4"), "->-");
        row("a drilled pad from both sides",
            pads + Segment("10 4", "10 0", other) + Segment("10 0", "12 0", "(width 0.2) (layer B.Cu) (net 2)"),
            "->pad3 pad3>-");
        row("from pad to via", pads + via + Segment("0 0", "2 0"), "pad1>via");
    }

    void linksEnds()
    {
        QFETCH(QByteArray, elements);
        const TImportResult imported = Import(elements);
        QCOMPARE(imported.error, QString());
        QTEST(Topology(imported), "topology");
    }

    // Where pads lie on each other, each track comes back to the one that it was linked with.
    void tracksOfStackedPadsComeBackFromTheOtherSide()
    {
        const TImportResult imported = ImportBoardText(BoardTexts::StackedPads(), QStringLiteral("board"));
        QCOMPARE(imported.error, QString());
        QGraphicsView view(imported.board->Scene());
        imported.board->SetView(&view);
        const auto packages = All<TGraphicsPackageItem>(imported);
        QCOMPARE(packages.size(), 2);
        QCOMPARE(All<TGraphicsWireItem>(imported).first()->FirstLink()->DesignOrder(),
                 packages.first()->Pads().at(1)->DesignOrder()); // The exposed one, which a drilled one is centred in.
        QUndoStack stack;
        QStringList states{imported.board->Dump()};
        for (const auto side : {Osmirel::PackagesBottom, Osmirel::PackagesTop, Osmirel::PackagesBottom}) {
            stack.push(new TCmdPkgSide(packages, side, imported.board.get()));
            states.append(imported.board->Dump());
            QVERIFY(states.last() != states.at(states.size() - 2));
        }
        for (const int index : {0, 3, 1, 2, 0, 1, 0}) {
            stack.setIndex(index);
            QCOMPARE(imported.board->Dump(), states[index]);
        }
    }

    void makesJunctions()
    {
        const TImportResult imported = Import(Segment("0 0", "4 0", "(width 0.3) (layer B.Cu) (net 1)")
                                              + Segment("2 0", "2 3", "(width 0.5) (layer B.Cu) (net 1)"));
        const auto* junction = ImportedItems::Only<TGraphicsJunctionItem>(imported);
        QVERIFY(junction);
        QCOMPARE(junction->Layer(), Osmirel::CopperBottom);
        QCOMPARE(junction->Size().width(), double(float(0.5 * millimetre)));
        QCOMPARE(junction->pos(), QPointF(2 * millimetre, 0));
        QCOMPARE(junction->LinkedSections().size(), 3);
        QCOMPARE(junction->Net(), QString("GND"));
    }

    void readsTracks_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::newRow("(segment (start 1 2) (end 4 6) (width 0.2) (layer F.Cu) (net 1) (tstamp 5E203814) (status 0))")
            << false;
        QTest::newRow(R"((segment locked (start 1 2) (end 4 6) (width 0.2) (layer "F.Cu") (net 1) (tstamp 1-2)))")
            << true;
        QTest::newRow(R"((segment (start 1 2) (end 4 6) (width 0.2) (locked yes) (layer "F.Cu") (net 1) (uuid "1")))")
            << true;
    }

    void readsTracks()
    {
        QFETCH(bool, locked);
        const TImportResult imported = Import(QTest::currentDataTag());
        QCOMPARE(imported.error, QString());
        const auto* wire = ImportedItems::Only<TGraphicsWireItem>(imported);
        QVERIFY(wire);
        QCOMPARE(wire->pos(), QPointF());
        QCOMPARE(wire->Point1(), QPointF(1, 2) * millimetre);
        QCOMPARE(wire->Point2(), QPointF(4, 6) * millimetre);
        QCOMPARE(wire->PenWidth(), float(0.2 * millimetre));
        QCOMPARE(wire->Layer(), Osmirel::CopperTop);
        QCOMPARE(wire->Net(), QString("GND"));
        QCOMPARE(wire->HasTFlag(TGraphicsItem::Lock), locked);
    }

    void followsArcs_data()
    {
        QTest::addColumn<QByteArray>("arc");
        QTest::addColumn<QPointF>("centre");
        QTest::addColumn<double>("degrees");
        QTest::newRow("a quarter") << QByteArray("(start 5 0) (mid 3.535534 3.535534) (end 0 5)") << QPointF(0, 0)
                                   << 90.0;
        QTest::newRow("the other way") << QByteArray("(start 0 5) (mid 3.535534 3.535534) (end 5 0)") << QPointF(0, 0)
                                       << 90.0;
        QTest::newRow("three quarters") << QByteArray("(start 6 1) (mid -2.535534 -2.535534) (end 1 6)")
                                        << QPointF(1, 1) << 270.0;
        QTest::newRow("a tiny one") << QByteArray("(start 0.05 0) (mid 0.035355 0.035355) (end 0 0.05)")
                                    << QPointF(0, 0) << 90.0;
    }

    void followsArcs()
    {
        QFETCH(QByteArray, arc);
        QFETCH(QPointF, centre);
        QFETCH(double, degrees);
        const TImportResult imported = Import("(arc " + arc + " (width 0.1) (layer F.Cu) (net 1))");
        QCOMPARE(imported.error, QString());
        const auto wires = All<TGraphicsWireItem>(imported);
        QVERIFY(wires.size() >= 2);
        const double radius = QLineF(centre * millimetre, wires.first()->Point1()).length();
        double length = 0;
        for (int i = 0; i < wires.size(); ++i) {
            const QLineF line = wires[i]->SceneLine();
            QVERIFY(std::abs(QLineF(centre * millimetre, line.center()).length() - radius) <= 0.0021 * millimetre);
            QVERIFY(std::abs(QLineF(centre * millimetre, line.p2()).length() - radius) <= 0.00001 * millimetre);
            QCOMPARE(wires[i]->LastLink(), i + 1 < wires.size() ? wires[i + 1] : nullptr);
            length += line.length();
        }
        QVERIFY(std::abs(length / (radius * degrees * std::acos(-1) / 180) - 1) < 0.02);
    }

    void linksDesigns_data() { AddDesigns(); }

    void linksDesigns()
    {
        QFETCH(QString, file);
        QElapsedTimer timer;
        timer.start();
        const TImportResult imported = ImportBoard(file);
        const qint64 milliseconds = timer.elapsed();
        QCOMPARE(imported.error, QString());

        const QList<TGraphicsItem*> items = imported.board->Scene()->DesignItems();
        const CopperMap copper(items);
        const auto wires = All<TGraphicsWireItem>(imported);
        int free = 0;
        for (TGraphicsWireItem* wire : wires) {
            for (const LinkEnd end : {LinkEnd::First, LinkEnd::Last}) {
                const TGraphicsItem* linked = wire->Link(end);
                if (!linked) {
                    ++free;
                    const TGraphicsItem* beneath = copper.At(wire->ScenePoint(end), *wire);
                    QVERIFY2(!beneath,
                             qPrintable(wire->PlaceName() + " on " + (beneath ? beneath->PlaceName() : QString())));
                    continue;
                }
                QCOMPARE(HeldBy(linked, wire), int(wire->FirstLink() == linked) + int(wire->LastLink() == linked));
                if (const auto* other = dynamic_cast<const TGraphicsWireItem*>(linked)) {
                    const LinkEnd opposite = end == LinkEnd::First ? LinkEnd::Last : LinkEnd::First;
                    QCOMPARE(other->Link(opposite), wire);
                    QCOMPARE(other->ScenePoint(opposite), wire->ScenePoint(end));
                    QCOMPARE(other->Layer(), wire->Layer());
                }
            }
        }
        for (const auto* junction : All<TGraphicsJunctionItem>(imported)) {
            float widest = 0;
            for (const TGraphicsSectionItem* section : junction->LinkedSections()) {
                QVERIFY(section->FirstLink() == junction || section->LastLink() == junction);
                QCOMPARE(section->Layer(), junction->Layer());
                widest = std::max(widest, section->PenWidth());
            }
            QVERIFY(junction->LinkedSections().size() >= 2);
            QCOMPARE(float(junction->Size().width()), widest);
        }
        const QStringList routed = {"akl-pt6.kicad_pcb", "ethernet-coupled-probe.kicad_pcb", "glasgow.kicad_pcb"};
        if (routed.contains(QFileInfo(file).fileName())) {
            QCOMPARE(All<TGraphicsRatLineItem>(imported).size(), 0);
        }
        qInfo("%lld ms; %d wires, %d free ends, %d junctions, %d rat lines", milliseconds, wires.size(), free,
              All<TGraphicsJunctionItem>(imported).size(), All<TGraphicsRatLineItem>(imported).size());
    }

    void packagesLinkTheSameAgain_data() { AddDesigns(); }

    /** What packages link by touch is what the import has linked to their pads. */
    void packagesLinkTheSameAgain()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        const QString before = imported.board->Dump();
        int cut = 0;
        int linked = 0;
        for (TGraphicsPackageItem* package : All<TGraphicsPackageItem>(imported)) {
            for (const TGraphicsItem* pad : package->Pads()) {
                linked += static_cast<const TGraphicsPadItem*>(pad)->LinkedWires().size();
            }
            cut += package->Disconnect({}).size();
            package->Connect({});
        }
        QCOMPARE(cut, linked);
        QVERIFY(cut > 0 || !Test::IsAtHand(file));
        QVERIFY(imported.board->Dump() == before); // Too much to be shown.
    }

    void keepsTheLengthOfTracks_data() { AddDesigns(); }

    void keepsTheLengthOfTracks()
    {
        QFETCH(QString, file);
        const TImportResult imported = ImportBoard(file);
        const TBoardText text(file);
        QHash<QString, double> expected;
        int noLength = 0;
        for (const QString& segment : text.Elements("segment")) {
            const QLineF line(TBoardText::Point(segment, "start"), TBoardText::Point(segment, "end"));
            expected[text.Net(segment)] += line.length();
            noLength += line.isNull() ? 1 : 0;
        }
        QSet<QString> netsWithArcs;
        for (const QString& arc : text.Elements("arc")) {
            netsWithArcs.insert(text.Net(arc));
        }
        QHash<QString, double> found;
        int foundNoLength = 0;
        for (const TGraphicsWireItem* wire : All<TGraphicsWireItem>(imported)) {
            found[wire->Net()] += wire->SceneLine().length() / millimetre;
            foundNoLength += wire->SceneLine().isNull() ? 1 : 0;
        }
        QCOMPARE(foundNoLength, noLength);
        for (auto net = expected.begin(); net != expected.end(); ++net) {
            if (netsWithArcs.contains(net.key())) {
                QVERIFY(found.value(net.key()) > net.value());
            } else {
                QVERIFY2(std::abs(found.value(net.key()) - net.value()) < 1e-4, qPrintable(net.key()));
            }
        }
    }

private:
    void AddDesigns() const
    {
        QTest::addColumn<QString>("file");
        for (const QString& file : designs) {
            QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
        }
    }

    QStringList designs;
};

PROPERTIES_TEST(TestLinks)
#include "tst_links.moc"
