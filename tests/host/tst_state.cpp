#include "tests/host/StateChanges.h"
#include "tests/host/StateFields.h"
#include "tests/support/Places.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include <graphics/engine/TStateText.h>
#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsRatLineItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>
#include <limits>

using Test::Change;
using Test::Placed;
using Test::StateChanges;
using Test::StateFields;
using Test::WireBeside;

namespace {

/** The value alone, as a state line writes it. */
template <class Value>
QString Written(const Value& value)
{
    const QString line = TStateText("kind").Add("name", value).Line();
    const QString start("kind name=");
    return line.startsWith(start) ? line.mid(start.size()) : "not " + start + ": " + line;
}

/** The names of all kinds of items, as their sources spell them. */
QStringList KindsOfTheHost()
{
    static const QRegularExpression kindName(R"(KindName\(\) const[^}]*\})");
    static const QRegularExpression name(R"r(QStringLiteral\("(\w+)"\))r");
    QSet<QString> kinds;
    for (const char* library : {"host/graphics", "host/objects"}) {
        const QDir folder(Test::SourcePath(library));
        for (const QString& file : folder.entryList({"TGraphics*.h", "TGraphics*.cpp"})) {
            const QString text = Test::TextOf(QString(library) + '/' + file);
            for (auto of = kindName.globalMatch(text); of.hasNext();) {
                const QString body = of.next().captured();
                for (auto match = name.globalMatch(body); match.hasNext();) {
                    kinds.insert(match.next().captured(1));
                }
            }
        }
    }
    QStringList sorted = kinds.values();
    sorted.sort();
    return sorted;
}

} // namespace

