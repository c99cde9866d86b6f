#include "properties/commands/TCmdMask.h"
#include "tests/commands/WireLayerDesign.h"
#include "tests/support/TestProgram.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <QUndoStack>

using Test::bottom;
using Test::Sections;
using Test::top;
using Test::Wires;
using Design = Test::WireLayerDesign;

// What a change of layer makes and deletes, and what it says of nets.
class TestWireLayerVias : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        QCoreApplication::setOrganizationName("Properties tests");
        QCoreApplication::setApplicationName("commands.wirelayer");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    }

    void init() { QSettings().clear(); }

    // Nets and rat lines.

    void cutsAskForTheRatLinesOfBothNets()
    {
        Design design;
        auto* pad = design.board.Pad({0, 0}, "PAD");
        auto* moved = design.board.Wire({0, 0}, {100, 0}, "OWN");
        auto* staying = design.board.Wire({0, 0}, {0, 100});
        moved->LinkToFirst(pad);
        staying->LinkToFirst(pad);
        QCOMPARE(moved->Net(), QString("PAD"));
        design.board.Dump(); // works out what was asked for
        auto command = design.Moving({moved});
        command.redo();
        QCOMPARE(design.board.AskedRats(), QStringList({"OWN", "PAD"}));
        QCOMPARE(moved->Net(), QString("OWN"));
        QCOMPARE(staying->Net(), QString("PAD"));
        design.board.Dump();
        command.undo();
        QCOMPARE(design.board.AskedRats(), QStringList({"OWN", "PAD"}));
        QCOMPARE(moved->Net(), QString("PAD"));
    }

    void netsWithoutANameOrAWireAreNotAskedFor()
    {
        Design design;
        auto* pad = design.board.Pad({0, 0}, "PAD");
        auto* moved = design.board.Wire({0, 0}, {100, 0});
        moved->LinkToFirst(pad);
        design.board.Dump();
        auto command = design.Moving({moved});
        command.redo();
        QCOMPARE(moved->Net(), QString());
        QCOMPARE(design.board.AskedRats(), QStringList());
        command.undo();
        QCOMPARE(design.board.AskedRats(), QStringList());
    }

    void separateProjectsDoNotAsk()
    {
        Design design;
        design.project.SetKind(TProject::Separate);
        auto* pad = design.board.Pad({0, 0}, "PAD");
        auto* moved = design.board.Wire({0, 0}, {100, 0}, "OWN");
        moved->LinkToFirst(pad);
        design.board.Dump();
        auto command = design.Moving({moved});
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        QVERIFY(!moved->FirstLink());
        design.project.SetKind(TProject::InStep);
        command.undo(); // no net was noted
        QCOMPARE(design.board.AskedRats(), QStringList());
    }

    void notedNetsStayNoted()
    {
        Design design;
        auto* pad = design.board.Pad({0, 0}, "PAD");
        auto* moved = design.board.Wire({0, 0}, {100, 0}, "OWN");
        moved->LinkToFirst(pad);
        auto command = design.Moving({moved});
        command.redo();
        command.undo();
        design.board.Dump();
        design.project.SetKind(TProject::Separate);
        command.redo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        design.project.SetKind(TProject::InStep);
        command.undo();
        QCOMPARE(design.board.AskedRats(), QStringList{"OWN"});
    }

    void cutWireAndItsPadGetARatLine()
    {
        Design design;
        auto* pad = design.board.Pad({0, 0}, "N");
        auto* wire = design.board.Wire({0, 0}, {100, 0}, "N");
        wire->LinkToFirst(pad);
        const int items = design.board.Items().size();
        auto command = design.Moving({wire});
        command.redo();
        QCOMPARE(design.board.Items().size(), items + 1);
        command.undo();
        QCOMPARE(design.board.Items().size(), items);
    }

    // The vias that are made.

    void newViaHasTheSizeOfTheSettings_data()
    {
        QTest::addColumn<QVariant>("diameter");
        QTest::addColumn<QVariant>("drill");
        QTest::addColumn<double>("expectedDiameter");
        QTest::addColumn<double>("expectedDrill");
        QTest::newRow("none") << QVariant() << QVariant() << 1.0 << 0.6;
        QTest::newRow("within") << QVariant(0.8) << QVariant(0.35) << 0.8 << 0.35;
        QTest::newRow("as text") << QVariant("2.5") << QVariant("1e-1") << 2.5 << 0.1;
        QTest::newRow("least") << QVariant(0.3) << QVariant(0.1) << 0.3 << 0.1;
        QTest::newRow("most") << QVariant(100) << QVariant(100.0) << 100.0 << 100.0;
        QTest::newRow("too little") << QVariant(0.29) << QVariant(0.09) << 1.0 << 0.6;
        QTest::newRow("too much") << QVariant(100.1) << QVariant(1e9) << 1.0 << 0.6;
        QTest::newRow("negative") << QVariant(-1) << QVariant(-0.6) << 1.0 << 0.6;
        QTest::newRow("no number") << QVariant("wide") << QVariant("") << 1.0 << 0.6;
        QTest::newRow("not a number") << QVariant(qQNaN()) << QVariant("nan") << 1.0 << 0.6;
        QTest::newRow("one of them") << QVariant(0.7) << QVariant("x") << 0.7 << 0.6;
    }
    void newViaHasTheSizeOfTheSettings()
    {
        QFETCH(QVariant, diameter);
        QFETCH(QVariant, drill);
        QFETCH(double, expectedDiameter);
        QFETCH(double, expectedDrill);
        QSettings settings;
        if (diameter.isValid()) {
            settings.setValue("ViaDiam", diameter);
            settings.setValue("ViaDrill", drill);
        }
        Design design;
        auto command = design.Moving({design.Chain(2).first()});
        command.redo();
        const TGraphicsViaItem* via = design.Vias().first();
        QCOMPARE(via->Width(), expectedDiameter * Test::sceneUnitsPerMillimetre);
        QCOMPARE(via->Height(), expectedDiameter * Test::sceneUnitsPerMillimetre);
        QCOMPARE(via->Drill(), static_cast<float>(expectedDrill * Test::sceneUnitsPerMillimetre));
    }

    void lengthFromSettingsIsInSceneUnits()
    {
        Design design;
        auto command = design.Moving({});
        QSettings settings;
        settings.setValue("Length", 4);
        const double unit = Test::sceneUnitsPerMillimetre;
        QCOMPARE(command.FromRegDouble(&settings, "Length", 4, 5, 4.5), 4 * unit);
        QCOMPARE(command.FromRegDouble(&settings, "Length", 3, 4, 3.5), 4 * unit);
        QCOMPARE(command.FromRegDouble(&settings, "Length", 4.1, 5, 4.5), 4.5 * unit);
        QCOMPARE(command.FromRegDouble(&settings, "Absent", 1, 2, 7), 7 * unit); // the default is not looked at
    }

    void laterViasAreCopiesOfTheFirstOne()
    {
        Design design;
        const Wires wires = design.Chain(3);
        auto command = design.Moving({wires[1]});
        command.LinkRedo(wires[1], true);
        auto* first = static_cast<TGraphicsViaItem*>(wires[1]->FirstLink());
        first->SetSize(21, 22);
        first->SetThermal(TGraphicsViaItem::ThermalNo);
        command.LinkRedo(wires[1], false);
        const auto* second = static_cast<const TGraphicsViaItem*>(wires[1]->LastLink());
        QCOMPARE(second->Width(), 21.0);
        QCOMPARE(second->Height(), 22.0);
        QCOMPARE(second->Thermal(), TGraphicsViaItem::ThermalNo);
        QCOMPARE(second->scenePos(), QPointF(200, 0));
        QCOMPARE(second->LinkedWires().size(), 2);
    }

    void insertedViasAreCopiedBeforeReplacingOnes()
    {
        Design design;
        const Wires wires = design.Chain(3);
        auto* junction = design.board.Junction({0, 0});
        wires[0]->LinkToFirst(junction);
        design.board.Wire({-50, 0}, {0, 0})->LinkToLast(junction);
        auto command = design.Moving({wires[0]});
        command.LinkRedo(wires[0], true);
        static_cast<TGraphicsViaItem*>(wires[0]->FirstLink())->SetSize(21, 21);
        command.LinkRedo(wires[0], false);
        auto* inserted = static_cast<TGraphicsViaItem*>(wires[0]->LastLink());
        QCOMPARE(inserted->Width(), 21.0); // no other pattern yet than the one of the junction
        inserted->SetSize(31, 31);
        command.LinkRedo(wires[1], false);
        QCOMPARE(static_cast<TGraphicsViaItem*>(wires[1]->LastLink())->Width(), 31.0);
    }

    void everyRedoMakesFreshVias()
    {
        Design design;
        auto command = design.Moving({design.Chain(2).first()});
        command.redo();
        command.undo();
        QSettings().setValue("ViaDiam", 3);
        command.redo();
        QCOMPARE(design.Vias().first()->Width(), 3 * Test::sceneUnitsPerMillimetre);
    }

    // Later steps hold the vias: they find them again when all is undone and redone.
    void laterStepsFindTheViasAgain()
    {
        Design design;
        const Wires wires = design.Chain(3);
        auto* junction = design.board.Junction({0, 0});
        wires[0]->LinkToFirst(junction);
        design.board.Wire({0, 0}, {0, 80})->LinkToFirst(junction);
        QUndoStack stack;
        QStringList states{design.board.Dump()};
        const auto push = [&](TUndoCommand* command) {
            stack.push(command);
            states.append(design.board.Dump());
        };
        push(new TCmdWireLayer(&design.project, {wires[0], wires[2]}, bottom));
        QCOMPARE(design.Vias().size(), 3);
        for (TGraphicsViaItem* via : design.Vias()) {
            push(new TCmdMaskClearance({via}, 2.0 + stack.count()));
        }
        push(new TCmdWireLayer(&design.project, {wires[1]}, bottom));
        push(new TCmdWireLayer(&design.project, wires, Osmirel::Copper2));
        for (const int index : {0, 6, 1, 3, 0, 4, 6}) {
            stack.setIndex(index);
            QCOMPARE(design.board.Dump(), states[index]);
            QCOMPARE(Test::LinkFault(design.board), QString());
        }
    }

    void viasAreMadeAnewAtEveryRedo()
    {
        Design design;
        auto command = design.Moving({design.Chain(3)[1]});
        command.redo();
        const QString after = design.board.Dump();
        for (TGraphicsViaItem* via : design.Vias()) {
            via->SetViaGroup("Top - Inner 1");
            via->SetSize(3, 4);
            via->SetDrill(1);
            via->SetThermal(TGraphicsViaItem::ThermalYes);
            via->SetMaskEnabled(true);
            via->SetMaskClearance(7);
            via->SetNet("M");
            via->SetAltColor(Qt::red);
            via->SetTFlag(TGraphicsItem::Lock, true);
            via->setPos(1, 2);
            via->setRotation(45);
            via->setVisible(false);
        }
        command.undo();
        command.redo();
        QCOMPARE(design.board.Dump(), after);
    }

    void viaIsPlacedOnTheBoard()
    {
        Design design;
        auto command = design.Moving({});
        TGraphicsViaItem* via = command.AddVia({12, 34});
        QCOMPARE(via->scenePos(), QPointF(12, 34));
        QCOMPARE(via->Owner(), design.board.Scene());
        QCOMPARE(via->EtchLayers().size(), 4);
        QCOMPARE(via->LinkedWires(), Sections());
    }

    // Lifetime.

    void junctionIsDeletedOnlyWhileItIsOffTheBoard_data()
    {
        QTest::addColumn<int>("steps");
        QTest::addColumn<int>("deleted");
        QTest::newRow("never done") << 0 << 0;
        QTest::newRow("done") << 1 << 1;
        QTest::newRow("undone") << 2 << 0;
        QTest::newRow("done again") << 3 << 1;
    }
    void junctionIsDeletedOnlyWhileItIsOffTheBoard()
    {
        QFETCH(int, steps);
        QFETCH(int, deleted);
        int gone = 0;
        {
            Design design;
            auto* junction = design.board.Add<Test::Mortal<TGraphicsJunctionItem>>({0, 0});
            junction->gone = &gone;
            const Wires wires = design.Star(junction, 3);
            auto command = std::make_unique<TCmdWireLayer>(&design.project, Wires{wires[0]}, bottom);
            for (int i = 0; i < steps; ++i) {
                i % 2 == 0 ? command->redo() : command->undo();
            }
            QCOMPARE(gone, 0);
            const QString before = design.board.Dump();
            command.reset();
            QCOMPARE(gone, deleted);
            QCOMPARE(design.board.Dump(), before);
            QCOMPARE(Test::LinkFault(design.board), QString());
        }
        QCOMPARE(gone, 1);
    }

    // It was never taken off anything, and stays with whoever has made it.
    void junctionOfNoBoardIsNotDeleted()
    {
        int gone = 0;
        Design design;
        Test::Mortal<TGraphicsJunctionItem> junction;
        junction.gone = &gone;
        junction.SetLayer(top);
        const Wires wires = design.Star(&junction, 3);
        const Sections sections = junction.LinkedSections();
        for (const int steps : {1, 2, 3, 4}) {
            TCmdWireLayer command(&design.project, {wires[0]}, bottom);
            for (int i = 0; i < steps; ++i) {
                i % 2 == 0 ? command.redo() : command.undo();
                QCOMPARE(junction.LinkedSections(), i % 2 == 0 ? Sections() : sections);
            }
            QCOMPARE(gone, 0);
            QCOMPARE(junction.Owner(), nullptr);
            if (steps % 2 != 0) {
                command.undo();
            }
        }
        QCOMPARE(gone, 0);
        TCmdWireLayer command(&design.project, {wires[0]}, bottom);
        command.redo(); // Destroyed while it is done.
    }

    void boardGoesFirst()
    {
        int gone = 0;
        std::unique_ptr<TCmdWireLayer> command;
        {
            Design design;
            auto* junction = design.board.Add<Test::Mortal<TGraphicsJunctionItem>>({0, 0});
            junction->gone = &gone;
            command = std::make_unique<TCmdWireLayer>(&design.project, design.Star(junction, 3).mid(1), bottom);
            command->redo();
        }
        QCOMPARE(gone, 0);
        command.reset();
        QCOMPARE(gone, 1);
    }

    void withoutABoardThereIsNothingToMove()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        TProject project;
        for (TProject* none : {static_cast<TProject*>(nullptr), &project}) {
            TCmdWireLayer command(none, {wire, nullptr}, bottom);
            command.redo();
            command.undo();
            command.LinkRedo(wire, true);
            QCOMPARE(wire->Layer(), top);
            QCOMPARE(command.AddVia({0, 0}), nullptr);
            QCOMPARE(command.id(), -1);
        }
    }

private:
    QTemporaryDir folder;
};

PROPERTIES_TEST(TestWireLayerVias)
#include "tst_wirelayer_vias.moc"
