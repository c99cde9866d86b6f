#pragma once

#include <graphics/TGraphicsItem.h>

#include <QVector>

#include <algorithm>
#include <optional>

/** A link between an item of a design and one of the places of a symbol or package: its pins, or its pads. */
struct TConnection
{
    TGraphicsItem* item;        ///< A wire, or a pin of another symbol.
    TGraphicsItem::LinkEnd end; ///< Of the wire. A pin has one end only, called the first.
    TGraphicsItem* place;
};

using TConnections = QVector<TConnection>;

/**
 * The links that a symbol or package has made and cut. Its callers get them as plain lists of items; a list that is
 * passed back stands for exactly these links, since several places may lie on one point, and a wire has two ends. A
 * member of that item.
 *
 * A list is identified by its data, which copies of a list share. Two lists of the same items may stand for different
 * links, for example if an item is cut, linked elsewhere and cut again. A list is forgotten when no caller holds it.
 */
class TConnectionMemory
{
public:
    /** The list of the connections' items, in that order, which identifies them from now on. */
    QVector<TGraphicsItem*> ListOf(const TConnections& connections);

    /** The connections behind a list, one for each item; none for an unknown list. */
    TConnections Behind(const QVector<TGraphicsItem*>& list);

    /** The latest connection of an item that satisfies the predicate; for an unknown list, such as one from which items
     *  were removed. */
    template <class Suits>
    std::optional<TConnection> Latest(const TGraphicsItem* item, Suits suits) const
    {
        for (auto record = records.crbegin(); record != records.crend(); ++record) {
            const auto found = std::find_if(
                record->connections.crbegin(), record->connections.crend(),
                [&](const TConnection& connection) { return connection.item == item && suits(connection); });
            if (found != record->connections.crend()) {
                return *found;
            }
        }
        return {};
    }

    /** How many lists are known. */
    int Size() const { return records.size(); }

private:
    struct Record
    {
        QVector<TGraphicsItem*> list;
        TConnections connections; ///< Parallel to `list`. Compared, but never dereferenced.
        bool wasHeld = false;     ///< Whether a caller has kept the list.
    };

    void Forget();

    QVector<Record> records; ///< In the order in which they were made.
};
