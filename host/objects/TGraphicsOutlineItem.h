#pragma once

#include <graphics/TGraphicsPenItem.h>

/** A corner of a board outline, in the outline's own coordinates. */
struct OutlinePointStruct
{
    double x = 0;
    double y = 0;
    int kind = 0; ///< 0: a straight line leads here; 1: this is the middle of an arc from the point before to the next.

    bool operator==(const OutlinePointStruct& other) const
    {
        return x == other.x && y == other.y && kind == other.kind;
    }
};
Q_DECLARE_TYPEINFO(OutlinePointStruct, Q_PRIMITIVE_TYPE);

/** The edge of a board: one or more closed curves of straight lines and arcs. */
class TGraphicsOutlineItem : public TGraphicsPenItem
{
public:
    explicit TGraphicsOutlineItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Outline; }
    QString KindName() const override { return QStringLiteral("outline"); }

    /** The corners of the outer edge, as they were drawn. Setting them sets the path to the curve through them, and
     *  repaints. */
    const QVector<OutlinePointStruct>& Points() const { return points; }
    void SetPoints(const QVector<OutlinePointStruct>& newPoints);

    /** Edges of cut-outs within the outer edge, in the item's own coordinates. The setter repaints. */
    const QPainterPath& CutOuts() const { return cutOuts; }
    void SetCutOuts(const QPainterPath& edges);

    /** All edges, in the item's own coordinates. */
    const QPainterPath& Path() const { return path; }

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;

private:
    void UpdatePath();

    QVector<OutlinePointStruct> points;
    QPainterPath cutOuts;
    QPainterPath path;
};
