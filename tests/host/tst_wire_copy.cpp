#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

// The ways in which editing takes wires apart and puts them together, step by step as commands do it: afterwards the
// board is what it was, and on the way nothing points to what has gone.
class TestWireCopy : public QObject
{
    Q_OBJECT

private slots:
    void aCopySplitsAWireAndGoesAgain_data()
    {
        QTest::addColumn<bool>("linkedAtLast");
        QTest::newRow("wire that ends at a pad") << true;
        QTest::newRow("wire with a free end") << false;
    }
    void aCopySplitsAWireAndGoesAgain()
    {
        QFETCH(bool, linkedAtLast);
        Test::Network board;
        TGraphicsWireItem* wire = board.Wire({0, 0}, {100, 0}, "N");
        TGraphicsItem* last = linkedAtLast ? board.Pad({100, 0}, "N") : nullptr;
        wire->LinkToLast(last);
        const QString before = board.Dump();
        QString split;
        for (int round = 0; round < 3; ++round) {
            auto* added = static_cast<TGraphicsWireItem*>(wire->CreateCopy());
            added->AttachTo(wire->Owner());
            wire->SetPoint2({40, 0});
            added->SetPoint1({40, 0});
            if (last) {
                added->SetLastLink(last);
                last->ReplaceLinkedItem(wire, added);
            }
            wire->SetLastLink(added);
            added->SetFirstLink(wire);
            QCOMPARE(added->Net(), QString("N"));
            QCOMPARE(wire->Island()->members.size(), last ? 3 : 2);
            split = split.isEmpty() ? board.Dump() : split;
            QCOMPARE(board.Dump(), split);

            wire->SetPoint2(wire->mapFromScene(added->ScenePoint(TGraphicsItem::LinkEnd::Last)));
            if (last) {
                wire->SetLastLink(last);
                last->ReplaceLinkedItem(added, wire);
            }
            added->SetFirstLink(nullptr);
            added->SetLastLink(nullptr);
            delete added; // Without a last link the wire still holds one to it.
            QCOMPARE(wire->LastLink(), last);
            QCOMPARE(board.Dump(), before);
        }
    }

    void twoWiresAreJoinedAndPartedAgain()
    {
        Test::Network board;
        TGraphicsPadItem* pad = board.Pad({100, 0}, "N");
        TGraphicsWireItem* kept = board.Wire({0, 0}, {40, 0}, "own");
        TGraphicsWireItem* removed = board.Wire({40, 0}, {100, 0}, "own");
        kept->LinkToLast(removed);
        removed->LinkToLast(pad);
        const QString before = board.Dump();
        for (int round = 0; round < 3; ++round) {
            kept->SetPoint2({100, 0});
            kept->UnlinkFrom(kept->LastLink());
            TGraphicsItem* end = removed->LastLink();
            removed->UnlinkFrom(end);
            kept->LinkToLast(end);
            removed->Detach();
            QCOMPARE(pad->Links(), QVector<TGraphicsItem*>{kept});
            QCOMPARE(kept->Net(), QString("N"));
            QCOMPARE(removed->Net(), QString("own"));

            removed->AttachTo(kept->Owner());
            kept->SetPoint2({40, 0});
            end = kept->LastLink();
            end->ReplaceLinkedItem(kept, removed);
            removed->SetLastLink(end);
            kept->SetLastLink(removed);
            removed->SetFirstLink(kept);
            QCOMPARE(board.Dump(), before);
        }
        removed->UnlinkFrom(pad);
        removed->UnlinkFrom(kept);
        removed->Detach();
        delete removed;
        QCOMPARE(kept->LastLink(), nullptr);
    }

    void aViaComesBetweenTwoWiresAndGoesAgain()
    {
        Test::Network board;
        TGraphicsWireItem* moving = board.Wire({0, 0}, {40, 0}, "N");
        TGraphicsWireItem* staying = board.Wire({40, 0}, {100, 0}, "N");
        moving->LinkToLast(staying);
        const QString before = board.Dump();
        for (int round = 0; round < 3; ++round) {
            moving->SetLayer(Osmirel::CopperBottom);
            const std::unique_ptr<TGraphicsViaItem> first(board.Via({0, 0}));
            auto* via = static_cast<TGraphicsViaItem*>(first->CreateCopy());
            via->setPos({40, 0});
            via->AttachTo(board.Scene());
            moving->LinkToLast(via);
            staying->LinkToFirst(via);
            QCOMPARE(via->Net(), QString("N"));
            QCOMPARE(via->LinkedWires(), (QList<TGraphicsSectionItem*>{moving, staying}));

            moving->SetLayer(Osmirel::CopperTop);
            moving->ReplaceLinkedItem(via, staying);
            staying->ReplaceLinkedItem(via, moving);
            via->RemoveLinkedWire(moving);
            via->RemoveLinkedWire(staying);
            via->Detach();
            QCOMPARE(via->Net(), QString());
            delete via;
        }
        QCOMPARE(board.Dump(), before);
    }

    void aViaTakesThePlaceOfAJunctionAndGivesItBack()
    {
        Test::Network board;
        TGraphicsJunctionItem* junction = board.Junction({50, 50});
        TGraphicsWireItem* loop = board.Wire({50, 50}, {50, 50});
        loop->LinkToFirst(junction);
        loop->LinkToLast(junction);
        for (const QPointF& from : {QPointF(0, 50), QPointF(50, 0), QPointF(100, 50)}) {
            board.Wire(from, {50, 50})->LinkToLast(junction);
        }
        board.Wire({0, 0}, {50, 0}, "N")->LinkToLast(junction->LinkedSections().last());
        const QString before = board.Dump();
        const auto replace = [](TGraphicsItem* from, TGraphicsItem* to) {
            const QVector<TGraphicsItem*> sections = from->Links();
            for (TGraphicsItem* section : sections) {
                section->ReplaceLinkedItem(from, to);
                from->ReleaseLink(section, {});
                to->AcceptLink(section, {});
            }
        };
        for (int round = 0; round < 3; ++round) {
            TGraphicsViaItem* via = board.Via({50, 50});
            replace(junction, via);
            junction->Detach();
            QCOMPARE(via->LinkedWires().size(), 5);
            QCOMPARE(via->Net(), QString("N"));
            QCOMPARE(junction->Links(), QVector<TGraphicsItem*>());

            replace(via, junction);
            junction->AttachTo(board.Scene());
            via->Detach();
            QCOMPARE(board.Dump(), before);
            delete via;
        }
    }
};

PROPERTIES_TEST(TestWireCopy)
#include "tst_wire_copy.moc"
