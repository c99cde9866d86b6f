#pragma once

#include <graphics/engine/TLinkNode.h>
#include <graphics/ItemTypes.h>
#include <workspace/Osmirel.h>

#include <QColor>
#include <QGraphicsItem>
#include <QPainterPath>

#include <memory>

class TItemScene;
class TStateText;
class TWorkspace;

/**
 * An object of a design: it lies on a layer, can be selected and edited, and writes its state as text.
 *
 * Positions and lengths are scene units of 1/300 inch, y grows downwards; rotations are degrees, clockwise as seen.
 * An item is owned by the scene or the parent item that it is attached to, and by its creator while detached. The
 * workspace is shared with the rest of the document and outlives the item; null for an item of no document.
 *
 * Items hold links to each other. Between commands every link is held by both of its items; a single call may be
 * one-sided, if documented so. A destroyed item is removed from every item that holds a link to it.
 */
class TGraphicsItem : public QGraphicsItem
{
public:
    /** Bits of the item's flag word. */
    enum TFlag : unsigned {
        UndoBypass = 1,       ///< Edits are written at once, without an undo step (an item that is still being drawn).
        OnlyAngleAndLine = 2, ///< A text of which only the angle and the line width may be edited.
        Selected = 8,         ///< Mirrors `QGraphicsItem::isSelected`.
        Routing = 16,         ///< A wire of the route in progress.
        Lock = 512,
        MirrorHorizontal = 0x800,
        MirrorVertical = 0x1000,
    };

    /** The end of a straight section at which another item is linked. */
    enum class LinkEnd { First, Last };

    explicit TGraphicsItem(QGraphicsItem* parent = nullptr);
    ~TGraphicsItem() override;

    /** The item's kind: a value of `ItemType`, by which the application distinguishes items. */
    int type() const override = 0;

    unsigned TFlags() const { return flagWord; }
    bool HasTFlag(TFlag flag) const { return (flagWord & flag) != 0; }
    /** Sets or clears one bit of the flag word and repaints. */
    void SetTFlag(TFlag flag, bool on);

    TWorkspace* Workspace() const { return workspace; }
    /** Gives the item, and its children, the workspace of the document that it is about to join. */
    void SetWorkspace(TWorkspace* newWorkspace);

    Osmirel::Layer Layer() const { return layer; }
    /** Moves the item to a layer, restacks and repaints it. */
    virtual void SetLayer(Osmirel::Layer newLayer);

    /** Whether the item is copper on a layer. In the base: everything on a copper layer is. */
    virtual bool HasCopperOn(Osmirel::Layer copper) const { return layer == copper && Osmirel::IsCopper(copper); }

    /** Mirrors the item in the y axis of its parent and puts it on the layer of the board's other side, and repaints.
     *  A second call restores the item exactly. */
    virtual void Flip();

    /** The item's own colour; invalid when it is drawn in its layer's colour. */
    const QColor& AltColor() const { return altColor; }
    /** Sets the item's own colour, invalid for its layer's, and repaints. */
    virtual void SetAltColor(const QColor& color);

    /** The scene that owns the item; null while it is detached. */
    TItemScene* Owner() const { return owner; }
    /** Places the item, with its children, in the scene, which owns it from then on. Links stay as they are. */
    void AttachTo(TItemScene* newOwner);
    /** Takes the item, with its children, off its scene. The caller owns it from then on. Links stay as they are. */
    void Detach();

    /**
     * A copy of all attributes, with copies of its children, and without links: attached to nothing, not selected, in
     * the same workspace, at the same position. The caller owns it.
     */
    TGraphicsItem* CreateCopy() const;

    /**
     * Takes over all attributes of another item of the same kind, as `CreateCopy` copies them, and has copies of its
     * children instead of its own. The item keeps its links, its scene and its parent, is not selected, and repaints.
     */
    void Assign(const TGraphicsItem& other);

