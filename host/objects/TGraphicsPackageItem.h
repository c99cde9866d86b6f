#pragma once

#include <graphics/TGraphicsItem.h>
#include <objects/TLanding.h>

/**
 * A component's footprint on the board: the parent of its pads, drawings and texts. It can be picked wherever none of
 * these is, within the rectangle around its pads and drawings.
 */
class TGraphicsPackageItem : public TGraphicsItem
{
public:
    explicit TGraphicsPackageItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Package; }
    QString KindName() const override { return QStringLiteral("package"); }

    /** The designator of the component, such as "R12". The setter stores, updates the text item and repaints. */
    const QString& RefDes() const { return refDes; }
    void SetRefDes(const QString& text);
    /** The component's value as text. The setter stores, updates the text item and repaints. */
    const QString& Value() const { return value; }
    void SetValue(const QString& text);
    /** The footprint's name, possibly followed by an at sign and a qualifier. The setter stores only. */
    const QString& PackageName() const { return packageName; }
    void SetPackageName(const QString& text) { packageName = text; }
    /** The number of the schematic component; 0 for none. The setter stores only. */
    quint16 ComponentNumber() const { return componentNumber; }
    void SetComponentNumber(quint16 number) { componentNumber = number; }

    /** The child items that draw designator and value; null where there is none. The setter makes the item a child. */
    TGraphicsItem* RefDesText() const { return refDesText; }
    void SetRefDesText(TGraphicsItem* text);
    TGraphicsItem* ValueText() const { return valueText; }
    void SetValueText(TGraphicsItem* text);

    /** Whether the texts may not be moved on their own. The setters store only. */
    bool LockRefDes() const { return lockRefDes; }
    void SetLockRefDes(bool on) { lockRefDes = on; }
    bool LockValue() const { return lockValue; }
    void SetLockValue(bool on) { lockValue = on; }

    /**
     * Links wires to the package's pads and returns them, once for each link: with @p items empty all wires with a
     * free end on a pad's copper, otherwise exactly the given ones.
     */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    /** Cuts wires from the package's pads and returns them, once for each link: with @p items empty all that are
     *  linked, otherwise exactly the given ones. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);

    /** The pads, in the design's order. */
    QVector<TGraphicsItem*> Pads() const;

    /**
     * Puts the package on a side of the board. When that is the other side, its children are mirrored in its y axis
     * and put on the layers of that side, so that putting it back restores them. Links stay as they are.
     */
    void SetLayer(Osmirel::Layer newLayer) override;

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    void SetText(TGraphicsItem*& field, TGraphicsItem* text);

    QString refDes;
    QString value;
    QString packageName;
    quint16 componentNumber = 0;
    TGraphicsItem* refDesText = nullptr;
    TGraphicsItem* valueText = nullptr;
    bool lockRefDes = false;
    bool lockValue = false;
    TLanding landing;
    mutable QRectF body;
    mutable bool bodyKnown = false;
};
