#pragma once

#include <objects/TGraphicsViaItem.h>

/**
 * A pad of the board: copper of one of several shapes, on one layer (a surface pad, whose start and end layer are
 * equal) or through the board. A pad with a parent item belongs to that package. Its net comes from the schematic or
 * the file, and is the net of all copper linked with it.
 */
class TGraphicsPadItem : public TGraphicsViaItem
{
public:
    enum TypePadShape : int {
        ShapeRound = 1,
        ShapeSquare = 2, ///< As wide as it is high: the width holds.
        ShapeOctagon = 3,
        ShapeObround = 4,
        ShapeRectangle = 5,
        ShapeLongOctagon = 6,
    };

    explicit TGraphicsPadItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Pad; }
    QString KindName() const override { return QStringLiteral("pad"); }

    /** Number and name as text. The setters only store; `UpdateTextPaths` updates the drawing. */
    const QString& Number() const { return number; }
    void SetNumber(const QString& text) { number = text; }
    const QString& Name() const { return name; }
    void SetName(const QString& text) { name = text; }
    /** Lays the pad's texts out again and repaints. */
    void UpdateTextPaths();

    /** Sets width or height of the copper in scene units, keeps the other, and repaints. */
    void SetWidth(double width);
    void SetHeight(double height);

    TypePadShape PadShape() const { return padShape; }
    /** Sets the shape, keeps width and height, and repaints. */
    void SetPadShape(TypePadShape shape);

    /** Whether the pad lies on one layer only. */
    bool IsSMD() const { return StartLayer() == EndLayer(); }
    /** Makes a surface pad on the start layer, or a pad from the start layer to the end layer that it had before, by
     *  default through the board. Repaints. */
    void SetTypeSMD(bool smd);
    /** Moves a surface pad to a layer and repaints; a no-op for a through-hole pad, which has no side. */
    void SetPadSide(Osmirel::Layer side);

    /** Sets the mask clearance, limited so that the opening shrinks to a point at most, and repaints. */
    void SetMaskClearance(float clearance);

    /** Whether solder paste is applied. The setter only stores. */
    bool PasteEnabled() const { return pasteEnabled; }
    void SetPasteEnabled(bool on) { pasteEnabled = on; }
    /** How far the paste reaches beyond the copper, in scene units; negative for less than the copper. */
    float PasteClearance() const { return pasteClearance; }
    /** Sets the paste clearance and repaints. */
    void SetPasteClearance(float clearance);

    /** Radius of a rectangle's corners as a fraction of its shorter side, 0 to 0.5. The setter repaints. */
    double CornerRatio() const { return cornerRatio; }
    void SetCornerRatio(double ratio);
    /** How much longer a rectangle's left side is than its right one (width), and its top than its bottom (height),
     *  in scene units. The setter repaints. */
    QSizeF Taper() const { return taper; }
    void SetTaper(const QSizeF& difference);
    /** Offset of the copper's centre from the hole, in scene units. The setter repaints. */
    QPointF CopperOffset() const { return copperOffset; }
    void SetCopperOffset(const QPointF& offset);
    /** How much longer than the drill diameter an oblong hole is, in scene units along x and y. The setter repaints. */
    QSizeF DrillStretch() const { return drillStretch; }
    void SetDrillStretch(const QSizeF& stretch);
    /** Copper besides the shape, in the pad's coordinates, that keeps its size. The setter repaints. */
    const QPainterPath& ExtraCopper() const { return extraCopper; }
    void SetExtraCopper(const QPainterPath& path);

    void Flip() override;

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    /** Stores one value of the geometry, and repaints before and after. */
    template <class Value>
    void StoreGeometry(Value& field, const Value& value);
    /** The shape's rectangle, centred on its offset. */
    QRectF OffsetCopperRect() const;
    /** The hole's rectangle for a drill diameter: drawn no wider than the copper, since the drill can be set without a
     * repaint.
     */
    QRectF HoleRect(double diameter) const;
    QPainterPath CopperGrownBy(double margin) const;
    void DrawHole(QPainter& painter) const;
    void DrawNumber(QPainter& painter, double pixelsPerUnit) const;

    /** By start layer: the end layer before the pad was made a surface pad. */
    QHash<Osmirel::Layer, Osmirel::Layer> farLayers;
    QString number;
    QString name;
    TypePadShape padShape = ShapeRound;
    bool pasteEnabled = false;
    float pasteClearance = 0;
    double cornerRatio = 0;
    QSizeF taper{0, 0};
    QPointF copperOffset;
    QSizeF drillStretch{0, 0};
    QPainterPath extraCopper;
    mutable QPainterPath numberPath; ///< Made when first drawn, in a box of height 1; empty until then.
};
