#include "benchmarks/support/BenchBoard.h"
#include "benchmarks/support/Ratios.h"

#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdVia.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <tuple>
#include <type_traits>

namespace {

using Bench::BenchBoard;
using Bench::BoardShelf;
using Bench::Kind;

/** Small selections are timed many at once: what is timed covers at least so many items. */
constexpr int itemsInAStretch = 1'000;

/** Edits of all items of a board in selections of one size, with a command for each and with plain loops. */
template <class Command, class... Arguments>
class Editing
{
public:
    Editing(const BenchBoard& board, int size, const std::tuple<Arguments...>& commandArguments)
        : arguments(commandArguments),
          newValue(std::apply([](const Arguments&... each) { return Attribute::FromEditor({each...}); }, arguments))
    {
        const QList<TGraphicsItem*>& items = board.Made();
        for (int first = 0; first + size <= items.size(); first += size) {
            Selection& selection = selections.emplace_back();
            for (int i = first; i < first + size; ++i) {
                selection.given.append(static_cast<Given*>(items[i]));
                selection.items.push_back(static_cast<Item*>(items[i]));
                selection.oldValues.append(Attribute::Read(*selection.items.back()));
            }
            selection.command = NewCommand(selection.given);
        }
    }

    auto Selections() const { return static_cast<double>(selections.size()); }

    /** Brings the items into the caches as far as they fit: every step begins like that. */
    void ReadAll()
    {
        for (const Selection& selection : selections) {
            for (const Item* item : selection.items) {
                benchmark::DoNotOptimize(Attribute::Read(*item));
            }
        }
    }

    /** Writes the new value to every item without any command. */
    void Loop()
    {
        for (const Selection& selection : selections) {
            for (Item* item : selection.items) {
                Attribute::Write(*item, newValue);
            }
        }
    }

    /** Writes back to every item its own old value. */
    void LoopBack()
    {
        for (const Selection& selection : selections) {
            auto oldValue = selection.oldValues.constBegin();
            for (Item* item : selection.items) {
                Attribute::Write(*item, *oldValue++);
            }
        }
    }

    /** Makes a second command for each selection. */
    void Construct()
    {
        for (Selection& selection : selections) {
            selection.unused = NewCommand(selection.given);
        }
    }

    /** Deletes the second commands. */
    void Discard()
    {
        for (Selection& selection : selections) {
            selection.unused.reset();
        }
    }

    void Redo()
    {
        for (const Selection& selection : selections) {
            selection.command->redo();
        }
    }

    void Undo()
    {
        for (const Selection& selection : selections) {
            selection.command->undo();
        }
    }

private:
    using Attribute = typename Command::Attribute;
    using Item = typename Attribute::Item;
    using Given = std::conditional_t<std::is_constructible_v<Command, const QList<TGraphicsItem*>&, Arguments...>,
                                     TGraphicsItem, Item>;

    struct Selection
    {
        QList<Given*> given;
        std::vector<Item*> items;
        QVector<typename Attribute::Value> oldValues;
        std::unique_ptr<QUndoCommand> command; // As the undo stack holds it: redo and undo are virtual calls.
        std::unique_ptr<QUndoCommand> unused;
    };

    std::unique_ptr<QUndoCommand> NewCommand(const QList<Given*>& items) const
    {
        return std::apply([&items](const Arguments&... each) { return std::make_unique<Command>(items, each...); },
                          arguments);
    }

    std::tuple<Arguments...> arguments;
    typename Attribute::Value newValue;
    std::vector<Selection> selections;
};

/** Benchmarks a command over items of a kind; @p arguments are what it is made with besides the selection. */
template <class Command, class... Arguments>
void Add(BoardShelf& shelf, const char* name, Kind kind, Arguments... arguments)
{
    using Edit = Editing<Command, Arguments...>;

    const auto round = [&shelf, kind, packed = std::tuple(arguments...)](int size) {
        BenchBoard& board = shelf.Board(kind, std::max(size, itemsInAStretch));
        Edit edit(board, size, packed);
        const auto secondsOf = [&](void (Edit::*step)()) {
            edit.ReadAll();
            const double seconds = Bench::SecondsOf([&] { (edit.*step)(); });
            edit.Discard();
            board.Settle();
            return seconds / edit.Selections();
        };
        return Bench::MedianOfRounds([&] {
            // Twice, so that the loop and redo both come after it.
            const double construct = secondsOf(&Edit::Construct);
            const double loop = secondsOf(&Edit::Loop);
            const double loopBack = secondsOf(&Edit::LoopBack);
            const double constructAgain = secondsOf(&Edit::Construct);
            const double redo = secondsOf(&Edit::Redo);
            const double undo = secondsOf(&Edit::Undo);
            return Bench::Times{loop, loopBack, (construct + constructAgain) / 2, redo, undo};
        });
    };
    Bench::Register(name, {"loop", "loop back", "construct", "redo", "undo"}, {100, 1'000, 10'000, 100'000, 1'000'000},
                    round);
}

void AddAll(BoardShelf& shelf)
{
    Add<TCmdViaDiam>(shelf, "TCmdViaDiam", Kind::Via, 0.8);
    Add<TCmdViaDrill>(shelf, "TCmdViaDrill", Kind::Via, 0.4);
    Add<TCmdViaTherm>(shelf, "TCmdViaTherm", Kind::Via, int{TGraphicsViaItem::ThermalYes});
    Add<TCmdViaGroup>(shelf, "TCmdViaGroup", Kind::Via, QStringLiteral("Bottom - Top"));
    Add<TCmdPadNumber>(shelf, "TCmdPadNumber", Kind::Pad, QStringLiteral("7"));
    Add<TCmdPadName>(shelf, "TCmdPadName", Kind::Pad, QStringLiteral("GND"));
    Add<TCmdPadWidth>(shelf, "TCmdPadWidth", Kind::Pad, 1.2);
    Add<TCmdPadHeight>(shelf, "TCmdPadHeight", Kind::Pad, 1.2);
    Add<TCmdPadShape>(shelf, "TCmdPadShape", Kind::Pad, int{TGraphicsPadItem::ShapeObround});
    Add<TCmdPadSide>(shelf, "TCmdPadSide", Kind::Pad, Osmirel::CopperBottom);
    Add<TCmdPadType>(shelf, "TCmdPadType", Kind::Pad, false);
    Add<TCmdMaskEn>(shelf, "TCmdMaskEn", Kind::Pad, true);
    Add<TCmdMaskClearance>(shelf, "TCmdMaskClearance", Kind::Pad, 0.1);
    Add<TCmdPasteEn>(shelf, "TCmdPasteEn", Kind::Pad, true);
    Add<TCmdPasteClearance>(shelf, "TCmdPasteClearance", Kind::Pad, 0.1);
    Add<TCmdRectSize>(shelf, "TCmdRectSize", Kind::Hole, 40.0, 40.0);
}

} // namespace

int main(int argc, char** argv)
{
    Bench::UseOffscreenPlatform();
    const QApplication application(argc, argv);
    BoardShelf shelf;
    AddAll(shelf);
    return Bench::RunAndCompare(argc, argv,
                                {{"construct", "loop", 1.0}, {"redo", "loop", 1.1}, {"undo", "loop back", 1.1}});
}
