#include "tests/host/Sheet.h"
#include "tests/support/TestProgram.h"

#include <application/TProjectTree.h>

#include <QtTest>

using Test::PinOf;
using Test::Sheet;
using Items = QVector<TGraphicsItem*>;

class TestSheets : public QObject
{
    Q_OBJECT

private slots:
    // Colours of nets.

    void theColourOfANetReachesAllThatIsDrawnOfIt()
    {
        Sheet sheet;
        sheet.NetModel()->AddNet("N", {}, {}, {}, 0);
        TGraphicsPortItem* port = sheet.Port({0, 0}, "N");
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        TGraphicsJunctionItem* junction = sheet.Junction({50, 0});
        TGraphicsNetItem* toPart = sheet.Wire({50, 0}, {100, 0});
        TGraphicsPartItem* part = sheet.Part({100, 0}, 1, {{0, 0}});
        TGraphicsBusEntryItem* entry = sheet.Entry({50, 20});
        TGraphicsNetItem* toEntry = sheet.Wire({50, 0}, {50, 20});
        TGraphicsNetItem* other = sheet.Wire({0, 90}, {50, 90}, "M");
        wire->LinkToFirst(port->Pin());
        wire->LinkToLast(junction);
        toPart->LinkToFirst(junction);
        toPart->LinkToLast(PinOf(part, 1));
        toEntry->LinkToFirst(junction);
        toEntry->LinkToLast(entry);
        sheet.GoToPage(sheet.AddPage());
        TGraphicsNetItem* elsewhere = sheet.Wire({0, 0}, {50, 0}, "N");
        for (const QColor& color : {QColor(Qt::red), QColor(1, 2, 3, 4), QColor()}) {
            sheet.SetNetColor("N", color);
            QCOMPARE(sheet.NetModel()->ColorSch(0), color);
            for (const TGraphicsItem* item : Items{port, wire, junction, toPart, toEntry, entry, elsewhere}) {
                QCOMPARE(item->AltColor(), color);
            }
            for (const TGraphicsItem* item : Items{part, PinOf(part, 1), port->Pin(), other}) {
                QVERIFY(!item->AltColor().isValid());
            }
        }
    }

    void noNetHasNoColour()
    {
        Sheet sheet;
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        const QString before = sheet.Dump();
        sheet.SetNetColor(QString(), Qt::red);
        QCOMPARE(sheet.Dump(), before);
        QVERIFY(!wire->AltColor().isValid() && !part->AltColor().isValid());
    }

    // The documents.

    void pagesAreCountedFromOne()
    {
        TSchematic schematic;
        QCOMPARE(schematic.Page(1), nullptr);
        for (int number = 1; number <= 255; ++number) {
            TSchematicPage* page = schematic.AddPage();
            QVERIFY(page);
            QCOMPARE(int{page->Number()}, number);
            QCOMPARE(schematic.Page(number), page);
        }
        QCOMPARE(schematic.AddPage(), nullptr); // A page's number is a byte.
        QCOMPARE(schematic.Pages().size(), std::size_t{255});
        for (const int number : {0, -1, 256}) {
            QCOMPARE(schematic.Page(number), nullptr);
        }
    }

