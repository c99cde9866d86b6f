#pragma once

#include <graphics/TGraphicsItem.h>
#include <objects/engine/TLinkList.h>

class TGraphicsTextItem;

/**
 * A pin of a symbol: its position is the connection point, from which its line goes along its x axis to the symbol's
 * body. A child of a part, a net tie or a port, or without parent while a symbol is drawn.
 *
 * Net wires are linked to it, and pins of other symbols that lie on the same point.
 */
class TGraphicsPinItem : public TGraphicsItem
{
public:
    enum TypePinType : int {
        TypePassive,
        TypeInput,
        TypeOutput,
        TypeBidirectional,
        TypeHighImpedance,
        TypeOpenCollector,
        TypePower,
        TypeNoConnect,
    };
    enum TypePinStyle : int { StyleNormal, StyleInverse };
    enum TypePinLength : int { LengthZero, LengthShort, LengthMiddle, LengthLong };

    explicit TGraphicsPinItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Pin; }
    QString KindName() const override { return QStringLiteral("pin"); }

    /** The name and whether it is shown. The setters repaint. */
    const QString& Name() const { return name; }
    void SetName(const QString& text);
    bool NameVisible() const { return nameVisible; }
    void SetNameVisible(bool on);

    /** The child that holds the number as its text, and draws it. Null only if it was deleted. */
    TGraphicsTextItem* NumberText() const { return numberText; }
    /** The number; empty without its text item. */
    QString Number() const;
    bool NumberVisible() const { return numberVisible; }
    /** Shows or hides the number, and repaints. */
    void SetNumberVisible(bool on);

    /** The electrical type. The setter only stores. */
    TypePinType PinType() const { return pinType; }
    void SetPinType(TypePinType newType) { pinType = newType; }
    /** How the pin is drawn. The setters only store; `UpdatePath` updates the drawing. */
    TypePinStyle PinStyle() const { return pinStyle; }
    void SetPinStyle(TypePinStyle style) { pinStyle = style; }
    TypePinLength PinLength() const { return pinLength; }
    void SetPinLength(TypePinLength length) { pinLength = length; }
    /** The group of pins that may be swapped, 0 for none. The setter only stores. */
    quint8 Swap() const { return swap; }
    void SetSwap(quint8 group) { swap = group; }

    /** Length of the line in scene units: that of its length class, or the symbol's own length for the class. */
    double LineLength() const;
    /** Sets the symbol's own length, in scene units, for pins of the current length class. */
    void SetSymbolLength(double length);

    /** Updates the pin's line, and the number's position on it, to style and length. */
    void UpdatePath();
    /** Moves the number to its position on the line. */
    void UpdateNumberPos();

    /** The wires that are linked here, once for each of their ends, and the pins; in the order of linking. */
    const QList<TGraphicsSectionItem*>& LinkedSections() const { return sections.List(); }
    const QList<TGraphicsPinItem*>& LinkedPins() const { return pins.List(); }
    /** Two-sided: links the pin with one of another symbol, or cuts it. Null, itself, and a pin that is linked already
     *  are ignored, as is one to cut that is not linked. */
    void LinkToPin(TGraphicsPinItem* pin);
    void UnlinkFromPin(TGraphicsPinItem* pin);

    /** Makes the pin name the net of all that is linked with it; for ports. Empty for no name. */
    void NameNet(const QString& net);

    QVector<TGraphicsItem*> Links() const override { return sections.Items() + pins.Items(); }
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override;
    void AcceptLink(TGraphicsItem* section, LinkEnd) override { sections.Add(section); }
    void ReleaseLink(TGraphicsItem* section, LinkEnd) override { sections.Remove(section); }
    bool CanBeLinkedTo() const override { return true; }
    bool TakesEnd(const QPointF& point, Osmirel::Layer ofLayer) const override;

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    /** Repaints with a new extent, which the parent's depends on. */
    void ExtentChanges();
    /** Rotates the number to match the pin's current rotation. */
    void KeepNumberUpright();
    const QPainterPath& NamePath() const;

    QString name;
    bool nameVisible = true;
    TGraphicsTextItem* numberText;
    bool numberVisible = true;
    TypePinType pinType = TypePassive;
    TypePinStyle pinStyle = StyleNormal;
    TypePinLength pinLength = LengthMiddle;
    TypePinLength symbolLengthClass = LengthMiddle;
    double symbolLength;
    quint8 swap = 0;
    TLinkList sections{LinkNode()};
    TLinksTo<TGraphicsPinItem> pins{LinkNode()};
    mutable QPainterPath namePath; ///< Computed lazily; empty until then.
};
