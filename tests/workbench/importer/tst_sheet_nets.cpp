#include "tests/support/TestProgram.h"
#include "tests/workbench/support/SheetTexts.h"

#include "workbench/importer/format/TImportError.h"

#include <QtTest>

using namespace SheetTexts;

namespace {

const QByteArray resistor = Symbol("R1", "L:R", "10 10 0"); // Pins at (10 5) and (10 15).
const QByteArray second = Symbol("R2", "L:R", "20 10 0");   // Pins at (20 5) and (20 15).

QByteArray Local(const QByteArray& text, const QByteArray& at)
{
    return Label("label", text, at);
}

QByteArray Global(const QByteArray& text, const QByteArray& at)
{
    return Label("global_label", text, at);
}

QByteArray Hierarchical(const QByteArray& text, const QByteArray& at)
{
    return Label("hierarchical_label", text, at);
}

QString ErrorOf(const QMap<QString, QByteArray>& sheets)
{
    try {
        Read(sheets);
    } catch (const TImportError& error) {
        return QStringLiteral("%1:%2: %3").arg(error.File()).arg(error.Line()).arg(error.Cause());
    }
    return {};
}

} // namespace

class TestSheetNets : public QObject
{
    Q_OBJECT

private slots:
    void putsPinsWhereTheSymbolTurnsThem_data()
    {
        QTest::addColumn<QByteArray>("at");
        QTest::addColumn<QByteArray>("mirror");
        QTest::addColumn<QByteArray>("places"); // Of the pins A at (-5, 0), B at (0, 5) and C at (5, 0), y upwards.

        const auto row = [](const char* angle, const char* mirror, const char* places) {
            const QByteArray name = QByteArray(angle) + " degrees" + (*mirror ? ", mirrored in " : "") + mirror;
            QTest::newRow(name.constData())
                << "100 100 " + QByteArray(angle) << (*mirror ? "(mirror " + QByteArray(mirror) + ")" : QByteArray())
                << QByteArray(places);
        };
        row("0", "", "95,100 100,95 105,100");
        row("90", "", "100,105 95,100 100,95");
        row("180", "", "105,100 100,105 95,100");
        row("270", "", "100,95 105,100 100,105");
        row("-90", "", "100,95 105,100 100,105");
        row("0", "x", "95,100 100,105 105,100");
        row("0", "y", "105,100 100,95 95,100");
        row("90", "x", "100,95 95,100 100,105");
        row("90", "y", "100,105 105,100 100,95");
        row("180", "x", "105,100 100,95 95,100");
        row("180", "y", "95,100 100,105 105,100");
        row("270", "x", "100,105 105,100 100,95");
        row("270", "y", "100,95 95,100 100,105");
    }

    void putsPinsWhereTheSymbolTurnsThem()
    {
        QFETCH(QByteArray, at);
        QFETCH(QByteArray, mirror);
        QFETCH(QByteArray, places);
        const TSheetHierarchy hierarchy = Read(Sheet(Symbol("Q1", "L:Q", at, mirror)));
        QByteArrayList found;
        for (const TPagePin& pin : hierarchy.pages.front().symbols.front().pins) {
            found.append(QByteArray::number(pin.place.x / 1'000'000) + ','
                         + QByteArray::number(pin.place.y / 1'000'000));
        }
        QCOMPARE(found.join(' '), places);
    }

    void tracesOneSheet_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<QString>("nets");

