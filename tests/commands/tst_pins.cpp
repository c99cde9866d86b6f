#include "properties/commands/TCmdPin.h"
#include "properties/commands/TCmdPort.h"
#include "properties/commands/TCmdTag.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include <functional>

using Test::PinOf;
using Test::SheetDesign;

namespace {

using Selection = QList<TGraphicsItem*>;
using Making = std::function<std::unique_ptr<TUndoCommand>(const Selection&)>;

template <class Command, class Value>
Making MakingOf(const Value& value)
{
    return [value](const Selection& items) { return std::make_unique<Command>(items, value); };
}

struct Refreshing
{
    const char* name;
    Making make;
    int refreshes;     ///< How often the pin brings its drawing up to date by itself.
    bool movesNumber;  ///< Whether the number's place follows.
    bool changesShape; ///< Whether the extent of the pin follows.
};

const QList<Refreshing>& EveryCommand()
{
    static const QList<Refreshing> commands{
        {"name", MakingOf<TCmdPinName>(QString("A_LONG_NAME")), 1, false, true},
        {"name visible", MakingOf<TCmdPinNameVis>(false), 1, false, true},
        {"number", MakingOf<TCmdPinNumber>(QString("12")), 0, true, false},
        {"number visible", MakingOf<TCmdPinNumberVis>(false), 1, false, false},
        {"type", MakingOf<TCmdPinType>(3), 0, false, false},
        {"style", MakingOf<TCmdPinStyle>(1), 1, true, false},
        {"length", MakingOf<TCmdPinLength>(3), 1, true, true},
        {"swap", MakingOf<TCmdPinSwap>(3), 0, false, false},
    };
    return commands;
}

/** A tag that counts how often its extent is asked for, as every update of its text does. */
class MeasuredTag : public TGraphicsTagItem
{
public:
    QRectF boundingRect() const override
    {
        ++measurings;
        return TGraphicsTagItem::boundingRect();
    }

    mutable int measurings = 0;
};

/** What a tag holds and shows. */
QStringList Written(const TGraphicsTagItem& tag)
{
    return {tag.Name(), tag.Value(), tag.Text()};
}

} // namespace

