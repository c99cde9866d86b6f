#include "tests/support/PanelFixture.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPad.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QComboBox>

namespace {

using Pad = TGraphicsPadItem;
using Set = TPropertySetForPad;

double Scene(double millimetres)
{
    return millimetres * Test::sceneUnitsPerMillimetre;
}

float SceneF(double millimetres)
{
    return static_cast<float>(Scene(millimetres));
}

/** A through pad and surface pads of both sides, and vias that the pad commands would take as well. */
struct Pads
{
    using Set = TPropertySetForPad;
    using Item = Pad;

    Pads()
    {
        TGraphicsViaItem* via = board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {board.AddThroughPad(1.6, 0.8), board.AddSurfacePad(1.0, 0.5), board.AddSurfacePad(2.0, 1.25)};
        items[2]->SetLayers(Osmirel::CopperBottom, Osmirel::CopperBottom);
        for (int i = 0; i < items.size(); ++i) {
            items[i]->SetNumber(QString::number(i));
            items[i]->SetMaskClearance(SceneF(0.1 * i));
        }
        items[1]->SetThermal(Pad::ThermalNo);
        items[1]->SetPasteEnabled(true);
        selection = {via, items[0], board.AddVia(), items[1], items[2], board.AddHole()};
    }

    Set* MakeSet() { return new Set(selection, board.Sides()); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

TPropertyFloatSpin* NumberRow(Set& set, const char* label)
{
    return Test::RowOf<TPropertyFloatSpin>(&set, label);
}

TPropertySize* SizeRow(Set& set)
{
    return Test::RowOf<TPropertySize>(&set, "Size (W x H):");
}

void Choose(Set& set, const char* label, const char* text)
{
    qobject_cast<QComboBox*>(Test::FindRow(&set, label)->Editor())->setCurrentText(text);
}

const Test::SlotCase<Pads> slotCases[] = {
    {"number", [](Set& set) { set.SetNumber("B9"); },
     [](Set& set) {
         auto* line = Test::RowOf<TPropertyText>(&set, "Number:")->line;
         QMetaObject::invokeMethod(line, "textChanged", Q_ARG(QString, "B9"));
     },
     "TCmdPadNumber", [](Pad& pad) { pad.SetNumber("B9"); }, nullptr, nullptr},
    {"name: nothing, deliberately", [](Set& set) { set.SetName("VCC"); }, nullptr, nullptr, [](Pad&) {}, nullptr,
     nullptr},
    {"type SMT", [](Set& set) { set.SetType(1); }, [](Set& set) { Choose(set, "Type:", "SMT"); }, "TCmdPadType",
     [](Pad& pad) { pad.SetTypeSMD(true); }, nullptr, nullptr},
    {"type THT: written at once it makes surface pads", [](Set& set) { set.SetType(0); },
     [](Set& set) { Choose(set, "Type:", "THT"); }, "TCmdPadType", [](Pad& pad) { pad.SetTypeSMD(false); },
     [](Pad& pad) { pad.SetTypeSMD(true); }, nullptr},
    {"type of any other number is SMT", [](Set& set) { set.SetType(7); }, nullptr, "TCmdPadType",
     [](Pad& pad) { pad.SetTypeSMD(true); }, nullptr, nullptr},
    {"drill: written at once it reaches surface pads", [](Set& set) { set.SetDrill(1.3); },
     [](Set& set) { NumberRow(set, "Drill:")->spin->setValue(1.3); }, "TCmdViaDrill",
     [](Pad& pad) { pad.SetDrill(pad.IsSMD() ? pad.Drill() : SceneF(1.3)); },
     [](Pad& pad) { pad.SetDrill(SceneF(1.3)); }, nullptr},
    {"side", [](Set& set) { set.SetSide(Osmirel::CopperBottom); }, [](Set& set) { Choose(set, "Side:", "Bottom"); },
     "TCmdPadSide", [](Pad& pad) { pad.SetPadSide(Osmirel::CopperBottom); }, nullptr, nullptr},
    {"shape", [](Set& set) { set.SetShape(5); }, [](Set& set) { Choose(set, "Shape:", "Rectangle"); }, "TCmdPadShape",
     [](Pad& pad) { pad.SetPadShape(Pad::ShapeRectangle); }, nullptr, nullptr},
    {"width, in double precision", [](Set& set) { set.SetWidth(2.37); },
     [](Set& set) { SizeRow(set)->width->setValue(2.37); }, "TCmdPadWidth", [](Pad& pad) { pad.SetWidth(Scene(2.37)); },
     nullptr, nullptr},
    {"height: undone it becomes the width", [](Set& set) { set.SetHeight(2.37); },
     [](Set& set) { SizeRow(set)->height->setValue(2.37); }, "TCmdPadHeight",
     [](Pad& pad) { pad.SetHeight(Scene(2.37)); }, nullptr, [](Pad& pad) { pad.SetHeight(pad.Width()); }},
    {"thermal", [](Set& set) { set.SetThermal(1); }, [](Set& set) { Choose(set, "Thermal:", "Yes"); }, "TCmdViaTherm",
     [](Pad& pad) { pad.SetThermal(Pad::ThermalYes); }, nullptr, nullptr},
    {"mask enable", [](Set& set) { set.SetMaskEnable(true); },
     [](Set& set) { NumberRow(set, "Mask:")->check->click(); }, "TCmdMaskEn",
     [](Pad& pad) { pad.SetMaskEnabled(true); }, nullptr, nullptr},
    {"mask clearance", [](Set& set) { set.SetMaskClearance(0.37); },
     [](Set& set) { NumberRow(set, "Mask:")->spin->setValue(0.37); }, "TCmdMaskClearance",
     [](Pad& pad) { pad.SetMaskClearance(SceneF(0.37)); }, nullptr, nullptr},
    {"mask clearance below what a pad takes: the command sets it as a via's",
     [](Set& set) { set.SetMaskClearance(-10); }, nullptr, "TCmdMaskClearance",
     [](Pad& pad) { pad.TGraphicsViaItem::SetMaskClearance(SceneF(-10)); },
     [](Pad& pad) { pad.SetMaskClearance(SceneF(-10)); }, nullptr},
    {"paste enable", [](Set& set) { set.SetPasteEnable(true); },
     [](Set& set) { NumberRow(set, "Paste:")->check->click(); }, "TCmdPasteEn",
     [](Pad& pad) { pad.SetPasteEnabled(true); }, nullptr, nullptr},
    {"paste clearance", [](Set& set) { set.SetPasteClearance(0.37); },
     [](Set& set) { NumberRow(set, "Paste:")->spin->setValue(0.37); }, "TCmdPasteClearance",
     [](Pad& pad) { pad.SetPasteClearance(SceneF(0.37)); }, nullptr, nullptr},
};

/** An edit of the size or shape row, and the commands that come of it since a locked height follows the width. */
struct FollowingEdit
{
    const char* name;
    Pad::TypePadShape shape;
    void (*edit)(Set& set);
    QStringList commands;
    QList<double> heights; ///< of the pad in millimetres, after each command
};

void SetWidthTo3(Set& set)
{
    SizeRow(set)->width->setValue(3);
}

const QStringList widthAlone = {"TCmdPadWidth"};
const QStringList widthAndTwoHeights = {"TCmdPadWidth", "TCmdPadHeight", "TCmdPadHeight"};
const QStringList shapeAlone = {"TCmdPadShape"};
const QStringList shapeAndTwoHeights = {"TCmdPadShape", "TCmdPadHeight", "TCmdPadHeight"};

/** The pad is 2 mm wide and 1 mm high at first. */
const FollowingEdit followingEdits[] = {
    {"width of a rectangle", Pad::ShapeRectangle, SetWidthTo3, widthAlone, {1}},
    {"width of a round pad", Pad::ShapeRound, SetWidthTo3, widthAndTwoHeights, {1, 3, 3}},
    {"width of an octagon", Pad::ShapeOctagon, SetWidthTo3, widthAndTwoHeights, {1, 3, 3}},
    {"width of an obround pad: doubled, the width itself last",
     Pad::ShapeObround,
     SetWidthTo3,
     widthAndTwoHeights,
     {1, 6, 3}},
    {"rectangle made round",
     Pad::ShapeRectangle,
     [](Set& set) { Choose(set, "Shape:", "Round"); },
     shapeAndTwoHeights,
     {1, 2, 2}},
    {"rectangle made obround",
     Pad::ShapeRectangle,
     [](Set& set) { Choose(set, "Shape:", "Obround"); },
     shapeAndTwoHeights,
     {1, 4, 2}},
    {"obround made round",
     Pad::ShapeObround,
     [](Set& set) { Choose(set, "Shape:", "Round"); },
     shapeAndTwoHeights,
     {1, 2, 2}},
    {"round made rectangle", Pad::ShapeRound, [](Set& set) { Choose(set, "Shape:", "Rectangle"); }, shapeAlone, {1}},
};

enum class Repaint { Refresh, Update, None };

/** How a slot brings the drawing up to date, by command and written at once. */
struct RepaintCase
{
    const char* name;
    void (*callSlot)(Set& set);
    Repaint repaint;
};

const RepaintCase repaintCases[] = {
    {"mask enable", [](Set& set) { set.SetMaskEnable(true); }, Repaint::Refresh},
    {"paste enable", [](Set& set) { set.SetPasteEnable(true); }, Repaint::Refresh},
    {"number", [](Set& set) { set.SetNumber("B9"); }, Repaint::Update},
    {"drill", [](Set& set) { set.SetDrill(1.3); }, Repaint::Update},
    {"thermal", [](Set& set) { set.SetThermal(1); }, Repaint::None},
};

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Pads>*)
Q_DECLARE_METATYPE(const FollowingEdit*)
Q_DECLARE_METATYPE(const RepaintCase*)

/** What the slots of the pad set do. */
class TestPadSlots : public QObject
{
    Q_OBJECT

private slots:
    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Pads>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Pads>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Pads>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Pads>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Pads>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Pads>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void nameRowDoesNothing()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad(1, 0.5, board.AddPackage());
        Set set({pad}, board.Sides());
        const Test::CommandLog log(set);
        auto* line = Test::RowOf<TPropertyText>(&set, "Name:")->line;
        QVERIFY(QMetaObject::invokeMethod(line, "textChanged", Q_ARG(QString, "VCC")));
        pad->SetTFlag(TGraphicsItem::UndoBypass, true);
        QVERIFY(QMetaObject::invokeMethod(line, "textChanged", Q_ARG(QString, "VCC")));
        QCOMPARE(log.Count(), 0);
        QCOMPARE(pad->Name(), QString());
    }

