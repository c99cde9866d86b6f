#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPin.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <QCheckBox>

namespace {

using Set = TPropertySetForPin;
using Item = TGraphicsPinItem;

void WriteNumber(Item& pin, const QString& number)
{
    pin.NumberText()->SetText(number);
    pin.NumberText()->UpdatePath(false);
    pin.UpdateNumberPos();
}

Item* AddPin(Test::SheetProject& design, const QString& number)
{
    Item* pin = design.Add<Item>();
    pin->SetName("P" + number);
    WriteNumber(*pin, number);
    return pin;
}

/** Three pins, no two alike, the last one placed, and items of other kinds before and between them. */
struct Pins
{
    using Set = ::Set;
    using Item = ::Item;

    Pins()
    {
        auto* part = board.Add<TGraphicsPartItem>();
        part->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {AddPin(board, "1"), AddPin(board, "2"), AddPin(board, "3")};
        items[1]->SetPinType(Item::TypePower);
        items[1]->SetPinStyle(Item::StyleInverse);
        items[1]->SetSwap(9);
        items[2]->SetPinLength(Item::LengthShort);
        items[2]->UpdatePath();
        items[2]->SetNumberVisible(false);
        items[2]->setParentItem(part);
        selection = {part, items[0], items[1], board.board.AddVia(), items[2]};
    }

    Set* MakeSet() { return new Set(selection); }

