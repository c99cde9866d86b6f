#pragma once

#include <graphics/TGraphicsItem.h>

/**
 * The base of packages and parts: the component that they belong to, and its designator and value texts. Its area for
 * hit tests is the bounding rectangle of those children that are not texts; the children themselves come first.
 */
class TGraphicsComponentItem : public TGraphicsItem
{
public:
    explicit TGraphicsComponentItem(QGraphicsItem* parent = nullptr);

    /** The designator of the component, such as "R12". The setter stores, updates the text item and repaints. */
    const QString& RefDes() const { return refDes; }
    void SetRefDes(const QString& text);
    /** The component's value as text. The setter stores, updates the text item and repaints. */
    const QString& Value() const { return value; }
    void SetValue(const QString& text);
    /** The footprint's name, possibly followed by an at sign and a qualifier. The setter only stores. */
    const QString& PackageName() const { return packageName; }
    void SetPackageName(const QString& text) { packageName = text; }
    /** The number of the component, which its parts and its package share; 0 for none. The setter only stores. */
    quint16 ComponentNumber() const { return componentNumber; }
    void SetComponentNumber(quint16 number) { componentNumber = number; }

    /** The child items that draw designator and value, or null. The setter makes the item a child. */
    TGraphicsItem* RefDesText() const { return refDesText; }
    void SetRefDesText(TGraphicsItem* text);
    TGraphicsItem* ValueText() const { return valueText; }
    void SetValueText(TGraphicsItem* text);

    /** Whether the texts are locked against being moved on their own. The setters only store. */
    bool LockRefDes() const { return lockRefDes; }
    void SetLockRefDes(bool on) { lockRefDes = on; }
    bool LockValue() const { return lockValue; }
    void SetLockValue(bool on) { lockValue = on; }

    /** To be called when the extent of a child has changed. */
    void ForgetBody();

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
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
    mutable QRectF body;
    mutable bool bodyKnown = false;
};
