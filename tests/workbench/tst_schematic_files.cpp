#include "tests/support/TestMain.h"
#include "tests/workbench/SheetTexts.h"

#include "workbench/importer/ProjectImporter.h"

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

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using namespace SheetTexts;

namespace {

const QByteArray resistor = Symbol("R1", "L:R", "10 10 0"); // Pins at (10 5) and (10 15).
const QByteArray second = Symbol("R2", "L:R", "20 10 0");   // Pins at (20 5) and (20 15).
const QByteArray supply = Symbol("#PWR1", "P:GND", "10 15 0");

const char* const project = R"json({
  "net_settings": {
    "classes": [
      {"name": "Default"},
      {"name": "Power", "schematic_color": "rgb(200, 0, 0)", "pcb_color": "rgb(0, 0, 200)"}
    ],
    "netclass_patterns": [{"pattern": "GND", "netclass": "Power"}]
  },
  "text_variables": {"MAKER": "Works", "PLACE": "Town"}
})json";

QByteArray BoardFootprint(const QByteArray& reference, const QByteArray& path, const QByteArray& pads,
                          const QByteArray& name = "Lib:R")
{
    return "(footprint \"" + name + "\" (layer \"F.Cu\") (at 0 0) (path \"" + path + "\")\n (property \"Reference\" \""
           + reference + "\" (at 0 0) (layer \"F.SilkS\"))\n" + pads + ")\n";
}

QByteArray Pad(const QByteArray& number, const QByteArray& net, const QByteArray& at = "0 0")
{
    return "(pad \"" + number + "\" smd rect (at " + at + ") (size 1 1) (layers \"F.Cu\") (net " + net + "))\n";
}

QByteArray BoardText(const QByteArray& elements)
{
    return "(kicad_pcb (version 20240108) (generator \"x\")\n(layers (0 \"F.Cu\" signal) (31 \"B.Cu\" signal) (37 "
           "\"F.SilkS\" user))\n(net 0 \"\") (net 1 \"GND\") (net 2 \"Net-(R1-Pad1)\") (net 3 \"spare\") (net 4 "
           "\"old\")\n"
           + elements + ")\n";
}

/** Files in a folder of their own. */
class TFolder
{
public:
    explicit TFolder(const QMap<QString, QByteArray>& files)
    {
        for (auto file = files.begin(); file != files.end(); ++file) {
            QFile target(Path(file.key()));
            const bool isWritten = target.open(QIODevice::WriteOnly) && target.write(file.value()) == file->size();
            Q_ASSERT(isWritten);
            Q_UNUSED(isWritten)
        }
    }

