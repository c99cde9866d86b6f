#include "tests/commands/WireLayerDesign.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

using Test::bottom;
using Test::Sections;
using Test::top;
using Test::Wires;
using Design = Test::WireLayerDesign;

class TestWireLayer : public QObject
{
    Q_OBJECT

private slots:
    // Wires.

    void wiresOnTheLayerAlreadyAreLeftOut()
    {
        Design design;
        const Wires wires = design.Chain(3, "N");
        wires[0]->LinkToFirst(design.board.Pad({0, 0}, "N", bottom));
        const QString before = design.board.Dump();
        auto command = design.Moving(wires, top);
        command.redo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        QCOMPARE(design.board.Dump(), before);
        command.undo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        QCOMPARE(design.board.Dump(), before);
    }

    void eachWireGetsItsOwnLayerBack()
    {
        Design design;
        auto* first = design.board.Wire({0, 0}, {10, 0}, {}, top);
        auto* second = design.board.Wire({0, 10}, {10, 10}, {}, Osmirel::Copper2);
        auto command = design.Moving({first, second});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(first->Layer(), bottom);
        QCOMPARE(second->Layer(), bottom);
        QCOMPARE(design.board.Items().size(), 2);
        command.undo();
        QCOMPARE(first->Layer(), top);
        QCOMPARE(second->Layer(), Osmirel::Copper2);
    }

