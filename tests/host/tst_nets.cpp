#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

class TestNets : public QObject
{
    Q_OBJECT

private slots:
    void copperTakesTheOnlyNetThatItsPadsName()
    {
        Test::Network board;
        TGraphicsPadItem* pad = board.Pad({0, 0}, "A");
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0}, "old");
        TGraphicsViaItem* via = board.Via({10, 0});
        wire->LinkToLast(via);
        QCOMPARE(via->Net(), QString("old"));

        wire->LinkToFirst(pad);
        QCOMPARE(wire->Net(), QString("A"));
        QCOMPARE(via->Net(), QString("A"));
        TGraphicsPadItem* sameNet = board.Pad({20, 0}, "A");
        TGraphicsWireItem* second = board.Wire({10, 0}, {20, 0});
        second->LinkToFirst(via);
        second->LinkToLast(sameNet);
        QCOMPARE(second->Net(), QString("A"));
    }

    void severalNetsOfPadsLeaveTheNamesAsTheyAre()
    {
        Test::Network board;
        TGraphicsPadItem* one = board.Pad({0, 0}, "A");
        TGraphicsPadItem* other = board.Pad({10, 0}, "B");
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0}, "own");
        wire->LinkToFirst(one);
        QCOMPARE(wire->Net(), QString("A"));
        wire->LinkToLast(other);
        QCOMPARE(wire->Net(), QString("own"));
        QCOMPARE(one->Net(), QString("A"));
        QCOMPARE(other->Net(), QString("B"));
    }

    void aPadWithoutNetNamesNone()
    {
        Test::Network board;
        TGraphicsPadItem* pad = board.Pad({0, 0});
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0}, "own");
        wire->LinkToFirst(pad);
        QCOMPARE(wire->Net(), QString("own"));
        QCOMPARE(pad->Net(), QString());
        pad->SetNet("P");
        QCOMPARE(wire->Net(), QString("P"));
    }

    void cuttingGivesBackWhatLinkingChanged()
    {
        Test::Network board;
        TGraphicsWireItem* stub = board.Wire({0, 0}, {10, 0}, "B");
        TGraphicsWireItem* next = board.Wire({10, 0}, {20, 0}, "B");
        stub->LinkToLast(next);
        const QString before = board.Dump();

        stub->LinkToFirst(board.Pad({0, 0}, "A"));
        QCOMPARE(next->Net(), QString("A"));
        stub->LinkToFirst(nullptr);
        QCOMPARE(next->Net(), QString("B"));
        QVERIFY(board.Dump().startsWith(before));
    }

    void aNetTieKeepsTheNetsOfItsSidesApart()
    {
        Test::Network board;
        TGraphicsNetTiePcbItem* tie = board.NetTie({0, 0});
        TGraphicsWireItem* left = board.Wire({-30, 0}, {-10, 0});
        TGraphicsWireItem* right = board.Wire({10, 0}, {30, 0});
        left->LinkToFirst(board.Pad({-30, 0}, "A"));
        right->LinkToLast(board.Pad({30, 0}, "B"));
        QCOMPARE(tie->Connect({}), (QVector<TGraphicsItem*>{left, right}));
        QCOMPARE(left->LastLink(), tie);
        QCOMPARE(left->Net(), QString("A"));
        QCOMPARE(right->Net(), QString("B"));
        QCOMPARE(tie->Net(), QString());

        QCOMPARE(tie->Disconnect({right}), QVector<TGraphicsItem*>{right});
        QCOMPARE(tie->Links(), QVector<TGraphicsItem*>{left});
        QCOMPARE(tie->Connect({right}), QVector<TGraphicsItem*>{right});
        QCOMPARE(right->FirstLink(), tie);
    }

    void aDetachedItemLeavesItsNetBehind()
    {
        Test::Network board;
        TGraphicsJunctionItem* junction = board.Junction({0, 0});
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0});
        wire->LinkToFirst(junction);
        wire->LinkToLast(board.Pad({10, 0}, "A"));
        QCOMPARE(junction->Net(), QString("A"));
        junction->RemoveLinkedSection(wire);
        wire->SetFirstLink(nullptr);
        junction->Detach();
        QCOMPARE(junction->Net(), QString());
        QVERIFY(!junction->Island());
        delete junction;
    }

    void netsAreUpToDateWithoutBeingAskedTo()
    {
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {10, 0});
        wire->LinkToFirst(board.Pad({0, 0}, "A"));
        const QString read = wire->Net();
        wire->UpdateNet();
        QCOMPARE(wire->Net(), read);
        QCOMPARE(read, QString("A"));
    }
};

PROPERTIES_TEST(TestNets)
#include "tst_nets.moc"
