#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TCheckBox2Widget.h"
#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPart.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <QCheckBox>
#include <QLabel>
#include <QSpinBox>

namespace {

using Set = TPropertySetForPart;
using Item = TGraphicsPartItem;

Item* AddPart(Test::SheetProject& design, const QString& refDes = "R1")
{
    Item* part = design.Add<Item>();
    part->SetRefDes(refDes);
    part->SetValue("4k7");
    part->SetName("RES");
    part->SetPackageName("0402@reflow");
    part->SetComponentNumber(12);
    return part;
}

Item* AddPartWithTexts(Test::SheetProject& design, const QString& refDes = "R1")
{
    Item* part = AddPart(design, refDes);
    part->SetRefDesText(design.Add<TGraphicsTextItem>());
    part->SetValueText(design.Add<TGraphicsTextItem>());
    return part;
}

void LockText(TGraphicsItem* text, bool on)
{
    if (text) {
        text->SetTFlag(TGraphicsItem::Lock, on);
    }
}

/** Three parts, no two alike, two with texts, and items of other kinds before and between them. */
struct Parts
{
    using Set = ::Set;
    using Item = ::Item;

    Parts()
    {
        TGraphicsItem* package = board.board.AddPackage("R1");
        items = {AddPart(board, "R1"), AddPartWithTexts(board, "R2"), AddPartWithTexts(board, "R3")};
        items[2]->SetLockRefDes(true);
        items[2]->SetLockValue(true);
        LockText(items[2]->RefDesText(), true);
        LockText(items[2]->ValueText(), true);
        selection = {package, items[0], items[1], board.AddWire("A"), items[2]};
    }

    Set* MakeSet() { return new Set(selection); }

    Test::SheetProject board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

TCheckBox2Widget* LocksOf(Set& set)
{
    return qobject_cast<TCheckBox2Widget*>(Test::FindRow(&set, "Lock:")->Editor());
}

/** These write at once, undo bypassed or not. */
const Test::SlotCase<Parts> lockCases[] = {
    {"designators locked", [](Set& set) { set.SetLockRefDes(true); }, [](Set& set) { LocksOf(set)->box1->click(); }, "",
     [](Item& part) {
         part.SetLockRefDes(true);
         LockText(part.RefDesText(), true);
     },
     nullptr, nullptr},
    {"designators unlocked", [](Set& set) { set.SetLockRefDes(false); }, nullptr, "",
     [](Item& part) {
         part.SetLockRefDes(false);
         LockText(part.RefDesText(), false);
     },
     nullptr, nullptr},
    {"values locked", [](Set& set) { set.SetLockValue(true); }, [](Set& set) { LocksOf(set)->box2->click(); }, "",
     [](Item& part) {
         part.SetLockValue(true);
         LockText(part.ValueText(), true);
     },
     nullptr, nullptr},
    {"values unlocked", [](Set& set) { set.SetLockValue(false); }, nullptr, "",
     [](Item& part) {
         part.SetLockValue(false);
         LockText(part.ValueText(), false);
     },
     nullptr, nullptr},
};

const QStringList plainRows = {
    "TPropertyText RefDes: = R1, read-only",
    "TPropertyText Value: = 4k7, read-only",
    "TPropertyText Package: = 0402, read-only",
    "TPropertyCheck2 Lock: = [ ] RefDes [ ] Value",
};

QString SwapRow(int shown)
{
    return QStringLiteral("TPropertyIntSpin Swap: 0..8 step 1 = %1, disabled").arg(shown);
}

using ChangePart = void (*)(Item& part);

} // namespace

Q_DECLARE_METATYPE(ChangePart)
Q_DECLARE_METATYPE(const Test::SlotCase<Parts>*)

class TestPartSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOnePart_data()
    {
        QTest::addColumn<ChangePart>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePart change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("designator", [](Item& part) { part.SetRefDes("U1A"); }, {"TPropertyText RefDes: = U1A, read-only"});
        add("value", [](Item& part) { part.SetValue("1 k"); }, {"TPropertyText Value: = 1 k, read-only"});
        add("package without a qualifier", [](Item& part) { part.SetPackageName("SO8"); },
            {"TPropertyText Package: = SO8, read-only"});
        add("package with two qualifiers", [](Item& part) { part.SetPackageName("SO8@wide@x"); },
            {"TPropertyText Package: = SO8, read-only"});
        add("package that is a qualifier only", [](Item& part) { part.SetPackageName("@wide"); },
            {"TPropertyText Package: = , read-only"});
        add("locked designator", [](Item& part) { part.SetLockRefDes(true); },
            {"TPropertyCheck2 Lock: = [x] RefDes [ ] Value"});
        add("locked value", [](Item& part) { part.SetLockValue(true); },
            {"TPropertyCheck2 Lock: = [ ] RefDes [x] Value"});
        add("name and number: not shown",
            [](Item& part) {
                part.SetName("CAP");
                part.SetComponentNumber(13);
            },
            {});
    }

