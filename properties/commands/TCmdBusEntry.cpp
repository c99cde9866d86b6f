#include "properties/commands/TCmdBusEntry.h"

#include "properties/commands/TDetachedItem.h"

#include "properties/commands/EachOnce.h"

#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsNetItem.h>

TCmdBusEntryDisconnect::TCmdBusEntryDisconnect(const QList<TGraphicsItem*>& selection)
{
    const QList<TGraphicsItem*> once = EachOnce(selection);
    for (TGraphicsItem* item : once) {
        if (item->type() != ItemType::BusEntry) {
            continue;
        }
        auto* entry = static_cast<TGraphicsBusEntryItem*>(item);
        entries.emplace_back(entry);
        buses.append(entry->BusLink());
        nets.append(entry->NetLink());
        isFirstLink.append(entry->NetLink() && entry->NetLink()->FirstLink() == entry);
    }
}

TCommandKind TCmdBusEntryDisconnect::Kind() const
{
    return {"BusEntryDisconnect", QT_TRANSLATE_NOOP("TCommandKind", "Disconnect %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "bus entries")};
}

TCmdBusEntryDisconnect::~TCmdBusEntryDisconnect() = default;

bool TCmdBusEntryDisconnect::mergeWith(const TUndoCommand* other)
{
    const auto* later = dynamic_cast<const TCmdBusEntryDisconnect*>(other);
    return later && later->entries.empty();
}

bool TCmdBusEntryDisconnect::Do()
{
    for (auto& detached : entries) {
        TGraphicsBusEntryItem* entry = detached.Get();
        entry->UnlinkFromBus();
        entry->UnlinkFromNet();
        detached.Detach();
    }
    return true;
}

bool TCmdBusEntryDisconnect::Undo()
{
    for (int i = 0; i < buses.size(); ++i) {
        entries[static_cast<std::size_t>(i)].Attach();
        LinkAgain(i);
    }
    return true;
}

void TCmdBusEntryDisconnect::LinkAgain(int index)
{
    TGraphicsBusEntryItem* entry = entries[static_cast<std::size_t>(index)].Get();
    if (TGraphicsBusItem* bus = buses.at(index)) {
        entry->SetBusLink(bus);
        entry->update();
        bus->AddLinkedBusEntry(entry);
    }
    if (TGraphicsNetItem* net = nets.at(index)) {
        entry->SetNetLink(net);
        entry->update();
        if (isFirstLink.at(index)) {
            net->SetFirstLink(entry);
        } else {
            net->SetLastLink(entry);
        }
    }
}
