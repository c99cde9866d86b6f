#include "tests/sets/TieProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForNetTieSch.h"

#include <QCheckBox>

namespace {

using Set = TPropertySetForNetTieSch;
using Item = TGraphicsNetTieSchItem;

/** Three symbols, no two alike, and items of other kinds before and between them. */
struct Symbols
{
    using Set = ::Set;
    using Item = ::Item;

    Symbols()
    {
        TGraphicsNetTiePcbItem* copper = board.AddTie(3, "NT3");
        copper->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {board.AddSymbol(3, "NT3"), board.AddSymbol(4, "NT4"), board.AddSymbol(5, "NT5")};
        items[1]->SetSymbol(1);
        items[2]->SetNameVisible(false);
        selection = {copper, items[0], items[1], board.board.AddVia(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, &board.project); }

    Test::TieProject board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<Symbols> slotCases[] = {
    {"name", [](Set& set) { set.SetName("other"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Name:")->line->textChanged("other"); }, "TCmdNetTieName",
     [](Item& tie) { tie.SetName("other"); }, nullptr, nullptr},
    {"name hidden", [](Set& set) { set.SetNameVis(false); },
     [](Set& set) { Test::RowOf<TPropertyText>(&set, "Name:")->visible->click(); }, "TCmdNetTieNameVis",
     [](Item& tie) { tie.SetNameVisible(false); }, nullptr, nullptr},
    {"symbol that there is not", [](Set& set) { set.SetSymbol(3); }, nullptr, "TCmdNetTieSchSymbol", nullptr, nullptr,
     nullptr},
    {"symbol", [](Set& set) { set.SetSymbol(2); },
     [](Set& set) { Test::RowOf<TPropertyEnum>(&set, "Symbol:")->Box()->setCurrentText("Symbol 3"); },
     "TCmdNetTieSchSymbol", [](Item& tie) { tie.SetSymbol(2); }, nullptr, nullptr},
};

const QStringList plainRows = {
    "TPropertyText Name: = NT3, [x] Show",
    "TPropertyEnum Symbol: Symbol 1 0, Symbol 2 1, Symbol 3 2 = Symbol 1",
    "TPropertyText Id: = 3, disabled",
};

using ChangeTie = void (*)(Item& tie);

} // namespace

Q_DECLARE_METATYPE(ChangeTie)
Q_DECLARE_METATYPE(const Test::SlotCase<Symbols>*)

class TestNetTieSchSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOneSymbol_data()
    {
        QTest::addColumn<ChangeTie>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeTie change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("name", [](Item& tie) { tie.SetName("a b"); }, {"TPropertyText Name: = a b, [x] Show"});
        add("name hidden", [](Item& tie) { tie.SetNameVisible(false); }, {"TPropertyText Name: = NT3, [ ] Show"});
        add("last symbol", [](Item& tie) { tie.SetSymbol(2); },
            {"TPropertyEnum Symbol: Symbol 1 0, Symbol 2 1, Symbol 3 2 = Symbol 3"});
        add("number", [](Item& tie) { tie.SetNumber(40000); }, {"TPropertyText Id: = 40000, disabled"});
    }

    void showsOneSymbol()
    {
        QFETCH(ChangeTie, change);
        QFETCH(QStringList, rows);
        Test::TieProject design;
        Item* tie = design.AddSymbol(3, "NT3");
        change(*tie);
        const Set set({tie}, &design.project);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
        QCOMPARE(set.Name(), QString("Net Tie"));
    }

    void showsTheFirstOfSeveral()
    {
        Symbols symbols;
        const std::unique_ptr<Set> set(symbols.MakeSet());
        QCOMPARE(Test::RowTexts(set.get()), plainRows);
        QCOMPARE(set->Name(), QString("Net Tie"));
    }

    void withoutSymbolsThereAreNoRows()
    {
        Test::TieProject design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.AddTie(3, "NT3"), design.board.AddVia()}}) {
            const Set set(selection, &design.project);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Net Tie"));
        }
    }

    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Symbols>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Symbols>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Symbols>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Symbols>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Symbols>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Symbols>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void visibilityReachesTheBoardInStepOnly_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("visible");
        QTest::newRow("in step") << int(TProject::InStep) << false;
        QTest::newRow("separate") << int(TProject::Separate) << true;
    }

    void visibilityReachesTheBoardInStepOnly()
    {
        QFETCH(int, kind);
        Test::TieProject design;
        design.project.SetKind(kind);
        const TGraphicsNetTiePcbItem* copper = design.AddTie(3, "NT3");
        Item* tie = design.AddSymbol(3, "NT3");
        Set set({tie}, &design.project);
        Test::CommandLog log(set);
        set.SetNameVis(false);
        log.Redo();
        QVERIFY(!tie->NameVisible());
        QTEST(copper->NameVisible(), "visible");
        log.Undo();
        QVERIFY(tie->NameVisible() && copper->NameVisible());
    }

    void directSymbolRepaints()
    {
        Test::TieProject design;
        Item* tie = design.AddSymbol(3, "NT3");
        tie->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({tie}, &design.project);
        Test::RepaintLog repaints(*design.page->Scene());
        set.SetSymbol(1);
        QVERIFY(!repaints.Take().isNull());
    }

    void directChangesStayOnThePage()
    {
        Test::TieProject design;
        design.project.SetKind(TProject::InStep);
        const TGraphicsNetTiePcbItem* tie = design.AddTie(3, "NT3");
        Item* symbol = design.AddSymbol(3, "NT3");
        symbol->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({symbol}, &design.project);
        const Test::CommandLog log(set);
        set.SetName("other");
        set.SetNameVis(false);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(symbol->Name(), QString("other"));
        QVERIFY(!symbol->NameVisible());
        QCOMPARE(tie->Name(), QString("NT3"));
        QVERIFY(tie->NameVisible());
    }

    void textsAreTranslated()
    {
        Test::TieProject design;
        const Test::MarkingTranslator translator;
        const Set set({design.AddSymbol(3, "NT3")}, &design.project);
        QCOMPARE(set.Name(), QString("~Net Tie"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForNetTieSch",
                                    {"Name:", "Symbol:", "Id:", "Symbol 1", "Symbol 2", "Symbol 3"}),
                 QStringList());
    }
};

PROPERTIES_TEST(TestNetTieSchSet)
#include "tst_nettiesch.moc"
