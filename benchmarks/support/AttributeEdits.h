#pragma once

#include "benchmarks/support/BenchBoard.h"
#include "benchmarks/support/Edits.h"

#include <benchmark/benchmark.h>

#include <QVector>

#include <algorithm>
#include <tuple>
#include <type_traits>

namespace Bench {

/** Small selections are edited repeatedly: a timed interval covers at least this many items. */
constexpr int itemsInAStretch = 1'000;

/**
 * An edit of one attribute of all items of a board, in selections of one size.
 *
 * @tparam Access has `Item`, `Value`, and static `Read` and `Write`; @tparam Given is what commands are made over.
 */
template <class Access, class Given>
class AttributeEdit : public Edit
{
public:
    using Item = typename Access::Item;
    using Value = typename Access::Value;
    using MakeCommand = std::function<Command(const QList<Given*>&)>;

    AttributeEdit(BenchBoard& ofItems, int size, const Value& value, MakeCommand makeCommand)
        : board(ofItems), newValue(value), make(std::move(makeCommand))
    {
        const QList<TGraphicsItem*>& made = board.Made();
        for (int first = 0; first + size <= made.size(); first += size) {
            Selection& selection = selections.emplace_back();
            for (int i = first; i < first + size; ++i) {
                selection.given.append(static_cast<Given*>(made[i]));
                selection.items.push_back(static_cast<Item*>(made[i]));
                selection.oldValues.append(Access::Read(*selection.items.back()));
            }
        }
    }

    double Selections() const override { return static_cast<double>(selections.size()); }

    void Prepare() override
    {
        for (Selection& selection : selections) {
            selection.command = make(selection.given);
        }
    }

    void ReadAll() override
    {
        for (const Selection& selection : selections) {
            for (const Item* item : selection.items) {
                benchmark::DoNotOptimize(Access::Read(*item));
            }
        }
    }

    void Loop() override
    {
        for (const Selection& selection : selections) {
            for (Item* item : selection.items) {
                Access::Write(*item, newValue);
            }
        }
    }

    void LoopBack() override
    {
        for (const Selection& selection : selections) {
            auto oldValue = selection.oldValues.constBegin();
            for (Item* item : selection.items) {
                Access::Write(*item, *oldValue++);
            }
        }
    }

    void Construct() override
    {
        for (Selection& selection : selections) {
            selection.unused = make(selection.given);
        }
    }

    void Discard() override
    {
        for (Selection& selection : selections) {
            selection.unused.reset();
        }
    }

    void Redo() override
    {
        for (const Selection& selection : selections) {
            selection.command->redo();
        }
    }

    void Undo() override
    {
        for (const Selection& selection : selections) {
            selection.command->undo();
        }
    }

    void Settle() override { board.Settle(); }
    QString State() override { return SortedState(board); }

private:
    struct Selection
    {
        QList<Given*> given;
        std::vector<Item*> items;
        QVector<Value> oldValues;
        Command command; // As the undo stack holds it: redo and undo are virtual calls.
        Command unused;
    };

    BenchBoard& board;
    Value newValue;
    MakeCommand make;
    std::vector<Selection> selections;
};

/** Benchmarks a command of the engine over items of a kind; @p arguments are those of its constructor after the
 *  selection. */
template <class NamedCommand, class... Arguments>
void AddAttribute(Shelf& shelf, const char* name, Kind kind, Arguments... arguments)
{
    using Attribute = typename NamedCommand::Attribute;
    using Given = std::conditional_t<std::is_constructible_v<NamedCommand, const QList<TGraphicsItem*>&, Arguments...>,
                                     TGraphicsItem, typename Attribute::Item>;

    const auto makeEdit = [&shelf, kind, packed = std::tuple(arguments...)](int size) {
        const auto newValue = std::apply(
            [](const Arguments&... each) {
                return std::optional<typename Attribute::Value>(Attribute::FromEditor({each...})).value();
            },
            packed);
        return std::make_unique<AttributeEdit<Attribute, Given>>(
            BoardOf(shelf, kind, std::max(size, itemsInAStretch)), size, newValue,
            [packed](const QList<Given*>& items) -> Command {
                return std::apply(
                    [&items](const Arguments&... each) { return std::make_unique<NamedCommand>(items, each...); },
                    packed);
            });
    };
    RegisterEdit(name, makeEdit, AllSizes(MostOf(kind)));
}

} // namespace Bench
