#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <QList>
#include <QVector>

class TGraphicsItem;

/**
 * Connects items to everything that they touch, or disconnects them from it. Undo disconnects or connects exactly what
 * redo did, item by item.
 */
class PROPERTIES_EXPORT TConnectCommand : public TReversibleCommand
{
public:
    ~TConnectCommand() override;

protected:
    enum class Action { Connect, Disconnect };

    explicit TConnectCommand(Action ofRedo) : actionOfRedo(ofRedo) {}

    bool Do() final;
    bool Undo() final;

    /** Called first at every redo and undo: false if the command cannot act. It always can unless a class says so. */
    virtual bool Prepare() { return true; }
    /** Connects or disconnects one item: with @p connections empty from everything that it touches, otherwise exactly
     *  those. Returns what was linked or cut. */
    virtual QVector<TGraphicsItem*> Act(Action action, TGraphicsItem& item,
                                        const QVector<TGraphicsItem*>& connections) = 0;
    /** Called at the end of every redo and undo, even without items. */
    virtual void Update() = 0;

    QList<TGraphicsItem*> items;
    QVector<QVector<TGraphicsItem*>> savedConnections; ///< From the last redo; parallel to `items` since then.

private:
    Action actionOfRedo;
};
