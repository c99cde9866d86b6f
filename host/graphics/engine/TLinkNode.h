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
 * The items that links join, directly or through one another, and the net names among them.
 *
 * Shared by its members' nodes. An item without links has none.
 */
struct TLinkIsland
{
    QVector<TLinkNode*> members;
    QHash<QString, int> namesGiven; ///< Nets of the members that name one (pads, pins), with how often.
    QHash<QString, int> namesKept;  ///< Own names of the other members, with how often.
    QHash<TItemScene*, int> scenes; ///< That own members, with how many.
    /** The net and the colour that a port has found all to have who bear that net or none. Void as soon as a member
     *  comes, goes, or changes its name or colour. */
    std::optional<QPair<QString, QColor>> colored;
};

/** The two ends of links that were made or cut since the islands were last brought up to date. */
struct TLinkChanges
{
    QVector<QPair<TLinkNode*, TLinkNode*>> made;
    QVector<QPair<TLinkNode*, TLinkNode*>> cut;

    bool IsEmpty() const { return made.isEmpty() && cut.isEmpty(); }
    void Add(TLinkNode& one, TLinkNode& other, bool isMade);
    void Add(const TLinkChanges& more);
};

/**
 * An item's place among the links of a design: who it is linked with, in which island, and what net that makes.
 *
 * A part of its item. Every link that one item holds to another is told to both nodes, so that an item that goes away
 * can be taken out of all items that still hold it. The net of an item is, in this order: its own if it names nets;
 * the one that all naming members of its island agree on; its own; the one that all own names in the island agree on.
 *
 * Cutting and making links costs nothing but a note. Islands are brought up to date when a net is asked for, at a cost
 * of the smaller part for each island that falls apart or grows together.
 */
class TLinkNode
{
public:
    enum class Role {
        Follows, ///< Takes the net of what it is linked to.
        Names,   ///< Has a net of its own, which the island takes.
        Divides, ///< Is linked, but joins nothing.
    };

    explicit TLinkNode(TGraphicsItem& ofItem) : item(ofItem) {}
    ~TLinkNode() = default;
    TLinkNode(const TLinkNode&) = delete;
    TLinkNode& operator=(const TLinkNode&) = delete;

    TGraphicsItem& Item() const { return item; }

    /** To be set before the first link. */
    void SetRole(Role newRole) { role = newRole; }

    /** Tells the node that its item goes from one scene to another; null for none. */
    void SceneChanges(TItemScene* from, TItemScene* to);

    /** Notes that this item holds one more, or one less, link to another item. */
    void Hold(TLinkNode& other);
    void Drop(TLinkNode& other);

    /** Ends all links with the item, in all items that hold one to it. To be called while the item is destroyed. */
    void Release();

    QString Net() const;
    const QString& OwnNet() const { return ownNet; }
    void SetOwnNet(const QString& name);

    /** The island, null for an item that nothing is linked with. Valid until links change. */
    const TLinkIsland* Island() const;

    /** Notes in the island, if there is one, that all of a net have a colour; whether that is noted; and that an item
     *  takes another one. */
    void NoteColored(const QString& net, const QColor& color) const;
    bool IsColored(const QString& net, const QColor& color) const;
    void ColorChanges() const;

    /** Brings islands and nets up to date with the links. Called by the design's scene and by the nodes. */
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
    int search = -1; ///< The search that has come by, during `TLinkSearch`.
    QString ownNet;
    QVector<Neighbour> neighbours;
    std::shared_ptr<TLinkIsland> island;
};