    Test::SheetProject board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

void Choose(Set& set, const char* label, const char* text)
{
    Test::RowOf<TPropertyEnum>(&set, label)->Box()->setCurrentText(text);
}

const Test::SlotCase<Pins> slotCases[] = {
    {"name", [](Set& set) { set.SetName("RST"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Name:")->line->textChanged("RST"); }, "TCmdPinName",
     [](Item& pin) { pin.SetName("RST"); }, nullptr, nullptr},
    {"no name", [](Set& set) { set.SetName({}); }, nullptr, "TCmdPinName", [](Item& pin) { pin.SetName({}); }, nullptr,
     nullptr},
    {"names hidden", [](Set& set) { set.SetNameVisible(false); },
     [](Set& set) { Test::RowOf<TPropertyText>(&set, "Name:")->visible->click(); }, "TCmdPinNameVis",
     [](Item& pin) { pin.SetNameVisible(false); }, nullptr, nullptr},
    {"number", [](Set& set) { set.SetNumber("A1"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Number:")->line->textChanged("A1"); }, "TCmdPinNumber",
     [](Item& pin) { WriteNumber(pin, "A1"); }, nullptr, nullptr},
    {"numbers shown, as the box of mixed ones says when it is clicked", [](Set& set) { set.SetNumberVisible(true); },
     [](Set& set) { Test::RowOf<TPropertyText>(&set, "Number:")->visible->click(); }, "TCmdPinNumberVis",
     [](Item& pin) { pin.SetNumberVisible(true); }, nullptr, nullptr},
    {"numbers hidden", [](Set& set) { set.SetNumberVisible(false); }, nullptr, "TCmdPinNumberVis",
     [](Item& pin) { pin.SetNumberVisible(false); }, nullptr, nullptr},
    {"type that there is not", [](Set& set) { set.SetPinType(99); }, nullptr, "TCmdPinType", nullptr, nullptr, nullptr},
    {"swap group that there is not", [](Set& set) { set.SetSwap(300); }, nullptr, "TCmdPinSwap", nullptr, nullptr,
     nullptr},
    {"type", [](Set& set) { set.SetPinType(5); }, [](Set& set) { Choose(set, "Type:", "Open Collector"); },
     "TCmdPinType", [](Item& pin) { pin.SetPinType(Item::TypeOpenCollector); }, nullptr, nullptr},
    {"type of mixed ones, the first of the list", [](Set& set) { set.SetPinType(0); },
     [](Set& set) { Choose(set, "Type:", "Passive"); }, "TCmdPinType",
     [](Item& pin) { pin.SetPinType(Item::TypePassive); }, nullptr, nullptr},
    {"style", [](Set& set) { set.SetPinStyle(1); }, [](Set& set) { Choose(set, "Style:", "Inverse"); }, "TCmdPinStyle",
     [](Item& pin) { pin.SetPinStyle(Item::StyleInverse); }, nullptr, nullptr},
    {"length", [](Set& set) { set.SetPinLength(3); }, [](Set& set) { Choose(set, "Length:", "Long"); }, "TCmdPinLength",
     [](Item& pin) {
         pin.SetPinLength(Item::LengthLong);
         pin.UpdatePath();
     },
     nullptr, nullptr},
    {"swap group", [](Set& set) { set.SetSwap(255); }, nullptr, "TCmdPinSwap", [](Item& pin) { pin.SetSwap(255); },
     nullptr, nullptr},
};

using CallSlot = void (*)(Set& set);

/** What a slot refreshes. The number's text is marked by hand to see who puts it back, and who lays it out anew. */
struct Refresh
{
    const char* name;
    CallSlot callSlot;
    bool repaints;
    bool placesTheNumber;
    bool laysTheNumberOut;
};

const Refresh refreshes[] = {
    {"name", [](Set& set) { set.SetName("RST"); }, true, false, false},
    {"visible name", [](Set& set) { set.SetNameVisible(false); }, true, false, false},
    {"number", [](Set& set) { set.SetNumber("A1"); }, true, true, true},
    {"visible number", [](Set& set) { set.SetNumberVisible(false); }, true, false, false},
    {"type", [](Set& set) { set.SetPinType(3); }, true, false, false},
    {"style", [](Set& set) { set.SetPinStyle(1); }, true, true, false},
    {"length", [](Set& set) { set.SetPinLength(3); }, true, true, false},
    {"swap group: nothing", [](Set& set) { set.SetSwap(7); }, false, false, false},
};

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Pins>*)
Q_DECLARE_METATYPE(const Refresh*)

class TestPinSlots : public QObject
{
    Q_OBJECT

private slots:
    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Pins>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Pins>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Pins>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Pins>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Pins>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Pins>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void refreshesWhatBelongsToIt_data()
    {
        QTest::addColumn<const Refresh*>("refresh");
        QTest::addColumn<bool>("bypass");
        for (const Refresh& refresh : refreshes) {
            QTest::addRow("%s, command", refresh.name) << &refresh << false;
            QTest::addRow("%s, written at once", refresh.name) << &refresh << true;
        }
    }

    void refreshesWhatBelongsToIt()
    {
        QFETCH(const Refresh*, refresh);
        QFETCH(bool, bypass);
        Test::SheetProject design;
        Item* pin = AddPin(design, "14");
        pin->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        const QPointF elsewhere(-77, -77);
        pin->NumberText()->setPos(elsewhere);
        pin->NumberText()->SetAlignment(Qt::AlignRight);
        const QRectF extent = pin->NumberText()->boundingRect();
        Test::RepaintLog repaints(*design.page->Scene());
        Set set({pin});
        Test::CommandLog log(set);
        refresh->callSlot(set);
        log.Redo();
        QCOMPARE(log.Count(), bypass ? 0 : 1);
        QCOMPARE(!repaints.Take().isNull(), refresh->repaints);
        QCOMPARE(pin->NumberText()->pos() != elsewhere, refresh->placesTheNumber);
        QCOMPARE(pin->NumberText()->boundingRect() != extent, refresh->laysTheNumberOut);

        pin->NumberText()->setPos(elsewhere);
        repaints.Take();
        log.Undo();
        QCOMPARE(!repaints.Take().isNull(), refresh->repaints && !bypass);
        QCOMPARE(pin->NumberText()->pos() != elsewhere, refresh->placesTheNumber && !bypass);
    }

    void swapGroupRepaintsNothing()
    {
        Test::SheetProject design;
        Item* pin = AddPin(design, "1");
        pin->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({pin});
        Test::RepaintLog repaints(*design.page->Scene());
        set.SetSwap(3);
        QCOMPARE(static_cast<int>(pin->Swap()), 3);
        QCOMPARE(repaints.Take(), QRectF());
        set.SetPinType(3); // Such a log would show it.
        QVERIFY(!repaints.Take().isNull());
    }

    void numberIsKeptWithoutItsText()
    {
        for (const bool bypass : {false, true}) {
            Test::SheetProject design;
            Item* pin = AddPin(design, "1");
            Item* whole = AddPin(design, "2");
            pin->SetTFlag(TGraphicsItem::UndoBypass, bypass);
            delete pin->NumberText();
            Set set({pin, whole});
            Test::CommandLog log(set);
            set.SetNumber("7");
            set.SetNumberVisible(false);
            log.Redo();
            QCOMPARE(pin->Number(), QString());
            QCOMPARE(whole->Number(), QString("7"));
            QVERIFY(!whole->NumberText()->isVisible());
        }
    }

    void everyStepIsACommandOfItsOwn()
    {
        Test::SheetProject design;
        Set set({AddPin(design, "1")});
        const Test::CommandLog log(set);
        Choose(set, "Length:", "Long");
        Choose(set, "Length:", "Short");
        Choose(set, "Length:", "Long");
        QCOMPARE(log.Names(), (QStringList{"TCmdPinLength", "TCmdPinLength", "TCmdPinLength"}));
    }
};

PROPERTIES_TEST(TestPinSlots)
#include "tst_pinslots.moc"
