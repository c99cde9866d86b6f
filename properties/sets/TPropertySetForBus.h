#pragma once

#include "properties/TPropertySet.h"

class TGraphicsBusItem;
class TPropertyText;

/** Names buses. Intended: buses are identified by their layer, and the name is written at once, without a command. */
class PROPERTIES_EXPORT TPropertySetForBus : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the buses of @p selection. */
    explicit TPropertySetForBus(QList<TGraphicsItem*> selection);

public Q_SLOTS:
    /** Intended: repaints nothing and cannot be undone. */
    void SetName(QString newName);

private:
    QList<TGraphicsBusItem*> buses;
    QPointer<TPropertyText> name;
};
