#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsRatLineItem.h>

#include <QGraphicsView>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

QVector<QLineF> Rats(const TBoard& board, const QString& net = "N")
{
    QVector<QLineF> lines;
    const QList<TGraphicsItem*> items = board.Items();
    for (const TGraphicsItem* item : items) {
        const auto* rat = dynamic_cast<const TGraphicsRatLineItem*>(item);
        if (rat && rat->Net() == net) {
            lines.append(rat->Line());
        }
    }
    return lines;
}

double Length(const QVector<QLineF>& lines)
{
    double sum = 0;
    for (const QLineF& line : lines) {
        sum += line.length();
    }
    return sum;
}

/** The length of a minimum spanning tree over points in groups, by the plainest way there is. */
double ShortestJoin(const QVector<QPointF>& points, QVector<int> groups)
{
    double sum = 0;
    while (true) {
        double best = -1;
        QPair<int, int> joining;
        for (int i = 0; i < points.size(); ++i) {
            for (int j = 0; j < i; ++j) {
                const double length = QLineF(points[i], points[j]).length();
                if (groups[i] != groups[j] && (best < 0 || length < best)) {
                    best = length;
                    joining = {groups[i], groups[j]};
                }
            }
        }
        if (best < 0) {
            return sum;
        }
        sum += best;
        std::replace(groups.begin(), groups.end(), joining.first, joining.second);
    }
}

} // namespace

class TestRats : public QObject
{
    Q_OBJECT

private slots:
    void missingConnectionsAreDrawnBetweenIslands()
    {
        Test::Network board;
        TGraphicsPadItem* left = board.Pad({0, 0}, "N");
        board.Pad({100, 0}, "N");
        board.Pad({30, 50}, "other");
        TGraphicsWireItem* wire = board.Wire({0, 0}, {70, 0});
        wire->LinkToFirst(left);
        QCOMPARE(Rats(board), QVector<QLineF>{QLineF(100, 0, 70, 0)});
        QCOMPARE(Rats(board, "other"), QVector<QLineF>());
    }

    void theyFollowLinkingAndCutting()
    {
        Test::Network board;
        TGraphicsPadItem* left = board.Pad({0, 0}, "N");
        TGraphicsPadItem* right = board.Pad({100, 0}, "N");
        TGraphicsWireItem* wire = board.Wire({0, 0}, {100, 0}, "N");
        wire->LinkToFirst(left);
        const QString cut = board.Dump();
        QCOMPARE(Rats(board).size(), 1);
        wire->LinkToLast(right);
        QCOMPARE(Rats(board).size(), 0);
        wire->UnlinkFrom(right);
        QCOMPARE(board.Dump(), cut);
    }

    void aSmallestSetOfLinesJoinsAll_data()
    {
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("groups");
        QTest::addColumn<int>("grid");
        for (unsigned seed = 1; seed <= 12; ++seed) {
            const int points = 10 + static_cast<int>(seed) * 9;
            QTest::addRow("%d points by themselves, seed %u", points, seed) << seed << points << points << 4000;
            QTest::addRow("%d points in groups, seed %u", points, seed) << seed << points << 1 + points / 8 << 4000;
            QTest::addRow("%d points on a grid, seed %u", points, seed) << seed << points << points / 2 << 8;
        }
        QTest::newRow("two large groups") << 99u << 220 << 2 << 4000;
    }
    void aSmallestSetOfLinesJoinsAll()
    {
        QFETCH(unsigned, seed);
        QFETCH(int, points);
        QFETCH(int, groups);
        QFETCH(int, grid);
        std::mt19937 random(seed);
        const auto pick = [&random](int count) {
            return static_cast<int>(std::uniform_int_distribution<int>(0, count - 1)(random));
        };
        Test::Network board;
        QVector<QPointF> places;
        QVector<int> groupOf;
        QVector<TGraphicsWireItem*> lastOf(groups, nullptr);
        for (int i = 0; i < points; ++i) {
            // A wire without length in each place; those of a group are linked.
            const QPointF place(pick(grid), pick(grid));
            const int group = pick(groups);
            TGraphicsWireItem* wire = board.Wire(place, place, "N");
            if (lastOf[group]) {
                lastOf[group]->LinkToLast(wire);
            }
            lastOf[group] = wire;
            places.append(place);
            groupOf.append(group);
        }
        const QVector<QLineF> rats = Rats(board);
        const QSet<int> used(groupOf.cbegin(), groupOf.cend());
        QCOMPARE(rats.size(), used.size() - 1);
        const double shortest = ShortestJoin(places, groupOf);
        QVERIFY2(std::abs(Length(rats) - shortest) <= 1e-6 * std::max(1.0, shortest),
                 qPrintable(QString("%1 instead of %2").arg(Length(rats)).arg(shortest)));
    }

