#pragma once

#include <utility>

/**
 * Gathers one value from each item of a selection, one by one, and knows the first, the last and whether all are equal.
 * Before any value is added, first and last are default values and all values count as equal.
 */
template <class Value>
class TCommonValue
{
public:
    void Add(Value value)
    {
        if (empty) {
            first = value;
            empty = false;
        }
        allEqual = allEqual && value == first;
        last = std::move(value);
    }

    const Value& First() const { return first; }
    const Value& Last() const { return last; }
    bool AllEqual() const { return allEqual; }

private:
    Value first{};
    Value last{};
    bool empty = true;
    bool allEqual = true;
};
