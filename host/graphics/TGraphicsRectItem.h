#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QBrush>

/** A rectangle around the item's position. */
class TGraphicsRectItem : public TGraphicsPenItem
{
public:
    using TGraphicsPenItem::TGraphicsPenItem;

    int type() const override { return ItemType::Rectangle; }
    QString KindName() const override { return QStringLiteral("rectangle"); }

    /** Width and height in scene units. */
    QSizeF Size() const { return size; }
    /** Sets width and height in scene units, keeps the centre, and repaints. */
    void SetSize(float width, float height);

    /** How the inside is filled. Writing does not repaint. */
    QBrush& Brush() { return brush; }
    const QBrush& Brush() const { return brush; }

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

    /** The rectangle in the item's own coordinates. */
    QRectF Rect() const { return {-size.width() / 2, -size.height() / 2, size.width(), size.height()}; }

private:
    QSizeF size;
    QBrush brush;
};
