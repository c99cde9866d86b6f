#pragma once

#include <QColor>
#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class TGraphicsItem;
class TItemScene;
class TLinkNode;

/**
 * A connected component of linked items, and the net names in it.
 *
 * Shared by its members' nodes. An item without links has none.
 */
struct TLinkIsland
{
    QVector<TLinkNode*> members;
    QHash<QString, int> namesGiven; ///< Nets of the members that name one (pads, pins), with counts.
    QHash<QString, int> namesKept;  ///< Own names of the other members, with counts.
    QHash<TItemScene*, int> scenes; ///< That own members, with counts.
    /** The net and the colour that a port has found on all members that have this net or none. Invalid as soon as a
     *  member joins, leaves, or changes its name or colour. */
    std::optional<QPair<QString, QColor>> colored;
};

/** The two ends of links that were made or cut since the islands were last updated. */
struct TLinkChanges
{
    QVector<QPair<TLinkNode*, TLinkNode*>> made;
    QVector<QPair<TLinkNode*, TLinkNode*>> cut;

    bool IsEmpty() const { return made.isEmpty() && cut.isEmpty(); }
    void Add(TLinkNode& one, TLinkNode& other, bool isMade);
    void Add(const TLinkChanges& more);
};

/**
 * An item's node in the graph of links: its neighbours, its island, and the net that follows.
 *
 * A member of its item. Every link that one item holds to another is registered with both nodes, so that a destroyed
 * item can be removed from all items that still link to it. The net of an item is, in this order: its own if it names
 * nets; the one that all naming members of its island agree on; its own; the one that all own names in the island agree
 * on.
 *
 * Cutting and making links only records them. Islands are updated when a net is read, at the cost of the smaller part
 * of each island that splits or merges.
 */
class TLinkNode
{
public:
    enum class Role {
        Follows, ///< Takes the net of its links.
        Names,   ///< Has its own net, which the island takes.
        Divides, ///< Is linked, but connects nothing.
    };

    explicit TLinkNode(TGraphicsItem& ofItem) : item(ofItem) {}
    ~TLinkNode() = default;
    TLinkNode(const TLinkNode&) = delete;
    TLinkNode& operator=(const TLinkNode&) = delete;

    TGraphicsItem& Item() const { return item; }

    /** To be set before the first link. */
    void SetRole(Role newRole) { role = newRole; }

    /** Notifies the node that its item moves from one scene to another; null for none. */
    void SceneChanges(TItemScene* from, TItemScene* to);

    /** Records that this item holds one more, or one less, link to another item. */
    void Hold(TLinkNode& other);
    void Drop(TLinkNode& other);

    /** Removes all links to the item from the items that hold them. To be called during destruction of the item. */
    void Release();

    QString Net() const;
    const QString& OwnNet() const { return ownNet; }
    void SetOwnNet(const QString& name);

    /** The island; null for an item without links. Valid until links change. */
    const TLinkIsland* Island() const;

    /** Records in the island, if there is one, that all items of a net have a colour; whether that is recorded; and
     * that an item changes its colour. */
    void NoteColored(const QString& net, const QColor& color) const;
    bool IsColored(const QString& net, const QColor& color) const;
    void ColorChanges() const;

    /** Updates islands and nets to the links. Called by the design's scene and by the nodes. */
    static void Apply(TLinkChanges& changes);

private:
    friend class TLinkSearch;

    struct Neighbour
    {
        TLinkNode* node;
        int held;    ///< Links that this item holds to the neighbour.
        int holding; ///< Links that the neighbour holds to this item.
    };

    void CountLink(TLinkNode& other, int held, int holding);
    void NoteChange(TLinkNode& other, bool made);
    bool IsLinkedWith(const TLinkNode& other) const;
    void BringUpToDate() const;
    void JoinWith(TLinkNode& other);
    void Count(int difference) const;
    QSet<TItemScene*> WatchingScenes() const;
    void MoveTo(const std::shared_ptr<TLinkIsland>& newIsland);
    void MarkNets() const;
    void LeaveIsland();

    TGraphicsItem& item;
    Role role = Role::Follows;
    int placeInIsland = -1;
    int search = -1; ///< The search that has visited it, during `TLinkSearch`.
    QString ownNet;
    QVector<Neighbour> neighbours;
    std::shared_ptr<TLinkIsland> island;
};
