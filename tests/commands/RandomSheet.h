#pragma once

#include "tests/commands/PlannedEdit.h"
#include "tests/commands/SheetDesign.h"
#include "tests/commands/TracedStack.h"

#include <application/TProjectTree.h>

#include <ostream>
#include <vector>

namespace Test {

/** What random pages consist of. The numbers are taken modulo what there is, so that every plan can be built and
 * shrunk. */
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

std::ostream& operator<<(std::ostream& stream, const PlannedThing& thing);
std::ostream& operator<<(std::ostream& stream, const PlannedWire& wire);

/**
 * Two pages of ports, parts, net ties, junctions, buses with entries and tags on the points of a grid, with net wires
 * between them, and packages on a board; edited step by step by way of an undo stack, and compared with what they were
 * at each index of the stack.
 */
class RandomSheet
{
public:
    RandomSheet(const std::vector<PlannedThing>& things, const std::vector<PlannedWire>& wires);

    /** So many actions there are. */
    static constexpr int actions = 12;
    /** Does one edit and tells what is wrong after it; empty for nothing. */
    QString Do(const PlannedEdit& edit);
    TracedStack& Stack() { return stack; }

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

    SheetDesign design;
    TProjectTree tree;
    QString commandName;                                                       ///< Of the last command that was made.
    TracedStack stack{[this] { return State(); }, [this] { return Fault(); }}; // Destroyed before the design.
};

} // namespace Test
