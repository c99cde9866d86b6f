#pragma once

#include <graphics/TGraphicsItem.h>
#include <objects/engine/TLinkList.h>
#include <objects/engine/TWireConnector.h>

#include <QPen>

/**
 * Copper that joins two nets on purpose: two round pads on one layer and a wire between them. Wires may be linked to
 * either pad; they keep their net.
 */
class TGraphicsNetTiePcbItem : public TGraphicsItem
{
public:
    explicit TGraphicsNetTiePcbItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::NetTiePcb; }
    QString KindName() const override { return QStringLiteral("nettie"); }

    /** The number that pairs the tie with its symbol on a schematic page. The setter only stores. */
    quint16 Number() const { return number; }
    void SetNumber(quint16 newNumber) { number = newNumber; }

    /** The name and whether it is shown. The setters repaint. */
    const QString& Name() const { return name; }
    void SetName(const QString& text);
    bool NameVisible() const { return nameVisible; }
    void SetNameVisible(bool on);

    /** Diameter of the pads in scene units. The setter repaints. */
    double PadSize() const { return padSize; }
    void SetPadSize(double diameter);
    /** Distance between the centres of the pads, in scene units; they are on both sides of the position, along the
     * item's x axis. The setter repaints. */
    double PadDistance() const { return padDistance; }
    void SetPadDistance(double distance);

    /** The wire's pen; its `widthF` is the wire's width in scene units. Writing does not repaint. */
    QPen& Pen() { return pen; }
    const QPen& Pen() const { return pen; }

    /** The wires that are linked here, once for each of their ends, in the order in which they were linked. */
    const QList<TGraphicsSectionItem*>& LinkedWires() const { return linked.List(); }
    /** One-sided: adds one end of a wire to the list, or removes one. */
    void AddLinkedWire(TGraphicsSectionItem* wire);
    void RemoveLinkedWire(TGraphicsSectionItem* wire);

    /** Links the given wires, or if none are given all that end on a pad, and returns them. See `TWireConnector`. */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    /** Cuts the given wires, or if none are given all, and returns them. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);

    QVector<TGraphicsItem*> Links() const override { return linked.Items(); }
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override { return linked.Replace(from, to); }
    void AcceptLink(TGraphicsItem* section, LinkEnd) override { linked.Add(section); }
    void ReleaseLink(TGraphicsItem* section, LinkEnd) override { linked.Remove(section); }
    bool CanBeLinkedTo() const override { return true; }

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    template <class Value>
    void StoreGeometry(Value& field, const Value& value);

    quint16 number = 0;
    QString name;
    bool nameVisible = true;
    double padSize = 0;
    double padDistance = 0;
    QPen pen;
    TLinkList linked{LinkNode()};
    TWireConnector connector;
};
