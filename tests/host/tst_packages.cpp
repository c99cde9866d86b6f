#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/engine/TWireConnector.h>
#include <objects/TGraphicsRatLineItem.h>

namespace {

using Items = QVector<TGraphicsItem*>;

/** A package with two surface pads and one through the board, at -100, 0 and 100 on the x axis. */
struct Part
{
    explicit Part(Test::Network& board) : package(board.AddPackage("U1"))
    {
        package->setPos(0, 0);
        left = board.AddSurfacePad(2, 2, package);
        through = board.AddThroughPad(2, 1, package);
        right = board.AddSurfacePad(2, 2, package);
        left->setPos(-100, 0);
        through->setPos(0, 0);
        right->setPos(100, 0);
    }

    TGraphicsPackageItem* package;
    TGraphicsPadItem* left;
    TGraphicsPadItem* through;
    TGraphicsPadItem* right;
};

} // namespace

class TestPackages : public QObject
{
    Q_OBJECT

private slots:
    void connectLinksWhatEndsOnThePads()
    {
        Test::Network board;
        const Part part(board);
        TGraphicsWireItem* onLeft = board.Wire({-95, 5}, {-95, 200});
        TGraphicsWireItem* across = board.Wire({-200, 0}, {200, 0}); // Ends on no pad.
        TGraphicsWireItem* below = board.Wire({100, 300}, {100, 0}, {}, Osmirel::CopperBottom);
        TGraphicsWireItem* onThrough = board.Wire({0, 300}, {0, 0}, {}, Osmirel::CopperBottom);
        TGraphicsWireItem* taken = board.Wire({100, 0}, {100, 300});
        taken->LinkToFirst(board.Via({100, 0}));

        QCOMPARE(part.package->Connect({}), (Items{onLeft, onThrough}));
        QCOMPARE(onLeft->FirstLink(), part.left);
        QCOMPARE(onThrough->LastLink(), part.through);
        QCOMPARE(across->Links() + below->Links(), Items());
        QCOMPARE(taken->FirstLink()->type(), int(ItemType::Via));
        QCOMPARE(part.package->Connect({}), Items());
    }

    void disconnectCutsAllAndConnectRestoresExactlyThose()
    {
        Test::Network board;
        const Part part(board);
        TGraphicsWireItem* between = board.Wire({-100, 0}, {100, 0});
        TGraphicsWireItem* away = board.Wire({0, 0}, {0, 300});
        TGraphicsWireItem* other = board.Wire({0, 0}, {0, -300});
        part.package->Connect({});
        other->UnlinkFrom(part.through);
        const QString before = board.Dump();

        const Items cut = part.package->Disconnect({});
        QCOMPARE(cut, (Items{between, away, between}));
        QCOMPARE(between->Links() + away->Links(), Items());
        QCOMPARE(part.package->Connect(cut), (Items{between, away, between}));
        QCOMPARE(board.Dump(), before);
        QCOMPARE(other->FirstLink(), nullptr);

        QCOMPARE(part.package->Disconnect({away}), Items{away});
        QCOMPARE(between->Links().size(), 2);
        QCOMPARE(part.package->Disconnect({away}), Items());
    }

    void connectTakesAnEndBackThatAnotherPackageTook()
    {
        Test::Network board;
        const Part part(board);
        const Part other(board); // In the same place.
        TGraphicsWireItem* between = board.Wire({-100, 0}, {100, 0});
        part.package->Connect({});
        const QString before = board.Dump();

        const Items cut = part.package->Disconnect({});
        QCOMPARE(other.package->Connect({}).size(), 2);
        QCOMPARE(part.package->Connect(cut), (Items{between, between}));
        QCOMPARE(board.Dump(), before);
        QCOMPARE(other.package->Disconnect({}), Items());
    }

