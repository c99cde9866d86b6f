#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/BoardTexts.h"
#include "tests/workbench/support/ImportedItems.h"

#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using BoardTexts::Board;
using BoardTexts::BoardWithLayers;
using BoardTexts::Footprint;
using ImportedItems::All;
using ImportedItems::Import;
using ImportedItems::Only;

namespace {

QByteArray Sample()
{
    QFile file(Test::SourcePath("workbench/samples/sample.kicad_pcb"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A layer table of so many copper layers by their standard names, in an order that is not that of the board. */
QByteArray CopperLayers(int count)
{
    QByteArray layers = "(31 \"B.Cu\" signal) (0 \"F.Cu\" signal)";
    for (int inner = count - 2; inner > 0; --inner) {
        const QByteArray number = QByteArray::number(inner);
        layers += "\n(" + number + " \"In" + number + ".Cu\" signal)";
    }
    return layers;
}

} // namespace

/** What belongs to a board as a whole: layers, nets, names, what is not shown, and all that can be wrong with a file.
 */
class TestBoardFiles : public QObject
{
    Q_OBJECT

private slots:
    void numbersCopperLayers_data()
    {
        QTest::addColumn<QByteArray>("layers");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<QString>("throughPair");
        QTest::newRow("one, on top") << QByteArray("(0 \"F.Cu\" signal)") << QStringList{"F.Cu"} << QList<int>{68}
                                     << "F.Cu";
        QTest::newRow("one, at the bottom")
            << QByteArray("(31 \"B.Cu\" signal)") << QStringList{"B.Cu"} << QList<int>{75} << "B.Cu";
        QTest::newRow("two") << CopperLayers(2) << QStringList{"F.Cu", "B.Cu"} << QList<int>{68, 75} << "F.Cu - B.Cu";
        QTest::newRow("four") << CopperLayers(4) << QStringList{"F.Cu", "In1.Cu", "In2.Cu", "B.Cu"}
                              << QList<int>{68, 69, 70, 75} << "F.Cu - B.Cu";
        QTest::newRow("eight") << CopperLayers(8) << QStringList{"F.Cu",   "In1.Cu", "In2.Cu", "In3.Cu",
                                                                 "In4.Cu", "In5.Cu", "In6.Cu", "B.Cu"}
                               << QList<int>{68, 69, 70, 71, 72, 73, 74, 75} << "F.Cu - B.Cu";
        QTest::newRow("names of the user's own")
            << QByteArray(
                   "(0 Top signal) (2 Power power) (1 \"Ground plane\" power) (31 Bottom mixed) (39 F.Mask user)")
            << QStringList{"Top", "Ground plane", "Power", "Bottom"} << QList<int>{68, 69, 70, 75} << "Top - Bottom";
        QTest::newRow("numbers of version 9") << QByteArray(
            "(0 \"F.Cu\" signal) (2 \"B.Cu\" signal) (4 \"In1.Cu\" signal) (6 \"In2.Cu\" signal) (1 \"F.Mask\" user)")
                                              << QStringList{"F.Cu", "In1.Cu", "In2.Cu", "B.Cu"}
                                              << QList<int>{68, 69, 70, 75} << "F.Cu - B.Cu";
    }

    void numbersCopperLayers()
    {
        QFETCH(QByteArray, layers);
        const TImportResult imported = Import(BoardWithLayers(layers));
        QCOMPARE(imported.error, QString());
        const TLayerManager& table = *imported.board->LayerManager();
        QStringList names;
        QList<int> numbers;
        for (const Osmirel::Layer layer : table.CopperLayers()) {
            names.append(table.Layer(layer)->name);
            numbers.append(layer);
        }
        QTEST(names, "names");
        QTEST(numbers, "numbers");
        QTEST(imported.board->ViaGroups().join('|'), "throughPair");
    }

    void usesTheUsersLayerNames()
    {
        const TImportResult imported = Import(BoardWithLayers(
            "(0 Top signal) (1 Ground power) (31 Bottom signal)",
            "(module A (layer Bottom) (at 0 0) (pad 1 smd rect (at 0 0) (size 1 1) (layers Bottom)))"
            "(via blind (at 0 0) (size 1) (layers Top Ground) (net 1)) (via blind (at 0 0) (size 1) (layers Bottom Ground))"
            "(via blind (at 0 0) (size 1) (layers Ground Top))"));
        QCOMPARE(imported.error, QString());
        QCOMPARE(Only<TGraphicsPackageItem>(imported)->Layer(), Osmirel::PackagesBottom);
        QCOMPARE(Only<TGraphicsPadItem>(imported)->Layer(), Osmirel::CopperBottom);
        QCOMPARE(imported.board->ViaGroups(), QStringList({"Top - Bottom", "Top - Ground", "Ground - Bottom"}));
        QCOMPARE(All<TGraphicsViaItem>(imported)[2]->ViaGroup(), QString("Top - Ground"));
    }

    void fillsTheLayerTable()
    {
        const TImportResult imported = Import(Board({}));
        const TLayerManager& table = *imported.board->LayerManager();
        for (const Osmirel::Layer layer :
             {Osmirel::PackagesTop, Osmirel::SilkTop, Osmirel::PasteTop, Osmirel::MaskTop, Osmirel::CopperTop,
              Osmirel::CopperBottom, Osmirel::MaskBottom, Osmirel::PasteBottom, Osmirel::SilkBottom,
              Osmirel::PackagesBottom, Osmirel::BoardOutline, Osmirel::Milling, Osmirel::DrawingsTop,
              Osmirel::DrawingsBottom}) {
            const TLayer* row = table.Layer(layer);
            QVERIFY(row && !row->name.isEmpty() && row->color.isValid());
            QCOMPARE(table.LayerId(row->name), layer);
            const bool isOpening = row->name.contains("Mask") || row->name.contains("Paste");
            QCOMPARE(row->visible, !isOpening);
            const Osmirel::Layer opposite = Osmirel::OppositeLayer(layer);
            QCOMPARE(row->pairedLayer, opposite == layer ? QString() : table.Layer(opposite)->name);
        }
    }

    void namesNets_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* written, const char* name) {
            QTest::newRow(written) << QByteArray(written) << QString::fromUtf8(name);
        };
        row("GND", "GND");
        row("\"\"", "");
        row("/Power/1V2_EN", "/Power/1V2_EN");
        row("\"/FPGA IO/CFG0\"", "/FPGA IO/CFG0");
        row("\"/I{slash}O\"", "/I/O");
        row("\"{slash}{backslash}{slash}\"", "/\\/");
        row("\"a{dblquote}b{space}c{lt}{gt}{colon}{brace}\"", "a\"b c<>:{");
        row("\"~{RESET}\"", "~{RESET}");
        row("\"~{slash}\"", "~{slash}");
        row("\"~{A{slash}B}\"", "~{A/B}");
        row("\"{unknown}\"", "{unknown}");
        row("\"{slash\"", "{slash");
        row("\"{}{slash}\"", "{}/");
        row("\"say \\\"hi\\\"\"", "say \"hi\"");
        row("\"µ-ΔΩ\"", "µ-ΔΩ");
        row("~", "");
    }

    void namesNets()
    {
        QFETCH(QByteArray, written);
        const QByteArray pad =
            "(pad 1 smd rect (at 0 0) (size 1 1) (layers F.Cu) (net 7 " + written + ") (pinfunction " + written + "))";
        const TImportResult imported =
            Import(Board("(net 7 " + written + ") (via (at 0 0) (size 1) (net 7))" + Footprint(pad)));
        QCOMPARE(imported.error, QString());
        QTEST(Only<TGraphicsViaItem>(imported)->Net(), "name");
        QTEST(Only<TGraphicsPadItem>(imported)->Net(), "name");
        QTEST(Only<TGraphicsPadItem>(imported)->Name(), "name");
    }

    void needsNoNet()
    {
        const TImportResult imported =
            Import(Board("(via (at 0 0) (size 1) (net 0)) (via (at 0 0) (size 1))").replace("  (net 0 \"\")\n", ""));
        QCOMPARE(imported.error, QString());
        for (const TGraphicsViaItem* via : All<TGraphicsViaItem>(imported)) {
            QCOMPARE(via->Net(), QString());
        }
    }

    void namesPackages_data()
    {
        QTest::addColumn<QString>("packageName");
        QTest::addColumn<QString>("refDes");
        QTest::newRow("\"Lib:Part\"") << "Part@Lib"
                                      << "R1";
        QTest::newRow("Lib:Part") << "Part@Lib"
                                  << "R1";
        QTest::newRow("Part") << "Part"
                              << "R1";
        QTest::newRow("\"Lib:Part:x\"") << "Part:x@Lib"
                                        << "R1";
        QTest::newRow("locked") << "locked"
                                << "R1";
        QTest::newRow("\"\"") << ""
                              << "R1";
    }

    void namesPackages()
    {
        const QByteArray name = QTest::currentDataTag();
        const TImportResult imported =
            Import(Board("(footprint " + name + " (layer F.Cu) (at 0 0) (property \"Reference\" \"R1\"))"));
        QCOMPARE(imported.error, QString());
        const auto* package = Only<TGraphicsPackageItem>(imported);
        QTEST(package->PackageName(), "packageName");
        QTEST(package->RefDes(), "refDes");
        QVERIFY(!package->HasTFlag(TGraphicsItem::Lock));
    }

    void countsWhatIsNotShown()
    {
        const QByteArray ofFootprint = "(descr \"\") (attr smd) (property \"Sheetfile\" \"x\")"
                                       "(model \"x\") (new_thing 1)";
        const TImportResult imported =
            Import(Board(Footprint(ofFootprint)
                         + "(general) (title_block) "
                           "(dimension) (group \"\") (image) (generated) (another_thing (segment))"));
        QCOMPARE(imported.error, QString());
        QMap<QString, int> found;
        for (const auto& [kind, count] : imported.notShown) {
            found.insert(kind, count);
        }
        const QMap<QString, int> expected = {
            {"3D models", 1}, {"other elements", 2}, {"dimensions", 1},
            {"groups", 1},    {"images", 1},         {"length-tuning patterns", 1},
        };
        QCOMPARE(found, expected);
    }

    void findsDefinitionsBehindItems()
    {
        const TImportResult imported =
            Import("(kicad_pcb (version 20221018) (via (at 0 0) (size 1) (net 1)) (net 1 GND) (layers (0 F.Cu signal)"
                   "(31 B.Cu signal)))");
        QCOMPARE(imported.error, QString());
        QCOMPARE(Only<TGraphicsViaItem>(imported)->Net(), QString("GND"));
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const auto file = [](const char* name, const QByteArray& text, const QString& error) {
            QTest::newRow(name) << text << QString("board:" + error);
        };
        const auto element = [file](const char* name, const QByteArray& text, const QString& cause) {
            // The element begins on the tenth line of the file.
            file(name, Board(text), "10: " + cause);
        };
        file("empty", "", "1: the file is empty");
        file("no board", "(kicad_sch (version 20221018))", "1: not a board file: it does not begin with 'kicad_pcb'");
        file("a picture", "\x89PNG\r\n\x1a\n", "1: not a design file: it does not begin with a parenthesis");
        file("no version", "(kicad_pcb)", "1: 'kicad_pcb' without 'version'");
        file("too old", "(kicad_pcb\n(version 4))", "2: unsupported file format 4; supported are 20171130 to 20241229");
        file("too new", "(kicad_pcb\n(version 20300101))",
             "2: unsupported file format 20300101; supported are 20171130 to 20241229");
        file("no layers", "(kicad_pcb (version 20221018))", "1: 'kicad_pcb' without 'layers'");
        file("no copper", "(kicad_pcb (version 20221018)\n(layers (39 F.Mask user)))",
             "2: the board has no copper layer");
        file("nine copper layers", BoardWithLayers(CopperLayers(9)),
             "2: the board has 9 copper layers; at most 8 are supported");
        file("32 copper layers", BoardWithLayers(CopperLayers(32)),
             "2: the board has 32 copper layers; at most 8 are supported");
        file("layer without number", BoardWithLayers("(a Top signal)"), "3: layer 'Top' has no number");
        file("layer without type", BoardWithLayers("(0 Top)"), "3: '0' has fewer than 2 values");
        file("layer given twice", BoardWithLayers("(0 Top signal)\n(0 Two signal)"),
             "4: copper layer 'Two' is in the place of 'Top'");
        element("two layer tables", "(layers (0 F.Cu signal))", "a second layer table");
        element("net given twice", "(net 1 X)", "net 1 is listed twice");
        element("net without number", "(net X X)", "'X' is not a whole number");
        element("via on an unknown net", "(via (at 0 0) (size 1) (net 9))", "net 9 is not in the board's list of nets");
        element("via without place", "(via (size 1))", "'via' without 'at'");
        element("via without size", "(via (at 0 0))", "'via' without 'size'");
        element("via of negative size", "(via (at 0 0) (size -1))", "'-1' must not be negative");
        element("half a place", "(via (at 0) (size 1))", "'at' has fewer than 2 values");
        element("no number", "(via (at 0 x) (size 1))", "'x' is not a number");
        element("number with exponent", "(via (at 0 1e3) (size 1))", "'1e3' is not a number");
        element("absurd number", "(via (at 0 123456789) (size 1))", "'123456789' is out of range");
        element("list for a number", "(via (at 0 (0)) (size 1))", "expected a single value, found list '0'");
        element("via on no copper", "(via (at 0 0) (size 1) (layers F.Cu F.Mask))",
                "a via on layer 'F.Mask', which is not a copper layer of the board");
        element("footprint without place", "(footprint \"\" (layer F.Cu))", "'footprint' without 'at'");
        element("footprint without name", "(footprint (layer F.Cu) (at 0 0))",
                "expected a single value, found list 'layer'");
        element("pad of unknown shape",
                "(footprint \"\" (layer F.Cu) (at 0 0) (pad 1 smd star (at 0 0) (size 1 1) (layers F.Cu)))",
                "unsupported pad shape 'star'");
        element("pad without size", "(footprint \"\" (layer F.Cu) (at 0 0) (pad 1 smd rect (at 0 0) (layers F.Cu)))",
                "'pad' without 'size'");
        element("pad without layers", "(footprint \"\" (layer F.Cu) (at 0 0) (pad 1 smd rect (at 0 0) (size 1 1)))",
                "'pad' without 'layers'");
        element("track without end", "(segment (start 0 0) (width 1) (layer F.Cu))", "'segment' without 'end'");
        element("track without width", "(segment (start 0 0) (end 1 0) (layer F.Cu))", "'segment' without 'width'");
        element("track on no copper", "(segment (start 0 0) (end 1 0) (width 1) (layer F.Mask))",
                "a track on layer 'F.Mask', which is not a copper layer of the board");
        element("track on an unknown net", "(segment (start 0 0) (end 1 0) (width 1) (layer F.Cu) (net 9))",
                "net 9 is not in the board's list of nets");
        element("track arc without middle", "(arc (start 0 0) (end 1 0) (width 1) (layer F.Cu))",
                "'arc' without 'mid'");
        element("zone without layer", "(zone (net 1) (polygon (pts (xy 0 0))))", "'zone' without 'layer'");
        element("zone on an unknown net", "(zone (net 9) (layer F.Cu) (polygon (pts (xy 0 0))))",
                "net 9 is not in the board's list of nets");
        element("zone without points", "(zone (net 1) (layer F.Cu) (polygon))", "'polygon' without 'pts'");
        element("line without end", "(gr_line (start 0 0) (layer F.SilkS))", "'gr_line' without 'end'");
        element("edge without end", "(gr_line (start 0 0) (layer Edge.Cuts))", "'gr_line' without 'end'");
        element("line without layer", "(gr_line (start 0 0) (end 1 1))", "'gr_line' without 'layer'");
        element("curve without points", "(gr_curve (pts (xy 0 0)) (layer F.SilkS))", "'pts' has fewer than 4 values");
        element("text without place", "(gr_text x (layer F.SilkS))", "'gr_text' without 'at'");
        element("text of negative height", "(gr_text x (at 0 0) (layer F.SilkS) (effects (font (size -1 1))))",
                "'-1' must not be negative");
        element("text of a footprint without place",
                "(footprint A (layer F.Cu) (at 0 0) (fp_text user x (layer F.SilkS)))", "'fp_text' without 'at'");
        element("pad without anything", "(footprint \"\" (layer F.Cu) (at 0 0) (pad))", "'pad' without 'size'");
    }

    void refuses()
    {
        QFETCH(QByteArray, text);
        const TImportResult imported = Import(text);
        QTEST(imported.error, "error");
        QVERIFY(!imported.board && !imported.cancelled);
        QVERIFY(imported.notShown.isEmpty());
    }

    void tellsOfUnreadableFiles()
    {
        const QTemporaryDir folder;
        const QString missing = folder.filePath("missing.kicad_pcb");
        TImportResult imported = ImportBoard(missing);
        QVERIFY(!imported.board && imported.error.startsWith(missing + ": "));
        imported = ImportBoard(folder.path());
        QVERIFY(!imported.board && imported.error.startsWith(folder.path() + ": "));
        imported = ImportBoard("/dev/null");
        QVERIFY(!imported.board && imported.error.startsWith("/dev/null"));
    }

    void readsFiles()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("board.kicad_pcb"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(BoardTexts::InDialect(7)) > 0);
        file.close();
        const TImportResult imported = ImportBoard(file.fileName());
        QCOMPARE(imported.error, QString());
        QCOMPARE(imported.board->Dump(), Import(BoardTexts::InDialect(7)).board->Dump());
    }

