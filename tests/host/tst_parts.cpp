#include "tests/host/LinkFault.h"
#include "tests/host/Sheet.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

namespace {

using Test::PinOf;
using Test::Sheet;
using Items = QVector<TGraphicsItem*>;
using Pins = QList<TGraphicsPinItem*>;

/** Cuts and links again, by what the first call returned, and tells whether all is as before. */
void CheckCutAndLinkedAgain(Sheet& sheet, TGraphicsPartItem* part)
{
    const QString before = sheet.DumpWithOwnNets();
    const Items cut = part->Disconnect({});
    const QString apart = sheet.DumpWithOwnNets();
    for (const TGraphicsItem* pin : part->Pins()) {
        QCOMPARE(pin->Links(), Items());
    }
    QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
    if (cut.isEmpty()) {
        QCOMPARE(apart, before);
        return;
    }
    QCOMPARE(part->Connect(cut).size(), cut.size());
    QCOMPARE(sheet.DumpWithOwnNets(), before);
    QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
    QCOMPARE(part->Disconnect(cut).size(), cut.size());
    QCOMPARE(sheet.DumpWithOwnNets(), apart);
    QCOMPARE(part->Connect(cut).size(), cut.size());
    QCOMPARE(sheet.DumpWithOwnNets(), before);
}

} // namespace