    void eachEndComesBackToItsOwnPadWhereSeveralLie()
    {
        Test::Network board;
        TGraphicsPackageItem* package = board.AddPackage();
        TGraphicsPadItem* large = board.AddSurfacePad(20, 20, package);
        TGraphicsPadItem* small = board.AddThroughPad(2, 1, package);
        package->setPos(0, 0);
        large->setPos(0, 0);
        small->setPos(50, 0);
        TGraphicsWireItem* toLarge = board.Wire({50, 0}, {400, 0});
        TGraphicsWireItem* toSmall = board.Wire({52, 0}, {400, 0});
        TGraphicsWireItem* apart = board.Wire({900, 0}, {950, 0}); // Linked without touching.
        toLarge->LinkToFirst(large);
        toSmall->LinkToFirst(small);
        apart->LinkToLast(small);
        const QString before = board.Dump();
        package->Connect(package->Disconnect({}));
        QCOMPARE(board.Dump(), before);

        // By touch alone an end goes to the pad whose centre is nearest.
        package->Disconnect({});
        QCOMPARE(package->Connect({}).size(), 2);
        QCOMPARE(toLarge->FirstLink(), small);
    }

    // Lists of the same wires, each for the links that it was returned for.
    void aListStandsForTheLinksThatItWasReturnedFor()
    {
        Test::Network board;
        const Part part(board);
        part.left->setPos(0, 0); // Within the pad through the board.
        TGraphicsWireItem* wire = board.Wire({2, 0}, {3, 0});
        QVector<Items> lists;
        const QVector<QPair<TGraphicsItem::LinkEnd, TGraphicsPadItem*>> places{
            {TGraphicsItem::LinkEnd::First, part.left},
            {TGraphicsItem::LinkEnd::Last, part.through},
            {TGraphicsItem::LinkEnd::First, part.through},
            {TGraphicsItem::LinkEnd::Last, part.left}};
        for (const auto& [end, pad] : places) {
            wire->LinkTo(end, pad);
            lists.append(part.package->Disconnect({}));
            QCOMPARE(lists.last(), Items{wire});
        }
        for (const int index : {2, 0, 3, 1, 2}) {
            QCOMPARE(part.package->Connect(lists[index]), Items{wire});
            QCOMPARE(wire->Link(places[index].first), places[index].second);
            QCOMPARE(wire->Links().size(), 1);
            QCOMPARE(part.package->Connect(lists[index]), Items());              // It is there.
            QCOMPARE(part.package->Disconnect(lists[(index + 1) % 4]), Items()); // Another link.
            QCOMPARE(part.package->Disconnect(lists[index]), Items{wire});
        }
        // A list that was put together by hand: what was linked here before, or else what touches.
        QCOMPARE(part.package->Connect(Items{wire, wire, wire}), (Items{wire, wire}));
        QCOMPARE(wire->Links().size(), 2);
        QCOMPARE(part.package->Disconnect(Items{wire}), Items{wire});
        QCOMPARE(part.package->Disconnect(Items{wire, wire}), Items{wire});
    }

    void aPadThatIsGoneLeavesItsWiresToTheOthers()
    {
        Test::Network board;
        const Part part(board);
        part.left->setPos(0, 0);
        TGraphicsWireItem* wire = board.Wire({0, 0}, {0, 300});
        wire->LinkToFirst(part.left);
        const Items cut = part.package->Disconnect({});
        delete part.left;
        QCOMPARE(part.package->Connect(cut), Items{wire});
        QCOMPARE(wire->FirstLink(), part.through);
    }

    void remembersTheListsThatSomebodyHolds()
    {
        Test::Network board;
        const Part part(board);
        board.Wire({-100, 0}, {100, 0});
        TWireConnector connector;
        const Items pads = part.package->Pads();
        QVector<Items> held;
        for (int round = 0; round < 100; ++round) {
            connector.Connect(pads, {});
            held.append(connector.Disconnect(pads, {}));
            connector.Connect(pads, Items(held.last())); // A copy is as good.
            connector.Disconnect(pads, {});
        }
        QVERIFY(connector.Remembered() >= 100);
        QVERIFY(connector.Remembered() <= 102);
        held.clear();
        connector.Connect(pads, {});
        QVERIFY(connector.Remembered() < 10); // Whoever has shortened a list may still come with it.
    }