    void refusesTruncatedFiles_data()
    {
        QTest::addColumn<int>("length");
        const int whole = Sample().trimmed().size();
        QVERIFY(whole > 0);
        for (int part = 0; part < 50; ++part) {
            QTest::addRow("%d/50", part) << whole * part / 50;
        }
        QTest::newRow("all but one") << whole - 1;
    }

    void refusesTruncatedFiles()
    {
        QFETCH(int, length);
        const TImportResult imported = Import(Sample().left(length));
        QVERIFY(!imported.board);
        QVERIFY(imported.error.contains(QRegularExpression("\\Aboard:\\d+: .")));
    }

    void survivesDamagedFiles()
    {
        const QByteArray sample = Sample();
        quint32 state = 1;
        const auto random = [&state](int below) {
            state = state * 1664525U + 1013904223U;
            return static_cast<int>((state >> 8) % static_cast<quint32>(below));
        };
        const QByteArray damages = "()\"\\ -.9x\n";
        for (int round = 0; round < 300; ++round) {
            QByteArray damaged = sample;
            for (int hit = 0; hit < 3; ++hit) {
                damaged[random(damaged.size())] = damages[random(damages.size())];
            }
            const TImportResult imported = Import(damaged);
            QVERIFY(bool(imported.board) == imported.error.isEmpty());
        }
    }

    void reportsProgressAndCancels()
    {
        const QByteArray sample = Sample();
        QVector<int> reported;
        const auto listen = [&reported](int percent) {
            reported.append(percent);
            return true;
        };
        QVERIFY(ImportBoardText(sample, "sample", listen).board);
        QVERIFY(reported.size() > 20);
        QVERIFY(std::is_sorted(reported.begin(), reported.end(), std::less_equal<>()));
        QCOMPARE(reported.last(), 100);
        for (const int stop : {reported.first(), 49, 60, 100}) {
            int last = 0;
            const TImportResult imported = ImportBoardText(sample, "sample", [stop, &last](int percent) {
                last = percent;
                return percent < stop;
            });
            QVERIFY(imported.cancelled && !imported.board && imported.error.isEmpty());
            QVERIFY(last >= stop);
        }
    }
};

PROPERTIES_TEST(TestBoardFiles)
#include "tst_board_files.moc"