    void showsOnePart()
    {
        QFETCH(ChangePart, change);
        QFETCH(QStringList, rows);
        Test::SheetProject design;
        Item* part = AddPart(design);
        change(*part);
        const Set set({part});
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void showsWhatTheSecondPartLeavesShared_data()
    {
        QTest::addColumn<ChangePart>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePart change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("nothing differs", [](Item&) {}, {});
        add("designator", [](Item& part) { part.SetRefDes("U1"); }, {"TPropertyText RefDes: = , read-only"});
        add("value", [](Item& part) { part.SetValue("1"); }, {"TPropertyText Value: = , read-only"});
        add("package", [](Item& part) { part.SetPackageName("0603@reflow"); },
            {"TPropertyText Package: = , read-only"});
        add("qualifier: not looked at", [](Item& part) { part.SetPackageName("0402@wave"); }, {});
        add("package in another case", [](Item& part) { part.SetPackageName("0402X"); },
            {"TPropertyText Package: = , read-only"});
        add("name and number: not shown",
            [](Item& part) {
                part.SetName("CAP");
                part.SetComponentNumber(13);
            },
            {});
        add("one lock of two", [](Item& part) { part.SetLockValue(true); }, {});
        add("swap number: not compared", [](Item& part) { part.SetSwapNumber(3); }, {});
    }

    void showsWhatTheSecondPartLeavesShared()
    {
        QFETCH(ChangePart, change);
        QFETCH(QStringList, rows);
        Test::SheetProject design;
        Item* second = AddPart(design);
        change(*second);
        const Set set({AddPart(design), second, AddPart(design)});
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void locksAreComparedEachForItself()
    {
        Test::SheetProject design;
        Item* first = AddPart(design);
        Item* second = AddPart(design);
        first->SetLockRefDes(true);
        first->SetLockValue(true);
        second->SetLockRefDes(true);
        const Set set({first, second});
        QCOMPARE(Test::RowTexts(&set).value(3), QString("TPropertyCheck2 Lock: = [x] RefDes [ ] Value"));
    }

    void swapNumberIsShownOfOnePartThatHasOne_data()
    {
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<bool>("withPin");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("none") << QList<int>{0} << false << QStringList();
        QTest::newRow("one") << QList<int>{3} << false << QStringList{SwapRow(3)};
        QTest::newRow("the largest that is offered") << QList<int>{8} << false << QStringList{SwapRow(8)};
        QTest::newRow("one that is not offered") << QList<int>{200} << false << QStringList{SwapRow(8)};
        QTest::newRow("one part and a pin") << QList<int>{3} << true << QStringList{SwapRow(3)};
        QTest::newRow("two parts") << QList<int>{3, 3} << false << QStringList();
    }

    void swapNumberIsShownOfOnePartThatHasOne()
    {
        QFETCH(QList<int>, numbers);
        QFETCH(bool, withPin);
        QFETCH(QStringList, rows);
        Test::SheetProject design;
        QList<TGraphicsItem*> selection;
        if (withPin) {
            selection.append(design.Add<TGraphicsPinItem>());
        }
        for (const int number : numbers) {
            Item* part = AddPart(design);
            part->SetSwapNumber(static_cast<quint8>(number));
            selection.append(part);
        }
        const Set set(selection);
        QCOMPARE(Test::RowTexts(&set), plainRows + rows);
    }

    void swapRowOfTwoPartsIsMadeAndShowsTheFirstOnesNumber()
    {
        Test::SheetProject design;
        Item* first = AddPart(design);
        Item* second = AddPart(design);
        first->SetSwapNumber(3);
        second->SetSwapNumber(5);
        const Test::UnshownEditors unshown;
        const Set set({first, second});
        const QList<QSpinBox*> boxes = unshown.Of<QSpinBox>(set);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first()->value(), 3);
        QVERIFY(!boxes.first()->isEnabled());
    }

    void swapRowCannotBeEditedInThePanel()
    {
        Test::SheetProject design;
        Item* part = AddPart(design);
        part->SetSwapNumber(3);
        const QString before = design.Dump();
        Test::PanelWindow place;
        auto* set = new Set({part});
        const Test::CommandLog log(*set);
        place.Show(set);
        auto* box = qobject_cast<QSpinBox*>(Test::FindRow(set, "Swap:")->Editor());
        QVERIFY(!box->isEnabled());
        box->stepUp(); // No slot hears of it.
        QCOMPARE(log.Count(), 0);
        QCOMPARE(design.Dump(), before);
    }

    void nameCountsAllItemsGiven()
    {
        Test::SheetProject design;
        Item* part = AddPart(design);
        TGraphicsItem* wire = design.AddWire("A");
        QCOMPARE(Set({part}).Name(), QString("Part"));
        QCOMPARE(Set({part, AddPart(design)}).Name(), QString("Parts"));
        const Set withWire({wire, part});
        QCOMPARE(withWire.Name(), QString("Parts"));
        QCOMPARE(Test::RowTexts(&withWire), plainRows);
        QCOMPARE(Set({wire}).Name(), QString("Part"));
        QCOMPARE(Set({}).Name(), QString("Parts"));
    }

    void withoutPartsThereAreNoRows()
    {
        Test::SheetProject design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.board.AddPackage(), design.AddWire("A")}}) {
            Set set(selection);
            QVERIFY(set.Properties().isEmpty());
            const QString before = design.Dump();
            set.SetLockRefDes(true);
            set.SetLockValue(true);
            QCOMPARE(design.Dump(), before);
        }
    }

    void textRowsDoNotOpenAndAreNotConnected()
    {
        Test::SheetProject design;
        const QList<TGraphicsItem*> parts{AddPart(design)};
        const QString before = design.Dump();
        Test::PanelWindow place;
        auto* set = new Set(parts);
        const Test::CommandLog log(*set);
        place.Show(set);
        for (const char* label : {"RefDes:", "Value:", "Package:"}) {
            TLineEdit* line = Test::RowOf<TPropertyText>(set, label)->line;
            QTest::mouseDClick(line->label, Qt::LeftButton);
            QVERIFY(!line->edit->isVisible());
            emit line->textChanged("X1");
        }
        QCOMPARE(log.Count(), 0);
        QCOMPARE(design.Dump(), before);
    }

    void nameAndNumberRowsAreMadeAndNotShown_data()
    {
        QTest::addColumn<bool>("differing");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("shared") << false << QStringList{"12", "RES"};
        QTest::newRow("differing") << true << QStringList{"", ""};
    }

    void nameAndNumberRowsAreMadeAndNotShown()
    {
        QFETCH(bool, differing);
        Test::SheetProject design;
        Item* second = AddPart(design);
        if (differing) {
            second->SetName("CAP");
            second->SetComponentNumber(13);
        }
        const Test::UnshownEditors unshown;
        const Set set({AddPart(design), second});
        QStringList texts;
        for (const QWidget* editor : unshown.Of<QWidget>(set)) {
            if (const auto* line = editor->findChild<TLineEdit*>()) {
                texts.append(line->label->text());
                QVERIFY(!line->IsEditable());
            }
        }
        texts.sort();
        QTEST(texts, "texts");
    }

    void locksAreAlwaysWrittenAtOnce_data() { Test::AddSlotRows(lockCases); }

    void locksAreAlwaysWrittenAtOnce()
    {
        QFETCH(const Test::SlotCase<Parts>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Parts>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Parts>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Parts>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void locksReachTheirOwnTextsOnly()
    {
        Test::SheetProject design;
        Item* part = AddPartWithTexts(design);
        Set set({part});
        set.SetLockRefDes(true);
        QVERIFY(part->RefDesText()->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!part->ValueText()->HasTFlag(TGraphicsItem::Lock));
        set.SetLockValue(true);
        set.SetLockRefDes(false);
        QVERIFY(!part->RefDesText()->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(part->ValueText()->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!part->HasTFlag(TGraphicsItem::Lock));
    }

    void textsAreTranslated()
    {
        Test::SheetProject design;
        Item* part = AddPart(design);
        const Test::MarkingTranslator translator;
        const Set one({part});
        const Set more({part, part});
        QCOMPARE(one.Name(), QString("~Part"));
        QCOMPARE(more.Name(), QString("~Parts"));
        QCOMPARE(
            Test::Untranslated(translator, "TPropertySetForPart",
                               {"RefDes:", "Value:", "Name:", "Package:", "Id:", "Lock:", "RefDes", "Value", "Swap:"}),
            QStringList());
    }
};

PROPERTIES_TEST(TestPartSet)
#include "tst_part.moc"
