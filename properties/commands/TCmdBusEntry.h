#pragma once

#include "properties/commands/CommandIds.h"
#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

#include <QList>
#include <QVector>

#include <vector>

template <class Item>
class TDetachedItem;
class TGraphicsBusEntryItem;
class TGraphicsBusItem;
class TGraphicsItem;
class TGraphicsNetItem;

/**
 * Takes bus entries off their page, disconnected from their buses and net wires. The command owns the entries while
 * they are off the page. Created by the application.
 */
class PROPERTIES_EXPORT TCmdBusEntryDisconnect : public TReversibleCommand
{
public:
    /** Keeps the bus entries of @p selection, each once, with what they are linked to now. */
    explicit TCmdBusEntryDisconnect(const QList<TGraphicsItem*>& selection);
    ~TCmdBusEntryDisconnect() override;

    int id() const override { return CommandId::BusEntryDisconnect; }
    /**
     * True for a later command of this class that holds no entries; anything else, null too, is refused.
     *
     * Intended: this does not override the toolkit's function of the same name, so that the undo stack never merges.
     */
    bool mergeWith(const TUndoCommand* other);
    using QUndoCommand::mergeWith;

    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;

private:
    void LinkAgain(int index);

    std::vector<TDetachedItem<TGraphicsBusEntryItem>> entries;
    // Parallel to `entries`: what each of them was linked to, or null.
    QVector<TGraphicsBusItem*> buses;
    QVector<TGraphicsNetItem*> nets;
    QVector<bool> isFirstLink; ///< Whether the entry was the net wire's first linked item, else its last.
};
