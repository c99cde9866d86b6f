#include "tests/host/LinkFault.h"
#include "tests/host/Sheet.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

namespace {

using Test::PinOf;
using Test::Sheet;
using Items = QVector<TGraphicsItem*>;

/** A port at the origin with two wires, a junction and a second port on one net. */
struct Wired
{
    Wired()
    {
        wire->LinkToFirst(port->Pin());
        wire->LinkToLast(junction);
        further->LinkToFirst(junction);
        further->LinkToLast(second->Pin());
    }

    Sheet sheet;
    TGraphicsPortItem* port = sheet.Port({0, 0}, "A");
    TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0}, "A");
    TGraphicsJunctionItem* junction = sheet.Junction({50, 0}, "A");
    TGraphicsNetItem* further = sheet.Wire({50, 0}, {100, 0}, "A");
    TGraphicsPortItem* second = sheet.Port({100, 0}, "A");
};

} // namespace

class TestPorts : public QObject
{
    Q_OBJECT

private slots:
    void aPortOnItsOwnIsOfItsName()
    {
        Sheet sheet;
        TGraphicsPortItem* port = sheet.Port({0, 0}, "A");
        QCOMPARE(port->Net(), QString("A"));
        QCOMPARE(port->ConnectedItems(), Items());
        port->SetName("B", Qt::red);
        QCOMPARE(port->Name() + port->Net() + port->Pin()->Net(), QString("BBB"));
        QCOMPARE(port->AltColor(), QColor(Qt::red));
        port->SetName("B", {});
        QVERIFY(!port->AltColor().isValid());
        port->SetName(QString(), {});
        QCOMPARE(port->Net(), QString());
    }

