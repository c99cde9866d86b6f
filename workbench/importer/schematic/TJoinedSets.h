#pragma once

#include <vector>

/** Numbered things of which some belong together: those that were joined, directly or through others. */
class TJoinedSets
{
public:
    /** The number of one more thing, which is on its own so far. */
    int Add()
    {
        parents.push_back(static_cast<int>(parents.size()));
        return parents.back();
    }

    int Size() const { return static_cast<int>(parents.size()); }

    /** The thing that stands for all of its set. */
    int Find(int thing)
    {
        while (At(thing) != thing) {
            At(thing) = At(At(thing));
            thing = At(thing);
        }
        return thing;
    }

    void Join(int one, int other) { At(Find(one)) = Find(other); }

private:
    int& At(int thing) { return parents[static_cast<std::size_t>(thing)]; }

    std::vector<int> parents;
};
