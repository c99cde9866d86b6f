#include <objects/engine/TWireContacts.h>

#include <graphics/TItemScene.h>
#include <objects/TGraphicsSectionItem.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <tuple>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

constexpr std::array<LinkEnd, 2> bothEnds = {LinkEnd::First, LinkEnd::Last};

/** A wire and one of its ends. */
using End = QPair<const TGraphicsItem*, int>;

/** One end of a wire, and the place that it lies on. */
struct Contact
{
    TGraphicsSectionItem* wire;
    LinkEnd end;
    TGraphicsItem* place;
    double squareDistance; ///< From the place's centre.
};

/** None for an end that is linked, or lies elsewhere. */
std::optional<Contact> FreeContact(TGraphicsSectionItem* wire, LinkEnd end, TGraphicsItem* place)
{
    if (wire->Link(end) || !WireContacts::Touch({wire, end, place})) {
        return {};
    }
    const QPointF point = place->mapFromScene(wire->ScenePoint(end));
    return Contact{wire, end, place, QPointF::dotProduct(point, point)};
}

QVector<TGraphicsSectionItem*> WiresNear(const TGraphicsItem& place)
{
    QVector<TGraphicsSectionItem*> wires;
    if (!place.Owner()) {
        return wires;
    }
    const QList<QGraphicsItem*> near = place.Owner()->ItemsNear(place.sceneBoundingRect());
    for (QGraphicsItem* item : near) {
        if (auto* wire = dynamic_cast<TGraphicsSectionItem*>(item)) {
            wires.append(wire);
        }
    }
    return wires;
}

bool ComesBefore(const Contact& left, const Contact& right)
{
    const auto order = [](const Contact& contact) {
        return std::make_tuple(contact.place->DesignOrder(), contact.wire->DesignOrder(), contact.end);
    };
    return order(left) < order(right);
}

} // namespace

bool WireContacts::Touch(const TConnection& connection)
{
    const auto* wire = static_cast<const TGraphicsSectionItem*>(connection.item);
    const QPointF point = connection.place->mapFromScene(wire->ScenePoint(connection.end));
    return connection.place->TakesEnd(point, wire->Layer());
}

TConnections WireContacts::Free(const QVector<TGraphicsItem*>& places)
{
    QHash<End, Contact> nearest;
    for (TGraphicsItem* place : places) {
        const QVector<TGraphicsSectionItem*> near = WiresNear(*place);
        for (TGraphicsSectionItem* wire : near) {
            for (const LinkEnd end : bothEnds) {
                const std::optional<Contact> contact = FreeContact(wire, end, place);
                const End key(wire, static_cast<int>(end));
                const auto known = nearest.constFind(key);
                if (contact && (known == nearest.cend() || contact->squareDistance < known->squareDistance)) {
                    nearest.insert(key, *contact);
                }
            }
        }
    }
    QVector<Contact> contacts;
    contacts.reserve(nearest.size());
    std::copy(nearest.cbegin(), nearest.cend(), std::back_inserter(contacts));
    std::sort(contacts.begin(), contacts.end(), ComesBefore);
    TConnections connections;
    connections.reserve(contacts.size());
    for (const Contact& contact : qAsConst(contacts)) {
        connections.append({contact.wire, contact.end, contact.place});
    }
    return connections;
}

std::optional<TConnection> WireContacts::Nearest(TGraphicsSectionItem* wire, const QVector<TGraphicsItem*>& places)
{
    std::optional<Contact> nearest;
    for (const LinkEnd end : bothEnds) {
        for (TGraphicsItem* place : places) {
            const std::optional<Contact> contact = FreeContact(wire, end, place);
            if (contact && (!nearest || contact->squareDistance < nearest->squareDistance)) {
                nearest = contact;
            }
        }
    }
    return nearest ? std::make_optional(TConnection{wire, nearest->end, nearest->place}) : std::nullopt;
}

TConnections WireContacts::Linked(const QVector<TGraphicsItem*>& places)
{
    TConnections linked;
    for (TGraphicsItem* place : places) {
        QSet<const TGraphicsItem*> byFirstEnd;
        const QVector<TGraphicsItem*> links = place->Links();
        for (TGraphicsItem* link : links) {
            if (const auto* wire = dynamic_cast<TGraphicsSectionItem*>(link)) {
                const bool isFirst = wire->FirstLink() == place && !byFirstEnd.contains(wire);
                byFirstEnd.insert(wire);
                linked.append({link, isFirst ? LinkEnd::First : LinkEnd::Last, place});
            }
        }
    }
    return linked;
}
