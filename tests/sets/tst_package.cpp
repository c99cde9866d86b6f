#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPackage.h"

#include <graphics/TGraphicsTextItem.h>

#include <QKeyEvent>
#include <QLabel>

namespace {

using Set = TPropertySetForPackage;
using Item = TGraphicsPackageItem;

const QList<Osmirel::Layer> sides{Osmirel::PackagesTop, Osmirel::PackagesBottom};

Item* AddPackage(Test::TestBoard& board, const QString& refDes)
{
    Item* package = board.AddPackage(refDes);
    package->SetLayer(Osmirel::PackagesTop);
    package->SetValue("4k7");
    package->SetPackageName("0402@reflow");
    package->SetComponentNumber(12);
    return package;
}

Item* AddPackageWithTexts(Test::TestBoard& board, const QString& refDes)
{
    Item* package = AddPackage(board, refDes);
    package->SetRefDesText(Test::Place<TGraphicsTextItem>(board));
    package->SetValueText(Test::Place<TGraphicsTextItem>(board));
    return package;
}

/** Three packages, no two alike, one with texts, and items of other kinds before and between them. */
struct Packages
{
    using Set = ::Set;
    using Item = ::Item;

    Packages()
    {
        TGraphicsViaItem* via = board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {AddPackage(board, "R1"), AddPackageWithTexts(board, "R2"), AddPackage(board, "R3")};
        items[1]->SetValue("10k");
        items[2]->SetLayer(Osmirel::PackagesBottom);
        items[2]->SetLockValue(true);
        selection = {via, items[0], items[1], board.AddHole(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, sides, &board); }

    Test::ViewedBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<Packages> sideCases[] = {
    {"side, which the third has", [](Set& set) { set.SetSide(Osmirel::PackagesBottom); },
     [](Set& set) { Test::RowOf<TPropertyLayer>(&set, "Side:")->Box()->setCurrentText("Packages bottom"); },
     "TCmdPkgSide", [](Item& package) { package.SetLayer(Osmirel::PackagesBottom); }, nullptr, nullptr},
};

void SetLock(TGraphicsItem* text, bool on)
{
    if (text) {
        text->SetTFlag(TGraphicsItem::Lock, on);
    }
}

/** These write at once, undo bypassed or not. */
const Test::SlotCase<Packages> directCases[] = {
    {"value", [](Set& set) { set.SetValue("1M"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Value:")->line->textChanged("1M"); }, "",
     [](Item& package) { package.SetValue("1M"); }, nullptr, nullptr},
    {"package name", [](Set& set) { set.SetPackage("0603@wave"); }, nullptr, "",
     [](Item& package) { package.SetPackageName("0603@wave"); }, nullptr, nullptr},
    {"lock of the designator, with its text", [](Set& set) { set.SetLockRefDes(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck2>(&set, "Lock:")->SetChecked1(true); }, "",
     [](Item& package) {
         package.SetLockRefDes(true);
         SetLock(package.RefDesText(), true);
     },
     nullptr, nullptr},
    {"lock of the value, with its text", [](Set& set) { set.SetLockValue(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck2>(&set, "Lock:")->SetChecked2(true); }, "",
     [](Item& package) {
         package.SetLockValue(true);
         SetLock(package.ValueText(), true);
     },
     nullptr, nullptr},
};

const Test::SlotCase<Packages> nothingCases[] = {
    {"designator", [](Set& set) { set.SetRefDes("C5"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "RefDes:")->line->textChanged("C5"); }, nullptr, nullptr,
     [](Item&) {}, nullptr},
};

const QStringList plainRows = {
    "TPropertyText RefDes: = R1, read-only",
    "TPropertyText Value: = 4k7, read-only",
    "TPropertyText Package: = 0402, read-only",
    "TPropertyCheck2 Lock: = [ ] RefDes [ ] Value",
    "TPropertyLayer Side: Packages top 59, Packages bottom 84 = Packages top",
};

using ChangePackage = void (*)(Item& package);

void Press(Set& set, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    set.KeyPressEvent(&event);
}

} // namespace

Q_DECLARE_METATYPE(ChangePackage)
Q_DECLARE_METATYPE(const Test::SlotCase<Packages>*)

class TestPackageSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOnePackage_data()
    {
        QTest::addColumn<ChangePackage>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePackage change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("designator", [](Item& package) { package.SetRefDes("U1"); }, {"TPropertyText RefDes: = U1, read-only"});
        add("value", [](Item& package) { package.SetValue("1 k"); }, {"TPropertyText Value: = 1 k, read-only"});
        add("package without a qualifier", [](Item& package) { package.SetPackageName("SO8"); },
            {"TPropertyText Package: = SO8, read-only"});
        add("package with two qualifiers", [](Item& package) { package.SetPackageName("SO8@wide@x"); },
            {"TPropertyText Package: = SO8, read-only"});
        add("package that is a qualifier only", [](Item& package) { package.SetPackageName("@wide"); },
            {"TPropertyText Package: = , read-only"});
        add("locked designator", [](Item& package) { package.SetLockRefDes(true); },
            {"TPropertyCheck2 Lock: = [x] RefDes [ ] Value"});
        add("locked value", [](Item& package) { package.SetLockValue(true); },
            {"TPropertyCheck2 Lock: = [ ] RefDes [x] Value"});
        add("other side", [](Item& package) { package.SetLayer(Osmirel::PackagesBottom); },
            {"TPropertyLayer Side: Packages top 59, Packages bottom 84 = Packages bottom"});
    }

    void showsOnePackage()
    {
        QFETCH(ChangePackage, change);
        QFETCH(QStringList, rows);
        Test::ViewedBoard board;
        Item* package = AddPackage(board, "R1");
        change(*package);
        const Set set({package}, sides, &board);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void showsWhatTheSecondPackageLeavesShared_data()
    {
        QTest::addColumn<ChangePackage>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePackage change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("nothing differs", [](Item&) {}, {});
        add("designator", [](Item& package) { package.SetRefDes("U1"); }, {"TPropertyText RefDes: = , read-only"});
        add("value", [](Item& package) { package.SetValue("1"); }, {"TPropertyText Value: = , read-only"});
        add("package", [](Item& package) { package.SetPackageName("0603@reflow"); },
            {"TPropertyText Package: = , read-only"});
        add("qualifier: not looked at", [](Item& package) { package.SetPackageName("0402@wave"); }, {});
        add("package in another case", [](Item& package) { package.SetPackageName("0402X"); },
            {"TPropertyText Package: = , read-only"});
        add("number: not shown", [](Item& package) { package.SetComponentNumber(13); }, {});
        add("one lock of two", [](Item& package) { package.SetLockRefDes(true); }, {});
        add("side", [](Item& package) { package.SetLayer(Osmirel::PackagesBottom); },
            {"TPropertyLayer Side: Packages top 59, Packages bottom 84 = none"});
    }

    void showsWhatTheSecondPackageLeavesShared()
    {
        QFETCH(ChangePackage, change);
        QFETCH(QStringList, rows);
        Test::ViewedBoard board;
        Item* second = AddPackage(board, "R1");
        change(*second);
        const Set set({AddPackage(board, "R1"), second, AddPackage(board, "R1")}, sides, &board);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void locksAreComparedEachForItself()
    {
        Test::ViewedBoard board;
        Item* first = AddPackage(board, "R1");
        Item* second = AddPackage(board, "R1");
        first->SetLockRefDes(true);
        first->SetLockValue(true);
        second->SetLockValue(true);
        const Set set({first, second}, sides, &board);
        QCOMPARE(Test::RowTexts(&set).value(3), QString("TPropertyCheck2 Lock: = [ ] RefDes [x] Value"));
    }

    void nameCountsAllItemsGiven()
    {
        Test::ViewedBoard board;
        Item* package = AddPackage(board, "R1");
        QCOMPARE(Set({package}, sides, &board).Name(), QString("Package"));
        QCOMPARE(Set({package, AddPackage(board, "R2")}, sides, &board).Name(), QString("Packages"));
        const Set withVia({board.AddVia(), package}, sides, &board);
        QCOMPARE(withVia.Name(), QString("Packages"));
        QCOMPARE(Test::RowTexts(&withVia), plainRows);
        QCOMPARE(Set({board.AddVia()}, sides, &board).Name(), QString("Package"));
        QCOMPARE(Set({}, sides, &board).Name(), QString("Packages"));
    }

    void withoutPackagesThereAreNoRows()
    {
        Test::ViewedBoard board;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{board.AddVia(), board.AddHole()}}) {
            Set set(selection, sides, &board);
            const Test::CommandLog log(set);
            QVERIFY(set.Properties().isEmpty());
            Press(set, Qt::Key_O);
            QCOMPARE(log.Count(), 0);
        }
    }

    void sideRowHasTheWorkspaceOfTheFirstItemGiven()
    {
        Test::ViewedBoard board;
        Test::ViewedBoard other;
        other.LayerManager()->AddLayer({Osmirel::PackagesTop, "Above", Qt::red, {}});
        const Set set({other.AddVia(), AddPackage(board, "R1")}, {Osmirel::PackagesTop}, &board);
        QCOMPARE(Test::RowTexts(&set).value(4), QString("TPropertyLayer Side: Above 59 = Above"));
    }

    void textRowsDoNotOpen()
    {
        Test::ViewedBoard board;
        Test::PanelWindow place;
        auto* set = new Set({AddPackage(board, "R1")}, sides, &board);
        place.Show(set);
        for (const char* label : {"RefDes:", "Value:", "Package:"}) {
            TLineEdit* line = Test::RowOf<TPropertyText>(set, label)->line;
            QTest::mouseDClick(line->label, Qt::LeftButton);
            QVERIFY(!line->edit->isVisible());
        }
    }

    void numberRowIsMadeAndNotShown()
    {
        Test::ViewedBoard board;
        const Test::UnshownEditors unshown;
        const Set set({AddPackage(board, "R1"), AddPackage(board, "R2")}, sides, &board);
        QStringList texts;
        for (const QWidget* editor : unshown.Of<QWidget>(set)) {
            if (const auto* line = editor->findChild<TLineEdit*>()) {
                texts.append(line->label->text() + (line->IsEditable() ? ", editable" : ""));
            }
        }
        QCOMPARE(texts, QStringList{"12"});
    }

    void sideMakesACommand_data() { Test::AddSlotRows(sideCases); }

    void sideMakesACommand()
    {
        QFETCH(const Test::SlotCase<Packages>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Packages>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Packages>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void sideIsWrittenAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(sideCases); }

    void sideIsWrittenAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Packages>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Packages>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Packages>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void directSideLeavesTextsAndConnections_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("command: texts follow the board") << false;
        QTest::newRow("written at once: texts stay") << true;
    }

    void directSideLeavesTextsAndConnections()
    {
        QFETCH(bool, bypass);
        Test::ViewedBoard board;
        board.SetValuesVisible(false);
        Item* package = AddPackageWithTexts(board, "R1");
        package->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        board.Items(); // Works out what was asked for until now.
        Set set({package}, sides, &board);
        Test::CommandLog log(set);
        set.SetSide(Osmirel::PackagesBottom);
        log.Redo();
        QCOMPARE(package->Layer(), Osmirel::PackagesBottom);
        QCOMPARE(package->ValueText()->isVisible(), bypass);
        QVERIFY(package->RefDesText()->isVisible());
    }

    void otherSlotsAlwaysWriteAtOnce_data() { Test::AddSlotRows(directCases); }

    void otherSlotsAlwaysWriteAtOnce()
    {
        QFETCH(const Test::SlotCase<Packages>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Packages>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Packages>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void designatorRowDoesNothing_data() { Test::AddSlotRows(nothingCases); }

    void designatorRowDoesNothing()
    {
        QFETCH(const Test::SlotCase<Packages>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Packages>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Packages>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void unlockingReachesTheTextsToo()
    {
        Test::ViewedBoard board;
        Item* package = AddPackageWithTexts(board, "R1");
        Set set({package}, sides, &board);
        set.SetLockRefDes(true);
        QVERIFY(package->RefDesText()->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!package->ValueText()->HasTFlag(TGraphicsItem::Lock));
        set.SetLockValue(true);
        set.SetLockRefDes(false);
        QVERIFY(!package->RefDesText()->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(package->ValueText()->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!package->HasTFlag(TGraphicsItem::Lock));
    }

    void valueAndPackageAreAnnounced()
    {
        Packages packages;
        const std::unique_ptr<Set> set(packages.MakeSet());
        const Test::SignalCounter attributes(set.get(), "sigAttr()");
        QVERIFY(attributes.IsConnected());
        set->SetValue("1M");
        QCOMPARE(attributes.Count(), 1);
        set->SetPackage("0603");
        QCOMPARE(attributes.Count(), 2);
        set->SetRefDes("C5");
        set->SetLockRefDes(true);
        set->SetLockValue(true);
        set->SetSide(Osmirel::PackagesBottom);
        QCOMPARE(attributes.Count(), 2);
    }

    void packageRowIsNotConnected()
    {
        Packages packages;
        const std::unique_ptr<Set> set(packages.MakeSet());
        const QString before = packages.board.Dump();
        emit Test::RowOf<TPropertyText>(set.get(), "Package:")->line->textChanged("0603");
        QCOMPARE(packages.board.Dump(), before);
    }

    void keyChangesTheSide_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("O from the top") << int(Qt::Key_O) << 59 << 84;
        QTest::newRow("O from the bottom") << int(Qt::Key_O) << 84 << 59;
        QTest::newRow("O from elsewhere") << int(Qt::Key_O) << 75 << 59;
        QTest::newRow("P") << int(Qt::Key_P) << 59 << 59;
        QTest::newRow("0") << int(Qt::Key_0) << 59 << 59;
    }

    void keyChangesTheSide()
    {
        QFETCH(int, key);
        QFETCH(int, from);
        Test::ViewedBoard board;
        Item* package = AddPackage(board, "R1");
        package->SetLayer(static_cast<Osmirel::Layer>(from));
        Set set({package}, sides, &board);
        Test::CommandLog log(set);
        Press(set, key);
        log.Redo();
        QTEST(static_cast<int>(package->Layer()), "to");
        QCOMPARE(log.Count(), key == Qt::Key_O ? 1 : 0);
    }

    void keyMovesAMixedSelectionToTheTop()
    {
        Packages packages;
        const std::unique_ptr<Set> set(packages.MakeSet());
        Test::CommandLog log(*set);
        Press(*set, Qt::Key_O);
        log.Redo();
        for (const Item* package : packages.items) {
            QCOMPARE(package->Layer(), Osmirel::PackagesTop);
        }
    }

    void keyWritesAtOnceWhereUndoIsBypassed()
    {
        Test::ViewedBoard board;
        Item* package = AddPackage(board, "R1");
        package->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({package}, sides, &board);
        const Test::CommandLog log(set);
        Press(set, Qt::Key_O);
        QCOMPARE(package->Layer(), Osmirel::PackagesBottom);
        QCOMPARE(log.Count(), 0);
    }

    void textsAreTranslated()
    {
        Test::ViewedBoard board;
        Item* package = AddPackage(board, "R1");
        const Test::MarkingTranslator translator;
        const Set one({package}, sides, &board);
        const Set more({package, package}, sides, &board);
        QCOMPARE(one.Name(), QString("~Package"));
        QCOMPARE(more.Name(), QString("~Packages"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForPackage",
                                    {"RefDes:", "Value:", "Package:", "Id:", "Lock:", "Side:", "RefDes", "Value"}),
                 QStringList());
    }
};

PROPERTIES_TEST(TestPackageSet)
#include "tst_package.moc"
