#include "tests/sets/WireProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForWire.h"

#include <QLabel>

namespace {

using Test::SceneF;
using Test::WireProject;
using Set = TPropertySetForWire;
using Item = TGraphicsWireItem;

const QStringList plainRows = {
    "TPropertyFloatSpin Width: 0.01..999.99 step 0.05 decimals 2 = 0.25 mm",
    "TPropertyText Net: = GND, read-only",
    "TPropertyEnum Net class: Default 0, Power 1 = Power",
    "TPropertyColor Color: 24 colours = #00ff00",
    "TPropertyLayer Layer: Top 68, Inner 1 69, Inner 2 70, Bottom 75 = Top",
};

using ChangeWire = void (*)(WireProject& design, Item& wire);
using LinkWire = void (*)(WireProject& design, Item& wire);

/** A wire of the route in progress, or one that was laid before. */
Item* AddSection(WireProject& design, bool routing)
{
    Item* wire = design.AddWire("GND");
    wire->SetTFlag(TGraphicsItem::Routing, routing);
    return wire;
}

TGraphicsViaItem* AddBlindVia(WireProject& design)
{
    return design.board.AddVia(0.6, 0.3, "Top - Inner 1");
}

} // namespace

Q_DECLARE_METATYPE(ChangeWire)