class TestParts : public QObject
{
    Q_OBJECT

private slots:
    void connectLinksWhatEndsAtThePins()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 50}, {0, 100}});
        TGraphicsNetItem* first = sheet.Wire({-50, 0}, {0, 0});
        TGraphicsNetItem* near = sheet.Wire({0, 50.2}, {-50, 50}); // Within the tolerance.
        TGraphicsNetItem* beside = sheet.Wire({0, 101}, {-50, 100});
        TGraphicsNetItem* across = sheet.Wire({-50, 100}, {50, 100}); // Passes by, and ends on no pin.
        TGraphicsBusItem* bus = sheet.Bus({0, 0}, {0, -50});
        TGraphicsNetItem* taken = sheet.Wire({0, 0}, {50, 50});
        taken->LinkToFirst(sheet.Junction({0, 0}));
        QCOMPARE(part->Connect({}), (Items{first, near}));
        QCOMPARE(first->LastLink(), PinOf(part, 1));
        QCOMPARE(near->FirstLink(), PinOf(part, 2));
        QCOMPARE(beside->Links() + across->Links() + bus->Links(), Items());
        QCOMPARE(taken->FirstLink()->type(), int(ItemType::Junction));
        QCOMPARE(part->Connect({}), Items()); // All that touches is linked.
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
        CheckCutAndLinkedAgain(sheet, part);
    }

    void pinsOfOtherSymbolsAreLinkedWhereTheyTouch()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 50}});
        TGraphicsPartItem* other = sheet.Part({100, 0}, 2, {{-100, 0}, {0, 0}});
        TGraphicsPortItem* port = sheet.Port({0, 50}, "P");
        TGraphicsNetTieSchItem* tie = sheet.NetTie({-15, 50}, 3);
        QCOMPARE(part->Connect({}), (Items{PinOf(other, 1), port->Pin(), PinOf(tie, 2)}));
        QCOMPARE(PinOf(part, 1)->LinkedPins(), Pins{PinOf(other, 1)});
        QCOMPARE(PinOf(other, 1)->LinkedPins(), Pins{PinOf(part, 1)});
        QCOMPARE(PinOf(part, 2)->Net(), QString("P"));
        QCOMPARE(PinOf(tie, 2)->Net(), QString("P"));
        QCOMPARE(PinOf(tie, 1)->Net(), QString());
        QCOMPARE(port->Net(), QString("P"));
        QCOMPARE(part->Connect({}), Items());
        QCOMPARE(other->Connect({}), Items()); // From the other side it is the same link.
        CheckCutAndLinkedAgain(sheet, part);
        CheckCutAndLinkedAgain(sheet, other);
    }

    void turnedPartsTouchByTheirPinsPlaces()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{30, 0}});
        part->setRotation(90);
        TGraphicsPartItem* other = sheet.Part({0, 60}, 2, {{0, -30}});
        TGraphicsNetItem* wire = sheet.Wire({0, 30}, {200, 30});
        QCOMPARE(part->Connect({}), (Items{wire, PinOf(other, 1)}));
    }

    void stackedPinsOfOneSymbolAreNotLinked()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 0}});
        QCOMPARE(part->Connect({}), Items());
        TGraphicsPartItem* other = sheet.Part({0, 0}, 2, {{0, 0}, {0, 0}});
        QCOMPARE(part->Connect({}),
                 (Items{PinOf(other, 1), PinOf(other, 2), PinOf(other, 1), PinOf(other, 2)})); // Each with each.
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
        CheckCutAndLinkedAgain(sheet, part);
        CheckCutAndLinkedAgain(sheet, other);
    }

    void stackedPinsGetTheirOwnWiresBack()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 0}, {0, 50}});
        TGraphicsNetItem* toSecond = sheet.Wire({0, 0}, {-50, 0});
        TGraphicsNetItem* toFirst = sheet.Wire({0, 0}, {-50, 20});
        TGraphicsNetItem* between = sheet.Wire({0, 0}, {0, 50});
        TGraphicsNetItem* loop = sheet.Wire({0, 0}, {0, 0});
        toSecond->LinkToFirst(PinOf(part, 2));
        toFirst->LinkToFirst(PinOf(part, 1));
        between->LinkToFirst(PinOf(part, 2));
        between->LinkToLast(PinOf(part, 3));
        loop->LinkToFirst(PinOf(part, 1));
        loop->LinkToLast(PinOf(part, 2));
        CheckCutAndLinkedAgain(sheet, part);
        QCOMPARE(toSecond->FirstLink(), PinOf(part, 2));
        QCOMPARE(loop->LastLink(), PinOf(part, 2));
    }

    void givenWiresLeaveTouchingPinsAlone()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        TGraphicsPartItem* other = sheet.Part({0, 0}, 2, {{0, 0}});
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        TGraphicsNetItem* second = sheet.Wire({0, 0}, {0, 50});
        QCOMPARE(part->Connect({wire}), Items{wire});
        QCOMPARE(PinOf(part, 1)->Links(), Items{wire});
        QCOMPARE(part->Connect({PinOf(other, 1)}), Items{PinOf(other, 1)});
        QCOMPARE(PinOf(part, 1)->Links(), (Items{wire, PinOf(other, 1)}));
        QCOMPARE(part->Disconnect({PinOf(other, 1)}), Items{PinOf(other, 1)});
        QCOMPARE(PinOf(part, 1)->Links(), Items{wire});
        QCOMPARE(part->Disconnect({PinOf(other, 1)}), Items()); // Not linked any more.
        QCOMPARE(part->Disconnect({second}), Items());
        QCOMPARE(PinOf(part, 1)->Links(), Items{wire});
        QCOMPARE(part->Connect({sheet.Bus({0, 0}, {9, 9})}), Items());
        QCOMPARE(part->Connect({sheet.Wire({5, 5}, {50, 5})}), Items()); // Ends nowhere near.
    }

    void aWireWithBothEndsAtAPartIsListedTwice()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 50}});
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {0, 50});
        QCOMPARE(part->Connect({}), (Items{wire, wire}));
        CheckCutAndLinkedAgain(sheet, part);
        QCOMPARE(part->Disconnect({wire}), Items{wire});
        QCOMPARE(wire->Links(), Items{PinOf(part, 1)}); // What was linked last is cut first.
    }

    // What Connect returns is what Disconnect cuts, and not another end of the same wire, or another pin.
    void onlyWhatWasLinkedIsCutAgain()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 50}, {0, 50}});
        TGraphicsPinItem* other = PinOf(sheet.Part({0, 50}, 2, {{0, 0}}), 1);
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {0, 50});
        TGraphicsNetItem* back = sheet.Wire({0, 50}, {0, 0});
        TGraphicsNetItem* loop = sheet.Wire({0, 0}, {0, 0});
        wire->LinkToFirst(PinOf(part, 1));
        back->LinkToFirst(PinOf(part, 3));
        loop->LinkToFirst(PinOf(part, 1));
        other->LinkToPin(PinOf(part, 2));
        const QString before = sheet.DumpWithOwnNets();
        for (int round = 0; round < 2; ++round) {
            const Items linked = part->Connect({});
            QCOMPARE(linked.size(), 4);
            const QString all = sheet.DumpWithOwnNets();
            CheckCutAndLinkedAgain(sheet, part); // In between, and taken back.
            const Items cut = part->Disconnect({});
            part->Connect(cut);
            QCOMPARE(sheet.DumpWithOwnNets(), all);
            part->Disconnect(linked);
            QCOMPARE(sheet.DumpWithOwnNets(), before);
        }
    }

    // What lies in the past of another end, or another pin, is not mistaken for what was cut last.
    void onlyWhatWasCutIsLinkedAgain()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 0}, {0, 50}});
        TGraphicsPinItem* other = PinOf(sheet.Part({0, 0}, 2, {{0, 0}}), 1);
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {0, 50});
        part->Disconnect(part->Connect({})); // Once linked with everything.
        wire->LinkToLast(PinOf(part, 3));
        other->LinkToPin(PinOf(part, 2));
        CheckCutAndLinkedAgain(sheet, part);
        const QString before = sheet.DumpWithOwnNets();
        const Items cut = part->Disconnect({});
        part->Disconnect(part->Connect({}));
        part->Connect(cut);
        QCOMPARE(sheet.DumpWithOwnNets(), before);
    }

    void aPartWithoutPinsOrPageConnectsNothing()
    {
        Sheet sheet;
        sheet.Wire({0, 0}, {50, 0});
        TGraphicsPartItem* bare = sheet.Part({0, 0}, 1, {});
        QCOMPARE(bare->Connect({}) + bare->Disconnect({}), Items());
        TGraphicsPartItem loose;
        new TGraphicsPinItem(&loose);
        QCOMPARE(loose.Connect({}) + loose.Disconnect({}), Items());
    }

    void partsAreLinkedWithTheirOwnPageOnly()
    {
        Sheet sheet;
        sheet.Wire({0, 0}, {50, 0});
        sheet.Part({0, 0}, 2, {{0, 0}});
        sheet.GoToPage(sheet.AddPage());
        QCOMPARE(sheet.Part({0, 0}, 1, {{0, 0}})->Connect({}), Items());
    }

    void aPinTakesTheNetOfWhatTouchesIt()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}, {0, 50}});
        TGraphicsPartItem* other = sheet.Part({0, 50}, 2, {{0, 0}});
        TGraphicsNetItem* wire = sheet.Wire({0, 50}, {50, 50}, "N");
        part->Connect({wire, PinOf(other, 1)});
        QCOMPARE(PinOf(part, 1)->Net(), QString());
        QCOMPARE(PinOf(part, 2)->Net(), QString("N"));
        QCOMPARE(PinOf(other, 1)->Net(), QString("N"));
        part->Disconnect({});
        QCOMPARE(PinOf(other, 1)->Net() + PinOf(part, 2)->Net(), QString());
        QCOMPARE(wire->Net(), QString("N"));
    }

    void pinsAreLinkedOnce()
    {
        Sheet sheet;
        TGraphicsPinItem* one = PinOf(sheet.Part({0, 0}, 1, {{0, 0}}), 1);
        TGraphicsPinItem* other = PinOf(sheet.Part({0, 0}, 2, {{0, 0}}), 1);
        one->LinkToPin(other);
        other->LinkToPin(one);
        one->LinkToPin(one);
        one->LinkToPin(nullptr);
        QCOMPARE(one->LinkedPins(), Pins{other});
        QCOMPARE(other->LinkedPins(), Pins{one});
        one->UnlinkFromPin(nullptr);
        other->UnlinkFromPin(one);
        other->UnlinkFromPin(one);
        QCOMPARE(one->Links() + other->Links(), Items());
    }

    // What was cut keeps its place in the order of links: the first wire of a port tells its net.
    void destroyedConnectionsAreNotLinkedAgain()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        TGraphicsPartItem* other = sheet.Part({0, 0}, 2, {{0, 0}});
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        part->Connect({});
        part->Disconnect({});
        delete other;
        delete wire;
        TGraphicsNetItem* next = sheet.Wire({0, 0}, {50, 0});
        QCOMPARE(part->Connect({}), Items{next});
    }
};

PROPERTIES_TEST(TestParts)
#include "tst_parts.moc"
