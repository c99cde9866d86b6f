#include "properties/commands/TCmdComponent.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/TestProgram.h"

using Test::SheetDesign;
using Numbers = QList<unsigned short>;

namespace {

/** Components 4 and 5 with the values "4k" and "5k", parts (4 has two units) and packages; and what is of none. */
struct Design : SheetDesign
{
    Design()
    {
        sheet.CmpModel()->Add(4, {"R4", "4k", "0402", 0});
        sheet.CmpModel()->Add(5, {"R5", "5k", "0402", 0});
        sheet.CmpModel()->UpdateCount();
        sheet.GoToPage(sheet.AddPage());
        unitB = sheet.Part({0, 0}, 4, {});
        for (TGraphicsPartItem* part : {unitA, unitB, other, loose}) {
            part->SetValue(QString::number(part->ComponentNumber()) + 'k');
        }
        for (TGraphicsPackageItem* package : {packageOf4, packageOf5, loosePackage}) {
            package->SetValue(QString::number(package->ComponentNumber()) + 'k');
        }
    }

    QString Value(unsigned short number) { return sheet.CmpModel()->CmpModelItem(number)->value; }
    int Count(unsigned short number) { return sheet.CmpModel()->CmpModelItem(number)->count; }

    TGraphicsPartItem* unitA = sheet.Part({0, 0}, 4, {});
    TGraphicsPartItem* other = sheet.Part({100, 0}, 5, {});
    TGraphicsPartItem* loose = sheet.Part({200, 0}, 0, {});
    TGraphicsPartItem* unitB = nullptr;
    TGraphicsPackageItem* packageOf4 = Package(4);
    TGraphicsPackageItem* packageOf5 = Package(5);
    TGraphicsPackageItem* loosePackage = Package(0);
};

} // namespace