    void padsAndViasThatOverlapAreJoined_data()
    {
        QTest::addColumn<QPointF>("viaAt");
        QTest::addColumn<int>("padLayer");
        QTest::addColumn<int>("rats");
        QTest::newRow("via in pad") << QPointF(2, 1) << int(Osmirel::CopperTop) << 0;
        QTest::newRow("via touching the pad's edge") << QPointF(7, 0) << int(Osmirel::CopperTop) << 0;
        QTest::newRow("via beside the pad") << QPointF(9, 0) << int(Osmirel::CopperTop) << 1;
        QTest::newRow("blind via under a pad of the other side") << QPointF(2, 1) << int(Osmirel::CopperBottom) << 1;
    }
    void padsAndViasThatOverlapAreJoined()
    {
        QFETCH(QPointF, viaAt);
        QFETCH(int, padLayer);
        QFETCH(int, rats);
        Test::Network board;
        board.Pad({0, 0}, "N", static_cast<Osmirel::Layer>(padLayer));
        board.Via(viaAt, "N")->SetLayers(Osmirel::CopperTop, Osmirel::Copper2);
        QCOMPARE(Rats(board).size(), rats);
    }

    void aPourJoinsWhatItCovers()
    {
        Test::Network board;
        board.Pad({0, 0}, "N");
        board.Pad({100, 0}, "N");
        board.Pad({200, 0}, "N", Osmirel::CopperBottom);
        TGraphicsPourItem* pour = board.Pour({-20, -20, 300, 40}, "N");
        QCOMPARE(Rats(board).size(), 1); // The pad on the other side.
        pour->SetLayer(Osmirel::CopperBottom);
        QCOMPARE(Rats(board).size(), 2);
        pour->SetLayer(Osmirel::CopperTop);

        pour->SetFillType(Qt::NoBrush);
        QCOMPARE(Rats(board).size(), 2);
        pour->SetFillType(Qt::CrossPattern);
        QCOMPARE(Rats(board).size(), 1);
        pour->SetNet("M");
        QCOMPARE(Rats(board).size(), 2);
        pour->SetNet("N");

        auto* keepout = board.Add<TGraphicsKeepoutItem>({});
        keepout->SetArea(QPolygonF(QRectF(90, -10, 20, 20)));
        QCOMPARE(Rats(board).size(), 1);
        keepout->SetLayerEnable(Osmirel::CopperTop, true);
        QCOMPARE(Rats(board).size(), 2);
        keepout->SetLayerEnable(Osmirel::CopperTop, false);

        TGraphicsPourItem* other = board.Pour({90, -10, 20, 20}, "M");
        QCOMPARE(Rats(board).size(), 1);
        other->SetPriority(1);
        QCOMPARE(Rats(board).size(), 2);
    }

    void nothingIsWorkedOutBeforeSomebodyLooks()
    {
        Test::Network board;
        TGraphicsPadItem* left = board.Pad({0, 0}, "N");
        board.Pad({100, 0}, "N");
        QCOMPARE(Rats(board).size(), 1);
        const int shown = board.Scene()->items().size();

        left->SetNet("M");
        board.UpdateRats(QStringList{"N", "M", "N"});
        board.UpdateRats(QStringList{"K"});
        QCOMPARE(board.AskedRats(), (QStringList{"K", "M", "N"}));
        QCOMPARE(board.Scene()->items().size(), shown);
        QCOMPARE(board.View(), nullptr);
        QCOMPARE(board.Scene()->items().size(), shown - 1);
        QCOMPARE(board.AskedRats(), QStringList());
    }

