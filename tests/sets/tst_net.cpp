#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForNet.h"

#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QLabel>
#include <QUndoStack>

namespace {

using Set = TPropertySetForNet;

QString ClassRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Net class: Default 0, fast 1 = ") + shown;
}

QString LevelRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Level: Default 0, 1 1, 2 2, 3 3, 4 4, 5 5, 6 6, 7 7, 8 8, 9 9 = ") + shown;
}

QStringList RowsOfA()
{
    return {"TPropertyText Net: = A, read-only", ClassRow("fast"), LevelRow("3"),
            "TPropertyColor Color: 24 colours = #010203"};
}

/** The nets "A" and "B", which the net model knows, and "C", which it does not know. */
struct NetDesign : Test::SheetProject
{
    NetDesign()
    {
        Nets().AddNet("A", "fast", QColor("#010203"), {}, 3);
        Nets().AddNet("B", {}, {}, {}, 7);
    }

    QList<TGraphicsItem*> WiresOf(const QStringList& nets)
    {
        QList<TGraphicsItem*> wires;
        for (const QString& net : nets) {
            wires.append(AddWire(net));
        }
        return wires;
    }

    QStringList Levels() { return {Nets().Priority("A"), Nets().Priority("B"), Nets().Priority("C")}; }
};

/** An edit by a slot and by its row, and what it leaves in the net model. */
struct NetEdit
{
    const char* name;
    void (*callSlot)(Set& set);
    void (*editRow)(Set& set);
    const char* command;
    void (*written)(TNetModel& nets);
};

const NetEdit netEdits[] = {
    {"class", [](Set& set) { set.slotSetClass("Default"); },
     [](Set& set) { Test::RowOf<TPropertyEnum>(&set, "Net class:")->Box()->setCurrentText("Default"); }, "TCmdNetClass",
     [](TNetModel& nets) { nets.SetNetClass("A", "Default"); }},
    {"level", [](Set& set) { set.slotSetPrio("9"); },
     [](Set& set) { Test::RowOf<TPropertyEnum>(&set, "Level:")->Box()->setCurrentText("9"); }, "TCmdNetPrio",
     [](TNetModel& nets) {
         nets.SetPriority("A", "9");
         nets.SetPriority("B", "9");
     }},
    {"colour", [](Set& set) { set.slotSetColor(QColor("#0066FF")); },
     [](Set& set) { Test::RowOf<TPropertyColor>(&set, "Color:")->Box()->setCurrentText("#0066FF"); }, "TCmdNetColorSch",
     [](TNetModel& nets) { nets.SetColorSch("A", QColor("#0066FF")); }},
    {"default colour", [](Set& set) { set.slotSetColor(QColor()); },
     [](Set& set) { Test::RowOf<TPropertyColor>(&set, "Color:")->Box()->setCurrentIndex(0); }, "TCmdNetColorSch",
     [](TNetModel& nets) { nets.SetColorSch("A", QColor()); }},
};

using ChangeNets = void (*)(TNetModel& nets);

} // namespace

Q_DECLARE_METATYPE(const NetEdit*)
Q_DECLARE_METATYPE(ChangeNets)

class TestNetSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOneNet_data()
    {
        QTest::addColumn<ChangeNets>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeNets change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](TNetModel&) {}, {});
        add("class without a name", [](TNetModel& nets) { nets.SetNetClass("A", {}); }, {ClassRow("Default")});
        add("default class", [](TNetModel& nets) { nets.SetNetClass("A", "Default"); }, {ClassRow("Default")});
        add("class that the schematic does not know", [](TNetModel& nets) { nets.SetNetClass("A", "old"); },
            {"TPropertyEnum Net class: old, Default 0, fast 1 = old"});
        add("level without a name", [](TNetModel& nets) { nets.SetPriority("A", {}); }, {LevelRow("Default")});
        add("default level", [](TNetModel& nets) { nets.SetPriority("A", "Default"); }, {LevelRow("Default")});
        add("level 0", [](TNetModel& nets) { nets.SetPriority("A", "0"); }, {LevelRow("Default")});
        add("level 1", [](TNetModel& nets) { nets.SetPriority("A", "1"); }, {LevelRow("1")});
        add("level 9", [](TNetModel& nets) { nets.SetPriority("A", "9"); }, {LevelRow("9")});
        add("level that is no number", [](TNetModel& nets) { nets.SetPriority("A", "high"); }, {LevelRow("Default")});
        add("level that is not offered", [](TNetModel& nets) { nets.SetPriority("A", "10"); }, {LevelRow("none")});
        add("default colour", [](TNetModel& nets) { nets.SetColorSch("A", {}); },
            {"TPropertyColor Color: 23 colours = Default"});
        add("colour of the palette", [](TNetModel& nets) { nets.SetColorSch("A", QColor("#FF5511")); },
            {"TPropertyColor Color: 24 colours = #ff5511"});
        add("colour on the board: not shown", [](TNetModel& nets) { nets.SetColorPcb("A", Qt::red); }, {});
        add("net that the model does not know", [](TNetModel& nets) { nets.DeleteNet("A"); },
            {ClassRow("Default"), LevelRow("Default"), "TPropertyColor Color: 23 colours = Default"});
    }

    void showsOneNet()
    {
        QFETCH(ChangeNets, change);
        QFETCH(QStringList, rows);
        NetDesign design;
        change(design.Nets());
        const Set set(design.WiresOf({"A"}), &design.schematic);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(RowsOfA(), rows));
    }

    void nameCountsAllItemsGiven_data()
    {
        QTest::addColumn<QStringList>("nets");
        QTest::addColumn<bool>("withVia");
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing") << QStringList() << false << "Nets";
        QTest::newRow("one wire") << QStringList{"A"} << false << "Net";
        QTest::newRow("two wires of one net") << QStringList{"A", "A"} << false << "Nets";
        QTest::newRow("one wire and something else") << QStringList{"A"} << true << "Nets";
        QTest::newRow("something else") << QStringList() << true << "Net";
        QTest::newRow("one wire without a net") << QStringList{QString()} << false << "Net";
    }

    void nameCountsAllItemsGiven()
    {
        QFETCH(QStringList, nets);
        QFETCH(bool, withVia);
        NetDesign design;
        QList<TGraphicsItem*> selection = design.WiresOf(nets);
        if (withVia) {
            selection.prepend(design.board.AddVia());
        }
        const Set set(selection, &design.schematic);
        QTEST(set.Name(), "name");
        QCOMPARE(Test::RowTexts(&set), nets.contains("A") ? RowsOfA() : QStringList());
    }

    void showsTheFirstWiresNet()
    {
        NetDesign design;
        const Set set(design.WiresOf({"A", "B", "C", QString()}), &design.schematic);
        QCOMPARE(Test::RowTexts(&set), RowsOfA());
    }

    void wiresOfOtherNetsMarkTheRow_data()
    {
        QTest::addColumn<QStringList>("nets");
        QTest::addColumn<bool>("mixed");
        QTest::newRow("one") << QStringList{"A"} << false;
        QTest::newRow("of one net") << QStringList{"A", "A", "A"} << false;
        QTest::newRow("another one") << QStringList{"A", "B"} << true;
        QTest::newRow("another one in the middle") << QStringList{"A", "B", "A"} << true;
        QTest::newRow("one without a net") << QStringList{"A", QString()} << true;
    }

    void wiresOfOtherNetsMarkTheRow()
    {
        QFETCH(QStringList, nets);
        NetDesign design;
        QList<TGraphicsItem*> selection = design.WiresOf(nets);
        selection.insert(1, design.board.AddVia());
        Set set(selection, &design.schematic);
        QTEST(Test::RowOf<TPropertyText>(&set, "Net:")->IsMixed(), "mixed");
        QVERIFY(!Test::RowOf<TPropertyEnum>(&set, "Level:")->IsMixed());
    }

    void withoutANetOfTheFirstWireThereAreNoRows()
    {
        NetDesign design;
        Set set(design.WiresOf({QString(), "A"}), &design.schematic);
        const Test::CommandLog log(set);
        QCOMPARE(set.Name(), QString("Nets"));
        QVERIFY(set.Properties().isEmpty());
        set.slotSetClass("fast");
        set.slotSetPrio("1");
        set.slotSetColor(Qt::red);
        QCOMPARE(log.Count(), 0);
    }

    void otherKindsOfWiresAreNotLookedAt()
    {
        NetDesign design;
        auto* boardWire = Test::Place<TGraphicsWireItem>(design.board);
        boardWire->SetNet("B");
        auto* bus = design.Add<TGraphicsBusItem>();
        bus->SetNet("B");
        auto* junction = design.Add<TGraphicsJunctionItem>();
        junction->SetNet("B");
        QList<TGraphicsItem*> selection{boardWire, bus, junction};
        QVERIFY(Set(selection, &design.schematic).Properties().isEmpty());
        Set set(selection + design.WiresOf({"A"}), &design.schematic);
        QCOMPARE(Test::RowTexts(&set), RowsOfA());
        Test::CommandLog log(set);
        set.slotSetPrio("5");
        log.Redo();
        QCOMPARE(design.Levels(), (QStringList{"5", "7", ""}));
    }

    void netRowDoesNotOpen()
    {
        NetDesign design;
        Test::PanelWindow place;
        auto* set = new Set(design.WiresOf({"A"}), &design.schematic);
        const Test::CommandLog log(*set);
        const QString before = design.Dump();
        place.Show(set);
        TLineEdit* line = Test::RowOf<TPropertyText>(set, "Net:")->line;
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QVERIFY(!line->edit->isVisible());
        emit line->textChanged("B");
        QCOMPARE(log.Count(), 0);
        QCOMPARE(design.Dump(), before);
    }

    void slotAlwaysMakesACommand_data()
    {
        QTest::addColumn<const NetEdit*>("edit");
        QTest::addColumn<bool>("byRow");
        QTest::addColumn<bool>("bypass");
        for (const NetEdit& edit : netEdits) {
            QTest::addRow("%s, slot called", edit.name) << &edit << false << false;
            QTest::addRow("%s, slot called, undo bypassed", edit.name) << &edit << false << true;
            QTest::addRow("%s, row edited", edit.name) << &edit << true << false;
            QTest::addRow("%s, row edited, undo bypassed", edit.name) << &edit << true << true;
        }
    }

    void slotAlwaysMakesACommand()
    {
        QFETCH(const NetEdit*, edit);
        QFETCH(bool, byRow);
        QFETCH(bool, bypass);
        NetDesign design;
        const QList<TGraphicsItem*> wires = design.WiresOf({"A", QString(), "B", "A", "C"});
        for (TGraphicsItem* wire : wires) {
            wire->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        }
        Set set(wires, &design.schematic);
        Test::CommandLog log(set);
        const QString before = design.Dump();
        const QString netsBefore = design.Nets().Dump();
        (byRow ? edit->editRow : edit->callSlot)(set);
        QCOMPARE(log.Names(), QStringList{edit->command});
        QCOMPARE(design.Dump(), before);

        NetDesign expected;
        edit->written(expected.Nets());
        log.Redo();
        QCOMPARE(design.Nets().Dump(), expected.Nets().Dump());
        QVERIFY(design.Nets().Dump() != netsBefore);
        log.Undo();
        QCOMPARE(design.Nets().Dump(), netsBefore);
    }

    void levelIsChangedOfAllNetsAndTheRestOfTheFirst()
    {
        NetDesign design;
        Set set(design.WiresOf({"B", "A"}), &design.schematic);
        Test::CommandLog log(set);
        set.slotSetPrio("1");
        set.slotSetClass("fast");
        set.slotSetColor(Qt::red);
        design.Nets().SetNetClass("A", "Default");
        log.Redo();
        QCOMPARE(design.Levels(), (QStringList{"1", "1", ""}));
        QCOMPARE(design.Nets().NetClass("B"), QString("fast"));
        QCOMPARE(design.Nets().NetClass("A"), QString("Default"));
        QCOMPARE(design.Nets().ColorSch(design.Nets().NetRow("B")), QColor(Qt::red));
        QCOMPARE(design.Nets().ColorSch(design.Nets().NetRow("A")), QColor("#010203"));
    }

    void defaultLevelIsWrittenAsAWord()
    {
        NetDesign design;
        Set set(design.WiresOf({"A"}), &design.schematic);
        Test::CommandLog log(set);
        Test::RowOf<TPropertyEnum>(&set, "Level:")->Box()->setCurrentIndex(0);
        log.Redo();
        QCOMPARE(design.Nets().Priority("A"), QString("Default"));
        const Set again(design.WiresOf({"A"}), &design.schematic);
        QCOMPARE(Test::RowTexts(&again).value(2), LevelRow("Default"));
        log.Undo();
        QCOMPARE(design.Nets().Priority("A"), QString("3"));
    }

    void unknownClassLeavesAnUndoStep()
    {
        NetDesign design;
        Set set(design.WiresOf({"A"}), &design.schematic);
        QUndoStack stack;
        connect(&set, &TPropertySet::sigCmd, &stack, [&stack](TUndoCommand* command) { stack.push(command); });
        const QString before = design.Dump();
        set.slotSetClass("unheard of");
        QCOMPARE(stack.count(), 1);
        QCOMPARE(design.Dump(), before);
        stack.undo();
        QCOMPARE(design.Dump(), before);
    }

    void unknownClassThatIsShownCannotBeChosenAgain()
    {
        NetDesign design;
        design.Nets().SetNetClass("A", "old");
        Set set(design.WiresOf({"A"}), &design.schematic);
        Test::CommandLog log(set);
        auto* row = Test::RowOf<TPropertyEnum>(&set, "Net class:");
        row->Box()->setCurrentText("fast");
        log.Redo(0);
        row->Box()->setCurrentText("old");
        QCOMPARE(log.Names(), (QStringList{"TCmdNetClass", "TCmdNetClass"}));
        log.Redo(1);
        QCOMPARE(design.Nets().NetClass("A"), QString("fast"));
    }

    void colorReachesTheWiresOfAllPages()
    {
        NetDesign design;
        TGraphicsItem* elsewhere = design.AddWire("A", design.secondPage);
        TGraphicsItem* other = design.AddWire("B");
        TGraphicsItem* selected = design.AddWire("A");
        Set set({selected}, &design.schematic);
        Test::CommandLog log(set);
        set.slotSetColor(Qt::red);
        log.Redo();
        QCOMPARE(selected->AltColor(), QColor(Qt::red));
        QCOMPARE(elsewhere->AltColor(), QColor(Qt::red));
        QCOMPARE(other->AltColor(), QColor());
    }

    void changesTheNetThatTheRowsShow()
    {
        NetDesign design;
        TGraphicsNetItem* wire = design.AddWire("A");
        Set set({wire}, &design.schematic);
        Test::CommandLog log(set);
        wire->SetNet("B");
        set.slotSetClass("Default");
        set.slotSetPrio("2");
        log.Redo();
        QCOMPARE(design.Nets().NetClass("A"), QString("Default"));
        QCOMPARE(design.Levels(), (QStringList{"2", "7", ""}));
    }

    void withoutASchematicThereAreNoRows()
    {
        NetDesign design;
        Set set(design.WiresOf({"A"}), nullptr);
        QVERIFY(set.Properties().isEmpty());
        set.slotSetPrio("1");
        QCOMPARE(design.Levels(), (QStringList{"3", "7", ""}));
    }

    void textsAreTranslatedAndLevelsAreNot()
    {
        NetDesign design;
        const QList<TGraphicsItem*> wires = design.WiresOf({"A", "A"});
        const Test::MarkingTranslator translator;
        const Set one({wires.first()}, &design.schematic);
        const Set more(wires, &design.schematic);
        QCOMPARE(one.Name(), QString("~Net"));
        QCOMPARE(more.Name(), QString("~Nets"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForNet", {"Net:", "Net class:", "Level:", "Color:"}),
                 QStringList());
        QVERIFY(!translator.WasAsked("TPropertySetForNet", "Default"));
        QVERIFY(!translator.WasAsked("TPropertySetForNet", "1"));
    }
};

PROPERTIES_TEST(TestNetSet)
#include "tst_net.moc"
