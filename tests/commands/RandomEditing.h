#pragma once

#include "tests/commands/PlannedEdit.h"
#include "tests/commands/TracedStack.h"
#include "tests/support/RandomCases.h"

namespace Test {

/** An edit whose action is one of so many. */
inline rc::Gen<PlannedEdit> Edit(int actions)
{
    return rc::gen::build<PlannedEdit>(rc::gen::set(&PlannedEdit::action, rc::gen::inRange(0, actions)),
                                       rc::gen::set(&PlannedEdit::what, rc::gen::inRange(0, 1024)),
                                       rc::gen::set(&PlannedEdit::value, rc::gen::inRange(0, 1000)));
}

/** Does one edit, where the actions behind the design's own are undo and redo of some steps. */
template <class Design>
QString Do(Design& design, const PlannedEdit& edit)
{
    const int steps = 1 + edit.value % 3;
    switch (edit.action - Design::actions) {
    case 0: return design.Stack().Move(-steps);
    case 1: return design.Stack().Move(steps);
    default: return design.Do(edit);
    }
}

/** Edits a design (a `RandomNetwork` or the like) at random, undoes and redoes all, and clears the stack somewhere.
 * Adds to @p pushed how often each command was made. */
template <class Design>
void CheckThatEveryStateComesBack(Design& design, QMap<QString, int>& pushed)
{
    const auto check = [](const QString& fault) {
        if (!fault.isEmpty()) {
            RC_LOG() << fault.toStdString();
            RC_FAIL("a state did not come back, or links or nets are wrong");
        }
    };
    const auto edits = *UpTo(40, Edit(Design::actions + 2));
    for (const PlannedEdit& edit : edits) {
        check(Do(design, edit));
    }
    check(design.Stack().UndoAllAndRedoAll());
    check(design.Stack().ClearAt(*rc::gen::inRange(0, 40)));
    const QMap<QString, int>& ofDesign = design.Stack().Pushed();
    for (auto command = ofDesign.cbegin(); command != ofDesign.cend(); ++command) {
        pushed[command.key()] += command.value();
    }
}

} // namespace Test