    /** The items that this one holds a link to, once for each link; in an order only where the kind says so. */
    virtual QVector<TGraphicsItem*> Links() const { return {}; }
    /**
     * One-sided: in this item's own links, replaces one link to @p from by one to @p to, or removes it if @p to is
     * null. In a section that is linked to @p from at both ends this is the first end. Returns whether there was such a
     * link.
     */
    virtual bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to);
    /** One-sided: a section was linked to this item with one of its ends. Kinds that cannot be linked to ignore it. */
    virtual void AcceptLink(TGraphicsItem* section, LinkEnd end);
    /** One-sided: the section's end is no longer linked to this item. */
    virtual void ReleaseLink(TGraphicsItem* section, LinkEnd end);
    /** Whether sections can be linked to this item. */
    virtual bool CanBeLinkedTo() const { return false; }
    /** Whether a section on a layer that ends at a point, in the item's own coordinates, can be linked. In the base: if
     *  the point is on the item's copper. */
    virtual bool TakesEnd(const QPointF& point, Osmirel::Layer ofLayer) const;

    /** Name of the item's net, which follows from links and own name; empty for none. */
    virtual QString Net() const { return linkNode.Net(); }
    /** The item's own net name, regardless of its links. */
    const QString& OwnNet() const { return linkNode.OwnNet(); }
    /** The item's node in the graph of links; for items that store links of their own. */
    TLinkNode& LinkNode() { return linkNode; }
    /** The items that links connect to this one, directly or not; null without links. Valid until links change. */
    const TLinkIsland* Island() const { return linkNode.Island(); }

    /** Updates the drawing after attributes were written. The base repaints the whole item. */
    virtual void Refresh();

    /** Whether any layer that the item shows on is visible. Hidden items are neither drawn nor picked. */
    virtual bool IsOnVisibleLayer() const;

    /** Position in the design's order, set by the document when the item first joins it; 0 before that. */
    int DesignOrder() const { return designOrder; }
    void SetDesignOrder(int order) { designOrder = order; }

    /** Whether the document derived the item from others: it gets no number and marks no copper. */
    virtual bool IsDerived() const { return false; }

    /** The whole state as one line, without a line break. The selection is not part of it. */
    QString StateLine() const;

    /** One word for the kind: the start of the state line, and its name on a command line. */
    virtual QString KindName() const = 0;

    /** Kind, layer and position in a few characters: the reference to the item in the state lines of others. */
    virtual QString PlaceName() const;

    /** The children of one kind, in the design's order. */
    QVector<TGraphicsItem*> ChildrenOfKind(ItemType::Number kind) const;

    /** The drawn shape, in the item's own coordinates, whether or not its layer is visible. */
    virtual QPainterPath Outline() const = 0;

    QPainterPath shape() const final;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) final;

protected:
    /** Adds the attributes of the kind to the state line; derived classes call their base first. */
    virtual void Describe(TStateText& state) const;

    /** The item's main colour: all that is visible of it at a small scale. */
    virtual QColor MainColor() const { return Color(); }

    /** Draws the item; @p pixelsPerUnit determines the level of detail. Called only if it is visible. */
    virtual void Draw(QPainter& painter, double pixelsPerUnit) const = 0;

    /** The z value, by default with the layers of the top side above those of the bottom. */
    virtual double StackingHeight() const { return -static_cast<double>(layer); }

    /** The colour of a layer in the document's table. */
    QColor LayerColor(Osmirel::Layer ofLayer) const;
    /** The item's own colour or else its layer's. */
    QColor Color() const;

    /** A new, default-constructed item of the same kind. */
    virtual std::unique_ptr<TGraphicsItem> CreateEmpty() const = 0;
    /** Copies the attributes of an item of the same kind; derived classes call their base first. */
    virtual void CopyFrom(const TGraphicsItem& source);

    /** Writes a link that this item holds, and updates both items' nodes; one-sided. */
    void StoreLink(TGraphicsItem*& link, TGraphicsItem* target);

    /** Marks the copper of the item's net as changed. */
    void MarkNet() const;
    /** Marks the area covered by pours as changed. */
    void MarkPours() const;

    /** Adds references to the items, sorted, under a name. */
    static void DescribeLinks(TStateText& state, const char* name, const QVector<TGraphicsItem*>& links);

    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    friend class TLinkNode;

    unsigned flagWord = 0;
    int designOrder = 0;
    Osmirel::Layer layer = Osmirel::NoLayer;
    TWorkspace* workspace = nullptr;
    TItemScene* owner = nullptr;
    QColor altColor;
    TLinkNode linkNode{*this};
};
