#pragma once

#include "tests/laws/LawTable.h"
#include "tests/workbench/editing/ItemStates.h"

namespace Test {

/** A command of an undo stack that is held to its law. The functions say what is not as the law says; empty if
 *  everything is. */
class HeldCommand
{
public:
    /** One that its law made, with the first (0) or the second (1) value. */
    HeldCommand(const CommandLaw& ofLaw, int ofValue, const QList<TGraphicsItem*>& given, const ItemStates& now);
    /** One that a panel made of an unknown value; of @p kind, such as "ViaDiam", over those of the items that the
     *  command keeps. */
    HeldCommand(const QString& kind, const QList<TGraphicsItem*>& given, const ItemStates& now);

    // Both add fields to @p inexact that do not come back as they were, as it has to be.

    /** After a redo; the first one decides what the later ones have to come to. */
    QString Redone(const ItemStates& from, const ItemStates& to, ItemFields& inexact);
    /** After an undo. */
    QString Undone(const ItemStates& from, const ItemStates& to, ItemFields& inexact) const;

    /** Whether it keeps an item that it was given; one without a law keeps all. */
    bool Keeps(const TGraphicsItem* item) const { return !law || kept.contains(item); }

private:
    enum class Time { First, Later };

    void Keep(const QList<TGraphicsItem*>& given, const ItemStates& now);
    QString FirstRedone(ItemStates& expected, const ItemStates& to) const;
    QString StructureRedone(const ItemStates& from, const ItemStates& to, ItemFields& inexact);
    QString StructureUndone(const ItemStates& from, const ItemStates& to, ItemFields& inexact) const;
    bool IsAsLeft(const TGraphicsItem* item, const ItemStates& states, const ItemStates& left) const;
    QString Compare(const ItemStates& to, ItemStates expected, ItemFields& inexact) const;

    QString key;
    const CommandLaw* law = nullptr; ///< Null for a command that `LawTable` does not have.
    int value = -1;
    QList<const TGraphicsItem*> kept;
    ItemStates before; ///< Of all items, as the command was made.
    ItemStates after;  ///< Of all items, after the first redo.
    bool isDone = false;
};

} // namespace Test
