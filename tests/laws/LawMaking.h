#pragma once

#include "tests/laws/LawTable.h"
#include "tests/support/TestBoard.h"

#include <cxxabi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <typeinfo>

namespace Test {

using Items = QList<TGraphicsItem*>;
using Accepting = std::function<bool(const TGraphicsItem&)>;

/** The parts of the table, one for each family of commands. */
std::vector<CommandLaw> LawsOfPadsAndVias();
std::vector<CommandLaw> LawsOfPours();
std::vector<CommandLaw> LawsOfTexts();
std::vector<CommandLaw> LawsOfDrawings();
std::vector<CommandLaw> LawsOfSheets();

template <class Command>
QString NameOf()
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(Command).name(), nullptr, nullptr, nullptr), &std::free);
    return QString::fromLatin1(name.get());
}

template <class Command, class = void>
struct HasMergeRule : std::false_type
{};
template <class Command>
struct HasMergeRule<Command,
                    std::void_t<decltype(static_cast<bool (Command::*)(const TUndoCommand*)>(&Command::mergeWith))>>
    : std::true_type
{};

/** The law of a command that @p make builds over the items with a value. */
template <class Command, class Value, class Make, class Redone>
CommandLaw MadeLaw(Accepting accepts, const Value& first, const Value& second, Make make, Redone redone)
{
    CommandLaw law;
    law.name = NameOf<Command>();
    law.accepts = std::move(accepts);
    const std::array<Value, 2> values{first, second};
    law.make = [=](const Items& items, int value) -> std::unique_ptr<TUndoCommand> {
        return make(items, values.at(static_cast<std::size_t>(value)));
    };
    law.redone = [=](StateFields& fields, int value) { redone(fields, values.at(static_cast<std::size_t>(value))); };
    law.undone = [](StateFields&) {};
    law.mergeWith = [](TUndoCommand& command, const TUndoCommand* other) {
        return static_cast<Command&>(command).mergeWith(other);
    };
    law.hasMergeRule = HasMergeRule<Command>::value;
    return law;
}

/** The law of a command that is made of the selection and a value. */
template <class Command, class Value, class Redone>
CommandLaw Law(Accepting accepts, const Value& first, const Value& second, Redone redone)
{
    const auto make = [](const Items& items, const Value& value) { return std::make_unique<Command>(items, value); };
    return MadeLaw<Command>(std::move(accepts), first, second, make, redone);
}

/** Those of the items that are of a class, nulls included. */
template <class Item>
QList<Item*> OfClass(const Items& items)
{
    QList<Item*> typed;
    for (TGraphicsItem* item : items) {
        auto* candidate = dynamic_cast<Item*>(item);
        if (candidate || !item) {
            typed.append(candidate);
        }
    }
    return typed;
}

template <class Item>
bool IsOfClass(const TGraphicsItem& item)
{
    return dynamic_cast<const Item*>(&item);
}

/** The law of a command that is made of items of one class and a value. */
template <class Command, class Item, class Value, class Redone>
CommandLaw LawOver(const Value& first, const Value& second, Redone redone)
{
    const auto make = [](const Items& items, const Value& value) {
        return std::make_unique<Command>(OfClass<Item>(items), value);
    };
    return MadeLaw<Command>(IsOfClass<Item>, first, second, make, redone);
}

inline double Scene(double millimetres)
{
    return millimetres * sceneUnitsPerMillimetre;
}

/** Accepts items by their type numbers. */
inline Accepting OfKind(std::initializer_list<int> types)
{
    return [kinds = std::vector<int>(types)](const TGraphicsItem& item) {
        return std::find(kinds.begin(), kinds.end(), item.type()) != kinds.end();
    };
}

/** Writes one attribute as it is given. */
template <class Value>
std::function<void(StateFields&, const Value&)> Sets(const char* name)
{
    return [name](StateFields& fields, const Value& value) { fields.Set(name, value); };
}

/** Writes or clears one bit of the flag word. */
inline std::function<void(StateFields&, bool)> SetsFlag(int bit)
{
    return [bit](StateFields& fields, bool on) {
        const int flags = fields.Integer("flags");
        fields.Set("flags", on ? flags | bit : flags & ~bit);
    };
}

} // namespace Test
