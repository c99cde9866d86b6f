#pragma once

#include <graphics/TGraphicsItem.h>

#include <QLineF>

/**
 * A missing connection of a net, from the copper of one of its islands to that of another. Created, owned and deleted
 * by the board; it cannot be selected. Its state is its net, its ends and its priority.
 */
class TGraphicsRatLineItem : public TGraphicsItem
{
public:
    explicit TGraphicsRatLineItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::RatLine; }
    QString KindName() const override { return QStringLiteral("ratline"); }

    /** Both ends in scene coordinates, and the net. The setter repaints. */
    const QLineF& Line() const { return line; }
    void SetLine(const QLineF& newLine, const QString& net);

    /** The net's routing priority: "Default", a digit, or empty. The setter only stores; `TBoard::RatPriority`
     *  updates the drawing. */
    const QString& Priority() const { return priority; }
    void SetPriority(const QString& level) { priority = level; }

    bool IsDerived() const override { return true; }

    /** Restacks the line by its priority and repaints. */
    void Refresh() override;

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;

private:
    QLineF line;
    QString priority;
};
