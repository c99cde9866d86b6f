#pragma once

#include "properties/commands/CommandIds.h"
#include "properties/commands/TReversibleCommand.h"

#include <QList>
#include <QVector>

#include <optional>

/**
 * The engine of nearly all commands: one attribute, the items that have it, one old value for each and one new value.
 *
 * An attribute is a struct of static functions, the only place where its setter is spelled:
 *
 *     struct Attribute
 *     {
 *         using Item = …;                             // the class whose attribute it is
 *         using Value = …;                            // as an item holds it
 *         static bool Accepts(const TGraphicsItem&);  // which items the command edits
 *         static Value FromEditor(…);                 // converts what the user edited; an optional where a number may
                                                    // be no value
 *         static Value Read(const Item&);             // the old value
 *         static void Write(Item&, const Value&);     // writes, with the refresh that the write needs
 *     };
 *
 * The items are not owned and must outlive the command. Items that are not accepted are skipped silently; without
 * items the command is a no-op. Construction, `redo` and `undo` are linear in the items.
 *
 * The functions are in `AttributeCommandEngine.h`, for the sources that instantiate the engine: what is exported is
 * compiled once, in its library.
 */
template <class AttributeOfItem, CommandId::Id commandId = CommandId::None>
class PROPERTIES_EXPORT TAttributeCommand : public TReversibleCommand
{
public:
    using Attribute = AttributeOfItem;
    using Item = typename Attribute::Item;
    using Value = typename Attribute::Value;

    ~TAttributeCommand() override;

    int id() const override;

protected:
    /** Keeps the accepted ones of @p given with their current values; @p value is as an item holds it. Without a value
     *  the command is a no-op. */
    template <class GivenItem>
    TAttributeCommand(const QList<GivenItem*>& given, const std::optional<Value>& value);

    /** Writes the new value to every kept item, in order. False without a value. */
    bool Do() override;
    /** Writes back to every kept item its own old value, in order. */
    bool Undo() override;

    QList<Item*> items;
    QVector<Value> oldValues;      ///< Parallel to `items`.
    std::optional<Value> newValue; ///< None if the editor's value is not valid for the attribute.
};

/** The rules by which `mergeWith` accepts another command of the same class over the same items in the same order. */
enum class PROPERTIES_EXPORT MergeRule {
    TakeOver,   ///< Accepts any new value, adopts it and keeps its own old values.
    EqualValue, ///< Accepts only an equal new value and adopts nothing.
};

/** A command over one attribute that can be merged by a caller that holds both commands. */
template <class Attribute, CommandId::Id commandId, MergeRule rule>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it is virtual in the base, which depends on the attribute
class PROPERTIES_EXPORT TMergingCommand : public TAttributeCommand<Attribute, commandId>
{
public:
    ~TMergingCommand() override;

    /**
     * Merges with a later command: true when it is one of the same class over the same items in the same order and
     * the rule accepts its new value. Anything else, including null and commands without a value, is refused and
     * changes nothing.
     *
     * Intended: this does not override the toolkit's function of the same name, so that the undo stack never merges
     * and every edit stays its own undo step.
     */
    bool mergeWith(const TUndoCommand* other);
    using QUndoCommand::mergeWith;

protected:
    using TAttributeCommand<Attribute, commandId>::TAttributeCommand;
};
