#pragma once

#include "properties/commands/TAttributeCommand.h"

template <class Attribute, CommandId::Id commandId>
template <class GivenItem>
TAttributeCommand<Attribute, commandId>::TAttributeCommand(const QList<GivenItem*>& given,
                                                           const std::optional<Value>& value)
    : newValue(value)
{
    items.reserve(given.size());
    oldValues.reserve(given.size());
    for (GivenItem* candidate : given) {
        if (candidate && Attribute::Accepts(*candidate)) {
            auto* item = static_cast<Item*>(candidate);
            items.append(item);
            oldValues.append(Attribute::Read(*item));
        }
    }
}

template <class Attribute, CommandId::Id commandId>
TAttributeCommand<Attribute, commandId>::~TAttributeCommand() = default;

template <class Attribute, CommandId::Id commandId>
int TAttributeCommand<Attribute, commandId>::id() const
{
    return commandId;
}

template <class Attribute, CommandId::Id commandId>
bool TAttributeCommand<Attribute, commandId>::Do()
{
    if (!newValue) {
        return false;
    }
    for (Item* item : qAsConst(items)) {
        Attribute::Write(*item, *newValue);
    }
    return true;
}

template <class Attribute, CommandId::Id commandId>
bool TAttributeCommand<Attribute, commandId>::Undo()
{
    auto oldValue = oldValues.constBegin();
    for (Item* item : qAsConst(items)) {
        Attribute::Write(*item, *oldValue++);
    }
    return true;
}

template <class Attribute, CommandId::Id commandId, MergeRule rule>
TMergingCommand<Attribute, commandId, rule>::~TMergingCommand() = default;

template <class Attribute, CommandId::Id commandId, MergeRule rule>
bool TMergingCommand<Attribute, commandId, rule>::mergeWith(const TUndoCommand* other)
{
    const auto* later = dynamic_cast<const TMergingCommand*>(other);
    if (!later || later->items != this->items || !later->newValue || !this->newValue) {
        return false;
    }
    if constexpr (rule == MergeRule::EqualValue) {
        return later->newValue == this->newValue;
    } else {
        this->newValue = later->newValue;
        return true;
    }
}
