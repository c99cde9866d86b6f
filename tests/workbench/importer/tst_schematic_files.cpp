#include "tests/support/TestProgram.h"
#include "tests/workbench/support/SheetFiles.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

#include <QtTest>

#include <algorithm>

using namespace SheetTexts;
using namespace SheetFiles;

namespace {

const QByteArray resistor = Symbol("R1", "L:R", "10 10 0"); // Pins at (10 5) and (10 15).
const QByteArray second = Symbol("R2", "L:R", "20 10 0");   // Pins at (20 5) and (20 15).
const QByteArray supply = Symbol("#PWR1", "P:GND", "10 15 0");

QString InMillimetres(const QPointF& point)
{
    constexpr double millimetre = 300 / 25.4;
    return QStringLiteral("%1,%2").arg(qRound(point.x() / millimetre)).arg(qRound(point.y() / millimetre));
}

/** What a link leads to. */
QString LinkName(const TGraphicsItem* item)
{
    if (item && item->parentItem()) {
        return static_cast<const TGraphicsItem*>(item->parentItem())->KindName();
    }
    return item ? item->KindName() : QStringLiteral("-");
}

/** The net wires as "from(link) to(link)", sorted. */
QString Wires(const TImportResult& result)
{
    QStringList wires;
    const QList<TGraphicsNetItem*> items = All<TGraphicsNetItem>(result);
    for (const TGraphicsNetItem* wire : items) {
        wires.append(QStringLiteral("%1(%2) %3(%4)")
                         .arg(InMillimetres(wire->SceneLine().p1()), LinkName(wire->FirstLink()),
                              InMillimetres(wire->SceneLine().p2()), LinkName(wire->LastLink())));
    }
    wires.sort();
    return wires.join(QStringLiteral("; "));
}

} // namespace

class TestSchematicFiles : public QObject
{
    Q_OBJECT

private slots:
    void linksWhatMeets_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QString>("wires");
        QTest::addColumn<int>("junctions");

