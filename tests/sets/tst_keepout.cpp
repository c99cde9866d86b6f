#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyCheck.h"
#include "properties/sets/TPropertySetForKeepout.h"

#include <objects/TGraphicsKeepoutItem.h>

namespace {

using Set = TPropertySetForKeepout;
using Item = TGraphicsKeepoutItem;

Item* AddKeepout(Test::TestBoard& board, const QList<Osmirel::Layer>& layers)
{
    Item* keepout = Test::Place<Item>(board);
    keepout->SetArea(QPolygonF(QRectF(0, 0, 10, 10)));
    for (int layer = Osmirel::CopperTop; layer <= Osmirel::CopperBottom; ++layer) {
        const auto copper = static_cast<Osmirel::Layer>(layer);
        keepout->SetLayerEnable(copper, layers.contains(copper));
    }
    return keepout;
}

/** Three keepouts on a board whose copper layers are 68, 69, 70 and 75. */
struct Keepouts
{
    using Set = ::Set;
    using Item = ::Item;

    Keepouts()
    {
        items = {AddKeepout(board, {Osmirel::Copper2, Osmirel::CopperBottom}), AddKeepout(board, {Osmirel::CopperTop}),
                 AddKeepout(board, {})};
        TGraphicsViaItem* via = board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        selection = {via, items[0], items[1], board.AddHole(), items[2]};
    }

    Set* MakeSet() { return new Set(selection); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

TPropertyCheck* RowOf(Set& set, const char* label)
{
    return Test::RowOf<TPropertyCheck>(&set, label);
}

/** The rows' editors are the only way to the slot, which acts on the row that sends the signal. */
const Test::SlotCase<Keepouts> slotCases[] = {
    {"top", [](Set& set) { RowOf(set, "Top")->SetCurrentState(true); }, nullptr, "TCmdKeepoutLayEn",
     [](Item& keepout) { keepout.SetLayerEnable(Osmirel::CopperTop, true); }, nullptr, nullptr},
    {"inner, off", [](Set& set) { RowOf(set, "Inner 1")->SetCurrentState(false); }, nullptr, "TCmdKeepoutLayEn",
     [](Item& keepout) { keepout.SetLayerEnable(Osmirel::Copper2, false); }, nullptr, nullptr},
    {"third", [](Set& set) { RowOf(set, "Inner 2")->SetCurrentState(true); }, nullptr, "TCmdKeepoutLayEn",
     [](Item& keepout) { keepout.SetLayerEnable(Osmirel::Copper3, true); }, nullptr, nullptr},
    {"fourth row, which is the last layer's", [](Set& set) { RowOf(set, "Bottom")->SetCurrentState(false); }, nullptr,
     "TCmdKeepoutLayEn", [](Item& keepout) { keepout.SetLayerEnable(Osmirel::CopperBottom, false); }, nullptr, nullptr},
};

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Keepouts>*)

class TestKeepoutSet : public QObject
{
    Q_OBJECT

private slots:
    void showsTheFirstKeepoutLayerByLayer()
    {
        Keepouts keepouts;
        const std::unique_ptr<Set> set(keepouts.MakeSet());
        QCOMPARE(Test::RowTexts(set.get()),
                 (QStringList{"TPropertyCheck Top = [ ]", "TPropertyCheck Inner 1 = [x]",
                              "TPropertyCheck Inner 2 = [ ]", "TPropertyCheck Bottom = [x]"}));
        QCOMPARE(set->Name(), QString("Keepout polygons"));
    }

    void offersEightLayersAtMost()
    {
        Test::TestBoard board;
        for (int layer = 60; layer < 84; ++layer) {
            board.LayerManager()->AddLayer({static_cast<Osmirel::Layer>(layer), QString::number(layer), Qt::red, {}});
        }
        const Set set({AddKeepout(board, {Osmirel::Copper7})});
        QCOMPARE(Test::Labels(&set), (QStringList{"68", "69", "70", "71", "72", "73", "74", "75"}));
        QCOMPARE(Test::RowTexts(&set).value(6), QString("TPropertyCheck 74 = [x]"));
    }

    void skipsLayersThatAreFixed()
    {
        Test::TestBoard board;
        TLayer fixed = *board.LayerManager()->Layer(Osmirel::Copper2);
        fixed.keepoutFixed = true;
        board.LayerManager()->AddLayer(fixed);
        Item* keepout = AddKeepout(board, {});
        Set set({keepout});
        QCOMPARE(Test::Labels(&set), (QStringList{"Top", "Inner 2", "Bottom"}));
        Test::CommandLog log(set);
        RowOf(set, "Bottom")->SetCurrentState(true);
        log.Redo();
        QVERIFY(keepout->IsLayerEnable(Osmirel::CopperBottom));
        QVERIFY(!keepout->IsLayerEnable(Osmirel::Copper2));
        QVERIFY(!keepout->IsLayerEnable(Osmirel::Copper3));
    }

    void layersAreThoseOfTheFirstKeepoutsWorkspace()
    {
        Test::TestBoard board;
        Test::TestBoard other;
        other.LayerManager()->AddLayer({Osmirel::Copper4, "More", Qt::red, {}});
        const Set set({board.AddVia(), AddKeepout(other, {}), AddKeepout(board, {})});
        QCOMPARE(Test::Labels(&set), (QStringList{"Top", "Inner 1", "Inner 2", "More", "Bottom"}));
    }

    void withoutKeepoutsThereAreNoRows()
    {
        Test::TestBoard board;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{board.AddVia(), board.AddHole()}}) {
            const Set set(selection);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Keepout polygons"));
        }
    }

    void keepoutOfNoDocumentHasNoRows()
    {
        Item keepout;
        QVERIFY(Set({&keepout}).Properties().isEmpty());
    }

    void rowMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void rowMakesACommand()
    {
        QFETCH(const Test::SlotCase<Keepouts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Keepouts>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Keepouts>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void rowWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void rowWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Keepouts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Keepouts>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Keepouts>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void slotWithoutARowDoesNothing_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("command") << false;
        QTest::newRow("direct write") << true;
    }

    void slotWithoutARowDoesNothing()
    {
        QFETCH(bool, bypass);
        Keepouts keepouts;
        keepouts.items[0]->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        const std::unique_ptr<Set> set(keepouts.MakeSet());
        const Test::CommandLog log(*set);
        const QString before = keepouts.board.Dump();
        set->SetEn(true);
        TPropertyCheck stranger("Top");
        QVERIFY(connect(&stranger, SIGNAL(sigStateChanged(bool)), set.get(), SLOT(SetEn(bool))));
        stranger.SetCurrentState(true);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(keepouts.board.Dump(), before);
    }

    void onlyTheNameIsTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const Set set({AddKeepout(board, {})});
        QCOMPARE(set.Name(), QString("~Keepout polygons"));
        QCOMPARE(Test::Labels(&set).value(0), QString("Top"));
    }
};

PROPERTIES_TEST(TestKeepoutSet)
#include "tst_keepout.moc"
