#include <objects/engine/TConnectionMemory.h>

#include <algorithm>
#include <iterator>

QVector<TGraphicsItem*> TConnectionMemory::ListOf(const TConnections& connections)
{
    Forget();
    QVector<TGraphicsItem*> list;
    if (!connections.isEmpty()) {
        list.reserve(connections.size());
        std::transform(connections.cbegin(), connections.cend(), std::back_inserter(list),
                       [](const TConnection& connection) { return connection.item; });
        records.append({list, connections, false});
    }
    return list;
}

TConnections TConnectionMemory::Behind(const QVector<TGraphicsItem*>& list)
{
    Forget();
    const auto found = std::find_if(records.crbegin(), records.crend(), [&list](const Record& record) {
        return record.list.constData() == list.constData();
    });
    return found == records.crend() ? TConnections() : found->connections;
}

void TConnectionMemory::Forget()
{
    constexpr int keptForNobody = 8; // A caller that removes items from a list then holds a different list.
    int heldByNobody = 0;
    for (int i = records.size() - 1; i >= 0; --i) {
        Record& record = records[i];
        const bool isHeld = !record.list.isDetached();
        record.wasHeld = record.wasHeld || isHeld;
        if (!isHeld && (!record.wasHeld || ++heldByNobody > keptForNobody)) {
            records.removeAt(i);
        }
    }
}
