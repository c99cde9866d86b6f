#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <workspace/Osmirel.h>

#include <QList>
#include <QVector>

class TGraphicsKeepoutItem;

/** Switches keepouts on or off on one copper layer. */
class PROPERTIES_EXPORT TCmdKeepoutLayEn : public TReversibleCommand
{
public:
    TCmdKeepoutLayEn(QList<TGraphicsKeepoutItem*> keepouts, Osmirel::Layer layer, bool enable);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    QList<TGraphicsKeepoutItem*> items;
    QVector<bool> oldValues; ///< Parallel to `items`.
    Osmirel::Layer layer;
    bool newValue;
};