    void stayingNeighbourGetsAVia_data()
    {
        QTest::addColumn<int>("moving");
        QTest::newRow("at the last end of the moved wire") << 0;
        QTest::newRow("at its first end") << 1;
    }
    void stayingNeighbourGetsAVia()
    {
        QFETCH(int, moving);
        Design design;
        const Wires wires = design.Chain(2, "N");
        auto command = design.Moving({wires[moving]});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), 1);
        const TGraphicsViaItem* via = design.Vias().first();
        QCOMPARE(via->scenePos(), QPointF(100, 0));
        QCOMPARE(via->Owner(), design.board.Scene());
        QCOMPARE(wires[0]->LastLink(), via);
        QCOMPARE(wires[1]->FirstLink(), via);
        QCOMPARE(via->LinkedWires(), (Sections{wires[moving], wires[1 - moving]}));
        QCOMPARE(via->Net(), QString("N"));
        QCOMPARE(wires[1 - moving]->Layer(), top);
        command.undo();
        QCOMPARE(wires[0]->LastLink(), wires[1]);
        QCOMPARE(wires[1]->FirstLink(), wires[0]);
        QCOMPARE(design.Vias().size(), 0);
    }

    void viaStandsWhereTheEndIsSeenOnTheScene()
    {
        Design design;
        const Wires wires = design.Chain(2);
        wires[0]->setPos(7, 9);
        wires[0]->setRotation(90);
        auto command = design.Moving({wires[0]});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().first()->scenePos(), wires[0]->mapToScene(100, 0));
    }

    void twoMovedWiresThatMeetStayLinked()
    {
        Design design;
        const Wires wires = design.Chain(2);
        auto command = design.Moving(wires);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), 0);
        QCOMPARE(wires[0]->LastLink(), wires[1]);
    }

    void bothNeighboursStay()
    {
        Design design;
        const Wires wires = design.Chain(3);
        auto command = design.Moving({wires[1]});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), 2);
        QCOMPARE(wires[1]->FirstLink()->scenePos(), QPointF(100, 0));
        QCOMPARE(wires[1]->LastLink()->scenePos(), QPointF(200, 0));
    }

    void everySecondWireOfAChainMoves()
    {
        Design design;
        const Wires wires = design.Chain(7);
        auto command = design.Moving({wires[5], wires[1], wires[3]});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), 6);
    }

    // A wire that is on the layer already is none of the command's, though it was given to it.
    void givenNeighbourOnTheLayerAlreadyGetsAVia()
    {
        Design design;
        const Wires wires = design.Chain(2);
        wires[1]->SetLayer(bottom);
        auto command = design.Moving(wires);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), 1);
    }

    void loops_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<QVector<int>>("moving");
        QTest::addColumn<int>("vias");
        QTest::newRow("of one wire") << 1 << QVector<int>{0} << 0;
        QTest::newRow("of two, one moves") << 2 << QVector<int>{0} << 2;
        QTest::newRow("of two, both move") << 2 << QVector<int>{0, 1} << 0;
        QTest::newRow("of three, one moves") << 3 << QVector<int>{1} << 2;
        QTest::newRow("of four, two neighbours move") << 4 << QVector<int>{3, 0} << 2;
        QTest::newRow("of four, two opposite ones move") << 4 << QVector<int>{0, 2} << 4;
    }
    void loops()
    {
        QFETCH(int, length);
        QFETCH(QVector<int>, moving);
        QFETCH(int, vias);
        Design design;
        const Wires wires = design.Chain(length);
        wires.last()->LinkToLast(wires.first());
        Wires given;
        for (const int index : qAsConst(moving)) {
            given.append(wires[index]);
        }
        auto command = design.Moving(given);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), vias);
    }

    // The end of the staying wire is the opposite one of the moved wire's, without a look at which of its ends touches.
    void endOfTheStayingWireIsTheOppositeOne()
    {
        Design design;
        auto* moved = design.board.Wire({0, 0}, {100, 0});
        auto* staying = design.board.Wire({0, 0}, {0, 100});
        moved->SetFirstLink(staying);
        staying->SetFirstLink(moved);
        auto command = design.Moving({moved});
        command.redo();
        QCOMPARE(design.Vias().size(), 1);
        QCOMPARE(moved->FirstLink(), design.Vias().first());
        QCOMPARE(staying->LastLink(), design.Vias().first());
    }

    // Junctions.

    void junctionOfMovedWiresMovesAlong()
    {
        for (const int count : {1, 2, 3}) {
            Design design;
            auto* junction = design.board.Junction({0, 0});
            const Wires wires = design.Star(junction, count);
            auto command = design.Moving(wires);
            Test::CheckBothWays(command, design.board);
            command.redo();
            QCOMPARE(junction->Layer(), bottom);
            QCOMPARE(junction->LinkedSections().size(), count);
            QCOMPARE(design.Vias().size(), 0);
            command.undo();
            QCOMPARE(junction->Layer(), top); // kept once, not once more when it had moved
        }
    }

    void junctionWithAStayingWireBecomesAVia_data()
    {
        QTest::addColumn<QVector<int>>("moving");
        QTest::newRow("one of four, at its first end") << QVector<int>{0};
        QTest::newRow("one of four, at its last end") << QVector<int>{1};
        QTest::newRow("two of four") << QVector<int>{0, 1};
        QTest::newRow("three of four, in another order") << QVector<int>{3, 1, 0};
    }
    void junctionWithAStayingWireBecomesAVia()
    {
        QFETCH(QVector<int>, moving);
        Design design;
        auto* junction = design.board.Junction({0, 0});
        const Wires wires = design.Star(junction, 4);
        const Sections sections = junction->LinkedSections();
        Wires given;
        for (const int index : qAsConst(moving)) {
            given.append(wires[index]);
        }
        auto command = design.Moving(given);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), 1);
        QCOMPARE(design.Vias().first()->scenePos(), QPointF(0, 0));
        QCOMPARE(design.Vias().first()->LinkedWires(), sections);
        QCOMPARE(junction->Owner(), nullptr);
        QCOMPARE(junction->Layer(), top);
        QCOMPARE(junction->LinkedSections(), Sections());
        command.undo();
        QCOMPARE(junction->Owner(), design.board.Scene());
        QCOMPARE(junction->LinkedSections(), sections);
        QCOMPARE(design.Vias().size(), 0);
    }

    void viaOfAJunctionStandsAtTheWiresEnd()
    {
        Design design;
        auto* junction = design.board.Junction({3, 4});
        const Wires wires = design.Star(junction, 2);
        auto command = design.Moving({wires[1]});
        command.redo();
        QCOMPARE(design.Vias().first()->scenePos(), QPointF(0, 0));
        command.undo();
        QCOMPARE(junction->scenePos(), QPointF(3, 4));
    }

    void wireBetweenTwoJunctions_data()
    {
        QTest::addColumn<bool>("allOfFirst");
        QTest::addColumn<bool>("allOfLast");
        for (const bool first : {true, false}) {
            for (const bool last : {true, false}) {
                QTest::addRow("%s, %s", first ? "the first moves" : "the first stays",
                              last ? "the last moves" : "the last stays")
                    << first << last;
            }
        }
    }
    void wireBetweenTwoJunctions()
    {
        QFETCH(bool, allOfFirst);
        QFETCH(bool, allOfLast);
        Design design;
        auto* wire = design.board.Wire({0, 0}, {100, 0});
        auto* first = design.board.Junction({0, 0});
        auto* last = design.board.Junction({100, 0});
        auto* atFirst = design.board.Wire({-100, 0}, {0, 0});
        auto* atLast = design.board.Wire({100, 0}, {200, 0});
        wire->LinkToFirst(first);
        wire->LinkToLast(last);
        atFirst->LinkToLast(first);
        atLast->LinkToFirst(last);
        Wires moving{wire};
        if (allOfFirst) {
            moving.append(atFirst);
        }
        if (allOfLast) {
            moving.prepend(atLast);
        }
        auto command = design.Moving(moving);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), (allOfFirst ? 0 : 1) + (allOfLast ? 0 : 1));
        QCOMPARE(first->Owner() != nullptr, allOfFirst);
        QCOMPARE(last->Owner() != nullptr, allOfLast);
    }

    void wireWithBothEndsOnOneJunction_data()
    {
        QTest::addColumn<bool>("staysAlone");
        QTest::newRow("nothing else meets there") << false;
        QTest::newRow("a staying wire meets there") << true;
    }
    void wireWithBothEndsOnOneJunction()
    {
        QFETCH(bool, staysAlone);
        Design design;
        auto* junction = design.board.Junction({0, 0});
        auto* loop = design.board.Wire({0, 0}, {0, 0});
        loop->LinkToFirst(junction);
        loop->LinkToLast(junction);
        if (staysAlone) {
            design.board.Wire({0, 0}, {10, 0})->LinkToFirst(junction);
        }
        auto command = design.Moving({loop});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().size(), staysAlone ? 1 : 0);
        if (staysAlone) {
            QCOMPARE(loop->FirstLink(), design.Vias().first());
            QCOMPARE(loop->LastLink(), design.Vias().first());
        }
    }

    // A new via that does not reach a layer which the board does not have: the wires that come to it later are cut.
    void layerThatTheBoardDoesNotHave()
    {
        Design design;
        const Wires wires = design.Star(design.board.Junction({0, 0}), 3);
        auto command = design.Moving({wires[0], wires[1]}, Osmirel::Copper6);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.Vias().first()->LinkedWires(), (Sections{wires[0], wires[2]}));
    }

    // The end is cut that is looked at, though the other one is linked with the same via.
    void loopOnAJunctionAndALayerThatTheBoardDoesNotHave()
    {
        Design design;
        auto* junction = design.board.Junction({0, 0});
        auto* loop = design.board.Wire({0, 0}, {0, 0});
        auto* staying = design.board.Wire({0, 0}, {10, 0});
        loop->LinkToFirst(junction);
        loop->LinkToLast(junction);
        staying->LinkToFirst(junction);
        auto command = design.Moving({loop}, Osmirel::Copper6);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(loop->FirstLink(), design.Vias().first());
        QCOMPARE(loop->LastLink(), nullptr);
    }

    // Vias and pads.

    void copperThatReachesTheLayerStaysLinked()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {100, 0}, "N");
        auto* via = design.board.Via({0, 0});
        auto* pad = design.board.Pad({100, 0}, "N");
        pad->SetLayers(bottom, top);
        wire->LinkToFirst(via);
        wire->LinkToLast(pad);
        auto command = design.Moving({wire});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        QCOMPARE(wire->FirstLink(), via);
        QCOMPARE(wire->LastLink(), pad);
        QCOMPARE(design.Vias().size(), 1);
        command.undo();
        QCOMPARE(design.board.AskedRats(), QStringList());
    }

    void copperWithoutTheLayerIsCutOff_data()
    {
        QTest::addColumn<bool>("isPad");
        QTest::addColumn<bool>("atFirst");
        for (const bool isPad : {true, false}) {
            for (const bool atFirst : {true, false}) {
                QTest::addRow("%s at the %s end", isPad ? "pad" : "via", atFirst ? "first" : "last")
                    << isPad << atFirst;
            }
        }
    }
    void copperWithoutTheLayerIsCutOff()
    {
        QFETCH(bool, isPad);
        QFETCH(bool, atFirst);
        Design design;
        TGraphicsViaItem* copper = isPad ? design.board.Pad({0, 0}) : design.BlindVia({0, 0});
        auto* wire = design.board.Wire({0, 0}, {0, 0});
        wire->LinkTo(atFirst ? TGraphicsItem::LinkEnd::First : TGraphicsItem::LinkEnd::Last, copper);
        auto command = design.Moving({wire});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QVERIFY(!wire->FirstLink() && !wire->LastLink());
        QCOMPARE(copper->LinkedWires(), Sections());
        command.undo();
        QCOMPARE(wire->FirstLink() == copper, atFirst);
        QCOMPARE(wire->LastLink() == copper, !atFirst);
    }

    void bothEndsAreCut()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {100, 0});
        auto* pad = design.board.Pad({0, 0}, "A");
        auto* via = design.BlindVia({100, 0});
        wire->LinkToFirst(pad);
        wire->LinkToLast(via);
        auto command = design.Moving({wire});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QVERIFY(wire->Links().isEmpty());
    }

    void bothEndsOnOneViaAreCut()
    {
        Design design;
        auto* via = design.BlindVia({0, 0});
        auto* loop = design.board.Wire({0, 0}, {0, 0});
        auto* other = design.board.Wire({0, 0}, {50, 0});
        loop->LinkToFirst(via);
        loop->LinkToLast(via);
        other->LinkToFirst(via);
        auto command = design.Moving({loop});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QVERIFY(loop->Links().isEmpty());
        QCOMPARE(via->LinkedWires(), Sections{other});
    }

    void wiresThatShareAVia_data()
    {
        QTest::addColumn<int>("moving");
        for (const int moving : {1, 2, 3}) {
            QTest::addRow("%d of three move", moving) << moving;
        }
    }
    void wiresThatShareAVia()
    {
        QFETCH(int, moving);
        Design design;
        auto* via = design.BlindVia({0, 0});
        Wires wires;
        for (const double y : {0, 10, 20}) {
            wires.append(design.board.Wire({100, y}, {0, 0}));
            wires.last()->LinkToLast(via);
        }
        auto command = design.Moving(wires.mid(0, moving));
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(via->LinkedWires().size(), 3 - moving);
        QCOMPARE(design.Vias().size(), 1);
    }

    void otherEndsAreLeftAlone()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {100, 0});
        auto* tie = design.board.NetTie({100, 0});
        wire->LinkToLast(tie);
        auto command = design.Moving({wire});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(wire->LastLink(), tie);
        QCOMPARE(design.board.Items().size(), 2);
    }

    // Chains with all that there is.

    void stubAndBranchAndPad()
    {
        Design design;
        auto* pad = design.board.Pad({0, 0}, "N");
        const Wires trunk = design.Chain(3);
        trunk[0]->LinkToFirst(pad);
        auto* junction = design.board.Junction({300, 0});
        trunk[2]->LinkToLast(junction);
        auto* stub = design.board.Wire({300, 0}, {300, 50});
        auto* branch = design.board.Wire({400, 0}, {300, 0});
        stub->LinkToFirst(junction);
        branch->LinkToLast(junction);
        const Wires all = trunk + Wires{stub, branch};
        for (int mask = 1; mask < 32; ++mask) {
            Wires moving;
            for (int i = 0; i < all.size(); ++i) {
                if (mask >> i & 1) {
                    moving.append(all[i]);
                }
            }
            auto command = design.Moving(moving);
            Test::CheckBothWays(command, design.board);
        }
    }
};

PROPERTIES_TEST(TestWireLayer)
#include "tst_wirelayer.moc"