        const auto row = [](const char* name, const QByteArray& elements, const char* wires, int junctions = 0) {
            QTest::newRow(name) << elements << QString::fromLatin1(wires) << junctions;
        };
        row("a wire between pins", resistor + second + Wire("10 5", "20 5"), "10,5(part) 20,5(part)");
        row("an end that is free", resistor + Wire("10 5", "20 5"), "10,5(part) 20,5(-)");
        row("a bend", Wire("10 5", "20 5") + Wire("20 5", "20 9"), "10,5(-) 20,5(netwire); 20,5(netwire) 20,9(-)");
        row("a bend of ends turns one wire", Wire("10 5", "20 5") + Wire("20 9", "20 5"),
            "10,5(-) 20,5(netwire); 20,5(netwire) 20,9(-)");
        row("a chain of four wires every which way",
            Wire("20 0", "10 0") + Wire("20 0", "30 0") + Wire("40 0", "30 0") + Wire("40 0", "50 0"),
            "20,0(netwire) 10,0(-); 30,0(netwire) 20,0(netwire); 40,0(netwire) 30,0(netwire); 50,0(-) 40,0(netwire)");
        row("a ring", Wire("0 0", "10 0") + Wire("10 10", "10 0") + Wire("10 10", "0 0"),
            "0,0(netwire) 10,0(netwire); 10,0(netwire) 10,10(netwire); 10,10(netwire) 0,0(netwire)");
        row("three ends without a junction", Wire("0 0", "10 0") + Wire("10 10", "10 0") + Wire("20 0", "10 0"),
            "0,0(-) 10,0(junction); 10,10(-) 10,0(junction); 20,0(-) 10,0(junction)", 1);
        row("a crossing", Wire("0 5", "10 5") + Wire("5 0", "5 10"), "0,5(-) 10,5(-); 5,0(-) 5,10(-)");
        row("a junction cuts wires", Wire("0 5", "10 5") + Wire("5 0", "5 10") + Junction("5 5"),
            "0,5(-) 5,5(junction); 5,0(-) 5,5(junction); 5,5(junction) 10,5(-); 5,5(junction) 5,10(-)", 1);
        row("an end on a middle", Wire("0 5", "10 5") + Wire("5 5", "5 10"), "0,5(-) 10,5(-); 5,5(-) 5,10(-)");
        row("a pin cuts a wire", resistor + Wire("5 5", "20 5"), "10,5(part) 20,5(-); 5,5(-) 10,5(part)");
        row("a pin takes many wires", resistor + Wire("10 5", "20 5") + Wire("10 5", "0 5") + Wire("10 0", "10 5"),
            "10,0(-) 10,5(part); 10,5(part) 0,5(-); 10,5(part) 20,5(-)");
        row("a junction on a pin", resistor + Wire("5 5", "20 5") + Junction("10 5"),
            "10,5(junction) 10,5(part); 10,5(junction) 20,5(-); 5,5(-) 10,5(junction)", 1);
        row("a port on a wire's middle", Wire("5 5", "20 5") + Label("global_label", "A", "10 5"),
            "10,5(port) 20,5(-); 5,5(-) 10,5(port)");
        row("a local label cuts nothing", Wire("5 5", "20 5") + Label("label", "A", "10 5"), "5,5(-) 20,5(-)");
        row("a power symbol is a port", supply + Wire("10 15", "10 20"), "10,15(port) 10,20(-)");
        row("an entry", Bus("30 0", "30 50") + Entry("30 8", "-3 -3") + Wire("27 5", "10 5"), "27,5(busentry) 10,5(-)");
        row("an entry from the bus's end", Bus("30 8", "30 50") + Entry("27 5", "3 3") + Wire("27 5", "10 5"),
            "27,5(busentry) 10,5(-)");
        row("an entry where wires meet",
            Bus("30 0", "30 50") + Entry("30 8", "-3 -3") + Wire("27 5", "10 5") + Wire("27 0", "27 5"),
            "27,0(-) 27,5(junction); 27,5(junction) 10,5(-); 27,5(junction) 27,5(busentry)", 1);
        row("an entry on a pin", resistor + Bus("13 0", "13 50") + Entry("13 8", "-3 -3"), "10,5(part) 10,5(busentry)");
        row("a wire without length is none", Wire("10 5", "10 5"), "");
    }

    void linksWhatMeets()
    {
        QFETCH(QByteArray, elements);
        const TImportResult result = ImportSheet(elements);
        QVERIFY2(result.error.isEmpty(), qPrintable(result.error));
        QTEST(Wires(result), "wires");
        QTEST(All<TGraphicsJunctionItem>(result).size(), "junctions");
        // Every link is held by both sides.
        const QList<TGraphicsItem*> items = All<TGraphicsItem>(result);
        for (TGraphicsItem* item : items) {
            const QVector<TGraphicsItem*> links = item->Links();
            for (const TGraphicsItem* other : links) {
                QVERIFY2(other->Links().contains(item), qPrintable(item->StateLine()));
            }
        }
    }

    void joinsPinsThatTouch()
    {
        const TImportResult result =
            ImportSheet(resistor + Symbol("R2", "L:R", "10 0 0") + Label("global_label", "A", "10 15"));
        QCOMPARE(NetsOfParts(result),
                 QStringLiteral("R1.1=Net-(R1-Pad1) R1.2=A R2.1=unconnected-(R2-Pad1) R2.2=Net-(R1-Pad1)"));
        const QList<TGraphicsPortItem*> ports = All<TGraphicsPortItem>(result);
        QCOMPARE(ports.size(), 1);
        QCOMPARE(ports.first()->Pin()->LinkedPins().size(), 1);
    }

    void hangsEntriesOnBuses()
    {
        const TImportResult result = ImportSheet(Bus("30 0", "30 20") + Bus("30 50", "30 20") + Entry("30 8", "-3 -3")
                                                 + Entry("27 27", "3 3") + Label("label", "D[0..7]", "30 0"));
        const QList<TGraphicsBusItem*> buses = All<TGraphicsBusItem>(result);
        QCOMPARE(buses.size(), 2);
        QCOMPARE(buses[0]->Name(), QStringLiteral("D[0..7]"));
        QCOMPARE(buses[1]->Name(), QStringLiteral("D[0..7]")); // It goes on with the other.
        QCOMPARE(buses[0]->LastLink(), buses[1]);
        QCOMPARE(buses[0]->LinkedBusEntries().size(), 1);
        QCOMPARE(buses[1]->LinkedBusEntries().size(), 1);
    }

    void drawsPortsWhereTheyPoint_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QString>("port"); // Name, shape, rotation, and whether the name is shown.
        const auto row = [](const char* name, const QByteArray& elements, const char* port) {
            QTest::newRow(name) << elements << QString::fromLatin1(port);
        };
        const auto label = [](const QByteArray& kind, const QByteArray& shape, const QByteArray& angle) {
            return "(" + kind + " \"A\" (shape " + shape + ") (at 10 10 " + angle + ") (effects (font (size 1 1))))";
        };
        row("a global input", label("global_label", "input", "0"), "A 0 0 1");
        row("an output upwards", label("global_label", "output", "90"), "A 1 -90 1");
        row("a bidirectional one to the left", label("global_label", "bidirectional", "180"), "A 2 180 1");
        row("a tri-state one downwards", label("hierarchical_label", "tri_state", "270"), "/A 3 90 1");
        row("a passive one", label("hierarchical_label", "passive", "0"), "/A 4 0 1");
        row("a power symbol", Symbol("#PWR1", "P:GND", "10 10 0"), "GND 5 -90 1");
        row("a power symbol on its head", Symbol("#PWR1", "P:GND", "10 10 180"), "GND 5 90 1");
        row("a power symbol without shown value",
            Symbol("#PWR1", "P:GND", "10 10 180")
                .replace("\"Value\" \"GND\" (at 0 0 0) (effects", "\"Value\" \"GND\" (at 0 0 0) (effects hide"),
            "GND 5 90 0");
    }

    void drawsPortsWhereTheyPoint()
    {
        QFETCH(QByteArray, elements);
        const TImportResult result = ImportSheet(elements);
        const QList<TGraphicsPortItem*> ports = All<TGraphicsPortItem>(result);
        QCOMPARE(ports.size(), 1);
        const TGraphicsPortItem* port = ports.first();
        QTEST(QStringLiteral("%1 %2 %3 %4")
                  .arg(port->Name())
                  .arg(port->PortShape())
                  .arg(port->rotation())
                  .arg(port->NameVisible()),
              "port");
        QCOMPARE(InMillimetres(port->scenePos()), QStringLiteral("10,10"));
        QCOMPARE(port->Net(), port->Name());
    }

    void turnsPinsToTheBody_data()
    {
        QTest::addColumn<QByteArray>("at");
        QTest::addColumn<QByteArray>("mirror");
        QTest::addColumn<double>("rotation"); // Of the pin A, which is left of the body.
        const auto row = [](const char* angle, const char* mirror, double rotation) {
            const QByteArray name = QByteArray(angle) + " degrees" + (*mirror ? ", mirrored in " : "") + mirror;
            QTest::newRow(name.constData())
                << "100 100 " + QByteArray(angle) << (*mirror ? "(mirror " + QByteArray(mirror) + ")" : QByteArray())
                << rotation;
        };
        row("0", "", 0);
        row("90", "", -90);
        row("180", "", 180);
        row("270", "", 90);
        row("0", "x", 0);
        row("0", "y", 180);
        row("90", "x", 90);
        row("90", "y", -90);
        row("270", "x", -90);
    }

    void turnsPinsToTheBody()
    {
        QFETCH(QByteArray, at);
        QFETCH(QByteArray, mirror);
        QFETCH(double, rotation);
        const TImportResult result = ImportSheet(Symbol("Q1", "L:Q", at, mirror));
        const TGraphicsPinItem* pin = All<TGraphicsPinItem>(result).first();
        QCOMPARE(pin->rotation(), rotation);
        // The body is 5 from the place of the pin, whose line is 2 long: it leads towards the symbol's middle.
        const QPointF end = pin->mapToScene(QPointF(pin->LineLength() * 2.5, 0));
        QCOMPARE(InMillimetres(end), QStringLiteral("100,100"));
    }

    void readsPins_data()
    {
        QTest::addColumn<QByteArray>("pin");
        QTest::addColumn<QString>("read"); // Type, style, length class, name and number shown.
        const auto row = [](const QByteArray& pin, const char* read) {
            QTest::newRow(pin.constData()) << pin << QString::fromLatin1(read);
        };
        row("passive line (length 2.54)", "0 0 2 1 1");
        row("input line (length 0)", "1 0 0 1 1");
        row("output inverted (length 1.27)", "2 1 1 1 1");
        row("bidirectional inverted_clock (length 3.81)", "3 1 3 1 1");
        row("tri_state clock (length 7.62)", "4 0 3 1 1");
        row("open_collector line (length 2)", "5 0 2 1 1");
        row("open_emitter line (length 2)", "5 0 2 1 1");
        row("power_out line (length 2)", "6 0 2 1 1");
        row("power_in line (length 2)", "6 0 2 1 1");
        row("no_connect line (length 2)", "7 0 2 1 1");
        row("unspecified line (length 2)", "0 0 2 1 1");
        row("free line (length 2)", "0 0 2 1 1");
        row("passive line hide (length 2.54)", "0 0 0 0 0");
        row("passive line (length 2.54) (hide yes)", "0 0 0 0 0");
    }

    void readsPins()
    {
        QFETCH(QByteArray, pin);
        QFETCH(QString, read);
        QByteArray sheet = Sheet(Symbol("Q1", "L:Q", "50 50 0"));
        sheet.replace("(pin passive line (at -5 0 0) (length 2)", "(pin " + pin + " (at -5 0 0)");
        const TImportResult result = ImportSheets({{QStringLiteral("root.kicad_sch"), sheet}});
        const TGraphicsPinItem* item = All<TGraphicsPinItem>(result).first();
        QCOMPARE(QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(item->PinType())
                     .arg(item->PinStyle())
                     .arg(item->PinLength())
                     .arg(item->NameVisible())
                     .arg(item->NumberVisible()),
                 read);
        QCOMPARE(item->Name() + item->Number(), QStringLiteral("AA"));
    }

    void hidesNamesAndNumbersOfSymbolsThatSaySo()
    {
        QByteArray sheet = Sheet(Symbol("Q1", "L:Q", "50 50 0") + Symbol("R1", "L:R", "80 50 0"));
        sheet.replace("(symbol \"L:Q\"", "(symbol \"L:Q\" (pin_numbers hide) (pin_names (offset 0) hide)");
        sheet.replace("(symbol \"L:R\"", "(symbol \"L:R\" (pin_numbers (hide yes)) (pin_names (offset 0) (hide yes))");
        const TImportResult result = ImportSheets({{QStringLiteral("root.kicad_sch"), sheet}});
        const QList<TGraphicsPinItem*> pins = All<TGraphicsPinItem>(result);
        QCOMPARE(pins.size(), 5);
        for (const TGraphicsPinItem* pin : pins) {
            QVERIFY(!pin->NameVisible() && !pin->NumberVisible());
        }
    }

    void numbersComponentsInTheOrderOfTheirDesignators()
    {
        const TImportResult result =
            ImportSheet(Symbol("R10", "L:R", "10 10 0") + Symbol("R2", "L:R", "20 10 0")
                        + Symbol("U1", "L:U", "50 50 0", "(unit 2)") + Symbol("U1", "L:U", "50 80 0", "(unit 1)")
                        + Symbol("#FLG1", "L:R", "90 10 0") + supply);
        QStringList parts;
        const QList<TGraphicsPartItem*> items = All<TGraphicsPartItem>(result);
        for (const TGraphicsPartItem* part : items) {
            parts.append(QStringLiteral("%1:%2").arg(part->RefDes()).arg(part->ComponentNumber()));
        }
        QCOMPARE(parts.join(' '), QStringLiteral("R10:2 R2:1 U1:3 U1:3 #FLG1:0"));
        QCOMPARE(result.schematic->CmpModel()->Size(), 3);
        const TCmpModelItem* entry = result.schematic->CmpModel()->CmpModelItem(2);
        QVERIFY(entry);
        QCOMPARE(entry->refDes + ' ' + entry->value + ' ' + entry->package, QStringLiteral("R10 R R@Lib"));
        QCOMPARE(entry->count, 2);
        QCOMPARE(items.first()->Name(), QStringLiteral("R"));
        QCOMPARE(items.first()->PackageName(), QStringLiteral("R@Lib"));
    }

    void tellsComponentsWithoutNumberApart()
    {
        QByteArray first = Symbol("R?", "L:R", "10 10 0");
        QByteArray other = Symbol("R?", "L:R", "20 10 0");
        first.replace("sym-R?", "sym-1");
        other.replace("sym-R?", "sym-2");
        const TImportResult result = ImportSheet(first + other);
        const QList<TGraphicsPartItem*> parts = All<TGraphicsPartItem>(result);
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts[0]->ComponentNumber() + parts[1]->ComponentNumber(), 3);
    }

    void readsNetTies()
    {
        QByteArray sheet = Sheet(Symbol("NT1", "L:R", "10 10 90") + resistor + Label("global_label", "A", "5 10")
                                 + Wire("15 10", "20 10") + Label("label", "B", "20 10"));
        sheet.replace("L:R\") (at 10 10 90)", "L:NetTie_2\") (at 10 10 90)")
            .replace("(symbol \"L:R\"", "(symbol \"L:NetTie_2\"");
        const TImportResult result = ImportSheets({{QStringLiteral("root.kicad_sch"), sheet}});
        const QList<TGraphicsNetTieSchItem*> ties = All<TGraphicsNetTieSchItem>(result);
        QCOMPARE(ties.size(), 1);
        QCOMPARE(ties.first()->Number(), quint16(1));
        QCOMPARE(ties.first()->Name(), QStringLiteral("NT1"));
        const QVector<TGraphicsItem*> pins = ties.first()->Pins();
        QCOMPARE(pins.size(), 2);
        QCOMPARE(pins[0]->Net() + ' ' + pins[1]->Net(), QStringLiteral("A /B"));
        QCOMPARE(InMillimetres(pins[0]->scenePos()) + ' ' + InMillimetres(pins[1]->scenePos()),
                 QStringLiteral("5,10 15,10"));
        QVERIFY(!result.schematic->CmpModel()->CmpModelItem(1)); // It is no component.
    }

    void showsWhatTheProjectSays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("shown"); // Kind, name and text.
        const auto row = [](const char* name, const char* text, const char* shown) {
            QTest::newRow(name) << QByteArray(text) << QString::fromUtf8(shown);
        };
        row("a plain text", "as it is", "text  as it is");
        row("a variable", "${MAKER}", "tag MAKER Works");
        row("a variable of the title block", "${TITLE}", "tag TITLE Amplifier");
        row("variables in a text", "by ${MAKER} of ${PLACE}", "tag by ${MAKER} of ${PLACE} by Works of Town");
        row("a variable that nobody knows", "${OTHER}", "tag OTHER {OTHER}");
        row("what is the page's alone", "sheet ${SHEETNAME}", "text  sheet root");
    }

    void showsWhatTheProjectSays()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, shown);
        const TImportResult result = ImportSheet("(title_block (title \"Amplifier\") (rev \"B\"))\n(text \"" + text
                                                 + "\" (at 10 10 0) (effects (font (size 1.27 1.27))))");
        const QList<TGraphicsTextItem*> texts = All<TGraphicsTextItem>(result);
        QCOMPARE(texts.size(), 1);
        const auto* tag = dynamic_cast<TGraphicsTagItem*>(texts.first());
        QCOMPARE(QStringLiteral("%1 %2 %3")
                     .arg(texts.first()->KindName(), tag ? tag->Name() : QString(), texts.first()->Text()),
                 shown);
        if (tag) {
            QCOMPARE(result.tagValues.value(tag->Name()), tag->Value());
        }
        QCOMPARE(result.tagValues.value(QStringLiteral("REVISION")), QStringLiteral("B"));
    }

    void drawsWhatAnotherSheetSaysOfItselfAsText()
    {
        const TImportResult result = ImportSheets(
            {{"root.kicad_sch", Sheet("(title_block (title \"One\"))" + Box("Below", "below.kicad_sch", "box"))},
             {"below.kicad_sch", Sheet("(title_block (title \"Two\"))\n(text \"${TITLE}\" (at 1 1 0) (effects (font "
                                       "(size 1 1))))")}});
        QCOMPARE(result.pageNames, (QStringList{QStringLiteral("root"), QStringLiteral("Below")}));
        const QList<TGraphicsItem*>& items = result.schematic->Page(2)->Items();
        QCOMPARE(items.size(), 1);
        QCOMPARE(items.first()->KindName(), QStringLiteral("text"));
        QCOMPARE(static_cast<TGraphicsTextItem*>(items.first())->Text(), QStringLiteral("Two"));
    }

    void colorsNetsAsTheirClassSays()
    {
        const TImportResult result = ImportSheet(resistor + supply + Wire("10 15", "20 15") + Wire("10 5", "20 5"));
        const QColor red(200, 0, 0);
        QCOMPARE(result.schematic->NetModel()->NetClass(QStringLiteral("GND")), QStringLiteral("Power"));
        const QList<TGraphicsNetItem*> wires = All<TGraphicsNetItem>(result);
        QCOMPARE(wires.size(), 2);
        QCOMPARE(wires[0]->AltColor(), red);
        QVERIFY(!wires[1]->AltColor().isValid());
        QCOMPARE(All<TGraphicsPortItem>(result).first()->AltColor(), red);
    }

    void readsEveryDialectAlike()
    {
        const QByteArray elements = resistor + second + supply + Wire("10 5", "20 5") + Junction("15 5")
                                    + Symbol("U1", "L:U", "50 50 0", "(unit 1)") + Label("global_label", "A", "20 15")
                                    + "(no_connect (at 45 50))";
        const QString newest = ImportSheet(elements, 9).schematic->Dump();
        QVERIFY(newest.count('\n') > 20);
        QCOMPARE(ImportSheet(elements, 8).schematic->Dump(), newest);
        QCOMPARE(ImportSheet(elements, 7).schematic->Dump(), newest);
        QCOMPARE(ImportSheet(elements, 6).schematic->Dump().replace("U1-Pad1", "U1-IN-Pad1"), newest);
    }

    void readsOrRefusesADamagedSheet_data()
    {
        QTest::addColumn<bool>("keepsName"); // Whether a list is emptied, or taken away.
        QTest::newRow("lists that are missing") << false;
        QTest::newRow("lists that are empty") << true;
    }

    void readsOrRefusesADamagedSheet()
    {
        QFETCH(bool, keepsName);
        const QByteArray sheet = Sheet(
            resistor + supply + Symbol("U1", "L:U", "50 50 0", "(mirror x) (unit 1)") + Bus("30 0", "30 50")
            + Entry("30 8", "-3 -3") + Wire("27 5", "10 5") + Junction("20 5") + Label("label", "D1", "15 5")
            + Label("hierarchical_label", "IN", "10 15") + Label("label", "D[0..1]", "30 0")
            + "(bus_alias \"X\" (members \"A\"))(no_connect (at 45 50))(text \"${TITLE}\" (at 1 1 0) (effects (font "
              "(size 1 1))))(polyline (pts (xy 1 1) (xy 2 2)) (stroke (width 0) (type dash)))(circle (center 1 1) "
              "(radius 2))(arc (start 1 1) (mid 2 2) (end 3 1))(text_box \"T\" (at 1 1 0) (size 3 3))(title_block "
              "(title \"T\"))(sheet_instances (path \"/\" (page \"1\")))");
        int read = 0;
        int refused = 0;
        for (int open = sheet.indexOf('(', 1); open > 0; open = sheet.indexOf('(', open + 1)) {
            int depth = 0;
            int close = open;
            do {
                depth += sheet[close] == '(' ? 1 : sheet[close] == ')' ? -1 : 0;
                ++close;
            } while (depth > 0);
            const QByteArray list = sheet.mid(open, close - open);
            const QByteArray name = list.mid(1).left(list.mid(1).indexOf(' '));
            QByteArray damaged = sheet;
            damaged.replace(open, list.size(), keepsName ? "(" + name + ")" : QByteArray());
            const TImportResult result = ImportSheets({{QStringLiteral("root.kicad_sch"), damaged}});
            QCOMPARE(result.schematic == nullptr, !result.error.isEmpty());
            (result.schematic ? read : refused) += 1;
        }
        QVERIFY(read > 50 && refused > 50);
    }

    void countsWhatIsNotShown()
    {
        const TImportResult result = ImportSheet("(image (at 1 1) (data x))\n(image (at 2 2) (data y))\n(whatever 1)");
        QCOMPARE(result.notShown, (QList<QPair<QString, int>>{{"images", 2}, {"other elements", 1}}));
    }
};

PROPERTIES_TEST(TestSchematicFiles)

#include "tst_schematic_files.moc"
