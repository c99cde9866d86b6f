#pragma once

#include "properties/commands/CommandIds.h"
#include "properties/commands/TReversibleCommand.h"

#include <QList>
#include <QVector>

/**
 * The engine of nearly all commands: one attribute, the items that have it, one old value for each and one new value.
 *
 * An attribute is a struct of static functions, the only place where its setter is spelled:
 *
 *     struct Attribute
 *     {
 *         using Item = …;                             // the class whose attribute it is
 *         using Value = …;                            // as an item holds it
 *         static bool Accepts(const TGraphicsItem&);  // which items the command keeps
 *         static Value FromEditor(…);                 // converts what the user edited; identity unless it is a length
 *         static Value Read(const Item&);             // the old value
 *         static void Write(Item&, const Value&);     // writes, and does the refresh that belongs to the write
 *     };
 *
 * The items are not owned and must outlive the command. Items that are not accepted are skipped silently; over no
 * items the command does nothing. Construction, `redo` and `undo` are linear in the items.
 */
template <class AttributeOfItem>
class TAttributeCommand : public TReversibleCommand
{
public:
    using Attribute = AttributeOfItem;
    using Item = typename Attribute::Item;
    using Value = typename Attribute::Value;

protected:
    /** Keeps the accepted ones of @p given with their current values; @p value is as an item holds it. */
    template <class GivenItem>
    TAttributeCommand(const QList<GivenItem*>& given, const Value& value) : newValue(value)
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

    /** Writes the new value to every kept item, in order. */
    void Do() override
    {
        for (Item* item : items) {
            Attribute::Write(*item, newValue);
        }
    }

    /** Writes back to every kept item its own old value, in order. */
    void Undo() override
    {
        auto oldValue = oldValues.constBegin();
        for (Item* item : items) {
            Attribute::Write(*item, *oldValue++);
        }
    }

    QList<Item*> items;
    QVector<Value> oldValues; ///< Parallel to `items`.
    Value newValue;
};

/** The rules by which `mergeWith` accepts another command of the same class over the same items in the same order. */
enum class MergeRule {
    TakeOver,   ///< Accepts any new value, adopts it and keeps the own old values.
    EqualValue, ///< Accepts only an equal new value and adopts nothing.
};

/** A command over one attribute that has an id. */
template <class Attribute, CommandId::Id commandId>
class TAttributeCommandWithId : public TAttributeCommand<Attribute>
{
public:
    int id() const override { return commandId; }

protected:
    using TAttributeCommand<Attribute>::TAttributeCommand;
};

/** A command over one attribute that has an id and can be merged by a caller that holds both commands. */
template <class Attribute, CommandId::Id commandId, MergeRule rule>
class TMergingCommand : public TAttributeCommandWithId<Attribute, commandId>
{
public:
    /**
     * Merges with a later command: true when it is one of the same class over the same items in the same order and
     * the rule accepts its new value. Anything else, null too, is refused and changes nothing.
     *
     * Intended: this does not override the toolkit's function of the same name, so that the undo stack never merges
     * and every edit stays its own undo step.
     */
    bool mergeWith(const TUndoCommand* other)
    {
        const auto* later = dynamic_cast<const TMergingCommand*>(other);
        if (!later || later->items != this->items) {
            return false;
        }
        if constexpr (rule == MergeRule::EqualValue) {
            return later->newValue == this->newValue;
        } else {
            this->newValue = later->newValue;
            return true;
        }
    }
    using QUndoCommand::mergeWith;

protected:
    using TAttributeCommandWithId<Attribute, commandId>::TAttributeCommandWithId;
};
