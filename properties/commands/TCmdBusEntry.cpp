#include "properties/commands/TCmdBusEntry.h"

#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsNetItem.h>

#include <QSet>

TCmdBusEntryDisconnect::TCmdBusEntryDisconnect(const QList<TGraphicsItem*>& selection)
{
    QSet<const TGraphicsItem*> known;
    for (TGraphicsItem* item : selection) {
        if (!item || item->type() != ItemType::BusEntry || known.contains(item)) {
            continue;
        }
        known.insert(item);
        auto* entry = static_cast<TGraphicsBusEntryItem*>(item);
        entries.emplace_back(entry);
        buses.append(entry->BusLink());
        nets.append(entry->NetLink());
        isFirstLink.append(entry->NetLink() && entry->NetLink()->FirstLink() == entry);
    }
}

TCmdBusEntryDisconnect::~TCmdBusEntryDisconnect() = default;

bool TCmdBusEntryDisconnect::mergeWith(const TUndoCommand* other)
{
    const auto* later = dynamic_cast<const TCmdBusEntryDisconnect*>(other);
    return later && later->entries.empty();
}

void TCmdBusEntryDisconnect::Do()
{
    for (auto& detached : entries) {
        TGraphicsBusEntryItem* entry = detached.Get();
        entry->UnlinkFromBus();
        entry->UnlinkFromNet();
        if (entry->Owner()) {
            detached.Detach();
        }
    }
}

void TCmdBusEntryDisconnect::Undo()
{
    for (int i = 0; i < buses.size(); ++i) {
        entries[static_cast<std::size_t>(i)].Attach();
        LinkAgain(i);
    }
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
