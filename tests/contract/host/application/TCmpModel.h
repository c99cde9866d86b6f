#pragma once

#include <QString>

#include <map>

/** What is known of a component. */
struct TCmpModelItem
{
    QString value;
};

/** The table of a schematic's components. */
class TCmpModel
{
public:
    TCmpModelItem* CmpModelItem(unsigned short number);
    void UpdateCount();

protected:
    std::map<unsigned short, TCmpModelItem> items;
};
