#include "tests/commands/TracedStack.h"

#include "tests/support/LineDifferences.h"

#include <algorithm>

namespace Test {

QString TracedStack::Push(std::unique_ptr<QUndoCommand> command, const QString& name)
{
    ++pushed[name];
    states = states.mid(0, stack.index() + 1);
    stack.push(command.release());
    states.append(state());
    return fault();
}

QString TracedStack::Move(int steps)
{
    return MoveTo(std::clamp(stack.index() + steps, 0, stack.count()));
}

QString TracedStack::MoveTo(int index)
{
    while (stack.index() != index) {
        stack.index() < index ? stack.redo() : stack.undo();
        const QString now = state();
        if (now != states[stack.index()]) {
            return QStringLiteral("at index %1 ").arg(stack.index()) + LineDifferences(now, states[stack.index()]);
        }
        const QString wrong = fault();
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return {};
}

QString TracedStack::UndoAllAndRedoAll()
{
    for (const int index : {0, stack.count(), 0}) {
        const QString wrong = MoveTo(index);
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return {};
}

QString TracedStack::ClearAt(int index)
{
    const QString wrong = MoveTo(index % (stack.count() + 1));
    if (!wrong.isEmpty()) {
        return wrong;
    }
    const QString before = state();
    stack.clear();
    return state() == before ? fault() : QStringLiteral("clearing the stack changed\n") + before;
}

} // namespace Test
