#pragma once

#include <QMap>
#include <QStringList>
#include <QUndoStack>

#include <functional>
#include <memory>

namespace Test {

/** An undo stack over a design that knows what the design was at each of its indices. Every step tells what is wrong
 *  after it; empty for nothing. */
class TracedStack
{
public:
    using Teller = std::function<QString()>;

    /** Asks for the design's state, and for what is wrong with it whatever its state. */
    TracedStack(Teller ofState, Teller ofFault) : state(std::move(ofState)), fault(std::move(ofFault)) {}

    /** Notes the first state. To be called once, when the design is complete. */
    void Begin() { states.append(state()); }

    QString Push(std::unique_ptr<QUndoCommand> command, const QString& name);
    /** Goes some steps back, or forth, as far as there are any. */
    QString Move(int steps);
    /** Undoes all and redoes all, one step after the other. */
    QString UndoAllAndRedoAll();
    /** Goes to an index, modulo what there is, and clears the stack there, which changes nothing. */
    QString ClearAt(int index);

    /** How often each command was pushed. */
    const QMap<QString, int>& Pushed() const { return pushed; }

private:
    QString MoveTo(int index);

    Teller state;
    Teller fault;
    QUndoStack stack;
    QStringList states; ///< At each index of the stack.
    QMap<QString, int> pushed;
};

} // namespace Test
