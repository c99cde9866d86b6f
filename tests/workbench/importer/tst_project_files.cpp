#include "tests/support/TestProgram.h"
#include "tests/workbench/support/SheetFiles.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPackageItem.h>

#include <QtTest>

#include <algorithm>

using namespace SheetTexts;
using namespace SheetFiles;

namespace {

const QByteArray resistor = Symbol("R1", "L:R", "10 10 0"); // Pins at (10 5) and (10 15).
const QByteArray second = Symbol("R2", "L:R", "20 10 0");   // Pins at (20 5) and (20 15).
const QByteArray supply = Symbol("#PWR1", "P:GND", "10 15 0");

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

/** The numbers of the packages with that designator. */
QList<int> Numbers(const TImportResult& result, const QString& refDes)
{
    QList<int> numbers;
    const QList<TGraphicsItem*> items = result.board->Items();
    for (const TGraphicsItem* item : items) {
        const auto* package = dynamic_cast<const TGraphicsPackageItem*>(item);
        if (package && package->RefDes() == refDes) {
            numbers.append(package->ComponentNumber());
        }
    }
    return numbers;
}

} // namespace

class TestProjectFiles : public QObject
{
    Q_OBJECT

private slots:
    void pairsABoardWithItsSchematic()
    {
        const QByteArray sheet = Sheet(resistor + second + Symbol("R3", "L:R", "30 10 0") + supply
                                       + Wire("10 5", "20 5") + Label("label", "new", "30 5"));
        const QByteArray board = BoardText(
            BoardFootprint("R1", "/sym-R1", Pad("1", "3 \"spare\"") + Pad("2", "1 \"GND\""))
            + BoardFootprint("X9", "/moved/sym-R2", Pad("1", "3 \"spare\"") + Pad("2", "2 \"Net-(R1-Pad1)\""))
            + BoardFootprint("R3", "/nowhere", Pad("1", "4 \"old\"")) + BoardFootprint("M1", "", Pad("1", "0 \"\""))
            + BoardFootprint("R1", "/elsewhere", Pad("1", "1 \"GND\"")));
        const TFolder folder({{"d.kicad_sch", sheet}, {"d.kicad_pcb", board}, {"d.kicad_pro", project}});
        const TImportResult result = ImportDesign(folder.Path("d.kicad_pro"));
        QVERIFY2(result.error.isEmpty(), qPrintable(result.error));
        QCOMPARE(result.warnings, QStringList());
        QCOMPARE(Numbers(result, "R1"), (QList<int>{1, 0})); // By its path, which counts more than a designator,
        QCOMPARE(Numbers(result, "X9"), QList<int>{2});      // by the end of its path,
        QCOMPARE(Numbers(result, "R3"), QList<int>{3});      // and by its designator.
        QCOMPARE(Numbers(result, "M1"), QList<int>{0});
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

    void leavesPinsAloneThatAreOnNoNetOfTheBoard()
    {
        const QByteArray board = BoardText(BoardFootprint("R1", "/sym-R1", Pad("1", "0 \"\"") + Pad("2", "0 \"\"")));
        const TFolder folder({{"d.kicad_sch", Sheet(resistor + second + Wire("10 5", "20 5"))},
                              {"d.kicad_pcb", board},
                              {"d.kicad_pro", project}});
        // What is wired has a net in the schematic, though the board has not got it yet.
        QCOMPARE(NetsOfParts(ImportDesign(folder.Path("d.kicad_pro"))),
                 QStringLiteral("R1.1=Net-(R1-Pad1) R1.2= R2.1=Net-(R1-Pad1) R2.2=unconnected-(R2-Pad2)"));
    }

    void showsTextsOfTheProjectOnTheBoard()
    {
        const TFolder folder(
            {{"d.kicad_pcb",
              BoardText("(title_block (title \"Amplifier\"))\n(gr_text \"${TITLE} by ${MAKER}\" (at 0 0) "
                        "(layer \"F.SilkS\") (effects (font (size 1 1))))")},
             {"d.kicad_sch", Sheet(resistor)},
             {"d.kicad_pro", project}});
        for (const char* file : {"d.kicad_pro", "d.kicad_pcb"}) {
            const TImportResult result = ImportDesign(folder.Path(file));
            const QList<TGraphicsItem*> items = result.board->Items();
            QCOMPARE(items.size(), 1);
            QCOMPARE(static_cast<TGraphicsTextItem*>(items.first())->Text(), QStringLiteral("Amplifier by Works"));
        }
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
                 folder.Path("c.kicad_pro") + QStringLiteral(": there is no board or schematic beside it"));
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
        QTest::newRow("a broken sheet")
            << QByteArray("(kicad_sch (version 20230121)\n(wire)") << BoardText({})
            << "d.kicad_sch:2: unexpected end of file: the list that begins in line 1 is not closed";
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

PROPERTIES_TEST(TestProjectFiles)

#include "tst_project_files.moc"
