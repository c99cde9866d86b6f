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
    const auto edits = *UpTo(40, Edit(Design::actions));
    for (const PlannedEdit& edit : edits) {
        check(design.Do(edit));
    }
    check(design.Stack().UndoAllAndRedoAll());
    check(design.Stack().ClearAt(*rc::gen::inRange(0, 40)));
    const QMap<QString, int>& ofDesign = design.Stack().Pushed();
    for (auto command = ofDesign.cbegin(); command != ofDesign.cend(); ++command) {
        pushed[command.key()] += command.value();
    }
}

} // namespace Test
