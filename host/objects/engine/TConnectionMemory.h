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
 * What a symbol or package remembers of the links that it made and cut. It tells its callers of them by lists of items
 * alone; who gives such a list back means just these links: several places may lie on one point, and a wire has two
 * ends. A part of that item.
 *
 * A list is known by its data, which copies of a list share. Two lists of the same items may stand for different links,
 * as when something is cut, linked elsewhere and cut again. A list is forgotten when nobody else holds it.
 */
class TConnectionMemory
{
public:
    /** The list of the connections' items, in that order, by which they are known from now on. */
    QVector<TGraphicsItem*> ListOf(const TConnections& connections);

    /** The connections behind a list, one for each item; none for a list that is not known. */
    TConnections Behind(const QVector<TGraphicsItem*>& list);

    /** The latest connection of an item that suits; for a list that is not known, such as one from which items have
     *  been dropped. */
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
        TConnections connections; ///< Parallel to `list`. Compared only, never followed.
        bool wasHeld = false;     ///< Whether somebody else has kept the list.
    };

    void Forget();

    QVector<Record> records; ///< In the order in which they were made.
};
