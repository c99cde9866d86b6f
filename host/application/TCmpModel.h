#pragma once

#include <QHash>
#include <QString>

#include <map>

/** The data of a component besides its items: a plain value, owned by its model. */
struct TCmpModelItem
{
    QString refDes;
    QString value;
    QString package;
    int count = 0; ///< How many components have the same value and package, as of the last `UpdateCount`.
};

/** The table of a schematic's components by number, the source of a bill of materials. */
class TCmpModel
{
public:
    /** Adds an entry, or replaces the one of that number; 0, which is not a component number, is ignored. */
    void Add(unsigned short number, const TCmpModelItem& item);

    /** The entry of a number, null if there is none. Valid until it is replaced. */
    TCmpModelItem* CmpModelItem(unsigned short number);

    int Size() const { return static_cast<int>(items.size()); }

    /** Recounts components of equal value and package. */
    void UpdateCount();

    /** The state of every component, one line each, in the order of their numbers. */
    QString Dump() const;

private:
    std::map<unsigned short, TCmpModelItem> items;
};