    void aPortNamesTheNetOfItsWires()
    {
        Sheet sheet;
        TGraphicsPortItem* port = sheet.Port({0, 0}, "A");
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0}, "own");
        TGraphicsPartItem* part = sheet.Part({50, 0}, 1, {{0, 0}});
        wire->LinkToFirst(port->Pin());
        part->Connect({});
        QCOMPARE(wire->Net() + PinOf(part, 1)->Net() + port->Net(), QString("AAA"));
        QCOMPARE(port->ConnectedItems().size(), 2);
        QVERIFY(port->ConnectedItems().contains(wire) && port->ConnectedItems().contains(PinOf(part, 1)));
        wire->UnlinkFrom(port->Pin());
        QCOMPARE(wire->Net() + PinOf(part, 1)->Net() + port->Net(), QString("ownownA"));
    }

    void aNewNameGoesToAllThatIsWired()
    {
        Wired design;
        const QString before = design.sheet.DumpWithOwnNets();
        design.port->SetName("B", Qt::red);
        for (const TGraphicsItem* item :
             Items{design.port, design.wire, design.junction, design.further, design.second}) {
            QCOMPARE(item->Net(), QString("B"));
            QCOMPARE(item->AltColor(), QColor(Qt::red));
        }
        for (const TGraphicsItem* item : Items{design.wire, design.junction, design.further}) {
            QCOMPARE(item->OwnNet(), QString("B"));
        }
        QCOMPARE(design.second->Name(), QString("B"));
        design.port->SetName("A", {});
        QCOMPARE(design.sheet.DumpWithOwnNets(), before);
    }

    void theSameNameOnlyColours()
    {
        Wired design;
        const QString before = design.sheet.DumpWithOwnNets();
        design.port->SetName("A", Qt::red);
        QCOMPARE(design.further->AltColor(), QColor(Qt::red));
        QCOMPARE(design.second->AltColor(), QColor(Qt::red));
        design.port->SetName("A", {});
        QCOMPARE(design.sheet.DumpWithOwnNets(), before);
    }

    void whatIsOfAnotherNameMovesAlongAndGetsItsOwnBack()
    {
        Wired design;
        TGraphicsPortItem* third = design.sheet.Port({50, 50}, "C");
        TGraphicsNetItem* ofThird = design.sheet.Wire({50, 0}, {50, 50}, "C");
        for (TGraphicsItem* item : Items{third, ofThird}) {
            item->SetAltColor(Qt::green);
        }
        ofThird->LinkToFirst(design.junction);
        ofThird->LinkToLast(third->Pin());
        QCOMPARE(ofThird->Net() + design.wire->Net(), QString("CA")); // Two names are given: each keeps its own.
        const QString before = design.sheet.DumpWithOwnNets();
        const auto names = [&] {
            return ofThird->Net() + ofThird->OwnNet() + design.wire->OwnNet() + third->Name() + design.second->Name();
        };
        design.port->SetName("B", Qt::red);
        QCOMPARE(names(), QString("BBBBB"));
        QCOMPARE(third->AltColor(), QColor(Qt::red));
        design.port->SetName("C", Qt::red);
        QCOMPARE(names(), QString("CCCCC"));
        design.port->SetName("B", {});
        QCOMPARE(names(), QString("BBBBB"));
        design.port->SetName("A", {});
        QCOMPARE(design.sheet.DumpWithOwnNets(), before);
    }

    // Another port, other things that are wired, or another name: then nothing is taken back.
    void onlyTheSameRenamingIsTakenBack_data()
    {
        QTest::addColumn<int>("difference");
        QTest::newRow("none") << 0;
        QTest::newRow("another port") << 1;
        QTest::newRow("a wire more") << 2;
        QTest::newRow("a wire less") << 3;
        QTest::newRow("another wire in the place of one") << 4;
        QTest::newRow("another name in between") << 5;
        QTest::newRow("a wire renamed in between") << 6;
    }
    void onlyTheSameRenamingIsTakenBack()
    {
        QFETCH(int, difference);
        Wired design;
        design.wire->SetNet("W"); // Of another name than what it is wired to.
        design.port->SetName("B", {});
        TGraphicsPortItem* port = difference == 1 ? design.second : design.port;
        if (difference == 2 || difference == 4) {
            design.sheet.Wire({50, 0}, {50, 50}, "B")->LinkToFirst(design.junction);
        }
        if (difference == 3 || difference == 4) {
            design.further->UnlinkFrom(design.second->Pin());
        } else if (difference == 5) {
            design.second->SetName("C", {});
        } else if (difference == 6) {
            design.further->SetNet("X");
        }
        port->SetName("A", {});
        QCOMPARE(design.wire->OwnNet(), QString(difference == 0 ? "W" : "A"));
        QCOMPARE(design.further->OwnNet(), QString("A"));
    }

    // Whatever each port was called, and whichever of them are renamed in which order.
    void renamingsThatAreTakenBackFromTheLastOneBringEverythingBack()
    {
        Wired design;
        TGraphicsPortItem* third = design.sheet.Port({50, 50}, "C");
        TGraphicsNetItem* ofThird = design.sheet.Wire({50, 0}, {50, 50}, "C");
        ofThird->LinkToFirst(design.junction);
        ofThird->LinkToLast(third->Pin());
        const QList<TGraphicsPortItem*> ports{design.port, third, design.second};
        const QStringList names{"A", "C", "N", ""};
        struct Renamed
        {
            TGraphicsPortItem* port;
            QString from;
            QString before;
        };
        // Five renamings, each of one of three ports to one of four names; every 211th of all sequences.
        for (int sequence = 0; sequence < 12 * 12 * 12 * 12 * 12; sequence += 211) {
            QVector<Renamed> renamed;
            for (int i = 0, rest = sequence; i < 5; ++i, rest /= 12) {
                TGraphicsPortItem* port = ports[rest % 3];
                renamed.append({port, port->Name(), design.sheet.DumpWithOwnNets()});
                port->SetName(names[rest / 3 % 4], {});
                QCOMPARE(port->Name(), names[rest / 3 % 4]);
            }
            while (!renamed.isEmpty()) {
                const Renamed last = renamed.takeLast();
                last.port->SetName(last.from, {});
                QCOMPARE(design.sheet.DumpWithOwnNets(), last.before);
            }
        }
    }

    void theEmptyNameGoesToAllLikeAnyOther()
    {
        Wired design;
        const QString before = design.sheet.DumpWithOwnNets();
        design.port->SetName(QString(), {});
        QCOMPARE(design.wire->Net() + design.further->OwnNet() + design.second->Name(), QString());
        design.port->SetName("A", {});
        QCOMPARE(design.sheet.DumpWithOwnNets(), before);
    }

    void whatComesToTheOldNameIsRenamedTheNextTime()
    {
        Wired design;
        design.port->SetName("B", {});
        design.port->SetName("A", {});
        TGraphicsNetItem* late = design.sheet.Wire({50, 0}, {50, 50}, "A");
        late->LinkToFirst(design.junction);
        design.port->SetName("B", {});
        QCOMPARE(late->OwnNet(), QString("B"));
        design.port->SetName("A", {});
        QCOMPARE(late->OwnNet(), QString("A"));
    }

    // The inverse calls in reverse order bring everything back, whatever is linked and cut in between.
    void renamingBackAfterNewWiringIsTakenBackToo()
    {
        Wired design;
        TGraphicsPortItem* other = design.sheet.Port({50, 50}, "C");
        TGraphicsNetItem* late = design.sheet.Wire({50, 0}, {50, 50}, "A");
        late->LinkToLast(other->Pin());
        design.port->SetName("B", {});
        late->LinkToFirst(design.junction);
        const QString joined = design.sheet.DumpWithOwnNets();
        design.port->SetName("A", {});
        design.port->SetName("B", {});
        QCOMPARE(design.sheet.DumpWithOwnNets(), joined);
    }

    void portsThatTouchAPinNameItsNet()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        TGraphicsPortItem* port = sheet.Port({0, 0}, "A");
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0}, "A");
        part->Connect({});
        QCOMPARE(PinOf(part, 1)->Net(), QString("A"));
        const QString before = sheet.DumpWithOwnNets();
        port->SetName("B", Qt::red);
        QCOMPARE(PinOf(part, 1)->Net() + wire->Net() + wire->OwnNet(), QString("BBB"));
        QVERIFY(!PinOf(part, 1)->AltColor().isValid());
        QVERIFY(!part->AltColor().isValid());
        port->SetName("A", {});
        QCOMPARE(sheet.DumpWithOwnNets(), before);
    }

    void portsOfOneNameOnSeveralPagesAreRenamedOneByOne()
    {
        Wired design;
        design.sheet.GoToPage(design.sheet.AddPage());
        TGraphicsPortItem* elsewhere = design.sheet.Port({0, 0}, "A");
        design.port->SetName("B", {});
        QCOMPARE(elsewhere->Name(), QString("A"));
    }
};

PROPERTIES_TEST(TestPorts)
#include "tst_ports.moc"
