#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <graphics/TGraphicsLineItem.h>

#include <algorithm>
#include <random>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;
using Items = QVector<TGraphicsItem*>;

/** Something of each kind that wires can be linked to. */
TGraphicsItem* Linkable(Test::Network& board, const QByteArray& kind)
{
    if (kind == "via") {
        return board.Via({100, 0});
    }
    if (kind == "pad") {
        return board.Pad({100, 0});
    }
    if (kind == "junction") {
        return board.Junction({100, 0});
    }
    if (kind == "nettie") {
        return board.NetTie({100, 0});
    }
    return board.Wire({100, 0}, {200, 0});
}

void LinkableKinds()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* kind : {"via", "pad", "junction", "nettie", "wire"}) {
        QTest::newRow(kind) << QByteArray(kind);
    }
}

} // namespace

class TestLinks : public QObject
{
    Q_OBJECT

private slots:
    void linksAreHeldByBothSides_data() { LinkableKinds(); }
    void linksAreHeldByBothSides()
    {
        QFETCH(QByteArray, kind);
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {100, 0});
        TGraphicsItem* target = Linkable(board, kind);

        wire->LinkToLast(target);
        QCOMPARE(wire->LastLink(), target);
        QCOMPARE(wire->FirstLink(), nullptr);
        QCOMPARE(target->Links(), Items{wire});