/** What the set of wires shows; see also `TestWireSlots`. */
class TestWireSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOneWire_data()
    {
        QTest::addColumn<ChangeWire>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeWire change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](WireProject&, Item&) {}, {});
        add("width", [](WireProject&, Item& wire) { wire.SetPenWidth(SceneF(1.5)); },
            {"TPropertyFloatSpin Width: 0.01..999.99 step 0.05 decimals 2 = 1.50 mm"});
        add("width 0: the least", [](WireProject&, Item& wire) { wire.SetPenWidth(0); },
            {"TPropertyFloatSpin Width: 0.01..999.99 step 0.05 decimals 2 = 0.01 mm"});
        add("display unit", [](WireProject& d, Item&) { d.board.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil); },
            {"TPropertyFloatSpin Width: 0.01..999.99 step 0.05 decimals 2 = 9.84 mil"});
        add("layer", [](WireProject&, Item& wire) { wire.SetLayer(Osmirel::Copper3); },
            {"TPropertyLayer Layer: Top 68, Inner 1 69, Inner 2 70, Bottom 75 = Inner 2"});
        add("layer that the board lacks: first in the list",
            [](WireProject&, Item& wire) { wire.SetLayer(Osmirel::Copper5); },
            {"TPropertyLayer Layer: Layer 72 72, Top 68, Inner 1 69, Inner 2 70, Bottom 75 = Layer 72"});
        add("net without class and colour", [](WireProject&, Item& wire) { wire.SetNet("CLK"); },
            {"TPropertyText Net: = CLK, read-only", "TPropertyEnum Net class: Default 0, Power 1 = Default",
             "TPropertyColor Color: 23 colours = Default"});
        add("net that the schematic lacks: its class is disabled", [](WireProject&, Item& wire) { wire.SetNet("odd"); },
            {"TPropertyText Net: = odd, read-only", "TPropertyEnum Net class: Default 0, Power 1 = none, disabled",
             "TPropertyColor Color: 23 colours = Default"});
        add("class that the schematic lacks: first in the list",
            [](WireProject& design, Item&) { design.schematic.NetModel()->SetNetClass("GND", "Odd"); },
            {"TPropertyEnum Net class: Odd, Default 0, Power 1 = Odd"});
    }

    void showsOneWire()
    {
        QFETCH(ChangeWire, change);
        QFETCH(QStringList, rows);
        WireProject design;
        Item* wire = design.AddWire("GND");
        change(design, *wire);
        const Set set({wire}, &design.project);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
        QCOMPARE(set.Name(), QString("Wire"));
    }

    void showsTheLastWireAndTheFirstOnesNet()
    {
        WireProject design;
        Item* first = design.AddWire("GND", Osmirel::CopperBottom);
        first->SetPenWidth(SceneF(3));
        const Set oneNet({design.board.AddVia(), first, design.AddWire("GND"), design.board.AddHole()},
                         &design.project);
        QCOMPARE(Test::RowTexts(&oneNet), plainRows);
        QCOMPARE(oneNet.Name(), QString("Wire"));

        const Set twoNets({first, design.AddWire("CLK"), design.AddWire("GND")}, &design.project);
        QCOMPARE(Test::RowTexts(&twoNets),
                 Test::WithRows(plainRows, {"TPropertyText Net: = , read-only",
                                            "TPropertyEnum Net class: Default 0, Power 1 = Power, disabled",
                                            "TPropertyColor Color: 24 colours = #00ff00, disabled"}));
    }

    void netRowsNeedAProjectInStepAndANet_data()
    {
        QTest::addColumn<ChangeWire>("change");
        QTest::addColumn<QStringList>("labels");
        const QStringList wireOnly{"Width:", "Layer:"};
        const auto add = [](const char* name, ChangeWire change, const QStringList& labels) {
            QTest::newRow(name) << change << labels;
        };
        add("both", [](WireProject&, Item&) {}, {"Width:", "Net:", "Net class:", "Color:", "Layer:"});
        add(
            "separate", [](WireProject& design, Item&) { design.project.SetKind(0); }, wireOnly);
        add(
            "another kind", [](WireProject& design, Item&) { design.project.SetKind(2); }, wireOnly);
        add(
            "no net", [](WireProject&, Item& wire) { wire.SetNet({}); }, wireOnly);
        add("no schematic", [](WireProject& design, Item&) { design.project.SetSchematic(nullptr); },
            {"Width:", "Net:", "Layer:"});
    }

    void netRowsNeedAProjectInStepAndANet()
    {
        QFETCH(ChangeWire, change);
        WireProject design;
        Item* wire = design.AddWire("GND");
        change(design, *wire);
        const Set set({wire, design.AddWire("GND")}, &design.project);
        QTEST(Test::Labels(&set), "labels");
    }

    void withoutAProjectThereAreNoNetRows()
    {
        WireProject design;
        const Set set({design.AddWire("GND")}, nullptr);
        QCOMPARE(Test::Labels(&set), (QStringList{"Width:", "Layer:"}));
    }

    void netIsForDisplayOnly()
    {
        WireProject design;
        Test::PanelWindow place;
        auto* set = new Set({design.AddWire("GND")}, &design.project);
        const Test::CommandLog log(*set);
        place.Show(set);
        const QString before = design.board.Dump();
        TLineEdit* line = Test::RowOf<TPropertyText>(set, "Net:")->line;
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QVERIFY(!line->edit->isVisible());
        emit line->textChanged("CLK");
        QCOMPARE(log.Count(), 0);
        QCOMPARE(design.board.Dump(), before);
    }

    void withoutWiresThereAreNoRows()
    {
        WireProject design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.board.AddVia(), design.AddJunction()}}) {
            const Set set(selection, &design.project);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Wire"));
        }
    }

    void layersDependOnWhereARouteBegins_data()
    {
        QTest::addColumn<LinkWire>("link");
        QTest::addColumn<QString>("offered");
        const QString all("Top 68, Inner 1 69, Inner 2 70, Bottom 75");
        const QString own("Inner 1 69");
        const auto add = [](const char* name, LinkWire link, const QString& offered) {
            QTest::newRow(name) << link << offered;
        };
        add(
            "linked to nothing", [](WireProject&, Item&) {}, all);
        add(
            "at a via", [](WireProject& d, Item& wire) { wire.LinkToFirst(AddBlindVia(d)); }, "Top 68, Inner 1 69");
        add(
            "at a through pad", [](WireProject& d, Item& wire) { wire.LinkToFirst(d.board.AddThroughPad()); }, all);
        add(
            "at a surface pad", [](WireProject& d, Item& wire) { wire.LinkToFirst(d.board.AddSurfacePad()); },
            "Inner 1 69, Top 68"); // The wire's own layer is not the pad's, and shown all the same.
        add(
            "at a junction", [](WireProject& d, Item& wire) { wire.LinkToFirst(d.AddJunction()); }, own);
        add(
            "at a wire that was there before",
            [](WireProject& d, Item& wire) { wire.LinkToFirst(AddSection(d, false)); }, own);
        add(
            "two sections after a via",
            [](WireProject& d, Item& wire) {
                Item* section = AddSection(d, true);
                Item* before = AddSection(d, true);
                wire.LinkToFirst(section);
                section->LinkToFirst(before);
                before->LinkToFirst(AddBlindVia(d));
            },
            "Top 68, Inner 1 69");
        add(
            "a section after a junction",
            [](WireProject& d, Item& wire) {
                Item* section = AddSection(d, true);
                wire.LinkToFirst(section);
                section->LinkToFirst(d.AddJunction());
            },
            own);
        add(
            "a wire that was there before hides its via",
            [](WireProject& d, Item& wire) {
                Item* section = AddSection(d, false);
                wire.LinkToFirst(section);
                section->LinkToFirst(AddBlindVia(d));
            },
            own);
        add(
            "sections that begin at nothing", [](WireProject& d, Item& wire) { wire.LinkToFirst(AddSection(d, true)); },
            all);
        add(
            "sections in a loop",
            [](WireProject& d, Item& wire) {
                Item* section = AddSection(d, true);
                wire.SetTFlag(TGraphicsItem::Routing, true);
                wire.LinkToFirst(section);
                section->LinkToFirst(&wire);
            },
            all);
        add(
            "a via at the last end only", [](WireProject& d, Item& wire) { wire.LinkToLast(AddBlindVia(d)); }, all);
        add(
            "undo not bypassed",
            [](WireProject& d, Item& wire) {
                wire.LinkToFirst(AddBlindVia(d));
                wire.SetTFlag(TGraphicsItem::UndoBypass, false);
            },
            all);
    }

    void layersDependOnWhereARouteBegins()
    {
        QFETCH(LinkWire, link);
        QFETCH(QString, offered);
        WireProject design;
        Item* wire = design.AddWire("GND", Osmirel::Copper2);
        wire->SetTFlag(TGraphicsItem::UndoBypass, true);
        link(design, *wire);
        const Set set({wire}, &design.project);
        QCOMPARE(Test::RowTexts(&set).last(), "TPropertyLayer Layer: " + offered + " = Inner 1");
    }

    void offeredLayersAreTheEightThatExist()
    {
        WireProject design;
        for (int layer = 60; layer < 84; ++layer) {
            if (layer != 71) {
                design.board.LayerManager()->AddLayer(
                    {static_cast<Osmirel::Layer>(layer), QString::number(layer), Qt::red, {}});
            }
        }
        const Set existing({design.AddWire("GND")}, nullptr);
        QCOMPARE(Test::RowTexts(&existing).last(),
                 QString("TPropertyLayer Layer: 68 68, 69 69, 70 70, 72 72, 73 73, 74 74, 75 75 = 68"));
    }

    void compositionRowIsMadeAndNotShown()
    {
        WireProject design;
        Item* first = design.AddWire("GND");
        first->SetCompositionMode(3);
        Item* last = design.AddWire("GND");
        last->SetCompositionMode(12);
        const Test::UnshownEditors unshown;
        const Set set({first, last}, &design.project);
        const Test::CommandLog log(set);
        const auto modes = unshown.Of<QComboBox>(set);
        QCOMPARE(modes.size(), 1);
        QCOMPARE(Test::TextsByPosition(*modes.first()), Test::CompositionModeNames());
        QCOMPARE(modes.first()->currentIndex(), 12);
        modes.first()->setCurrentIndex(37);
        QCOMPARE(first->CompositionMode(), 37);
        QCOMPARE(last->CompositionMode(), 37);
        QCOMPARE(log.Count(), 0);
    }

    void textsAreTranslated()
    {
        WireProject design;
        const Test::MarkingTranslator translator;
        const Set set({design.AddWire("GND")}, &design.project);
        QCOMPARE(set.Name(), QString("~Wire"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForWire",
                                    {"Width:", "Net:", "Net class:", "Color:", "Layer:", "Comp mode:"}),
                 QStringList());
        QVERIFY(!translator.WasAsked("TPropertySetForWire", "SourceOver"));
    }
};

PROPERTIES_TEST(TestWireSet)
#include "tst_wire.moc"
