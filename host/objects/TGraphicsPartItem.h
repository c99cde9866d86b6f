#pragma once

#include <objects/engine/TWireConnector.h>
#include <objects/TGraphicsComponentItem.h>

/** A component's symbol, or one of its units, on a schematic page: the parent of its pins, primitives and texts. */
class TGraphicsPartItem : public TGraphicsComponentItem
{
public:
    explicit TGraphicsPartItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Part; }
    QString KindName() const override { return QStringLiteral("part"); }

    /** The symbol's name in its library. The setter only stores. */
    const QString& Name() const { return name; }
    void SetName(const QString& text) { name = text; }
    /** The group of units that may be swapped, 0 for none. The setter only stores. */
    quint8 SwapNumber() const { return swapNumber; }
    void SetSwapNumber(quint8 number) { swapNumber = number; }
    /** Whether the symbol is open for editing, so that the length of its pins can be changed. The setter only stores.
     */
    bool IsSymbolOpen() const { return symbolOpen; }
    void SetSymbolOpen(bool on) { symbolOpen = on; }

    /** The pins, in the design's order. */
    QVector<TGraphicsItem*> Pins() const { return ChildrenOfKind(ItemType::Pin); }

    /**
     * Links wires and pins of other symbols to the part's pins and returns them, once for each link: if @p items
     * is empty all that touch, otherwise exactly the given ones.
     */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    /** Cuts wires and pins of other symbols from the part's pins and returns them, once for each link: if @p items
     *  is empty all that are linked, otherwise exactly the given ones. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;

private:
    QString name;
    quint8 swapNumber = 0;
    bool symbolOpen = false;
    TWireConnector connector;
};
