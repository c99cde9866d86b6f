#pragma once

#include <objects/engine/TWireConnector.h>
#include <objects/TGraphicsComponentItem.h>

/** A component's footprint on the board: the parent of its pads, primitives and texts. */
class TGraphicsPackageItem : public TGraphicsComponentItem
{
public:
    explicit TGraphicsPackageItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Package; }
    QString KindName() const override { return QStringLiteral("package"); }

    /**
     * Links wires to the package's pads and returns them, once for each link: if @p items is empty all wires with a
     * free end on a pad's copper, otherwise exactly the given ones.
     */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    /** Cuts wires from the package's pads and returns them, once for each link: if @p items is empty all that are
     *  linked, otherwise exactly the given ones. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);

    /** The pads, in the design's order. */
    QVector<TGraphicsItem*> Pads() const;

    /**
     * Puts the package on a side of the board. When that is the other side, its children are mirrored in its y axis
     * and put on the layers of that side, so that moving it back restores them. Links stay as they are.
     */
    void SetLayer(Osmirel::Layer newLayer) override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;

private:
    TWireConnector connector;
};