class TestState : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreTheShortestThatReadBack_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("written");
        QTest::newRow("zero") << 0.0 << "0";
        QTest::newRow("minus zero") << -0.0 << "0";
        QTest::newRow("whole") << 300.0 << "300";
        QTest::newRow("tenth") << 0.1 << "0.1";
        QTest::newRow("negative") << -22.5 << "-22.5";
        QTest::newRow("third") << 1.0 / 3 << "0.3333333333333333";
        QTest::newRow("sum") << 0.1 + 0.2 << "0.30000000000000004";
        QTest::newRow("scene units") << 0.8 * 11.811023622047244 << "9.448818897637796";
    }
    void numbersAreTheShortestThatReadBack()
    {
        QFETCH(double, value);
        QFETCH(QString, written);
        QCOMPARE(Written(value), written);
        QVERIFY(Written(value).toDouble() == value);
    }

    void everyNumberReadsBack_data()
    {
        using Limits = std::numeric_limits<double>;
        QTest::addColumn<double>("value");
        QTest::newRow("largest") << Limits::max();
        QTest::newRow("smallest") << Limits::denorm_min();
        QTest::newRow("least normal") << -Limits::min();
        QTest::newRow("after one") << std::nextafter(1.0, 2.0);
        QTest::newRow("before one") << std::nextafter(1.0, 0.0);
        QTest::newRow("beyond whole numbers") << 9007199254740993.0;
        QTest::newRow("large") << 123456789012345678.0;
    }
    void everyNumberReadsBack()
    {
        QFETCH(double, value);
        QVERIFY(Written(value).toDouble() == value);
    }

    void singlePrecisionIsWrittenWithAllItHolds()
    {
        for (const float value : {0.1F, 9.448819F, 1e-30F, 16777217.0F, -0.5F}) {
            QVERIFY(Written(value).toFloat() == value);
            QVERIFY(Written(value).toDouble() == static_cast<double>(value));
        }
        QCOMPARE(Written(-0.0F), QString("0"));
        QVERIFY(Written(0.1F) != Written(0.1));
    }

    void textsAreQuotedAndEscaped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");
        QTest::newRow("empty") << ""
                               << "\"\"";
        QTest::newRow("null") << QString() << "\"\"";
        QTest::newRow("blanks") << " a  b "
                                << "\" a  b \"";
        QTest::newRow("quote") << "a\"b"
                               << "\"a\\\"b\"";
        QTest::newRow("backslash") << "a\\"
                                   << "\"a\\\\\"";
        QTest::newRow("line break") << "a\nb"
                                    << "\"a\\nb\"";
        QTest::newRow("written line break") << "a\\nb"
                                            << "\"a\\\\nb\"";
        QTest::newRow("percent") << "%1 %2"
                                 << "\"%1 %2\"";
        QTest::newRow("beyond Latin") << QString::fromUtf8("\xCE\xA9\xE2\x84\xA6")
                                      << QString::fromUtf8("\"\xCE\xA9\xE2\x84\xA6\"");
    }
    void textsAreQuotedAndEscaped()
    {
        QFETCH(QString, text);
        QFETCH(QString, written);
        QCOMPARE(Written(text), written);
    }

    void linesHaveNoLineBreak_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("line feed") << "a\nb";
        QTest::newRow("carriage return") << "a\rb";
        QTest::newRow("both") << "a\r\nb";
    }
    void linesHaveNoLineBreak()
    {
        QFETCH(QString, text);
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad();
        pad->SetNumber(text);
        QVERIFY(!pad->StateLine().contains('\n'));
        QVERIFY(!pad->StateLine().contains('\r'));
    }

    void otherValuesAreWrittenOneWay()
    {
        QPainterPath path(QPointF(1, 2));
        path.lineTo(-0.0, 0.5);
        QCOMPARE(Written(true), QString("yes"));
        QCOMPARE(Written(false), QString("no"));
        QCOMPARE(Written(-7), QString("-7"));
        QCOMPARE(Written(QPointF(-0.0, 0.1)), QString("(0,0.1)"));
        QCOMPARE(Written(QSizeF(3, 0.25)), QString("(3,0.25)"));
        QCOMPARE(Written(QColor()), QString("default"));
        QCOMPARE(Written(QColor(1, 2, 255, 128)), QString("#800102ff"));
        QCOMPARE(Written("text"), QString("\"text\""));
        QCOMPARE(Written(path), QString("0(1,2)1(0,0.5)"));
        QCOMPARE(Written(QPainterPath()), QString());
    }

    void valuesFollowEachOtherInOrder()
    {
        QCOMPARE(TStateText("via").Add("a", 1).Add("b", "c d").Add("e", false).Line(),
                 QString("via a=1 b=\"c d\" e=no"));
        QCOMPARE(TStateText("via").Line(), QString("via"));
    }

    void everyAttributeChangesTheLine_data()
    {
        QTest::addColumn<int>("row");
        int row = 0;
        for (const Change& change : StateChanges()) {
            QTest::newRow(change.name) << row++;
        }
    }
    void everyAttributeChangesTheLine()
    {
        QFETCH(int, row);
        const Change& change = StateChanges().at(row);
        Test::TestBoard board;
        TGraphicsItem* item = change.place(board);
        const StateFields before(item->StateLine());
        QCOMPARE(before.Line(), item->StateLine());
        change.change(*item);
        QCOMPARE(before.Differences(StateFields(item->StateLine())), change.fields);
    }

    void copiesAndAssignedItemsHaveEveryAttribute_data() { everyAttributeChangesTheLine_data(); }

    void copiesAndAssignedItemsHaveEveryAttribute()
    {
        QFETCH(int, row);
        const Change& change = StateChanges().at(row);
        Test::TestBoard board;
        TGraphicsItem* item = change.place(board);
        const std::unique_ptr<TGraphicsItem> assigned(item->CreateCopy());
        const StateFields before(assigned->StateLine());
        change.change(*item);
        const std::unique_ptr<TGraphicsItem> copy(item->CreateCopy());
        const bool isOwn = item->Links().isEmpty() && !change.fields.contains("in.at");
        QCOMPARE(before.Differences(StateFields(copy->StateLine())), isOwn ? change.fields : QStringList());
        assigned->Assign(*item);
        QCOMPARE(assigned->StateLine(), copy->StateLine());
    }

    void assigningLeavesLinksAndSceneAlone()
    {
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        WireBeside(*via)->LinkToFirst(via);
        TGraphicsViaItem other;
        other.SetSize(33, 33);
        via->Assign(other);
        QCOMPARE(via->Width(), 33.0);
        QCOMPARE(via->Owner(), board.Scene());
        QCOMPARE(via->Workspace(), board.Scene()->Workspace());
        QCOMPARE(via->LinkedWires().size(), 1);
        const QString state = via->StateLine();
        via->Assign(*via);
        QCOMPARE(via->StateLine(), state);
    }

    void assigningAPackageTakesItsChildren()
    {
        Test::TestBoard board;
        TGraphicsPackageItem* package = board.AddPackage();
        board.AddSurfacePad(1.0, 0.5, package);
        TGraphicsPackageItem* other = board.AddPackage();
        board.AddSurfacePad(2.0, 2.5, other);
        board.AddSurfacePad(3.0, 2.5, other);
        package->Assign(*other);
        QCOMPARE(package->Pads().size(), 2);
        QCOMPARE(package->StateLine(), other->StateLine());
    }

    void everyFieldOfALineHasAChange()
    {
        Test::TestBoard board;
        const QSet<QString> ofAllKinds{"at", "in", "in.at", "rotation", "layer", "flags", "color", "net"};
        QMap<QString, QSet<QString>> fields;
        QMap<QString, QSet<QString>> covered;
        for (const Change& change : StateChanges()) {
            TGraphicsItem* item = change.place(board);
            const StateFields line(item->StateLine());
            for (const QString& field : line.Names()) {
                fields[line.Kind()].insert(field);
            }
            for (const QString& field : change.fields) {
                covered[line.Kind()].insert(field);
            }
        }
        // What kinds have from a common base may be covered by another kind of that base.
        const QMap<QString, QStringList> bases{{"pad", {"via"}},
                                               {"hole", {"rectangle"}},
                                               {"ellipse", {"rectangle"}},
                                               {"junction", {"rectangle"}},
                                               {"line", {"rectangle"}},
                                               {"polyline", {"rectangle"}},
                                               {"milling", {"rectangle"}},
                                               {"polygon", {"rectangle"}},
                                               {"arc", {"rectangle"}},
                                               {"outline", {"rectangle"}},
                                               {"wire", {"rectangle"}},
                                               {"part", {"package"}},
                                               {"netwire", {"wire", "rectangle"}},
                                               {"busentry", {"line", "rectangle"}},
                                               {"bus", {"wire", "rectangle"}},
                                               {"tag", {"text"}}};
        QStringList uncovered;
        for (const QString& kind : fields.keys()) {
            QSet<QString> all = ofAllKinds + covered[kind];
            for (const QString& base : bases[kind]) {
                all += covered[base];
            }
            for (const QString& field : fields[kind] - all) {
                uncovered.append(kind + ' ' + field);
            }
        }
        QCOMPARE(uncovered, QStringList());
        QCOMPARE(QStringList(fields.keys()), KindsOfTheHost());
    }

    void packageAndHidingChangeTheLine()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad();
        pad->setPos(10, 0);
        const QString alone = pad->StateLine();
        TGraphicsPackageItem* package = board.AddPackage();
        package->setPos(100, 0);
        pad->setPos(-90, 0);
        pad->setParentItem(package);
        const StateFields inside(pad->StateLine());
        QCOMPARE(inside.Text("at"), QString("(10,0)"));
        QCOMPARE(inside.Text("in"), QString("\"package\""));
        QCOMPARE(inside.Text("in.at"), QString("(100,0)"));
        QVERIFY(inside.Line() != alone);

        pad->setVisible(false);
        QVERIFY(pad->StateLine() != inside.Line());
        pad->setVisible(true);
        QCOMPARE(pad->StateLine(), inside.Line());
    }

    void linesAreStableWordForWord()
    {
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        via->SetSize(12, 12);
        via->SetDrill(6);
        QCOMPARE(via->StateLine(),
                 QString("via at=(0,0) rotation=0 layer=68 flags=0 color=default net=\"\" width=12 height=12 drill=6 "
                         "thermal=0 drillPair=\"Top - Bottom\" start=68 end=75 mask=no maskClearance=0 wires=[]"));
        TGraphicsWireItem* wire = WireBeside(*via);
        wire->SetLayer(Osmirel::CopperTop);
        wire->LinkToFirst(via);
        QCOMPARE(StateFields(via->StateLine()).Text("wires"), QString("[wire@68(0,0)(10,0)]"));
        QCOMPARE(StateFields(wire->StateLine()).Text("first"), QString("[via@68(0,0)]"));
    }

    void selectionIsNoPartOfTheLine()
    {
        Test::TestBoard board;
        const QList<TGraphicsItem*> items{board.AddVia(), board.AddSurfacePad(), board.AddHole(),
                                          Placed<TGraphicsRectItem>(board)};
        for (TGraphicsItem* item : items) {
            const QString before = item->StateLine();
            item->setSelected(true);
            QVERIFY(item->isSelected());
            QVERIFY(item->HasTFlag(TGraphicsItem::Selected));
            QCOMPARE(item->StateLine(), before);
            item->setSelected(false);
            QVERIFY(!item->HasTFlag(TGraphicsItem::Selected));
        }
    }

    void flagsAreSetOneByOne()
    {
        Test::TestBoard board;
        TGraphicsItem* item = board.AddHole();
        item->SetTFlag(TGraphicsItem::Lock, true);
        item->SetTFlag(TGraphicsItem::UndoBypass, true);
        QCOMPARE(item->TFlags(), 513U);
        item->SetTFlag(TGraphicsItem::UndoBypass, true);
        QCOMPARE(item->TFlags(), 513U);
        item->SetTFlag(TGraphicsItem::UndoBypass, false);
        item->SetTFlag(TGraphicsItem::Routing, false);
        QCOMPARE(item->TFlags(), 512U);
        QVERIFY(item->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!item->HasTFlag(TGraphicsItem::UndoBypass));
    }

    void flagsHaveTheirNumbers()
    {
        QCOMPARE(unsigned{TGraphicsItem::UndoBypass}, 1U);
        QCOMPARE(unsigned{TGraphicsItem::OnlyAngleAndLine}, 2U);
        QCOMPARE(unsigned{TGraphicsItem::Selected}, 8U);
        QCOMPARE(unsigned{TGraphicsItem::Routing}, 16U);
        QCOMPARE(unsigned{TGraphicsItem::Lock}, 512U);
        QCOMPARE(unsigned{TGraphicsItem::MirrorHorizontal}, 0x800U);
        QCOMPARE(unsigned{TGraphicsItem::MirrorVertical}, 0x1000U);
    }

    void kindsHaveTheirNumbersAndNames()
    {
        Test::TestBoard board;
        const auto kind = [](const TGraphicsItem* item) { return qMakePair(item->type(), item->KindName()); };
        QCOMPARE(kind(board.AddVia()), qMakePair(0x10011, QString("via")));
        QCOMPARE(kind(board.AddSurfacePad()), qMakePair(0x10012, QString("pad")));
        QCOMPARE(kind(board.AddHole()), qMakePair(0x10015, QString("hole")));
        QCOMPARE(kind(Placed<TGraphicsRectItem>(board)), qMakePair(0x10003, QString("rectangle")));
        QCOMPARE(kind(board.AddPackage()), qMakePair(0x1000b, QString("package")));
        QCOMPARE(kind(Placed<TGraphicsLineItem>(board)), qMakePair(0x10002, QString("line")));
        QCOMPARE(kind(Placed<TGraphicsEllipseItem>(board)), qMakePair(0x10004, QString("ellipse")));
        QCOMPARE(kind(Placed<TGraphicsPolylineItem>(board)), qMakePair(0x10005, QString("polyline")));
        QCOMPARE(kind(Placed<TGraphicsPolygonItem>(board)), qMakePair(0x10006, QString("polygon")));
        QCOMPARE(kind(Placed<TGraphicsArcItem>(board)), qMakePair(0x10007, QString("arc")));
        QCOMPARE(kind(Placed<TGraphicsTextItem>(board)), qMakePair(0x10008, QString("text")));
        QCOMPARE(kind(Placed<TGraphicsJunctionItem>(board)), qMakePair(0x1000d, QString("junction")));
        QCOMPARE(kind(Placed<TGraphicsWireItem>(board)), qMakePair(0x10010, QString("wire")));
        QCOMPARE(kind(Placed<TGraphicsRatLineItem>(board)), qMakePair(0x10013, QString("ratline")));
        QCOMPARE(kind(Placed<TGraphicsPourItem>(board)), qMakePair(0x10014, QString("pour")));
        QCOMPARE(kind(Placed<TGraphicsOutlineItem>(board)), qMakePair(0x10018, QString("outline")));
        QCOMPARE(kind(Placed<TGraphicsNetTieSchItem>(board)), qMakePair(0x1001d, QString("nettiesymbol")));
        QCOMPARE(kind(Placed<TGraphicsNetTiePcbItem>(board)), qMakePair(0x1001e, QString("nettie")));
        QCOMPARE(kind(Placed<TGraphicsKeepoutItem>(board)), qMakePair(0x1001f, QString("keepout")));
    }
};

PROPERTIES_TEST(TestState)
#include "tst_state.moc"