    void heightFollowsByCommands_data()
    {
        QTest::addColumn<const FollowingEdit*>("following");
        for (const FollowingEdit& following : followingEdits) {
            QTest::newRow(following.name) << &following;
        }
    }

    void heightFollowsByCommands()
    {
        QFETCH(const FollowingEdit*, following);
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad(2, 1);
        pad->SetPadShape(following->shape);
        Set set({pad}, board.Sides());
        Test::CommandLog log(set);
        following->edit(set);
        QCOMPARE(log.Names(), following->commands);
        for (int i = 0; i < log.Count(); ++i) {
            log.Redo(i);
            QCOMPARE(pad->Height(), Scene(following->heights[i]));
        }
    }

    void heightFollowsByDirectWrites_data() { heightFollowsByCommands_data(); }

    void heightFollowsByDirectWrites()
    {
        QFETCH(const FollowingEdit*, following);
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad(2, 1);
        pad->SetPadShape(following->shape);
        pad->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({pad}, board.Sides());
        const Test::CommandLog log(set);
        following->edit(set);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(pad->Height(), Scene(following->heights.last()));
    }

    void drawingIsBroughtUpToDate_data()
    {
        QTest::addColumn<const RepaintCase*>("repaintCase");
        QTest::addColumn<bool>("bypass");
        for (const RepaintCase& repaintCase : repaintCases) {
            QTest::addRow("%s, by command", repaintCase.name) << &repaintCase << false;
            QTest::addRow("%s, at once", repaintCase.name) << &repaintCase << true;
        }
    }