    void changingTheSideMirrorsThePadsAndComesBack()
    {
        Test::Network board;
        const Part part(board);
        part.package->setRotation(90);
        auto* text = new TGraphicsTextItem(part.package);
        text->SetLayer(Osmirel::SilkTop);
        text->setPos(10, 20);
        part.package->SetRefDesText(text);
        part.left->setRotation(30);
        board.Items();
        const QString before = board.Dump();
        const QRectF body = part.package->boundingRect();

        part.package->SetLayer(Osmirel::PackagesBottom);
        QCOMPARE(part.left->StartLayer(), Osmirel::CopperBottom);
        QVERIFY(part.left->IsSMD());
        QCOMPARE(part.left->pos(), QPointF(100, 0));
        QCOMPARE(part.left->rotation(), -30.0);
        QVERIFY(!part.through->IsSMD());
        QCOMPARE(text->Layer(), Osmirel::SilkBottom);
        QVERIFY(text->IsMirroredH());
        QCOMPARE(text->pos(), QPointF(-10, 20));
        QCOMPARE(part.package->boundingRect().right(), -body.left());

        part.package->SetLayer(Osmirel::PackagesBottom); // No second flip.
        QCOMPARE(part.left->pos(), QPointF(100, 0));
        part.package->SetLayer(Osmirel::PackagesTop);
        QCOMPARE(board.Dump(), before);
        QCOMPARE(part.package->boundingRect(), body);
    }

    // What moving to the other side does: cut, flip, link anew; and back with what was cut.
    void theWholeWayToTheOtherSideAndBack()
    {
        Test::Network board;
        const Part part(board);
        for (TGraphicsPadItem* pad : {part.left, part.through, part.right}) {
            pad->SetNet(QString("N%1").arg(pad->pos().x()));
        }
        board.Wire({-100, 0}, {-100, 300});
        board.Wire({100, 0}, {100, 300}, "old");
        board.Wire({100, 300}, {100, 0}, "below", Osmirel::CopperBottom);
        board.Wire({0, 0}, {0, 300}, {}, Osmirel::Copper2);
        part.package->Connect({});
        const QString before = board.Dump();
        QString there;
        for (int round = 0; round < 3; ++round) {
            const Items cut = part.package->Disconnect({});
            QCOMPARE(cut.size(), 3);
            part.package->SetLayer(Osmirel::PackagesBottom);
            QCOMPARE(part.package->Connect({}).size(), 2);
            there = there.isEmpty() ? board.Dump() : there;
            QCOMPARE(board.Dump(), there);
            QVERIFY(there != before);

            part.package->Disconnect({});
            part.package->SetLayer(Osmirel::PackagesTop);
            part.package->Connect(cut);
            QCOMPARE(board.Dump(), before);
        }
    }

    void thePackageIsPickedBetweenItsPadsAndThePadsThemselves()
    {
        Test::Network board;
        const Part part(board);
        QCOMPARE(board.Scene()->items(QPointF(50, 0)), QList<QGraphicsItem*>{part.package});
        QCOMPARE(board.Scene()->items(QPointF(100, 0)).first(), static_cast<QGraphicsItem*>(part.right));
        QVERIFY(board.Scene()->items(QPointF(0, 100)).isEmpty());
        part.right->setPos(100, 150);
        delete part.through;
        TGraphicsPadItem* added = board.AddSurfacePad(1, 1, part.package);
        added->setPos(0, 180);
        QVERIFY(board.Scene()->items(QPointF(0, 100)).contains(part.package));
    }
};

PROPERTIES_TEST(TestPackages)
#include "tst_packages.moc"
