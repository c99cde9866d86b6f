#pragma once

#include <graphics/TGraphicsPenItem.h>

/** An arc of a circle around the item's position. */
class TGraphicsArcItem : public TGraphicsPenItem
{
public:
    using TGraphicsPenItem::TGraphicsPenItem;

    int type() const override { return ItemType::Arc; }
    QString KindName() const override { return QStringLiteral("arc"); }

    /** In scene units. */
    double Radius() const { return radius; }
    /** Where the arc begins, in degrees, counter-clockwise as seen from the positive x axis. */
    double StartAngle() const { return startAngle; }
    /** The sweep in degrees; negative for clockwise. */
    double SpanAngle() const { return spanAngle; }
    /** Sets all three and repaints. Angles are kept to a millionth of a degree. */
    void SetArc(double newRadius, double newStartAngle, double newSpanAngle);

    void Flip() override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    QPainterPath Path() const;

    double radius = 0;
    double startAngle = 0;
    double spanAngle = 0;
};