class TestPins : public QObject
{
    Q_OBJECT

private slots:
    void refreshesJustWhatItHasTo_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < EveryCommand().size(); ++row) {
            QTest::newRow(EveryCommand()[row].name) << row;
        }
    }
    void refreshesJustWhatItHasTo()
    {
        QFETCH(int, row);
        const Refreshing& tested = EveryCommand()[row];
        SheetDesign design;
        auto* pin = design.sheet.Add<Test::Counting<TGraphicsPinItem>>({0, 0});
        pin->SetName("CLK");
        const QPointF moved(99, 99);
        const auto command = tested.make({pin});
        for (const bool redo : {true, false}) {
            pin->NumberText()->setPos(moved);
            pin->refreshes = 0;
            const QRectF before = pin->boundingRect();
            redo ? command->redo() : command->undo();
            QCOMPARE(pin->refreshes, tested.refreshes);
            QCOMPARE(pin->NumberText()->pos() != moved, tested.movesNumber);
            QCOMPARE(pin->boundingRect() != before, tested.changesShape);
        }
    }

    void aNewNumberIsLaidOutAnew()
    {
        SheetDesign design;
        auto* pin = design.sheet.Add<TGraphicsPinItem>({0, 0});
        pin->NumberText()->SetText("1");
        pin->NumberText()->UpdatePath(false);
        const QRectF narrow = pin->NumberText()->boundingRect();
        TCmdPinNumber command({pin}, "123456");
        command.redo();
        QCOMPARE(pin->NumberText()->Text(), QString("123456"));
        QVERIFY(pin->NumberText()->boundingRect().width() > 3 * narrow.width());
        command.undo();
        QCOMPARE(pin->NumberText()->boundingRect(), narrow);
    }

    void aHiddenNumberIsNotSeen()
    {
        SheetDesign design;
        auto* pin = design.sheet.Add<TGraphicsPinItem>({0, 0});
        TCmdPinNumberVis command({pin}, false);
        command.redo();
        QVERIFY(!pin->NumberText()->isVisible());
        command.undo();
        QVERIFY(pin->NumberText()->isVisible());
    }

    void aPinWithoutItsNumberTextIsLeftWithoutOne()
    {
        SheetDesign design;
        auto* pin = design.sheet.Add<TGraphicsPinItem>({0, 0});
        delete pin->NumberText();
        TCmdPinNumber command({pin}, "1");
        const QString before = pin->StateLine();
        command.redo();
        command.undo();
        QCOMPARE(pin->StateLine(), before);
    }

    // A pin that its symbol draws with a length of its own has it back when its class comes back.
    void aLengthOfTheSymbolComesBack()
    {
        SheetDesign design;
        auto* pin = design.sheet.Add<TGraphicsPinItem>({0, 0});
        pin->SetSymbolLength(37.5);
        TCmdPinLength command({pin}, 0);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(pin->LineLength(), 0.0);
        command.undo();
        QCOMPARE(pin->LineLength(), 37.5);
    }

    void pinsOfPlacedPartsAreChangedToo()
    {
        SheetDesign design;
        TGraphicsPartItem* part = design.sheet.Part({0, 0}, 4, {{0, 0}, {0, 50}});
        const QRectF before = part->boundingRect();
        TCmdPinLength command({part, PinOf(part, 1), PinOf(part, 2)}, 3);
        Test::CheckBothWays(command, design);
        command.redo();
        QVERIFY(part->boundingRect() != before); // The part fits its pins.
    }

    void linksStayWhateverIsChanged()
    {
        SheetDesign design;
        TGraphicsPartItem* part = design.sheet.Part({0, 0}, 4, {{0, 0}});
        TGraphicsNetItem* wire = design.WireFrom(PinOf(part, 1), "A");
        for (const Refreshing& each : EveryCommand()) {
            const auto command = each.make({PinOf(part, 1)});
            Test::CheckBothWays(*command, design);
            command->redo();
            QCOMPARE(wire->FirstLink(), PinOf(part, 1));
            QCOMPARE(PinOf(part, 1)->Net(), QString("A"));
        }
    }

    void portNamesAreShownAndHiddenOneByOne()
    {
        SheetDesign design;
        TGraphicsPortItem* shown = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* hidden = design.sheet.Port({0, 50}, "B");
        hidden->SetNameVisible(false);
        const QRectF before = shown->boundingRect();
        TCmdPortNameVis command({shown, hidden}, false);
        Test::CheckBothWays(command, design);
        command.redo();
        QVERIFY(!shown->NameVisible() && !hidden->NameVisible());
        QVERIFY(shown->boundingRect() != before);
        command.undo();
        QVERIFY(shown->NameVisible() && !hidden->NameVisible());
        QCOMPARE(command.id(), -1);
    }

    // Tags.

    void aTagShowsWhatTheProjectHoldsUnderItsName()
    {
        SheetDesign design;
        design.project.SetTagValues({{"TITLE", "Amplifier"}, {"DATE", "today"}});
        TGraphicsTagItem* tag = design.sheet.Tag({0, 0}, "TITLE");
        tag->SetValue("Amplifier", true);
        TGraphicsTagItem* other = design.sheet.Tag({0, 50}, "DATE");
        other->SetValue("today", true);
        TCmdTagName command({tag, other}, "DATE", &design.project);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(Written(*tag), (QStringList{"DATE", "today", "today"}));
        QCOMPARE(Written(*other), (QStringList{"DATE", "today", "today"}));
        command.undo();
        QCOMPARE(Written(*tag), (QStringList{"TITLE", "Amplifier", "Amplifier"}));
        QCOMPARE(Written(*other), (QStringList{"DATE", "today", "today"}));
    }

    void anUnknownNameHasNoValue()
    {
        SheetDesign design;
        design.project.SetTagValues({{"TITLE", "Amplifier"}});
        TGraphicsTagItem* tag = design.sheet.Tag({0, 0}, "TITLE");
        TCmdTagName command({tag}, "unknown", &design.project);
        command.redo();
        QCOMPARE(Written(*tag), (QStringList{"unknown", "", "{unknown}"}));
        command.undo();
        // Intended: the value is what the project holds under the old name now.
        QCOMPARE(Written(*tag), (QStringList{"TITLE", "Amplifier", "Amplifier"}));
    }

    void undoShowsThePresentValueOfTheOldName()
    {
        SheetDesign design;
        design.project.SetTagValues({{"TITLE", "Amplifier"}, {"DATE", "today"}});
        TGraphicsTagItem* tag = design.sheet.Tag({0, 0}, "TITLE");
        TCmdTagName command({tag}, "DATE", &design.project);
        command.redo();
        design.project.SetTagValues({{"TITLE", "Receiver"}, {"DATE", "tomorrow"}});
        command.undo();
        QCOMPARE(Written(*tag), (QStringList{"TITLE", "Receiver", "Receiver"}));
        command.redo();
        QCOMPARE(Written(*tag), (QStringList{"DATE", "tomorrow", "tomorrow"}));
    }

    void withoutAProjectTagsHaveNoValues()
    {
        SheetDesign design;
        TGraphicsTagItem* tag = design.sheet.Tag({0, 0}, "TITLE");
        tag->SetValue("Amplifier", true);
        TCmdTagName command({tag}, "DATE", nullptr);
        command.redo();
        QCOMPARE(Written(*tag), (QStringList{"DATE", "", "{DATE}"}));
        command.undo();
        QCOMPARE(Written(*tag), (QStringList{"TITLE", "", "{TITLE}"}));
    }

    // The value is written before the name, which alone brings the text up to date.
    void theTextIsBroughtUpToDateOnce()
    {
        SheetDesign design;
        design.project.SetTagValues({{"DATE", "today"}});
        auto* tag = design.sheet.Add<MeasuredTag>({0, 0});
        tag->SetName("TITLE", true);
        TCmdTagName command({tag}, "DATE", &design.project);
        Test::RepaintLog repaints(*design.sheet.CurrentPage()->Scene());
        const auto measuringsOf = [&](const auto& change) {
            tag->SetValue(QString(), false);
            tag->SetName("TITLE", true);
            repaints.Take();
            tag->measurings = 0;
            change();
            return tag->measurings;
        };
        const int once = measuringsOf([&] { tag->UpdatePath(false); });
        QVERIFY(once > 0);
        QCOMPARE(measuringsOf([&] { tag->SetValue("today", false); }), 0);
        QCOMPARE(measuringsOf([&] { tag->SetName("DATE", true); }), once);
        QVERIFY(measuringsOf([&] {
                    tag->SetValue("today", true);
                    tag->SetName("DATE", true);
                })
                > once);
        QCOMPARE(measuringsOf([&] { command.SetName(tag, "DATE"); }), once);
        QCOMPARE(tag->Text(), QString("today")); // Of name before value it would be "{DATE}" still.
        QVERIFY(repaints.Take().contains(tag->sceneBoundingRect().center()));
    }

    void tagsGivenTwiceComeBack()
    {
        SheetDesign design;
        TGraphicsTagItem* tag = design.sheet.Tag({0, 0}, "TITLE");
        TCmdTagName command({tag, tag}, "DATE", &design.project);
        Test::CheckBothWays(command, design);
        command.undo();
        QCOMPARE(tag->Name(), QString("TITLE"));
    }
};

PROPERTIES_TEST(TestPins)
#include "tst_pins.moc"
