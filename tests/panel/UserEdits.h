#pragma once

#include "tests/panel/KindsBoard.h"
#include "tests/support/PanelFixture.h"

#include <vector>

namespace Test {

/** A user's edit of one row of one set. */
struct UserEdit
{
    const char* name;
    Test::MakeKindsSet makeSet;
    const char* label;
    const char* signature; ///< of the row's signal that reports the edit first
    void (*edit)(Test::PanelWindow& place, TAbstractProperty* row);
    int commandsOfSignal = 1; ///< What the set makes of the signal before others hear of it; 0 for a write at once.
};

/** An edit of each kind of row, in every way that a user has. */
const std::vector<UserEdit>& UserEdits();

/** An edit of a drop-down list by its keys and by its open list. */
void NextItem(PanelWindow& place, TAbstractProperty* row);
void ChooseFromOpenList(PanelWindow& place, TAbstractProperty* row);

} // namespace Test
