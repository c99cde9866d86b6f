#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/sets/TPropertySetForPin.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>

#include <QLabel>
#include <QSpinBox>

namespace {

using Set = TPropertySetForPin;
using Item = TGraphicsPinItem;

Item* AddPin(Test::SheetProject& design)
{
    Item* pin = design.Add<Item>();
    pin->SetName("CLK");
    pin->NumberText()->SetText("14");
    pin->SetPinType(Item::TypeInput);
    pin->SetSwap(5);
    return pin;
}

QString TypeRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Type: Passive 0, Input 1, Output 2, Bidirectional 3, Hi-Z 4, "
                          "Open Collector 5, Power 6, No connect 7 = ")
           + shown;
}

QString StyleRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Style: Normal 0, Inverse 1 = ") + shown;
}

QString LengthRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Length: Zero 0, Short 1, Middle 2, Long 3 = ") + shown;
}

QStringList PlainRows()
{
    return {"TPropertyText Name: = CLK, [x] Show", "TPropertyText Number: = 14, [x] Show", TypeRow("Input"),
            StyleRow("Normal"), LengthRow("Middle")};
}

const QStringList allLabels{"Name:", "Number:", "Type:", "Style:", "Length:"};
const QStringList placedLabels{"Type:", "Style:"};
const QStringList openLabels{"Type:", "Style:", "Length:"};

using ChangePin = void (*)(Item& pin);
using MakeParent = TGraphicsItem* (*)(Test::SheetProject& design);

TGraphicsItem* NoParent(Test::SheetProject&)
{
    return nullptr;
}

template <class Symbol>
TGraphicsItem* Place(Test::SheetProject& design)
{
    return design.Add<Symbol>();
}

TGraphicsItem* PlaceOpenPart(Test::SheetProject& design)
{
    auto* part = design.Add<TGraphicsPartItem>();
    part->SetSymbolOpen(true);
    return part;
}

} // namespace

Q_DECLARE_METATYPE(ChangePin)
Q_DECLARE_METATYPE(MakeParent)

class TestPinSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOnePin_data()
    {
        QTest::addColumn<ChangePin>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePin change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("name", [](Item& pin) { pin.SetName("~{RST}"); }, {"TPropertyText Name: = ~{RST}, [x] Show"});
        add("no name", [](Item& pin) { pin.SetName({}); }, {"TPropertyText Name: = , [x] Show"});
        add("name hidden", [](Item& pin) { pin.SetNameVisible(false); }, {"TPropertyText Name: = CLK, [ ] Show"});
        add("number", [](Item& pin) { pin.NumberText()->SetText("A7"); }, {"TPropertyText Number: = A7, [x] Show"});
        add("number hidden", [](Item& pin) { pin.SetNumberVisible(false); }, {"TPropertyText Number: = 14, [ ] Show"});
        add("number without its text", [](Item& pin) { delete pin.NumberText(); },
            {"TPropertyText Number: = , [x] Show"});
        const char* types[] = {"Passive", "Input",          "Output", "Bidirectional",
                               "Hi-Z",    "Open Collector", "Power",  "No connect"};
        const ChangePin setTypes[] = {
            [](Item& pin) { pin.SetPinType(Item::TypePassive); },
            [](Item& pin) { pin.SetPinType(Item::TypeInput); },
            [](Item& pin) { pin.SetPinType(Item::TypeOutput); },
            [](Item& pin) { pin.SetPinType(Item::TypeBidirectional); },
            [](Item& pin) { pin.SetPinType(Item::TypeHighImpedance); },
            [](Item& pin) { pin.SetPinType(Item::TypeOpenCollector); },
            [](Item& pin) { pin.SetPinType(Item::TypePower); },
            [](Item& pin) { pin.SetPinType(Item::TypeNoConnect); },
        };
        for (std::size_t i = 0; i < std::size(types); ++i) {
            add(types[i], setTypes[i], {TypeRow(types[i])});
        }
        add("inverse", [](Item& pin) { pin.SetPinStyle(Item::StyleInverse); }, {StyleRow("Inverse")});
        add("zero length", [](Item& pin) { pin.SetPinLength(Item::LengthZero); }, {LengthRow("Zero")});
        add("short", [](Item& pin) { pin.SetPinLength(Item::LengthShort); }, {LengthRow("Short")});
        add("long", [](Item& pin) { pin.SetPinLength(Item::LengthLong); }, {LengthRow("Long")});
        add("swap group: not shown", [](Item& pin) { pin.SetSwap(255); }, {});
    }

    void showsOnePin()
    {
        QFETCH(ChangePin, change);
        QFETCH(QStringList, rows);
        Test::SheetProject design;
        Item* pin = AddPin(design);
        change(*pin);
        const Set set({pin});
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(PlainRows(), rows));
    }

    void showsWhatTheSecondPinLeavesShared_data()
    {
        QTest::addColumn<ChangePin>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePin change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("nothing differs", [](Item&) {}, {});
        add("name", [](Item& pin) { pin.SetName("D"); }, {"TPropertyText Name: = , [x] Show"});
        add("name hidden", [](Item& pin) { pin.SetNameVisible(false); }, {"TPropertyText Name: = CLK, [ ] Show"});
        add("number", [](Item& pin) { pin.NumberText()->SetText("15"); }, {"TPropertyText Number: = , [x] Show"});
        add("number hidden", [](Item& pin) { pin.SetNumberVisible(false); }, {"TPropertyText Number: = 14, [ ] Show"});
        add("type", [](Item& pin) { pin.SetPinType(Item::TypePassive); }, {TypeRow("none")});
        add("style", [](Item& pin) { pin.SetPinStyle(Item::StyleInverse); }, {StyleRow("none")});
        add("length", [](Item& pin) { pin.SetPinLength(Item::LengthZero); }, {LengthRow("none")});
        add("swap group: not shown", [](Item& pin) { pin.SetSwap(6); }, {});
        add("place", [](Item& pin) { pin.setPos(1000, 1000); }, {});
    }

    void showsWhatTheSecondPinLeavesShared()
    {
        QFETCH(ChangePin, change);
        QFETCH(QStringList, rows);
        Test::SheetProject design;
        Item* second = AddPin(design);
        change(*second);
        const Set set({AddPin(design), second, AddPin(design)});
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(PlainRows(), rows));
    }

    void rowsOfPlacedPins_data()
    {
        QTest::addColumn<MakeParent>("first");
        QTest::addColumn<MakeParent>("second");
        QTest::addColumn<QStringList>("labels");
        const auto add = [](const char* name, MakeParent first, MakeParent second, const QStringList& labels) {
            QTest::newRow(name) << first << second << labels;
        };
        add("of nothing", NoParent, NoParent, allLabels);
        add("of a part", Place<TGraphicsPartItem>, Place<TGraphicsPartItem>, placedLabels);
        add("of a part that is open", PlaceOpenPart, PlaceOpenPart, openLabels);
        add("of a port", Place<TGraphicsPortItem>, Place<TGraphicsPortItem>, placedLabels);
        add("of a net tie", Place<TGraphicsNetTieSchItem>, Place<TGraphicsNetTieSchItem>, placedLabels);
        add("the first is placed", Place<TGraphicsPartItem>, NoParent, placedLabels);
        add("the second is placed", NoParent, Place<TGraphicsPartItem>, allLabels);
        add("the first one's part is open", PlaceOpenPart, Place<TGraphicsPartItem>, openLabels);
        add("the second one's part is open", Place<TGraphicsPartItem>, PlaceOpenPart, placedLabels);
    }

    void rowsOfPlacedPins()
    {
        QFETCH(MakeParent, first);
        QFETCH(MakeParent, second);
        QFETCH(QStringList, labels);
        Test::SheetProject design;
        TGraphicsItem* part = PlaceOpenPart(design); // Not a pin, so its state does not matter.
        QList<TGraphicsItem*> pins;
        for (const MakeParent makeParent : {first, second}) {
            pins.append(AddPin(design));
            pins.last()->setParentItem(makeParent(design));
        }
        QCOMPARE(Test::Labels(std::make_unique<Set>(QList<TGraphicsItem*>{part} + pins).get()), labels);
        QCOMPARE(Test::Labels(std::make_unique<Set>(pins).get()), labels);
    }

    void nameCountsThePins_data()
    {
        QTest::addColumn<int>("pins");
        QTest::addColumn<bool>("withPart");
        QTest::addColumn<QString>("name");
        QTest::newRow("one") << 1 << false << "Pin";
        QTest::newRow("two") << 2 << false << "Pins";
        QTest::newRow("one and something else") << 1 << true << "Pin";
        QTest::newRow("two and something else") << 2 << true << "Pins";
        QTest::newRow("none") << 0 << false << "Pins";
    }

    void nameCountsThePins()
    {
        QFETCH(int, pins);
        QFETCH(bool, withPart);
        Test::SheetProject design;
        QList<TGraphicsItem*> selection;
        if (withPart) {
            selection.append(design.Add<TGraphicsPartItem>());
        }
        for (int i = 0; i < pins; ++i) {
            selection.append(AddPin(design));
        }
        const Set set(selection);
        QTEST(set.Name(), "name");
        QCOMPARE(Test::RowTexts(&set), pins > 0 ? PlainRows() : QStringList());
    }

    void withoutPinsThereAreNoRows()
    {
        Test::SheetProject design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.Add<TGraphicsPartItem>(), design.board.AddVia()}}) {
            Set set(selection);
            const Test::CommandLog log(set);
            QVERIFY(set.Properties().isEmpty());
            set.SetName("A");
            set.SetNameVisible(false);
            set.SetNumber("1");
            set.SetNumberVisible(false);
            set.SetPinType(1);
            set.SetPinStyle(1);
            set.SetPinLength(1);
            set.SetSwap(1);
            QCOMPARE(log.Count(), 0);
        }
    }

    void swapRowIsMadeConnectedAndNotShown()
    {
        Test::SheetProject design;
        Item* pin = AddPin(design);
        const Test::UnshownEditors unshown;
        Set set({pin});
        Test::CommandLog log(set);
        const QList<QSpinBox*> boxes = unshown.Of<QSpinBox>(set);
        QCOMPARE(boxes.size(), 1);
        QSpinBox* box = boxes.first();
        QCOMPARE(box->minimum(), 0);
        QCOMPARE(box->maximum(), 255);
        QCOMPARE(box->singleStep(), 1);
        QCOMPARE(box->value(), 5);
        box->stepUp();
        QCOMPARE(log.Names(), QStringList{"TCmdPinSwap"});
        log.Redo();
        QCOMPARE(static_cast<int>(pin->Swap()), 6);
        log.Undo();
        QCOMPARE(static_cast<int>(pin->Swap()), 5);
    }

    void swapRowOfPinsThatDifferIsLeftAtItsDefault()
    {
        Test::SheetProject design;
        Item* second = AddPin(design);
        second->SetSwap(6);
        const Test::UnshownEditors unshown;
        const Set set({AddPin(design), second});
        const QList<QSpinBox*> boxes = unshown.Of<QSpinBox>(set);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first()->value(), 0);
    }

    void unshownRowsOfPlacedPinsAreMadeAllTheSame()
    {
        Test::SheetProject design;
        Item* pin = AddPin(design);
        pin->setParentItem(design.Add<TGraphicsPartItem>());
        const Test::UnshownEditors unshown;
        const Set set({pin});
        QStringList texts;
        for (const QWidget* editor : unshown.Of<QWidget>(set)) {
            if (const auto* line = editor->findChild<TLineEdit*>()) {
                texts.append(line->label->text());
            }
        }
        texts.sort();
        QCOMPARE(texts, (QStringList{"14", "CLK"}));
        QCOMPARE(unshown.Of<QComboBox>(set).size(), 1);
        QCOMPARE(unshown.Of<QSpinBox>(set).size(), 1);
    }

    void textsAreTranslated()
    {
        Test::SheetProject design;
        Item* pin = AddPin(design);
        const Test::MarkingTranslator translator;
        const Set one({pin});
        const Set more({pin, AddPin(design)});
        QCOMPARE(one.Name(), QString("~Pin"));
        QCOMPARE(more.Name(), QString("~Pins"));
        QCOMPARE(
            Test::Untranslated(translator, "TPropertySetForPin",
                               {"Name:",  "Number:", "Type:",         "Style:", "Length:",        "Swap:", "Passive",
                                "Input",  "Output",  "Bidirectional", "Hi-Z",   "Open Collector", "Power", "No connect",
                                "Normal", "Inverse", "Zero",          "Short",  "Middle",         "Long"}),
            QStringList());
    }
};

PROPERTIES_TEST(TestPinSet)
#include "tst_pin.moc"
