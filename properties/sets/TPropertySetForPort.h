#pragma once

#include "properties/TPropertySet.h"

class TGraphicsPortItem;
class TPropertyText;
class TSchematic;

/** Edits the name of ports, by which they are moved to another net, and whether it is shown. */
class PROPERTIES_EXPORT TPropertySetForPort : public TPropertySet
{
    Q_OBJECT

public:
    /** Intended: the name of the set counts all items that are given. Keeps the ports of @p selection, all of them on
     * pages of @p schematic. */
    TPropertySetForPort(QList<TGraphicsItem*> selection, TSchematic* schematic);

public Q_SLOTS:
    void SetName(QString newName);
    void SetNameVis(bool visible);

private:
    QList<TGraphicsPortItem*> ports;
    TSchematic* schematic;
    QPointer<TPropertyText> name;
};
