#pragma once

#include <graphics/TGraphicsItem.h>

/** The symbol of a net tie on a schematic page, which joins two nets on purpose: the parent of a pin for each. */
class TGraphicsNetTieSchItem : public TGraphicsItem
{
public:
    explicit TGraphicsNetTieSchItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::NetTieSch; }
    QString KindName() const override { return QStringLiteral("nettiesymbol"); }

    /** The number that pairs the symbol with its copper on the board. The setter only stores. */
    quint16 Number() const { return number; }
    void SetNumber(quint16 newNumber) { number = newNumber; }

    /** The name and whether it is shown. The setters repaint. */
    const QString& Name() const { return name; }
    void SetName(const QString& text);
    bool NameVisible() const { return nameVisible; }
    void SetNameVisible(bool on);

    /** Which of the three symbols is drawn: 0, 1 or 2. The setter only stores. */
    int Symbol() const { return symbol; }
    void SetSymbol(int variant) { symbol = variant; }

    /** The pins, in the design's order. */
    QVector<TGraphicsItem*> Pins() const { return ChildrenOfKind(ItemType::Pin); }

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    quint16 number = 0;
    QString name;
    bool nameVisible = true;
    int symbol = 0;
};