        const auto row = [](const char* name, const QByteArray& elements, const char* nets) {
            QTest::newRow(name) << elements << QString::fromLatin1(nets);
        };
        const char* const apart = "R1.1=unconnected-(R1-Pad1) R1.2=unconnected-(R1-Pad2) R2.1=unconnected-(R2-Pad1) "
                                  "R2.2=unconnected-(R2-Pad2)";
        const char* const joined = "R1.1=Net-(R1-Pad1) R1.2=unconnected-(R1-Pad2) R2.1=Net-(R1-Pad1) "
                                   "R2.2=unconnected-(R2-Pad2)";
        row("symbols apart", resistor + second, apart);
        row("a wire from end to end", resistor + second + Wire("10 5", "20 5"), joined);
        row("wires that share an end", resistor + second + Wire("10 5", "15 5") + Wire("20 5", "15 5"), joined);
        row("wires with a nanometre between them",
            resistor + second + Wire("10 5", "15 5") + Wire("20 5", "15.000001 5"), apart);
        row("a crossing joins nothing", resistor + second + Wire("10 5", "20 15") + Wire("20 5", "10 15"),
            "R1.1=Net-(R1-Pad1) R1.2=Net-(R1-Pad2) R2.1=Net-(R1-Pad2) R2.2=Net-(R1-Pad1)");
        row("a crossing with a junction",
            resistor + second + Wire("10 5", "20 15") + Wire("20 5", "10 15") + Junction("15 10"),
            "R1.1=Net-(R1-Pad1) R1.2=Net-(R1-Pad1) R2.1=Net-(R1-Pad1) R2.2=Net-(R1-Pad1)");
        row("an end on a wire's middle joins nothing",
            resistor + second + Wire("10 5", "10 0") + Wire("5 0", "30 0") + Wire("20 5", "20 0"), apart);
        row("an end on a wire's middle with a junction",
            resistor + second + Wire("10 5", "10 0") + Wire("5 0", "30 0") + Wire("20 5", "20 0") + Junction("10 0")
                + Junction("20 0"),
            joined);
        row("a pin on a wire's middle", resistor + second + Wire("5 5", "25 5"), joined);
        row("a pin on a slanting wire's middle",
            resistor + Symbol("R2", "L:R", "16 13 0") + Wire("7 3", "19 11"), // (10 5) and (16 8)
            "R1.1=unconnected-(R1-Pad1) R1.2=unconnected-(R1-Pad2) R2.1=unconnected-(R2-Pad1) "
            "R2.2=unconnected-(R2-Pad2)");
        row("a pin exactly on a slanting wire", resistor + Symbol("R2", "L:R", "16 14 0") + Wire("7 3", "19 11"),
            joined);
        row("a pin on a pin", resistor + Symbol("R2", "L:R", "10 0 0"),
            "R1.1=Net-(R1-Pad1) R1.2=unconnected-(R1-Pad2) R2.1=unconnected-(R2-Pad1) R2.2=Net-(R1-Pad1)");
        row("a label on a pin", resistor + Local("A", "10 5"), "R1.1=/A R1.2=unconnected-(R1-Pad2)");
        row("a label on a wire's middle", resistor + Wire("10 5", "20 5") + Local("A", "15 5"),
            "R1.1=/A R1.2=unconnected-(R1-Pad2)");
        row("two labels of one name", resistor + second + Local("A", "10 5") + Local("A", "20 15"),
            "R1.1=/A R1.2=unconnected-(R1-Pad2) R2.1=unconnected-(R2-Pad1) R2.2=/A");
        row("labels of one name and of any kind", resistor + second + Local("A", "10 5") + Global("A", "20 15"),
            "R1.1=A R1.2=unconnected-(R1-Pad2) R2.1=unconnected-(R2-Pad1) R2.2=A");
        row("a wire with two labels has the first name", resistor + Local("B", "10 5") + Local("A", "10 5"),
            "R1.1=/A R1.2=unconnected-(R1-Pad2)");
        row("a global label before a local one", resistor + Local("A", "10 5") + Global("B", "10 5"),
            "R1.1=B R1.2=unconnected-(R1-Pad2)");
        row("a local label before a hierarchical one", resistor + Hierarchical("A", "10 5") + Local("B", "10 5"),
            "R1.1=/B R1.2=unconnected-(R1-Pad2)");
        row("a power symbol", resistor + Symbol("#PWR1", "P:GND", "10 15 0"), "R1.1=unconnected-(R1-Pad1) R1.2=GND");
        row("power symbols of one name",
            resistor + second + Symbol("#PWR1", "P:GND", "10 15 0") + Symbol("#PWR2", "P:GND", "20 5 180"),
            "R1.1=unconnected-(R1-Pad1) R1.2=GND R2.1=GND R2.2=unconnected-(R2-Pad2)");
        row("a global label before a power symbol",
            resistor + Symbol("#PWR1", "P:GND", "10 15 0") + Global("Z", "10 15"), "R1.1=unconnected-(R1-Pad1) R1.2=Z");
        row("an invisible supply pin",
            Symbol("U1", "L:U", "50 50 0", "(unit 1)") + Symbol("R1", "L:R", "80 80 0") + Global("VCC", "80 75"),
            "R1.1=VCC R1.2=unconnected-(R1-Pad2) U1.1=unconnected-(U1-IN-Pad1) U1.9=VCC");
        row("units have their own pins", Symbol("U1", "L:U", "50 50 0", "(unit 2)") + Local("A", "45 50"),
            "U1.2=/A U1.9=VCC");
        row("a pin of several that share a name",
            Symbol("N1", "L:N", "50 50 0") + Wire("45 45", "40 45") + resistor + Wire("40 45", "10 5"),
            "N1.1=Net-(N1-NAME-Pad1) N1.2=unconnected-(N1-NAME-Pad2) N1.3=unconnected-(N1-OTHER-Pad3) "
            "R1.1=Net-(N1-NAME-Pad1) R1.2=unconnected-(R1-Pad2)");
        row("a pin with a name of its own", Symbol("N1", "L:N", "50 50 0") + resistor + Wire("55 45", "10 5"),
            "N1.1=unconnected-(N1-NAME-Pad1) N1.2=unconnected-(N1-NAME-Pad2) N1.3=Net-(N1-OTHER) "
            "R1.1=Net-(N1-OTHER) R1.2=unconnected-(R1-Pad2)");
        row("symbols without numbers",
            Symbol("R?", "L:R", "10 10 0") + Symbol("R?", "L:R", "20 10 0") + Wire("10 5", "0 5")
                + Wire("20 5", "30 5"),
            "R?.1=unconnected-(R?-Pad1) R?.1=unconnected-(R?-Pad1)_1 R?.2=unconnected-(R?-Pad2) R?.2=unconnected-(R?-Pad2)_1");
        row("a written-out slash", resistor + Local("A{slash}B", "10 5"), "R1.1=/A/B R1.2=unconnected-(R1-Pad2)");
    }

    void tracesOneSheet()
    {
        QFETCH(QByteArray, elements);
        QFETCH(QString, nets);
        QCOMPARE(PinNets(Read(Sheet(elements))), nets);
    }

    void readsEveryDialect_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<QString>("unnamed");
        QTest::newRow("version 6") << 6 << "Net-(U1-Pad1)";
        QTest::newRow("version 7") << 7 << "Net-(U1-IN)";
        QTest::newRow("version 8") << 8 << "Net-(U1-IN)";
        QTest::newRow("version 9") << 9 << "Net-(U1-IN)";
    }

    void readsEveryDialect()
    {
        QFETCH(int, version);
        QFETCH(QString, unnamed);
        const QByteArray elements =
            Symbol("U1", "L:U", "50 50 0", "(unit 1)") + Symbol("X1", "L:R", "45 55 0") + Local("A", "45 60");
        QCOMPARE(PinNets(Read(Sheet(elements, version))),
                 QStringLiteral("U1.1=%1 U1.9=VCC X1.1=%1 X1.2=/A").arg(unnamed));
    }

    void namesPowerNetsByPinInTheOldestFormat()
    {
        QByteArray symbol = Symbol("#PWR1", "P:GND", "10 15 0");
        symbol.replace("\"Value\" \"GND\"", "\"Value\" \"EARTH\"");
        QCOMPARE(PinNets(Read(Sheet(resistor + symbol, 6))).section(' ', 1), QStringLiteral("R1.2=GND"));
        QCOMPARE(PinNets(Read(Sheet(resistor + symbol, 7))).section(' ', 1), QStringLiteral("R1.2=EARTH"));
    }

    void tracesBuses_data()
    {
        QTest::addColumn<QByteArray>("root");
        QTest::addColumn<QByteArray>("below");
        QTest::addColumn<QString>("nets"); // Of R1 above and R2 below, pin 1 of each.

        const QByteArray above = Bus("30 0", "30 50") + Bus("30 50", "100 105");
        const QByteArray inside = Bus("40 0", "40 50");
        const auto row = [&](const char* name, const QByteArray& atRoot, const QByteArray& atBelow, const char* pin,
                             const char* nets) {
            QTest::newRow(name) << above + atRoot + Box("Below", "below.kicad_sch", "box", {{pin, "100 105"}})
                                << inside + atBelow + Hierarchical(pin, "40 50") << QString::fromLatin1(nets);
        };
        // R1.1 is behind an entry at (30 8), and R2.1 behind one at (40 8).
        const QByteArray entryAbove = Entry("27 5", "3 3") + Wire("10 5", "27 5");
        const QByteArray entryInside = Entry("40 8", "-3 -3") + Wire("20 5", "37 5");
        row("a vector", Local("D[0..3]", "30 0") + entryAbove + Local("D2", "15 5"), entryInside + Local("D2", "25 5"),
            "D[0..3]", "/D2 /D2");
        row("a vector of another name", Local("D[0..3]", "30 0") + entryAbove + Local("D2", "15 5"),
            entryInside + Local("X2", "25 5"), "X[0..3]", "/D2 /D2");
        row("members by their order", Local("D[4..7]", "30 0") + entryAbove + Local("D6", "15 5"),
            entryInside + Local("X2", "25 5"), "X[0..3]", "/D6 /D6");
        row("another member", Local("D[0..3]", "30 0") + entryAbove + Local("D1", "15 5"),
            entryInside + Local("X2", "25 5"), "X[0..3]", "/D1 /D2");
        row("a wire without the member's label", Local("D[0..3]", "30 0") + entryAbove,
            entryInside + Local("X2", "25 5"), "X[0..3]", "unconnected-(R1-Pad1) /D2");
        row("a group", Local("{SDA SCL}", "30 0") + entryAbove + Local("SCL", "15 5"),
            entryInside + Local("SCL", "25 5"), "{SDA SCL}", "/SCL /SCL");
        row("a group with a prefix", Local("I2C{SDA SCL}", "30 0") + entryAbove + Local("I2C.SCL", "15 5"),
            entryInside + Local("B.SCL", "25 5"), "B{SCL SDA}", "/I2C.SCL /I2C.SCL");
        row("a group of vectors", Local("{A[0..1] B}", "30 0") + entryAbove + Local("A1", "15 5"),
            entryInside + Local("A1", "25 5"), "{A[0..1] B}", "/A1 /A1");
        row("an alias",
            "(bus_alias \"I2C\" (members \"SDA\" \"SCL\"))" + Local("{I2C}", "30 0") + entryAbove
                + Local("SDA", "15 5"),
            "(bus_alias \"I2C\" (members \"SDA\" \"SCL\"))" + entryInside + Local("SDA", "25 5"), "{I2C}", "/SDA /SDA");
    }

    void tracesBuses()
    {
        QFETCH(QByteArray, root);
        QFETCH(QByteArray, below);
        QFETCH(QString, nets);
        const QString pins =
            PinNets(Read({{"root.kicad_sch", Sheet(root + resistor)}, {"below.kicad_sch", Sheet(below + second)}}));
        const QStringList words = pins.split(QLatin1Char(' '));
        QCOMPARE(words[0].section('=', 1) + ' ' + words[2].section('=', 1), nets);
    }

    void tracesHierarchy_data()
    {
        QTest::addColumn<QByteArray>("root");
        QTest::addColumn<QByteArray>("below");
        QTest::addColumn<QString>("nets"); // Of R1 above and R2 below, pin 1 of each.

        const auto row = [](const char* name, const QByteArray& root, const QByteArray& below, const char* nets) {
            QTest::newRow(name) << root << below << QString::fromLatin1(nets);
        };
        const QByteArray toBox = Wire("10 5", "100 105");
        row("through a pin of the box", toBox, Hierarchical("IN", "20 5"), "/Below/IN /Below/IN");
        row("the name above, if there is one", toBox + Local("A", "10 5"), Hierarchical("IN", "20 5"), "/A /A");
        row("a local label below counts more than the box's pin", toBox,
            Hierarchical("IN", "20 5") + Local("B", "20 5"), "/Below/B /Below/B");
        row("the label above counts more than the one below", toBox + Local("Z", "10 5"),
            Hierarchical("IN", "20 5") + Local("B", "20 5"), "/Z /Z");
        row("a global label below", toBox + Local("A", "10 5"), Hierarchical("IN", "20 5") + Global("B", "20 5"),
            "B B");
        row("another pin of the box", toBox, Hierarchical("OUT", "20 5"), "/Below/IN /Below/OUT");
        row("local labels stay on their sheet", Local("A", "10 5"), Local("A", "20 5"), "/A /Below/A");
        row("global labels do not", Global("A", "10 5"), Global("A", "20 5"), "A A");
        row("nor do power symbols", Symbol("#PWR1", "P:GND", "10 5 0"), Symbol("#PWR2", "P:GND", "20 5 0"), "GND GND");
    }

    void tracesHierarchy()
    {
        QFETCH(QByteArray, root);
        QFETCH(QByteArray, below);
        QFETCH(QString, nets);
        const QByteArray box = Box("Below", "below.kicad_sch", "box", {{"IN", "100 105"}});
        const QString pins = PinNets(
            Read({{"root.kicad_sch", Sheet(root + box + resistor)}, {"below.kicad_sch", Sheet(below + second)}}));
        const QStringList words = pins.split(QLatin1Char(' '));
        QCOMPARE(words[0].section('=', 1) + ' ' + words[2].section('=', 1), nets);
    }

    void givesAFileAPageForEachUse()
    {
        const QByteArray root = Box("One", "below.kicad_sch", "box1", {{"IN", "100 105"}})
                                + Box("Two", "below.kicad_sch", "box2", {{"IN", "100 110"}})
                                + Label("label", "A", "100 110");
        const QByteArray below = SharedSymbol("L:R", "20 10 0", {{"/root/box1", "R11"}, {"/root/box2", "R12"}})
                                 + Hierarchical("IN", "20 5") + Local("B", "20 15");
        const TSheetHierarchy hierarchy = Read({{"root.kicad_sch", Sheet(root)}, {"below.kicad_sch", Sheet(below)}});
        QCOMPARE(hierarchy.files.size(), std::size_t(2));
        QCOMPARE(hierarchy.pages.size(), std::size_t(3));
        QCOMPARE(hierarchy.pages[1].path, QStringLiteral("/One/"));
        QCOMPARE(hierarchy.pages[2].path, QStringLiteral("/Two/"));
        QCOMPARE(PinNets(hierarchy), QStringLiteral("R11.1=/One/IN R11.2=/One/B R12.1=/A R12.2=/Two/B"));
    }

    void takesReferencesOfTheOldestFormatFromTheRoot()
    {
        const QByteArray root = Box("One", "below.kicad_sch", "box1") + Box("Two", "below.kicad_sch", "box2")
                                + "(sheet_instances (path \"/\" (page \"1\")) (path \"/box1\" (page \"3\")) (path "
                                  "\"/box2\" (page \"2\")))\n"
                                  "(symbol_instances (path \"/box1/sym-X\" (reference \"R11\") (unit 1) (value "
                                  "\"1k\") (footprint \"F:A\")) (path \"/box2/sym-X\" (reference \"R12\") (unit 1) "
                                  "(value \"2k\") (footprint \"\")))";
        const TSheetHierarchy hierarchy =
            Read({{"root.kicad_sch", Sheet(root, 6)}, {"below.kicad_sch", Sheet(Symbol("X", "L:R", "20 10 0"), 6)}});
        const TPageSymbol& first = hierarchy.pages[1].symbols.front();
        const TPageSymbol& last = hierarchy.pages[2].symbols.front();
        QCOMPARE(hierarchy.pages[1].name, QStringLiteral("Two")); // Pages stand in the order of their numbers.
        QCOMPARE(first.reference + ' ' + first.value + ' ' + first.footprint, QStringLiteral("R12 2k "));
        QCOMPARE(last.reference + ' ' + last.value + ' ' + last.footprint, QStringLiteral("R11 1k F:A"));
        QCOMPARE(last.path, QStringLiteral("/box1/sym-X"));
    }

    void takesTheReferenceOfItsOwnProject()
    {
        const QByteArray symbol = Symbol("X?", "L:R", "20 10 0",
                                         "(instances (project \"other\" (path \"/root\" (reference \"R8\") (unit 1))) "
                                         "(project \"root\" (path \"/root\" (reference \"R9\") (unit 1))))");
        QCOMPARE(Read(Sheet(symbol)).pages.front().symbols.front().reference, QStringLiteral("R9"));
    }

    void usesPinsAsTheSymbolSays()
    {
        QByteArray sheet = Sheet(Symbol("Q1", "L:Q", "20 10 0", "(pin \"A\" (alternate \"CLOCK\"))"));
        sheet.replace("(name \"A\" (effects (font (size 1.27 1.27))))",
                      "(name \"A\" (effects (font (size 1.27 1.27)))) (alternate \"CLOCK\" input clock)");
        const TSheetHierarchy hierarchy = Read(sheet);
        const std::vector<TPagePin>& pins = hierarchy.pages.front().symbols.front().pins;
        QCOMPARE(pins[0].use.electrical + ' ' + pins[0].use.style, QStringLiteral("input clock"));
        QCOMPARE(pins[1].use.electrical + ' ' + pins[1].use.style, QStringLiteral("passive line"));
    }

    void saysWhatIsWrongAndWhere_data()
    {
        QTest::addColumn<QByteArray>("root");
        QTest::addColumn<QByteArray>("below");
        QTest::addColumn<QString>("error");
        const QByteArray box = Box("Below", "below.kicad_sch", "box");
        const auto row = [](const char* name, const QByteArray& root, const QByteArray& below, const char* error) {
            QTest::newRow(name) << root << below << QString::fromLatin1(error);
        };
        row("no schematic", "(kicad_pcb (version 20211123))", {},
            "root.kicad_sch:1: not a schematic file: it does not begin with 'kicad_sch'");
        row("too old", "(kicad_sch\n(version 20200310))", {},
            "root.kicad_sch:2: unsupported file format 20200310; supported are 20211123 to 20250114");
        row("too new", "(kicad_sch\n(version 20260101))", {},
            "root.kicad_sch:2: unsupported file format 20260101; supported are 20211123 to 20250114");
        row("broken below", Sheet(box), "(kicad_sch (version 20230121)\n\n(wire (pts (xy 1 x) (xy 2 2))))",
            "below.kicad_sch:3: 'x' is not a number");
        row("missing below", Sheet(Box("Far", "far.kicad_sch", "box")), {},
            "root.kicad_sch:12: sheet 'Far': no far.kicad_sch");
        row("a box without file", Sheet(Box("Far", "", "box")), {}, "root.kicad_sch:12: sheet 'Far' names no file");
        row("a sheet in itself", Sheet(Box("Me", "root.kicad_sch", "box")), {},
            "root.kicad_sch:12: sheet 'Me' contains itself");
        row("a sheet in itself by way of another", Sheet(box), Sheet(Box("Up", "root.kicad_sch", "up")),
            "below.kicad_sch:12: sheet 'Up' contains itself");
        row("more pages than a schematic can have", Sheet(box.repeated(255)), Sheet({}),
            "root.kicad_sch:266: more than 255 sheets");
        row("a symbol at a slant", Sheet(Symbol("R1", "L:R", "10 10 45")), {},
            "root.kicad_sch:12: '45' is not a multiple of 90 degrees");
        row("a unit without number", Sheet({}).replace("R_1_1", "R_one"), {},
            "root.kicad_sch:5: 'R_one' does not end with the numbers of a unit and a body style");
    }

    void saysWhatIsWrongAndWhere()
    {
        QFETCH(QByteArray, root);
        QFETCH(QByteArray, below);
        QFETCH(QString, error);
        QCOMPARE(ErrorOf({{"root.kicad_sch", root}, {"below.kicad_sch", below}}), error);
    }
};

PROPERTIES_TEST(TestSheetNets)

#include "tst_sheet_nets.moc"
