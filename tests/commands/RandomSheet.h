#pragma once

#include "tests/commands/SheetDesign.h"

#include <application/TProjectTree.h>

#include <QUndoStack>

#include <ostream>
#include <vector>

namespace Test {

/** Numbers that are taken modulo what there is, so that every plan can be built and shrunk. */
struct PlannedThing
{
    int kind;
    int place;
    int value;
};
struct PlannedWire
{
    int from;
    int to;
    int linked;
};
struct PlannedEdit
{
    int action;
    int what;
    int value;
};

std::ostream& operator<<(std::ostream& stream, const PlannedThing& thing);
std::ostream& operator<<(std::ostream& stream, const PlannedWire& wire);
std::ostream& operator<<(std::ostream& stream, const PlannedEdit& edit);

/**
 * Two pages of ports, parts, net ties, junctions, buses with entries and tags on the points of a grid, with net wires
 * between them, and packages on a board; edited step by step by way of an undo stack, and compared with what they were
 * at each index of the stack.
 */
class RandomSheet
{
public:
    RandomSheet(const std::vector<PlannedThing>& things, const std::vector<PlannedWire>& wires);

    /** Does one step and tells what is wrong after it; empty for nothing. */
    QString Do(const PlannedEdit& edit);
    /** Undoes all and redoes all, one step after the other, and tells what is wrong. */
    QString UndoAllAndRedoAll();
    /** Goes to an index of the stack and clears it there, which changes nothing. Tells what is wrong. */
    QString ClearAt(int index);

    /** How often each command was made. */
    const QMap<QString, int>& Made() const { return made; }

private:
    void AddThing(const PlannedThing& thing);
    void AddWire(const PlannedWire& planned);
    QList<TGraphicsItem*> LinkableAt(const QPointF& point, const TItemScene* page) const;

    std::unique_ptr<QUndoCommand> Command(const PlannedEdit& edit);
    std::unique_ptr<QUndoCommand> PinCommand(const PlannedEdit& edit);
    std::unique_ptr<QUndoCommand> TreeCommand(const PlannedEdit& edit);
    std::unique_ptr<QUndoCommand> LinkOfAFreeEnd(const PlannedEdit& edit);
    /** None to all items of a kind that stand on the pages. */
    template <class Item>
    QList<Item*> Some(ItemType::Number kind, const PlannedEdit& edit) const;

    QString State() const;
    QString Fault() const;
    QString WrongNet() const;
    QString MoveTo(int index);

    SheetDesign design;
    TProjectTree tree;
    QUndoStack stack;
    QStringList states; ///< At each index of the stack.
    QMap<QString, int> made;
    QString commandName; ///< Of the last command that was made.
};

} // namespace Test