        wire->UnlinkFrom(target);
        QCOMPARE(wire->LastLink(), nullptr);
        QCOMPARE(target->Links(), Items());
    }

    void linkingAnEndReleasesItsOldLink_data() { LinkableKinds(); }
    void linkingAnEndReleasesItsOldLink()
    {
        QFETCH(QByteArray, kind);
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {100, 0});
        TGraphicsItem* former = Linkable(board, kind);
        TGraphicsItem* next = Linkable(board, kind);
        wire->LinkToLast(former);
        wire->LinkToLast(next);
        QCOMPARE(former->Links(), Items());
        QCOMPARE(next->Links(), Items{wire});

        wire->LinkToLast(nullptr);
        QCOMPARE(next->Links(), Items());
        QCOMPARE(wire->LastLink(), nullptr);
    }

    void wiresAreLinkedHeadToTail()
    {
        Test::Network board;
        TGraphicsWireItem* left = board.Wire({0, 0}, {10, 0});
        TGraphicsWireItem* middle = board.Wire({10, 0}, {20, 0});
        TGraphicsWireItem* right = board.Wire({20, 0}, {30, 0});
        left->LinkToLast(middle);
        right->LinkToFirst(middle);
        QCOMPARE(middle->FirstLink(), left);
        QCOMPARE(middle->LastLink(), right);
        QCOMPARE(right->FirstLink(), middle);

        // The other end of either neighbour stays as it is.
        TGraphicsViaItem* via = board.Via({30, 0});
        right->LinkToLast(via);
        middle->LinkToFirst(nullptr);
        QCOMPARE(left->LastLink(), nullptr);
        QCOMPARE(middle->LastLink(), right);
        middle->LinkToLast(nullptr);
        QCOMPARE(right->FirstLink(), nullptr);
        QCOMPARE(right->LastLink(), via);
    }

    void linkingToAWireReleasesWhatItsEndHeld()
    {
        Test::Network board;
        TGraphicsWireItem* left = board.Wire({0, 0}, {10, 0});
        TGraphicsWireItem* middle = board.Wire({10, 0}, {20, 0});
        TGraphicsWireItem* right = board.Wire({20, 0}, {30, 0});
        TGraphicsViaItem* via = board.Via({20, 0});
        left->LinkToLast(middle);
        right->LinkToFirst(via);
        left->LinkToLast(right);
        QCOMPARE(middle->FirstLink(), nullptr);
        QCOMPARE(right->FirstLink(), left);
        QCOMPARE(via->Links(), Items());
    }

    void aWireWithBothEndsOnOneViaIsListedTwiceAndCutOneEndPerCall()
    {
        Test::Network board;
        TGraphicsWireItem* loop = board.Wire({0, 0}, {0, 0});
        TGraphicsViaItem* via = board.Via({0, 0});
        loop->LinkToFirst(via);
        loop->LinkToLast(via);
        QCOMPARE(via->LinkedWires(), (QList<TGraphicsSectionItem*>{loop, loop}));

        loop->UnlinkFrom(via);
        QCOMPARE(loop->FirstLink(), nullptr);
        QCOMPARE(loop->LastLink(), via);
        QCOMPARE(via->LinkedWires(), QList<TGraphicsSectionItem*>{loop});
        QVERIFY(loop->Island());

        loop->UnlinkFrom(via);
        QCOMPARE(loop->LastLink(), nullptr);
        QCOMPARE(via->LinkedWires(), QList<TGraphicsSectionItem*>());
        QVERIFY(!loop->Island());
    }

    void kindsThatCannotBeLinkedToAreRefused()
    {
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0});
        TGraphicsViaItem* via = board.Via({0, 0});
        wire->LinkToFirst(via);
        wire->LinkToFirst(board.Add<TGraphicsLineItem>({}));
        QCOMPARE(wire->FirstLink(), nullptr);
        QCOMPARE(via->Links(), Items());
    }

    void replacingIsOneSidedAndTakesTheFirstEnd()
    {
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0});
        TGraphicsViaItem* via = board.Via({0, 0});
        TGraphicsViaItem* other = board.Via({10, 0});
        wire->LinkToFirst(via);
        wire->LinkToLast(via);

        QVERIFY(wire->ReplaceLinkedItem(via, other));
        QCOMPARE(wire->FirstLink(), other);
        QCOMPARE(wire->LastLink(), via);
        QCOMPARE(via->LinkedWires().size(), 2);
        QCOMPARE(other->LinkedWires().size(), 0);
        QVERIFY(wire->ReplaceLinkedItem(via, nullptr));
        QCOMPARE(wire->LastLink(), nullptr);
        QVERIFY(!wire->ReplaceLinkedItem(via, other));

        TGraphicsWireItem* next = board.Wire({0, 0}, {0, 10});
        QVERIFY(via->ReplaceLinkedItem(wire, next));
        QCOMPARE(via->LinkedWires(), (QList<TGraphicsSectionItem*>{next, wire}));
        QVERIFY(via->ReplaceLinkedItem(wire, nullptr));
        QCOMPARE(via->LinkedWires(), QList<TGraphicsSectionItem*>{next});
        QVERIFY(!via->ReplaceLinkedItem(wire, next));
    }

    void aDestroyedItemLeavesNoLinkToItself_data() { LinkableKinds(); }
    void aDestroyedItemLeavesNoLinkToItself()
    {
        QFETCH(QByteArray, kind);
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {100, 0});
        TGraphicsWireItem* stub = board.Wire({0, 0}, {0, 100});
        TGraphicsItem* target = Linkable(board, kind);
        wire->LinkToLast(target);
        stub->SetFirstLink(target); // Known to one side only.

        delete target;
        QCOMPARE(wire->LastLink(), nullptr);
        QCOMPARE(stub->FirstLink(), nullptr);
        QVERIFY(!wire->Island());

        target = Linkable(board, kind);
        wire->LinkToLast(target);
        delete wire;
        QCOMPARE(target->Links(), Items());
        QVERIFY(!target->Island());
    }

    void aListThatAloneHoldsALinkLosesItToo()
    {
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {100, 0});
        TGraphicsJunctionItem* junction = board.Junction({0, 0});
        junction->AddLinkedSection(wire);
        junction->AddLinkedSection(wire);
        delete wire;
        QCOMPARE(junction->Links(), Items());
    }

    void anItemOnNoBoardIsLinkedLikewise()
    {
        TGraphicsWireItem left;
        TGraphicsWireItem right;
        left.SetNet("A");
        left.LinkToLast(&right);
        QCOMPARE(right.Net(), QString("A"));
        left.LinkToLast(nullptr);
        QCOMPARE(right.Net(), QString());
        QVERIFY(!left.Island());
    }

    void linksArePrintedByKindAndPlaceAndSorted()
    {
        Test::Network board;
        TGraphicsViaItem* via = board.Via({5, 6});
        TGraphicsWireItem* one = board.Wire({5, 6}, {10, 6});
        TGraphicsWireItem* other = board.Wire({5, 6}, {1, 6});
        one->LinkToFirst(via);
        other->LinkToFirst(via);
        const QString listed = QStringLiteral("wires=[wire@68(5,6)(1,6),wire@68(5,6)(10,6)]");
        QVERIFY2(via->StateLine().contains(listed), qPrintable(via->StateLine()));
        QVERIFY2(one->StateLine().contains("first=[via@68(5,6)] last=[]"), qPrintable(one->StateLine()));

        one->UnlinkFrom(via);
        one->LinkToFirst(via);
        QCOMPARE(via->LinkedWires().first(), other);
        QVERIFY2(via->StateLine().contains(listed), "the order of linking must not be seen");
    }

    void itemsAreNumberedWhenTheyFirstJoinAndKeepTheirNumber()
    {
        Test::Network board;
        TGraphicsWireItem* first = board.Wire({0, 0}, {1, 0});
        TGraphicsWireItem* second = board.Wire({1, 0}, {2, 0});
        QCOMPARE(first->DesignOrder(), 1);
        QCOMPARE(second->DesignOrder(), 2);

        first->Detach();
        QCOMPARE(first->Owner(), nullptr);
        QCOMPARE(board.Items(), QList<TGraphicsItem*>{second});
        TGraphicsItem* copy = second->CreateCopy();
        QCOMPARE(copy->DesignOrder(), 0);
        copy->AttachTo(board.Scene());
        QCOMPARE(copy->DesignOrder(), 3);
        first->AttachTo(board.Scene());
        QCOMPARE(board.Items(), (QList<TGraphicsItem*>{first, second, copy}));
    }

    void childrenAreNumberedAfterTheirParentAndLeaveWithIt()
    {
        Test::Network board;
        auto package = std::make_unique<TGraphicsPackageItem>();
        auto* pad = new TGraphicsPadItem(package.get());
        TGraphicsPackageItem* placed = package.get();
        board.Attach(std::move(package));
        auto* late = new TGraphicsPadItem(placed);
        QCOMPARE(board.Items(), (QList<TGraphicsItem*>{placed, pad, late}));
        QCOMPARE(late->Owner(), board.Scene());

        placed->Detach();
        QCOMPARE(board.Items(), QList<TGraphicsItem*>());
        QCOMPARE(pad->Owner(), nullptr);
        QCOMPARE(pad->parentItem(), placed);
        placed->AttachTo(board.Scene());
        QCOMPARE(board.Items(), (QList<TGraphicsItem*>{placed, pad, late}));
    }

    // Random linking, cutting, detaching and deleting: the islands are the connected parts that a plain walk finds.
    void islandsAreTheConnectedParts_data()
    {
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<int>("askEvery");
        for (unsigned seed = 1; seed <= 30; ++seed) {
            QTest::addRow("seed %u", seed) << seed << static_cast<int>(1 + seed % 7 * seed % 5 * 9);
        }
    }
    void islandsAreTheConnectedParts()
    {
        QFETCH(unsigned, seed);
        QFETCH(int, askEvery);
        std::mt19937 random(seed);
        const auto pick = [&random](int count) {
            return static_cast<int>(std::uniform_int_distribution<int>(0, count - 1)(random));
        };
        Test::Network board;
        QVector<TGraphicsWireItem*> wires;
        for (int i = 0; i < 40; ++i) {
            wires.append(board.Wire({0, 0}, {1, 0}, QString(QLatin1Char("AB "[pick(3)])).trimmed()));
        }
        Items places;
        for (int i = 0; i < 8; ++i) {
            places << board.Via({0, 0}) << board.Junction({0, 0}) << board.NetTie({0, 0})
                   << board.Pad({0, 0}, QStringLiteral("P%1").arg(pick(3)));
        }
        for (int step = 1; step <= 600; ++step) {
            TGraphicsWireItem* wire = wires[pick(wires.size())];
            const LinkEnd end = pick(2) == 0 ? LinkEnd::First : LinkEnd::Last;
            switch (pick(8)) {
            case 0:
            case 1: wire->LinkTo(end, wires[pick(wires.size())]); break;
            case 2:
            case 3:
            case 4: wire->LinkTo(end, places[pick(places.size())]); break;
            case 5:
            case 6: wire->LinkTo(end, nullptr); break;
            default:
                if (wire->Owner()) {
                    wire->Detach();
                } else {
                    wire->AttachTo(board.Scene());
                }
            }
            if (step % 97 == 0) {
                delete wires.takeAt(pick(wires.size()));
                delete places.takeAt(pick(places.size()));
            }
            if (step % askEvery == 0 || step == 600) {
                Items all = places;
                std::copy(wires.cbegin(), wires.cend(), std::back_inserter(all));
                CompareWithWalk(all);
            }
            if (QTest::currentTestFailed()) {
                return;
            }
        }
        for (TGraphicsWireItem* wire : qAsConst(wires)) {
            if (!wire->Owner()) {
                delete wire;
            }
        }
    }

