#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>

class TestProject : public QObject
{
    Q_OBJECT

private slots:
    void netsAreFoundByName()
    {
        TNetModel model;
        model.AddNet("GND", "Power", Qt::red, Qt::green, 3);
        model.AddNet("SDA", QString(), QColor(), Qt::blue, 0);
        model.AddNet("GND", "Other", Qt::black, Qt::black, 9); // Is there already.
        model.AddNet(QString(), "Other", Qt::black, Qt::black, 9);
        QCOMPARE(model.RowCount(), 2);
        QCOMPARE(model.NetRow("SDA"), 1);
        QCOMPARE(model.NetName(0), QString("GND"));
        QCOMPARE(model.NetClass("GND"), QString("Power"));
        QCOMPARE(model.ColorSch(0), QColor(Qt::red));
        QCOMPARE(model.ColorPcb(model.NetRow("SDA")), QColor(Qt::blue));
        QCOMPARE(model.Priority("GND"), QString("3"));

        model.SetNetClass("SDA", "Fast");
        model.SetPriority("SDA", "Default");
        model.SetColorSch("SDA", Qt::yellow);
        model.SetColorPcb("SDA", QColor());
        QCOMPARE(model.NetClass("SDA"), QString("Fast"));
        QCOMPARE(model.Priority("SDA"), QString("Default"));
        QCOMPARE(model.ColorSch(1), QColor(Qt::yellow));
        QVERIFY(!model.ColorPcb(1).isValid());
    }

    void aNetThatIsNotThereIsEmpty()
    {
        TNetModel model;
        model.SetNetClass("none", "Power");
        QVERIFY(!model.HasNet("none"));
        QCOMPARE(model.NetRow("none"), -1);
        QVERIFY(!model.ColorPcb(-1).isValid());
        QCOMPARE(model.NetClass("none") + model.Priority("none"), QString());
        QCOMPARE(model.DeleteNet("none"), QVector<QVariant>());
    }

    void aDeletedNetComesBackToItsRow()
    {
        TNetModel model;
        for (const char* net : {"A", "B", "C"}) {
            model.AddNet(net, "Default", Qt::red, Qt::blue, 2);
        }
        const QVector<QVariant> row = model.DeleteNet("B");
        QCOMPARE(row.mid(0, TNetModel::columnCount),
                 (QVector<QVariant>{"B", "Default", QColor(Qt::red), QColor(Qt::blue), "2"}));
        QCOMPARE(model.RowCount(), 2);
        QCOMPARE(model.NetRow("C"), 1);
        QCOMPARE(model.NetName(1), QString("C"));
        model.AddNet("D", "Default", {}, {}, 0);
        model.AddNet(row);
        QCOMPARE(model.NetRow("B"), 1);
        QCOMPARE(model.NetRow("C") + model.NetRow("D"), 2 + 3);
        QCOMPARE(model.ColorPcb(1), QColor(Qt::blue));
        QCOMPARE(model.Priority("B"), QString("2"));
    }

    void rowsGivenBackInReverseOrderRestoreTheTable()
    {
        TNetModel model;
        for (const char* net : {"A", "B", "C", "D"}) {
            model.AddNet(net, "Default", QColor(), QColor(), 0);
        }
        const QString before = model.Dump();
        QList<QVector<QVariant>> deleted;
        for (const char* net : {"C", "A", "D"}) {
            deleted.append(model.DeleteNet(net));
        }
        QCOMPARE(model.RowCount(), 1);
        while (!deleted.isEmpty()) {
            model.AddNet(deleted.takeLast());
        }
        QCOMPARE(model.Dump(), before);
    }

    void deletedNetsRestoreTheTableInAnyOrder()
    {
        TNetModel model;
        for (const char* net : {"A", "B", "C", "D", "E"}) {
            model.AddNet(net, net, {}, {}, 0);
        }
        const QString before = model.Dump();
        QList<int> order{0, 1, 2, 3};
        do {
            QVector<QVector<QVariant>> rows;
            for (const char* net : {"D", "A", "B", "C"}) {
                rows.append(model.DeleteNet(net));
            }
            QCOMPARE(model.NetName(0), QString("E"));
            model.AddNet("New", {}, {}, {}, 0); // Takes no place of theirs.
            QCOMPARE(model.NetRow("New"), 1);
            for (const int i : order) {
                model.AddNet(rows.at(i));
            }
            model.DeleteNet("New");
            QCOMPARE(model.Dump(), before);
        } while (std::next_permutation(order.begin(), order.end()));
    }

    void aRowForATakenPlaceComesLast()
    {
        TNetModel model;
        model.AddNet("A", {}, {}, {}, 0);
        QVector<QVariant> row = model.DeleteNet("A");
        model.AddNet("B", {}, {}, {}, 0);
        model.AddNet(row);
        row[TNetModel::Name] = "A again";
        model.AddNet(row);
        QCOMPARE(model.NetName(0) + model.NetName(1) + model.NetName(2), QString("ABA again"));
    }