    void onlyTopItemsAreTakenOver()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        TGraphicsPortItem* port = sheet.Port({0, 0}, "P");
        QVERIFY(sheet.Items().isEmpty());
        sheet.SaveTopItemsFromWorkspace();
        QCOMPARE(sheet.Items(), (QList<TGraphicsItem*>{part, port}));
        delete part;
        QCOMPARE(sheet.Items().size(), 2); // As they were taken over.
        sheet.SaveTopItemsFromWorkspace();
        QCOMPARE(sheet.Items(), QList<TGraphicsItem*>{port});
    }

    void partsAreFoundByTheirNumber()
    {
        Sheet sheet;
        TGraphicsPartItem* first = sheet.Part({0, 0}, 4, {});
        TGraphicsPartItem* loose = sheet.Part({0, 50}, 0, {});
        sheet.GoToPage(sheet.AddPage());
        TGraphicsPartItem* unit = sheet.Part({0, 0}, 4, {});
        TGraphicsPartItem* other = sheet.Part({0, 50}, 65535, {});
        QCOMPARE(sheet.PartItems(4), (QList<TGraphicsPartItem*>{first, unit}));
        QCOMPARE(sheet.PartItems(65535), QList<TGraphicsPartItem*>{other});
        QCOMPARE(sheet.PartItems(5), QList<TGraphicsPartItem*>());
        QCOMPARE(sheet.PartItems(0), (QList<TGraphicsPartItem*>{first, loose, unit, other}));
    }

    void pinsTellTheNetsOfComponents()
    {
        Sheet sheet;
        TGraphicsPartItem* unit = sheet.Part({0, 0}, 4, {{0, 0}, {0, 20}});
        TGraphicsPartItem* second = sheet.Part({100, 0}, 4, {{0, 0}, {0, 20}});
        sheet.Part({200, 0}, 0, {{0, 0}});
        sheet.Part({300, 0}, 5, {{0, 0}});
        const auto wireTo = [&sheet](TGraphicsPartItem* part, int pin, const char* net) {
            TGraphicsNetItem* wire = sheet.Wire(PinOf(part, pin)->scenePos(), {0, 200}, net);
            wire->LinkToFirst(PinOf(part, pin));
        };
        wireTo(second, 1, "VCC"); // Pin 1 is on both units, and wired at one of them.
        wireTo(unit, 2, "A");
        QHash<TSchematic::TPinKey, QString> expected{{{4, "1"}, "VCC"}, {{4, "2"}, "A"}};
        QCOMPARE(sheet.PinNets({4}), expected);
        QCOMPARE(sheet.PinNets({4, 4, 0}), expected);
        QCOMPARE(sheet.PinNets({0}), (QHash<TSchematic::TPinKey, QString>()));
        QCOMPARE(sheet.PinNets({}), (QHash<TSchematic::TPinKey, QString>()));
        expected.insert({5, "1"}, QString());
        QCOMPARE(sheet.PinNets({5, 4}), expected);
    }

    void dumpsTellOfPagesNetsAndComponents()
    {
        Sheet sheet;
        sheet.NetModel()->AddNet("N", "Power", Qt::red, {}, 2);
        sheet.CmpModel()->Add(7, {"U7", "74HC00", "SO14", 0});
        TGraphicsPartItem* part = sheet.Part({0, 0}, 7, {{0, 0}});
        sheet.GoToPage(sheet.AddPage());
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0}, "N");
        QStringList lines = sheet.Dump().split('\n');
        QCOMPARE(lines.takeLast(), QString());
        QCOMPARE(lines.first(), QString("page 1"));
        QCOMPARE(lines.at(1), part->StateLine());
        QCOMPARE(lines.at(lines.size() - 4), QString("page 2"));
        QCOMPARE(lines.at(lines.size() - 3), wire->StateLine());
        QVERIFY(lines.at(lines.size() - 2).contains("\"N\""));
        QCOMPARE(lines.last(), QString("component number=7 refDes=\"U7\" value=\"74HC00\" package=\"SO14\" count=0"));
    }

    void componentsThatAreAlikeAreCounted()
    {
        TCmpModel model;
        model.Add(0, {"X", "1k", "R", 0}); // No component's number.
        model.Add(3, {"R3", "1k", "R", 0});
        model.Add(1, {"R1", "1k", "R", 9});
        model.Add(2, {"R2", "2k", "R", 9});
        model.Add(4, {"C4", "1k", "C", 9});
        QCOMPARE(model.Size(), 4);
        QCOMPARE(model.CmpModelItem(0), nullptr);
        QCOMPARE(model.CmpModelItem(5), nullptr);
        QCOMPARE(model.CmpModelItem(1)->count, 9); // As of the last time.
        model.UpdateCount();
        QCOMPARE(model.CmpModelItem(1)->count, 2);
        QCOMPARE(model.CmpModelItem(2)->count, 1);
        QCOMPARE(model.CmpModelItem(3)->count, 2);
        QCOMPARE(model.CmpModelItem(4)->count, 1);
        model.CmpModelItem(2)->value = "1k";
        model.UpdateCount();
        QCOMPARE(model.CmpModelItem(3)->count, 3);
        model.Add(3, {"R3", "9k", "R", 0});
        QCOMPARE(model.Size(), 4);
        QVERIFY(model.Dump().startsWith("component number=1 refDes=\"R1\""));
        QCOMPARE(model.Dump().count('\n'), 4);
    }

    void theProjectTreeShowsPagesAndParts()
    {
        TProjectTree tree;
        TSchPage* page = tree.AddPage(1, "Supply");
        TSchPage* last = tree.AddPage(2, "Output");
        TPart* part = tree.AddPart(7, "U7", "74HC00");
        QCOMPARE(tree.Pages(), (QList<TSchPage*>{page, last}));
        QCOMPARE(tree.Page(2), last);
        QCOMPARE(tree.Page(3), nullptr);
        QCOMPARE(tree.Part(7), part);
        QCOMPARE(tree.Part(1), nullptr);
        QCOMPARE(tree.topLevelItemCount(), 2);
        QCOMPARE(page->data(0, Qt::DisplayRole).toString(), QString("Supply"));
        QCOMPARE(part->data(1, Qt::DisplayRole).toString(), QString("74HC00"));
        QCOMPARE(part->data(0, Qt::DisplayRole).toString(), QString("U7"));
        const QString before = tree.Dump();
        part->setData(1, 0, "74LS00");
        QCOMPARE(part->Name(), QString("74LS00"));
        QVERIFY(tree.Dump() != before);
        part->setData(1, 0, "74HC00");
        QCOMPARE(tree.Dump(), before);
        page->setData(0, 0, "Power");
        QCOMPARE(tree.Page(1)->Name(), QString("Power"));
        QCOMPARE(before, QString("treepage number=1 name=\"Supply\"\ntreepage number=2 name=\"Output\"\n"
                                 "treepart number=7 refDes=\"U7\" name=\"74HC00\"\n"));
    }
};

PROPERTIES_TEST(TestSheets)
#include "tst_sheets.moc"
