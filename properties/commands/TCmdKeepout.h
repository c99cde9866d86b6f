#pragma once

#include <properties/Export.h>

#include <application/TUndoCommand.h>
#include <workspace/Osmirel.h>

#include <QList>
#include <QVector>

class TGraphicsKeepoutItem;

/** Lets keepouts act on one copper layer, or not. */
class PROPERTIES_EXPORT TCmdKeepoutLayEn : public TUndoCommand
{
public:
    TCmdKeepoutLayEn(QList<TGraphicsKeepoutItem*> keepouts, Osmirel::Layer layer, bool enable);

    void redo() override;
    void undo() override;

private:
    QList<TGraphicsKeepoutItem*> items;
    QVector<bool> oldValues; ///< Parallel to `items`.
    Osmirel::Layer layer;
    bool newValue;
};