    void netClasses()
    {
        TSchematic schematic;
        schematic.AddNetClass("Power");
        schematic.AddNetClass("Power");
        schematic.AddNetClass(QString());
        QCOMPARE(schematic.NetClassNames(), (QStringList{"Default", "Power"}));
        QVERIFY(schematic.IsExistNetClass("Power"));
        QVERIFY(schematic.IsExistNetClass(QString())); // That of nets without a class of their own.
        QVERIFY(!schematic.IsExistNetClass("Fast"));
        QVERIFY(!schematic.NetClass("GND"));
        schematic.NetModel()->AddNet("GND", QString(), QColor(), QColor(), 0);
        QCOMPARE(schematic.NetClass("GND").value_or("none"), QString());
    }

    void pageItemsAreListedOnceTheyAreSaved()
    {
        TSchematic schematic;
        TSchematicPage* page = schematic.AddPage();
        auto tie = std::make_unique<TGraphicsNetTieSchItem>();
        TGraphicsNetTieSchItem* placed = tie.get();
        page->Attach(std::move(tie));
        QCOMPARE(placed->Workspace(), schematic.Workspace());
        QCOMPARE(schematic.Items(), QList<TGraphicsItem*>());
        schematic.SaveTopItemsFromWorkspace();
        QCOMPARE(schematic.Items(), QList<TGraphicsItem*>{placed});
        schematic.AddPage()->Attach(std::make_unique<TGraphicsNetTieSchItem>());
        QCOMPARE(schematic.Items().size(), 1);
        schematic.SaveTopItemsFromWorkspace();
        QCOMPARE(schematic.Items().size(), 2);
    }

    void aNetsColourReachesThePage()
    {
        TSchematic schematic;
        TSchematicPage* page = schematic.AddPage();
        schematic.NetModel()->AddNet("N", QString(), QColor(), QColor(), 0);
        const auto wire = [&](const char* net) {
            auto item = std::make_unique<TGraphicsWireItem>();
            TGraphicsWireItem* placed = item.get();
            placed->SetNet(net);
            page->Attach(std::move(item));
            return placed;
        };
        const TGraphicsWireItem* one = wire("N");
        const TGraphicsWireItem* other = wire("M");
        schematic.SetNetColor("N", Qt::red);
        QCOMPARE(one->AltColor(), QColor(Qt::red));
        QVERIFY(!other->AltColor().isValid());
        QCOMPARE(schematic.NetModel()->ColorSch(0), QColor(Qt::red));
    }

    void padsTakeTheirNetsFromTheSchematic()
    {
        TSchematic schematic;
        TSchematicPage* page = schematic.AddPage();
        auto part = std::make_unique<TGraphicsPartItem>();
        part->SetComponentNumber(4);
        for (const char* number : {"1", "2"}) {
            auto* pin = new TGraphicsPinItem(part.get());
            pin->NumberText()->SetText(number);
        }
        auto wire = std::make_unique<TGraphicsNetItem>();
        wire->SetNet("A");
        wire->LinkToFirst(part->Pins().first());
        page->Attach(std::move(wire));
        page->Attach(std::move(part));
        Test::Network board;
        TProject project;
        QCOMPARE(project.Kind(), int(TProject::Separate));
        project.SetKind(TProject::InStep);
        QCOMPARE(project.Kind(), 1);
        const auto package = [&](quint16 number) {
            TGraphicsPackageItem* placed = board.AddPackage();
            placed->SetComponentNumber(number);
            for (const char* pin : {"1", "2", "3"}) {
                TGraphicsPadItem* pad = board.AddSurfacePad(1, 1, placed);
                pad->SetNumber(pin);
                pad->SetNet("old");
            }
            return placed;
        };
        const auto nets = [](const TGraphicsPackageItem* placed) {
            QStringList names;
            const QVector<TGraphicsItem*> pads = placed->Pads();
            for (const TGraphicsItem* pad : pads) {
                names.append(pad->Net());
            }
            return names;
        };
        const TGraphicsPackageItem* one = package(4);
        const TGraphicsPackageItem* other = package(5);
        board.UpdatePadNets({4, 5}); // Without a schematic nothing is known.
        QCOMPARE(nets(one), (QStringList{"old", "old", "old"}));

        project.SetBoard(&board);
        project.SetSchematic(&schematic);
        QCOMPARE(schematic.Project(), &project);
        board.UpdatePadNets({5});
        QCOMPARE(nets(one), (QStringList{"old", "old", "old"}));
        board.UpdatePadNets({4, 5});
        QCOMPARE(nets(one), (QStringList{"A", "", "old"}));
        QCOMPARE(nets(other), (QStringList{"old", "old", "old"}));
    }

    void documentsMayGoBeforeOrAfterTheProject()
    {
        TSchematic schematic;
        Test::Network board;
        {
            TProject project;
            project.SetBoard(&board);
            project.SetSchematic(&schematic);
        }
        QCOMPARE(schematic.Project(), nullptr);
        board.UpdatePadNets({1});
        QVERIFY(board.Items().isEmpty());
        TProject project;
        project.SetBoard(&board);
        project.SetBoard(nullptr);
        QCOMPARE(project.Board(), nullptr);
    }
};

PROPERTIES_TEST(TestProject)
#include "tst_project.moc"