private:
    static bool Divides(const TGraphicsItem* item) { return item->type() == ItemType::NetTiePcb; }

    static Items Walk(TGraphicsItem* start)
    {
        Items seen{start};
        for (int i = 0; i < seen.size(); ++i) {
            const Items links = Divides(seen[i]) ? Items() : seen[i]->Links();
            for (TGraphicsItem* link : links) {
                if (!Divides(link) && !seen.contains(link)) {
                    seen.append(link);
                }
            }
        }
        std::sort(seen.begin(), seen.end());
        return seen;
    }

    static void CompareWithWalk(const Items& all)
    {
        for (TGraphicsItem* item : all) {
            const Items part = Walk(item);
            QSet<QString> given;
            QSet<QString> kept;
            for (const TGraphicsItem* member : part) {
                (member->type() == ItemType::Pad ? given : kept).insert(member->OwnNet());
            }
            given.remove(QString());
            kept.remove(QString());

            Items joined{item};
            if (const TLinkIsland* island = item->Island()) {
                joined.clear();
                for (TLinkNode* member : island->members) {
                    joined.append(&member->Item());
                }
                std::sort(joined.begin(), joined.end());
            }
            QCOMPARE(joined, part);

            QString net = item->OwnNet();
            if (item->type() != ItemType::Pad && !Divides(item)) {
                if (given.size() == 1) {
                    net = *given.cbegin();
                } else if (net.isEmpty() && kept.size() == 1) {
                    net = *kept.cbegin();
                }
            }
            QCOMPARE(item->Net(), net);
        }
    }
};

PROPERTIES_TEST(TestLinks)
#include "tst_links.moc"
