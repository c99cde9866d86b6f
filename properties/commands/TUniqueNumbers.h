#pragma once

#include <QList>
#include <QSet>

/** Numbers in the order in which they were first added, each once. */
class TUniqueNumbers
{
public:
    /** Adds a number and tells whether it is new. */
    bool Add(unsigned short number)
    {
        const bool isNew = !known.contains(number);
        if (isNew) {
            known.insert(number);
            numbers.append(number);
        }
        return isNew;
    }

    const QList<unsigned short>& List() const { return numbers; }

private:
    QList<unsigned short> numbers;
    QSet<unsigned short> known;
};