    void aListThatGrowsFromCallToCallIsAskedForWhole()
    {
        Test::Network board;
        const QStringList all{"B", "A", "D", "C"};
        for (int count = 1; count <= all.size(); ++count) {
            board.UpdateRats(all.mid(0, count));
        }
        board.UpdateRats(QStringList{"F", "C"});
        board.UpdateRats(QStringList{"F", "E", "G"});
        QCOMPARE(board.AskedRats(), (QStringList{"A", "B", "C", "D", "E", "F", "G"}));
        board.Items();
        board.UpdateRats(all);
        QCOMPARE(board.AskedRats(), (QStringList{"A", "B", "C", "D"}));
        // One that only looks as if it had grown.
        board.UpdateRats(QStringList{"B", "E", "D", "C", "F"});
        QCOMPARE(board.AskedRats(), (QStringList{"A", "B", "C", "D", "E", "F"}));
    }

    void theEventLoopCountsAsALook()
    {
        Test::Network board;
        board.Pad({0, 0}, "N");
        board.Pad({100, 0}, "N");
        const int before = board.Scene()->items().size();
        QTRY_COMPARE(board.Scene()->items().size(), before + 1);
    }

    void componentsAreAskedForByNumber()
    {
        Test::Network board;
        TGraphicsPackageItem* package = board.AddPackage();
        package->SetComponentNumber(7);
        board.AddSurfacePad(1, 1, package)->SetNet("N");
        board.AddSurfacePad(1, 1, package)->SetNet("M");
        board.AddSurfacePad(1, 1, package);
        board.Items();
        board.UpdateRats(QList<unsigned short>{7, 8});
        QCOMPARE(board.AskedRats(), (QStringList{"M", "N"}));
    }

    void prioritiesAndColoursComeFromTheNetModel()
    {
        TSchematic schematic;
        schematic.NetModel()->AddNet("N", "Default", QColor(), Qt::red, 3);
        Test::Network board;
        TProject project;
        project.SetBoard(&board);
        project.SetSchematic(&schematic);
        board.Pad({0, 0}, "N");
        board.Pad({100, 0}, "N");
        auto* rat = dynamic_cast<TGraphicsRatLineItem*>(board.Items().last());
        QVERIFY(rat);
        QCOMPARE(rat->Priority(), QString("3"));
        QCOMPARE(rat->AltColor(), QColor(Qt::red));

        schematic.NetModel()->SetPriority("N", "8");
        board.RatPriority(5);
        QCOMPARE(rat->Priority(), QString("3"));
        board.RatPriority(-1);
        QCOMPARE(rat->Priority(), QString("8"));
        QVERIFY2(rat->StateLine().contains("priority=\"8\""), qPrintable(rat->StateLine()));
    }

    void ratLinesAreListedLastByNetAndCannotBePicked()
    {
        Test::Network board;
        for (const char* net : {"Z", "A", "Z", "A"}) {
            board.Pad({board.Items().size() * 40.0, 0}, net);
        }
        board.Via({300, 0});
        const QList<TGraphicsItem*> items = board.Items();
        QCOMPARE(items.size(), 7);
        QCOMPARE(items[4]->type(), int(ItemType::Via));
        QCOMPARE(items[5]->Net(), QString("A"));
        QCOMPARE(items[6]->Net(), QString("Z"));
        for (const int i : {5, 6}) {
            QCOMPARE(items[i]->type(), int(ItemType::RatLine));
            QCOMPARE(items[i]->DesignOrder(), 0);
            QVERIFY(!items[i]->flags().testFlag(QGraphicsItem::ItemIsSelectable));
        }
        QCOMPARE(board.Dump().count("\nratline"), 2);
    }

    void deletedCopperTakesItsLinesAlong()
    {
        Test::Network board;
        board.Pad({0, 0}, "N");
        TGraphicsPadItem* second = board.Pad({100, 0}, "N");
        board.Pad({200, 0}, "N");
        QCOMPARE(Length(Rats(board)), 200.0);
        delete second;
        QCOMPARE(Rats(board), QVector<QLineF>{QLineF(0, 0, 200, 0)});
    }
};

PROPERTIES_TEST(TestRats)
#include "tst_rats.moc"
