#pragma once

#include <vector>

/** Disjoint sets of the numbers from 0: a union-find with path halving and union by size. */
class DisjointSets
{
public:
    /** Makes a set of one new number. */
    int Add();
    /** The representative of the set. */
    int Root(int number);
    /** The count of numbers. */
    int Size() const { return static_cast<int>(parents.size()); }
    /** Joins two sets, and returns whether they were different. */
    bool Join(int one, int other);

private:
    std::vector<int> parents; ///< Of a root the negative size of its set.
};