    void drawingIsBroughtUpToDate()
    {
        QFETCH(const RepaintCase*, repaintCase);
        QFETCH(bool, bypass);
        Test::TestBoard board;
        auto owned = std::make_unique<Test::Counting<Pad>>();
        auto* pad = owned.get();
        board.Attach(std::move(owned));
        pad->SetSize(20, 10);
        pad->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        Set set({pad}, board.Sides());
        Test::CommandLog log(set);
        Test::RepaintLog repaints(*board.Scene());
        pad->refreshes = 0;

        const QString before = board.Dump();
        repaintCase->callSlot(set);
        log.Redo();
        QVERIFY(board.Dump() != before);
        QCOMPARE(pad->refreshes > 0, repaintCase->repaint == Repaint::Refresh);
        QCOMPARE(repaints.Take().contains(pad->sceneBoundingRect()), repaintCase->repaint != Repaint::None);
    }

    void stepsAreNotMerged()
    {
        Pads pads;
        const std::unique_ptr<Set> set(pads.MakeSet());
        const Test::CommandLog log(*set);
        SizeRow(*set)->width->stepUp();
        SizeRow(*set)->width->stepUp();
        QCOMPARE(log.Names(), (QStringList{"TCmdPadWidth", "TCmdPadWidth"}));
    }
};

PROPERTIES_TEST(TestPadSlots)
#include "tst_padslots.moc"
