#pragma once

#include <graphics/ItemTypes.h>
#include <workspace/Osmirel.h>

#include <QColor>
#include <QGraphicsItem>
#include <QPainterPath>

class TStateText;
class TWorkspace;

/**
 * An object of a design: something that lies on a layer, can be selected and edited, and says its state as text.
 *
 * Positions and lengths are scene units of 1/300 inch, y grows downwards; rotations are degrees, clockwise as seen.
 * An item is owned by the scene or the parent item that it is attached to, and by its creator while detached. The
 * workspace is shared with the rest of the document and outlives the item; null for an item of no document.
 */
class TGraphicsItem : public QGraphicsItem
{
public:
    /** Bits of the item's flag word. */
    enum TFlag : unsigned {
        UndoBypass = 1,       ///< Edits are written at once and leave no undo step (an item that is just being made).
        OnlyAngleAndLine = 2, ///< A text of which only the angle and the line width may be edited.
        Selected = 8,         ///< Mirrors `QGraphicsItem::isSelected`.
        Routing = 16,         ///< A wire of the route in progress.
        Lock = 512,
        MirrorHorizontal = 0x800,
        MirrorVertical = 0x1000,
    };

    explicit TGraphicsItem(QGraphicsItem* parent = nullptr);

    /** The item's kind: a value of `ItemType`, by which all of the application tells items apart. */
    int type() const override = 0;

    unsigned TFlags() const { return flags; }
    bool HasTFlag(TFlag flag) const { return (flags & flag) != 0; }
    /** Sets or clears one bit of the flag word and repaints. */
    void SetTFlag(TFlag flag, bool on);

    TWorkspace* Workspace() const { return workspace; }
    /** Gives the item, and its children, the workspace of the document that it is about to join. */
    void SetWorkspace(TWorkspace* newWorkspace);

    Osmirel::Layer Layer() const { return layer; }
    /** Moves the item to a layer, restacks and repaints it. */
    virtual void SetLayer(Osmirel::Layer newLayer);

    /** The item's own colour; invalid when it is drawn in its layer's colour. */
    const QColor& AltColor() const { return altColor; }
    /** Sets the item's own colour, or gives it back its layer's with an invalid one, and repaints. */
    void SetAltColor(const QColor& color);

    /** Name of the net that the item is on; empty for none. */
    virtual QString Net() const { return {}; }

    /** Brings the drawing up to date after attributes were written. The base repaints the whole item. */
    virtual void Refresh();

    /** Whether any layer that the item shows on is visible. Hidden items are neither drawn nor picked. */
    virtual bool IsOnVisibleLayer() const;

    /** Position in the design's order, set by the document when the item first joins it; 0 before that. */
    int DesignOrder() const { return designOrder; }
    void SetDesignOrder(int order) { designOrder = order; }

    /** The whole state as one line, without a line break. The selection is not part of it. */
    QString StateLine() const;

    /** One word for the kind, as it begins the state line and names it on a command line. */
    virtual QString KindName() const = 0;

    /** What is drawn, in the item's own coordinates, whether or not its layer is visible. */
    virtual QPainterPath Outline() const = 0;

    QPainterPath shape() const final;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) final;

protected:
    /** Adds the attributes of the kind to the state line; derived classes call their base first. */
    virtual void Describe(TStateText& state) const;

    /** The colour that the item is drawn in for the most part: all that is seen of it when it is small. */
    virtual QColor MainColor() const { return Color(); }

    /** Draws the item; @p pixelsPerUnit tells what detail can be seen. Called only when it is visible. */
    virtual void Draw(QPainter& painter, double pixelsPerUnit) const = 0;

    /** Height in the stack of items, by default with the layers of the top side above those of the bottom. */
    virtual double StackingHeight() const { return -static_cast<double>(layer); }

    /** The colour of a layer in the document's table. */
    QColor LayerColor(Osmirel::Layer ofLayer) const;
    /** The item's own colour or else its layer's. */
    QColor Color() const;

    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    unsigned flags = 0;
    int designOrder = 0;
    Osmirel::Layer layer = Osmirel::NoLayer;
    TWorkspace* workspace = nullptr;
    QColor altColor;
};
