#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QLineF>

/** A straight line. */
class TGraphicsLineItem : public TGraphicsPenItem
{
public:
    using TGraphicsPenItem::TGraphicsPenItem;

    int type() const override { return ItemType::Line; }
    QString KindName() const override { return QStringLiteral("line"); }

    /** Both ends, in the item's own coordinates. The setter repaints. */
    const QLineF& Line() const { return line; }
    void SetLine(const QLineF& newLine);

    void Flip() override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    QLineF line;
};
