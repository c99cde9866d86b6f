#pragma once

#include <graphics/TGraphicsItem.h>

#include <QPolygonF>

#include <memory>

class TPourFill;

/**
 * A copper area that fills itself around other copper of its layer.
 *
 * All setters but `SetArea`, `SetLayer` and `SetNet` only store; `Fill` updates the copper. The filled copper is not
 * part of the item's state: it follows from the state of all items at the last `Fill`.
 */
class TGraphicsPourItem : public TGraphicsItem
{
public:
    explicit TGraphicsPourItem(QGraphicsItem* parent = nullptr);
    ~TGraphicsPourItem() override;

    int type() const override { return ItemType::Pour; }
    QString KindName() const override { return QStringLiteral("pour"); }

    /** The polygon that bounds the copper, in the item's own coordinates. The setter repaints. */
    const QPolygonF& Area() const { return area; }
    void SetArea(const QPolygonF& polygon);

    /** Distance to other nets' wires, vias, pads and primitives, in scene units. */
    double ClearanceToEtch() const { return clearanceToEtch; }
    void SetClearanceToEtch(double clearance) { clearanceToEtch = clearance; }
    /** Distance to the board's outline, in scene units. */
    double ClearanceToBorder() const { return clearanceToBorder; }
    void SetClearanceToBorder(double clearance) { clearanceToBorder = clearance; }
    /** Distance to other nets' pours of higher priority, in scene units. */
    double ClearanceToPour() const { return clearanceToPour; }
    void SetClearanceToPour(double clearance) { clearanceToPour = clearance; }

    /** A `Qt::BrushStyle`: none, solid, or lines in one or two directions. */
    int FillType() const { return fillType; }
    void SetFillType(int brushStyle);
    /** Width in scene units of the lines that the copper is drawn with; copper is nowhere narrower. */
    double LineWidth() const { return lineWidth; }
    void SetLineWidth(double width) { lineWidth = width; }
    /** Islands smaller than this many square millimetres are removed. */
    double MinimumArea() const { return minimumArea; }
    void SetMinimumArea(double squareMillimetres) { minimumArea = squareMillimetres; }
    /** Whether islands are removed that touch no copper of the pour's net. */
    bool OnlyConnected() const { return onlyConnected; }
    void SetOnlyConnected(bool on) { onlyConnected = on; }
    /** Where pours overlap, the higher priority fills; of equal ones, the pour that joined the board first. */
    quint8 Priority() const { return priority; }
    void SetPriority(quint8 level);

    /** Whether pads and vias of the pour's net are connected by spokes, unless they override it. */
    bool ThermalEnable() const { return thermalEnable; }
    void SetThermalEnable(bool on) { thermalEnable = on; }
    /** Width of the spokes, in scene units. */
    double ThermalLine() const { return thermalLine; }
    void SetThermalLine(double width) { thermalLine = width; }
    /** Gap that the spokes bridge, in scene units. */
    double ThermalIsolation() const { return thermalIsolation; }
    void SetThermalIsolation(double distance) { thermalIsolation = distance; }

    /** Stores the net's name and refills. */
    virtual void SetNet(const QString& name);

    /** A `QPainter::CompositionMode` that the copper is drawn with. The setter only stores. */
    int CompositionMode() const { return compositionMode; }
    void SetCompositionMode(int mode) { compositionMode = mode; }
    /** Opacity of the drawn copper, 0 to 255. The setter only stores. */
    int Alpha() const { return alpha; }
    void SetAlpha(int opacity) { alpha = opacity; }

    /** Whether this pour fills where both overlap. */
    bool IsStrongerThan(const TGraphicsPourItem& other) const;

    /** Fills the area around the copper, keepouts and board outline of its scene, and repaints. Lazy: the copper is
     *  computed when it is next read. */
    void Fill();

    /** The centre lines of the copper: stroked with `LineWidth`, they are the copper. In the item's own coordinates;
     *  empty before the first `Fill`. */
    QPainterPath FilledPath() const;
    /** Whether there is copper at a point of the scene. */
    bool IsFilledAt(const QPointF& scenePoint) const;

    /** Moves the pour to a layer and repaints it. The copper is not refilled. */
    void SetLayer(Osmirel::Layer newLayer) override;
    /** A pour's copper is its filled area. */
    bool HasCopperOn(Osmirel::Layer) const override { return false; }
    void Flip() override;

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;

private:
    const TPourFill& Filled() const;

    QPolygonF area;
    double clearanceToEtch = 0;
    double clearanceToBorder = 0;
    double clearanceToPour = 0;
    int fillType = Qt::SolidPattern;
    double lineWidth = 0;
    double minimumArea = 0;
    bool onlyConnected = false;
    quint8 priority = 0;
    bool thermalEnable = false;
    double thermalLine = 0;
    double thermalIsolation = 0;
    int compositionMode = 0;
    int alpha = 130;
    mutable bool fillAsked = false;
    mutable std::unique_ptr<TPourFill> fill;
};
