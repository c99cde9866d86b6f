#pragma once

#include <ostream>

namespace Test {

/** An edit of a random design: which command, over what, and to what value. The last two are taken modulo what there
 * is, so that every plan can be carried out and shrunk. */
struct PlannedEdit
{
    int action;
    int what;
    int value;
};

inline std::ostream& operator<<(std::ostream& stream, const PlannedEdit& edit)
{
    return stream << '{' << edit.action << ',' << edit.what << ',' << edit.value << '}';
}

} // namespace Test
