#pragma once

#include <QList>
#include <QSet>

/** Numbers in the order in which they were first added, each once. */
class TUniqueNumbers
{
public:
    /** Adds a number unless it is already there. */
    void Add(unsigned short number)
    {
        if (!known.contains(number)) {
            known.insert(number);
            numbers.append(number);
        }
    }

    const QList<unsigned short>& List() const { return numbers; }

private:
    QList<unsigned short> numbers;
    QSet<unsigned short> known;
};
