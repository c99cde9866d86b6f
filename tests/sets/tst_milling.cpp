#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/sets/TPropertySetForMilling.h"

#include <graphics/TGraphicsPolylineItem.h>
#include <workspace/TDoubleSpinBox.h>

namespace {

using Test::SceneF;
using Set = TPropertySetForMilling;
using Item = TGraphicsPolylineItem;

Item* AddPath(Test::TestBoard& board, double width, Osmirel::Layer layer = Osmirel::Milling)
{
    Item* path = Test::Place<Item>(board);
    path->SetLayer(layer);
    path->SetPenWidth(SceneF(width));
    path->SetPoints(QPolygonF(QRectF(0, 0, 10, 10)));
    return path;
}

struct Paths
{
    using Set = ::Set;
    using Item = ::Item;

    Paths()
    {
        Item* elsewhere = AddPath(board, 9, Osmirel::SilkTop);
        elsewhere->SetTFlag(TGraphicsItem::UndoBypass, true);
        auto* line = Test::Place<TGraphicsRectItem>(board);
        line->SetLayer(Osmirel::Milling);
        items = {AddPath(board, 1), AddPath(board, 2), AddPath(board, 0.5)};
        selection = {elsewhere, line, items[0], items[1], items[2], AddPath(board, 8, Osmirel::SilkTop)};
    }

    Set* MakeSet() { return new Set(selection); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<Paths> slotCases[] = {
    {"line width, in single precision", [](Set& set) { set.slotSetLineWidth(1.7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Line width:")->spin->setValue(1.7); }, "TCmdPenWidth",
     [](Item& path) { path.SetPenWidth(SceneF(1.7)); }, nullptr, nullptr},
};

QString RowWith(const char* value)
{
    return QStringLiteral("TPropertyFloatSpin Line width: 0.1..99 step 0.1 decimals 2 = ") + value;
}

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Paths>*)

class TestMillingSet : public QObject
{
    Q_OBJECT

private slots:
    void showsTheWidthOfTheLastPath()
    {
        Paths paths;
        const std::unique_ptr<Set> set(paths.MakeSet());
        QCOMPARE(Test::RowTexts(set.get()), QStringList{RowWith("0.50 mm")});
        QCOMPARE(set->Name(), QString("Milling"));
    }

    void showsMillimetresWithinTheRange_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<QString>("row");
        QTest::newRow("plain") << 2.4 << RowWith("2.40 mm");
        QTest::newRow("too fine") << 0.02 << RowWith("0.10 mm");
        QTest::newRow("too wide") << 100.0 << RowWith("99.00 mm");
    }

    void showsMillimetresWithinTheRange()
    {
        QFETCH(double, width);
        Test::TestBoard board;
        board.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil);
        const Set set({AddPath(board, width)});
        QTEST(Test::RowTexts(&set).value(0), "row");
    }

    void withoutPathsThereAreNoRows()
    {
        Test::TestBoard board;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{AddPath(board, 1, Osmirel::SilkTop), board.AddVia()}}) {
            Set set(selection);
            const Test::CommandLog log(set);
            const QString before = board.Dump();
            set.slotSetLineWidth(3);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Milling"));
            QCOMPARE(log.Count(), 0);
            QCOMPARE(board.Dump(), before);
        }
    }

    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Paths>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Paths>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Paths>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Paths>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Paths>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Paths>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void commandSkipsPartsOfPackagesAndTheDirectWriteDoesNot()
    {
        Test::TestBoard board;
        Item* free = AddPath(board, 1);
        Item* part = AddPath(board, 1);
        part->setParentItem(board.AddPackage());
        Set set({free, part});
        Test::CommandLog log(set);
        set.slotSetLineWidth(2);
        log.Redo();
        QCOMPARE(free->PenWidth(), SceneF(2));
        QCOMPARE(part->PenWidth(), SceneF(1));
        free->SetTFlag(TGraphicsItem::UndoBypass, true);
        set.slotSetLineWidth(3);
        QCOMPARE(part->PenWidth(), SceneF(3));
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const Set set({AddPath(board, 1)});
        QCOMPARE(set.Name(), QString("~Milling"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForMilling", {"Line width:"}), QStringList());
    }
};

PROPERTIES_TEST(TestMillingSet)
#include "tst_milling.moc"
