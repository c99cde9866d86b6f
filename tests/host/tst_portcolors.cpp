#include "tests/support/TestProgram.h"

#include <application/TSchematic.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>

#include <functional>

namespace {

/** Three ports of one net on a page, the first two of them wired, and a further wire that is linked to nothing. */
struct Design
{
    Design()
    {
        wire->LinkToFirst(port->Pin());
        wire->LinkToLast(second->Pin());
        for (TGraphicsPortItem* each : {port, second, third}) {
            each->SetName("A", {});
        }
        for (TGraphicsNetItem* each : {wire, loose}) {
            each->SetNet("A");
        }
        port->SetName("A", Qt::red);
        second->SetName("A", Qt::red);
    }

    template <class Item>
    Item* Add()
    {
        auto item = std::make_unique<Item>();
        Item* added = item.get();
        page->Attach(std::move(item));
        return added;
    }

    TSchematic schematic;
    TSchematicPage* page = schematic.AddPage();
    TGraphicsPortItem* port = Add<TGraphicsPortItem>();
    TGraphicsPortItem* second = Add<TGraphicsPortItem>();
    TGraphicsPortItem* third = Add<TGraphicsPortItem>();
    TGraphicsNetItem* wire = Add<TGraphicsNetItem>();
    TGraphicsNetItem* loose = Add<TGraphicsNetItem>();
};

using Change = std::function<TGraphicsItem*(Design&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

/** A port that is given the name and the colour that it has looks at its net only if something there has changed. */
class TestPortColors : public QObject
{
    Q_OBJECT

private slots:
    void whatHasChangedIsColouredAgain_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
        row("nothing", [](Design& design) { return design.wire; });
        row("a wire's colour", [](Design& design) {
            design.wire->SetAltColor(Qt::green);
            return design.wire;
        });
        row("a port's colour", [](Design& design) {
            design.second->SetAltColor(Qt::green);
            return design.second;
        });
        row("the net's colour", [](Design& design) {
            design.schematic.SetNetColor("A", Qt::green);
            return design.second;
        });
        row("a wire joins", [](Design& design) {
            design.loose->LinkToFirst(design.second->Pin());
            return design.loose;
        });
        row("a port joins", [](Design& design) {
            design.loose->LinkToFirst(design.second->Pin());
            design.loose->LinkToLast(design.third->Pin());
            return design.third;
        });
        row("a wire of another net joins and takes the name", [](Design& design) {
            design.loose->SetNet("B");
            design.loose->LinkToFirst(design.second->Pin());
            design.port->SetName("A", Qt::red);
            design.loose->SetNet("A");
            return design.loose;
        });
    }
    void whatHasChangedIsColouredAgain()
    {
        QFETCH(Change, change);
        Design design;
        const TGraphicsItem* changed = change(design);
        design.port->SetName("A", Qt::red);
        QCOMPARE(changed->AltColor(), QColor(Qt::red));
        design.port->SetName("A", Qt::blue);
        QCOMPARE(changed->AltColor(), QColor(Qt::blue));
        design.port->SetName("B", Qt::yellow);
        design.second->SetName("A", Qt::red);
        QCOMPARE(changed->AltColor(), QColor(Qt::red));
    }

    void whatWasCutIsLeftAlone()
    {
        Design design;
        design.wire->UnlinkFrom(design.second->Pin());
        design.port->SetName("A", Qt::blue);
        QCOMPARE(design.wire->AltColor(), QColor(Qt::blue));
        QCOMPARE(design.second->AltColor(), QColor(Qt::red));
    }

    void whatIsOfAnotherNetKeepsItsColour()
    {
        Design design;
        design.third->SetName("C", Qt::green);
        design.loose->LinkToFirst(design.second->Pin());
        design.loose->LinkToLast(design.third->Pin());
        design.port->SetName("A", Qt::blue);
        design.second->SetName("A", Qt::blue);
        QCOMPARE(design.third->AltColor(), QColor(Qt::green));
    }
};

PROPERTIES_TEST(TestPortColors)
#include "tst_portcolors.moc"