    QString Path(const QString& name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

TImportResult ImportSheets(QMap<QString, QByteArray> sheets)
{
    sheets.insert(QStringLiteral("root.kicad_pro"), project);
    const TFolder folder(sheets);
    return ImportDesign(folder.Path(QStringLiteral("root.kicad_sch")));
}

TImportResult ImportSheet(const QByteArray& elements, int version = 7)
{
    return ImportSheets({{QStringLiteral("root.kicad_sch"), Sheet(elements, version)}});
}

template <class Item>
QList<Item*> All(const TImportResult& result)
{
    QList<Item*> found;
    for (const auto& page : result.schematic->Pages()) {
        const QList<TGraphicsItem*> items = page->Scene()->DesignItems();
        for (TGraphicsItem* item : items) {
            if (auto* wanted = dynamic_cast<Item*>(item)) {
                found.append(wanted);
            }
        }
    }
    return found;
}

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

/** The nets of all pins of the parts, by number of the component and the pin. */
QString NetsOfParts(const TImportResult& result)
{
    QStringList nets;
    const QList<TGraphicsPinItem*> pins = All<TGraphicsPinItem>(result);
    for (const TGraphicsPinItem* pin : pins) {
        if (const auto* part = dynamic_cast<TGraphicsPartItem*>(pin->parentItem())) {
            nets.append(QStringLiteral("%1.%2=%3").arg(part->RefDes(), pin->Number(), pin->Net()));
        }
    }
    nets.sort();
    return nets.join(QLatin1Char(' '));
}

TGraphicsPackageItem* Package(const TImportResult& result, const QString& refDes)
{
    const QList<TGraphicsItem*> items = result.board->Items();
    for (TGraphicsItem* item : items) {
        auto* package = dynamic_cast<TGraphicsPackageItem*>(item);
        if (package && package->RefDes() == refDes) {
            return package;
        }
    }
    return nullptr;
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

    void countsWhatIsNotShown()
    {
        const TImportResult result = ImportSheet("(image (at 1 1) (data x))\n(image (at 2 2) (data y))\n(whatever 1)");
        QCOMPARE(result.notShown, (QList<QPair<QString, int>>{{"images", 2}, {"other elements", 1}}));
    }

    void pairsABoardWithItsSchematic()
    {
        const QByteArray sheet = Sheet(resistor + second + Symbol("R3", "L:R", "30 10 0") + supply
                                       + Wire("10 5", "20 5") + Label("label", "new", "30 5"));
        const QByteArray board = BoardText(
            BoardFootprint("R1", "/sym-R1", Pad("1", "3 \"spare\"") + Pad("2", "1 \"GND\""))
            + BoardFootprint("X9", "/moved/sym-R2", Pad("1", "3 \"spare\"") + Pad("2", "2 \"Net-(R1-Pad1)\""))
            + BoardFootprint("R3", "/nowhere", Pad("1", "4 \"old\"")) + BoardFootprint("M1", "", Pad("1", "0 \"\"")));
        const TFolder folder({{"d.kicad_sch", sheet}, {"d.kicad_pcb", board}, {"d.kicad_pro", project}});
        const TImportResult result = ImportDesign(folder.Path("d.kicad_pro"));
        QVERIFY2(result.error.isEmpty(), qPrintable(result.error));
        QCOMPARE(result.warnings, QStringList());
        QCOMPARE(Package(result, "R1")->ComponentNumber(), quint16(1)); // By its path,
        QCOMPARE(Package(result, "X9")->ComponentNumber(), quint16(2)); // by the end of its path,
        QCOMPARE(Package(result, "R3")->ComponentNumber(), quint16(3)); // and by its designator.
        QCOMPARE(Package(result, "M1")->ComponentNumber(), quint16(0));
        // Nets without a name take that of the board, also one that another net would have had; others keep theirs.
        QCOMPARE(NetsOfParts(result), QStringLiteral("R1.1=spare R1.2=GND R2.1=spare R2.2=Net-(R1-Pad1) R3.1=/new "
                                                     "R3.2=unconnected-(R3-Pad2)"));
        QStringList nets;
        for (int row = 0; row < result.schematic->NetModel()->RowCount(); ++row) {
            nets.append(result.schematic->NetModel()->NetName(row));
        }
        // First the schematic's in the order of their names, then those that only the board has.
        QCOMPARE(nets.join(' '), QStringLiteral("/new GND Net-(R1-Pad1) spare unconnected-(R3-Pad2) old"));
        QCOMPARE(result.schematic->NetModel()->ColorPcb(result.schematic->NetModel()->NetRow("GND")),
                 QColor(0, 0, 200));
    }

    void pairsNetTies()
    {
        QByteArray sheet = Sheet(Symbol("NT1", "L:R", "10 10 90") + Symbol("A1", "L:Q", "50 50 0"));
        sheet.replace("L:R\") (at 10 10 90)", "L:NetTie_2\") (at 10 10 90)")
            .replace("(symbol \"L:R\"", "(symbol \"L:NetTie_2\"");
        const QByteArray pads = Pad("1", "1 \"GND\"", "-1 0") + Pad("2", "3 \"spare\"", "1 0");
        const QByteArray board = BoardText(BoardFootprint("NT2", "/none", pads, "Lib:NetTie-2")
                                           + BoardFootprint("NT1", "/sym-NT1", pads, "Lib:NetTie-2"));
        const TFolder folder({{"d.kicad_sch", sheet}, {"d.kicad_pcb", board}, {"d.kicad_pro", project}});
        const TImportResult result = ImportDesign(folder.Path("d.kicad_pro"));
        QStringList ties;
        const QList<TGraphicsItem*> items = result.board->Items();
        for (const TGraphicsItem* item : items) {
            if (const auto* tie = dynamic_cast<const TGraphicsNetTiePcbItem*>(item)) {
                ties.append(QStringLiteral("%1:%2").arg(tie->Name()).arg(tie->Number()));
            }
        }
        QCOMPARE(ties.join(' '), QStringLiteral("NT2:3 NT1:2")); // A1 is 1; what has no symbol comes behind.
        QCOMPARE(All<TGraphicsNetTieSchItem>(result).first()->Number(), quint16(2));
    }

    void takesThePinsNameOfAPowerNetWhereTheBoardHasIt()
    {
        const QByteArray sheet = Sheet(resistor + Symbol("#PWR1", "P:3V3", "10 15 0").replace("\"3V3\"", "\"+3.3V\""));
        const auto netOn = [&sheet](const QByteArray& boardNet) {
            const QByteArray board = BoardText("(net 5 \"" + boardNet + "\")"
                                               + BoardFootprint("R1", "/sym-R1", Pad("2", "5 \"" + boardNet + "\"")));
            const TFolder folder({{"d.kicad_sch", sheet}, {"d.kicad_pcb", board}, {"d.kicad_pro", project}});
            return NetsOfParts(ImportDesign(folder.Path("d.kicad_pro"))).section(' ', 1);
        };
        QCOMPARE(netOn("3V3"), QStringLiteral("R1.2=3V3"));
        QCOMPARE(netOn("+3.3V"), QStringLiteral("R1.2=+3.3V"));
        QCOMPARE(netOn("5V"), QStringLiteral("R1.2=+3.3V"));
    }

    void readsWhatThereIsOfAProject()
    {
        const QByteArray board = BoardText(BoardFootprint("R1", "", Pad("1", "1 \"GND\"")));
        const TFolder folder({{"a.kicad_pro", project},
                              {"a.kicad_pcb", board},
                              {"b.kicad_pro", project},
                              {"b.kicad_sch", Sheet(resistor)},
                              {"c.kicad_pro", project},
                              {"d.kicad_sch", Sheet(resistor)}});
        const TImportResult boardOnly = ImportDesign(folder.Path("a.kicad_pro"));
        QVERIFY(boardOnly.board && boardOnly.schematic && boardOnly.error.isEmpty());
        QCOMPARE(boardOnly.schematic->Pages().size(), std::size_t(0));
        QCOMPARE(boardOnly.schematic->NetModel()->RowCount(), 4);
        QCOMPARE(boardOnly.warnings,
                 QStringList{folder.Path("a.kicad_sch") + QStringLiteral(": there is no such file")});
        const TImportResult schematicOnly = ImportDesign(folder.Path("b.kicad_pro"));
        QVERIFY(!schematicOnly.board && schematicOnly.schematic && schematicOnly.error.isEmpty());
        QCOMPARE(schematicOnly.schematic->Pages().size(), std::size_t(1));
        QCOMPARE(schematicOnly.warnings,
                 QStringList{folder.Path("b.kicad_pcb") + QStringLiteral(": there is no such file")});
        const TImportResult neither = ImportDesign(folder.Path("c.kicad_pro"));
        QVERIFY(!neither.board && !neither.schematic);
        QCOMPARE(neither.error,
                 folder.Path("c.kicad_pro") + QStringLiteral(": neither a board nor a schematic stands beside it"));
        const TImportResult noProject = ImportDesign(folder.Path("d.kicad_sch"));
        QVERIFY(noProject.schematic && noProject.error.isEmpty());
        QCOMPARE(noProject.warnings.size(), 1);
        const TImportResult plainBoard = ImportDesign(folder.Path("a.kicad_pcb"));
        QVERIFY(plainBoard.board && plainBoard.warnings.isEmpty());
    }

    void leavesNothingHalfLoaded_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::addColumn<QByteArray>("board");
        QTest::addColumn<QString>("error"); // Behind the folder's name.
        QTest::newRow("a broken sheet") << QByteArray("(kicad_sch (version 20230121)\n(wire)") << BoardText({})
                                        << "d.kicad_sch:2: the file ends before the list of line 1 is closed";
        QTest::newRow("a wire without places")
            << Sheet("(wire)") << BoardText({}) << "d.kicad_sch:12: 'wire' without 'pts'";
        QTest::newRow("a drawing without places")
            << Sheet("(circle (center 1 1))") << BoardText({}) << "d.kicad_sch:12: 'circle' without 'radius'";
        QTest::newRow("a broken board") << Sheet({}) << BoardText("\n(via)") << "d.kicad_pcb:5: 'via' without 'size'";
    }

    void leavesNothingHalfLoaded()
    {
        QFETCH(QByteArray, sheet);
        QFETCH(QByteArray, board);
        QFETCH(QString, error);
        const TFolder folder({{"d.kicad_sch", sheet}, {"d.kicad_pcb", board}, {"d.kicad_pro", project}});
        const TImportResult result = ImportDesign(folder.Path("d.kicad_pro"));
        QVERIFY(!result.board && !result.schematic);
        QCOMPARE(result.error, folder.Path(error));
    }

    void canBeCancelled()
    {
        const TFolder folder({{"d.kicad_sch", Sheet(resistor)},
                              {"d.kicad_pcb", BoardText(BoardFootprint("R1", "", Pad("1", "1 \"GND\"")))},
                              {"d.kicad_pro", project}});
        QList<int> told;
        const TImportResult whole = ImportDesign(folder.Path("d.kicad_pro"), [&told](int percent) {
            told.append(percent);
            return true;
        });
        QVERIFY(whole.board && whole.schematic);
        QVERIFY(std::is_sorted(told.begin(), told.end()));
        QCOMPARE(told.last(), 100);
        const int last = told.at(told.size() / 2);
        const TImportResult cancelled =
            ImportDesign(folder.Path("d.kicad_pro"), [last](int percent) { return percent < last; });
        QVERIFY(cancelled.cancelled && !cancelled.board && !cancelled.schematic && cancelled.error.isEmpty());
    }
};

PROPERTIES_TEST_MAIN(TestSchematicFiles)

#include "tst_schematic_files.moc"