class TestComponents : public QObject
{
    Q_OBJECT

private slots:
    void aValueReachesModelPartsAndPackages()
    {
        Design design;
        TCmdCmpValue command({4}, "10k", &design.project);
        QCOMPARE(command.id(), -1);
        QCOMPARE(design.Value(4), QString("4k")); // Making it writes nothing.
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Value(4) + design.Value(5), QString("10k5k"));
        for (const TGraphicsPartItem* part : {design.unitA, design.unitB}) {
            QCOMPARE(part->Value(), QString("10k"));
            QCOMPARE(static_cast<TGraphicsTextItem*>(part->ValueText())->Text(), QString("10k"));
        }
        QCOMPARE(design.packageOf4->Value(), QString("10k"));
        QCOMPARE(design.other->Value() + design.packageOf5->Value(), QString("5k5k"));
    }

    void eachComponentGetsItsOwnValueBack()
    {
        Design design;
        TCmdCmpValue command({5, 4}, "10k", &design.project);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Count(4), 2);
        command.undo();
        QCOMPARE(design.Value(4) + design.Value(5), QString("4k5k"));
        QCOMPARE(design.Count(4), 1);
    }

    // Intended: the second one's old value is the new value, and is what undo writes last.
    void aNumberGivenTwiceKeepsTheNewValueOnUndo()
    {
        Design design;
        TCmdCmpValue command({4, 4}, "10k", &design.project);
        command.redo();
        command.undo();
        QCOMPARE(design.Value(4), QString("10k"));
        QCOMPARE(design.unitB->Value() + design.packageOf4->Value(), QString("10k10k"));
    }

    void oldValuesAreThoseOfTheFirstRedo()
    {
        Design design;
        TCmdCmpValue command({4}, "10k", &design.project);
        design.sheet.CmpModel()->CmpModelItem(4)->value = "late";
        command.redo();
        command.undo();
        QCOMPARE(design.Value(4), QString("late"));
        QCOMPARE(design.unitA->Value(), QString("late")); // The model's value goes to the parts.
        design.sheet.CmpModel()->CmpModelItem(4)->value = "later";
        command.redo();
        command.undo();
        QCOMPARE(design.Value(4), QString("late"));
    }

    void aComponentThatTheModelDoesNotKnowIsSkipped()
    {
        Design design;
        TGraphicsPartItem* unknown = design.sheet.Part({0, 100}, 9, {});
        unknown->SetValue("9k");
        TCmdCmpValue command({9, 4}, "10k", &design.project);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(unknown->Value() + design.Value(4), QString("9k10k"));
        command.undo();
        // Its old value is empty, which is what it gets if it comes to be known.
        design.sheet.CmpModel()->Add(9, {"R9", "9k", "0402", 0});
        command.redo();
        QCOMPARE(design.Value(9), QString("10k"));
        command.undo();
        QCOMPARE(design.Value(9) + unknown->Value(), QString());
        QCOMPARE(design.Value(4), QString("4k"));
    }

    void whatIsOfNoComponentIsLeftAlone()
    {
        Design design;
        const QString before = design.Dump();
        TCmdCmpValue command({0}, "10k", &design.project);
        command.redo();
        QCOMPARE(design.Dump(), before);
        command.undo();
        QCOMPARE(design.Dump(), before);
    }

    void packagesFollowOnlyInStepAndSwitchedOn_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("switchedOn");
        QTest::addColumn<bool>("withView");
        QTest::addColumn<bool>("follows");
        QTest::newRow("in step") << 1 << true << true << true;
        QTest::newRow("separate") << 0 << true << true << false;
        QTest::newRow("switched off") << 1 << false << true << false;
        QTest::newRow("no view") << 1 << true << false << false;
    }
    void packagesFollowOnlyInStepAndSwitchedOn()
    {
        QFETCH(int, kind);
        QFETCH(bool, switchedOn);
        QFETCH(bool, withView);
        QFETCH(bool, follows);
        Design design;
        design.project.SetKind(kind);
        design.board.SetConnectivityEnabled(switchedOn);
        if (!withView) {
            design.board.SetView(nullptr);
        }
        TCmdCmpValue command({4}, "10k", &design.project);
        command.redo();
        QCOMPARE(design.packageOf4->Value(), QString(follows ? "10k" : "4k"));
        QCOMPARE(design.unitA->Value() + design.Value(4), QString("10k10k"));
        command.undo();
        QCOMPARE(design.packageOf4->Value(), QString("4k"));
        design.project.SetBoard(nullptr);
        command.redo();
        QCOMPARE(design.Value(4), QString("10k"));
    }

    void modeIsReadAnewEachTime()
    {
        Design design;
        TCmdCmpValue command({4}, "10k", &design.project);
        command.redo();
        design.project.SetKind(TProject::Separate);
        command.undo();
        QCOMPARE(design.packageOf4->Value() + design.unitA->Value(), QString("10k4k"));
    }

    void withoutASchematicNothingHappens()
    {
        Design design;
        design.project.SetSchematic(nullptr);
        const QString before = design.Dump();
        for (TProject* project : {&design.project, static_cast<TProject*>(nullptr)}) {
            TCmdCmpValue command({4}, "10k", project);
            command.redo();
            command.undo();
            command.redo();
            QCOMPARE(design.Dump(), before);
        }
        // Nothing was done, so that there is nothing to be undone when a schematic comes.
        TCmdCmpValue command({4, 5}, "10k", &design.project);
        command.redo();
        design.project.SetSchematic(&design.sheet);
        command.undo();
        QCOMPARE(design.Dump(), before);
    }

    void partsAndPackagesAreLookedForEachTime()
    {
        Design design;
        TCmdCmpValue command({4}, "10k", &design.project);
        command.redo();
        TGraphicsPartItem* part = design.sheet.Part({0, 200}, 4, {});
        TGraphicsPackageItem* package = design.Package(4);
        delete std::exchange(design.unitB, nullptr);
        command.undo();
        QCOMPARE(part->Value() + package->Value(), QString("4k4k"));
    }

    // Intended: the counts are brought up to date even if no value is changed.
    void overNoComponentsCountsAreBroughtUpToDate()
    {
        Design design;
        design.sheet.CmpModel()->CmpModelItem(5)->value = "4k";
        QCOMPARE(design.Count(4), 1);
        TCmdCmpValue command({}, "10k", &design.project);
        command.redo();
        QCOMPARE(design.Count(4), 2);
        QCOMPARE(design.Value(4), QString("4k"));
        design.sheet.CmpModel()->CmpModelItem(5)->value = "5k";
        command.undo();
        QCOMPARE(design.Count(4), 1);
    }

    void valuesAreWrittenInTheOrderOfTheNumbers()
    {
        Design design;
        TCmdCmpValue command({4, 5}, "10k", &design.project);
        command.SetValue({"a", "b"});
        QCOMPARE(design.Value(4) + design.Value(5), QString("ab"));
        command.redo(); // The first time was before.
        command.undo();
        QCOMPARE(design.Value(4) + design.Value(5), QString("4k5k"));
    }

    void fewerValuesThanNumbersLeaveTheOthersAlone()
    {
        Design design;
        TCmdCmpValue command({4, 5}, "10k", &design.project);
        command.SetValue({"a"});
        QCOMPARE(design.Value(4) + design.Value(5), QString("a5k"));
        QCOMPARE(design.other->Value() + design.packageOf5->Value(), QString("5k5k"));
        command.SetValue({});
        QCOMPARE(design.Value(4) + design.Value(5), QString("a5k"));
        command.SetValue({"b", "c", "d"}); // One too many.
        QCOMPARE(design.Value(4) + design.Value(5), QString("bc"));
        command.redo();
        command.undo();
        QCOMPARE(design.Value(4) + design.Value(5), QString("4k5k")); // As it was the first time.
    }
};

PROPERTIES_TEST(TestComponents)
#include "tst_components.moc"
