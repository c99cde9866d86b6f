#include <graphics/engine/DisjointSets.h>

#include <cstddef>

int DisjointSets::Add()
{
    parents.push_back(-1);
    return static_cast<int>(parents.size()) - 1;
}

int DisjointSets::Root(int number)
{
    const auto parent = [this](int of) -> int& { return parents[static_cast<std::size_t>(of)]; };
    while (parent(number) >= 0) {
        const int above = parent(number);
        if (parent(above) >= 0) {
            parent(number) = parent(above);
        }
        number = above;
    }
    return number;
}

bool DisjointSets::Join(int one, int other)
{
    one = Root(one);
    other = Root(other);
    if (one == other) {
        return false;
    }
    int& sizeOfOne = parents[static_cast<std::size_t>(one)];
    int& sizeOfOther = parents[static_cast<std::size_t>(other)];
    if (sizeOfOne > sizeOfOther) {
        sizeOfOther += sizeOfOne;
        sizeOfOne = other;
    } else {
        sizeOfOne += sizeOfOther;
        sizeOfOther = one;
    }
    return true;
}
