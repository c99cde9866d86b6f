#pragma once

#include <graphics/TGraphicsItem.h>
#include <objects/engine/TLinkList.h>

#include <QHash>

#include <utility>

/** A plated hole that joins copper layers: a via of the board, and the base of its pads. */
class TGraphicsViaItem : public TGraphicsItem
{
public:
    /** How pours connect to the item. */
    enum TypeThermal : int { ThermalAuto = 0, ThermalYes = 1, ThermalNo = 2 };

    explicit TGraphicsViaItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Via; }
    QString KindName() const override { return QStringLiteral("via"); }

    /** Width and height of the copper in scene units. */
    double Width() const { return size.width(); }
    double Height() const { return size.height(); }
    /** Sets width and height in scene units and repaints. */
    void SetSize(double width, double height);

    /** Drill diameter in scene units, 0 for no hole. The setter only stores. */
    float Drill() const { return drill; }
    void SetDrill(float diameter) { drill = diameter; }

    /** How pours connect. The setter only stores. */
    TypeThermal Thermal() const { return thermal; }
    void SetThermal(TypeThermal type) { thermal = type; }

    /** Name of the drill pair, which determines the copper layers that are joined. */
    const QString& ViaGroup() const { return viaGroup; }
    /** Sets the drill pair and its layers, and repaints. A name that the document does not know means the whole board.
     *  Layers that differed from those of a former pair are restored with its name. */
    void SetViaGroup(const QString& name);

    /** Whether the solder mask is open over the copper. The setter only stores. */
    bool MaskEnabled() const { return maskEnabled; }
    void SetMaskEnabled(bool on) { maskEnabled = on; }

    /** How far the mask opening reaches beyond the copper, in scene units. */
    float MaskClearance() const { return maskClearance; }
    /** Sets the mask clearance and repaints. */
    void SetMaskClearance(float clearance);

    /** First and last layer that the item has copper on; equal for a surface pad. */
    Osmirel::Layer StartLayer() const { return startLayer; }
    Osmirel::Layer EndLayer() const { return endLayer; }
    /** Sets both layers and repaints. */
    void SetLayers(Osmirel::Layer start, Osmirel::Layer end);

    /** The copper layers of the document that the item reaches, from the top down. */
    QList<Osmirel::Layer> EtchLayers() const;

    /** Whether a layer is, or without a document would be, one of `EtchLayers`. */
    bool HasCopperOn(Osmirel::Layer copper) const override;

    /** Sets the item's own net name and repaints. It is the net of a via if links give it none, and always that of a
     * pad.
     */
    void SetNet(const QString& name);

    /** The wires that are linked here, once for each of their ends, in the order in which they were linked. */
    const QList<TGraphicsSectionItem*>& LinkedWires() const { return linked.List(); }
    /** One-sided: adds one end of a wire to the list, or removes one. */
    void AddLinkedWire(TGraphicsSectionItem* wire);
    void RemoveLinkedWire(TGraphicsSectionItem* wire);

    QVector<TGraphicsItem*> Links() const override { return linked.Items(); }
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override { return linked.Replace(from, to); }
    void AcceptLink(TGraphicsItem* section, LinkEnd) override { linked.Add(section); }
    void ReleaseLink(TGraphicsItem* section, LinkEnd) override { linked.Remove(section); }
    bool CanBeLinkedTo() const override { return true; }

    bool IsOnVisibleLayer() const override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;
    /** The colour of plating for copper on several layers, the layer's colour for a surface pad. */
    QColor MainColor() const override;

    /** Stores width and height without repainting. */
    void StoreSize(const QSizeF& newSize) { size = newSize; }
    void StoreMaskClearance(float clearance) { maskClearance = clearance; }

    /** The copper's rectangle around the item's position. */
    QRectF CopperRect() const { return {-size.width() / 2, -size.height() / 2, size.width(), size.height()}; }

    /** Draws the openings of mask and paste as outlines, where those layers exist and are visible. */
    void DrawOpening(QPainter& painter, Osmirel::Layer top, Osmirel::Layer bottom, const QPainterPath& opening) const;

private:
    using TLayers = std::pair<Osmirel::Layer, Osmirel::Layer>;
    TLayers LayersOfPair(const QString& name) const;

    QSizeF size;
    float drill = 0;
    TypeThermal thermal = ThermalAuto;
    QString viaGroup;
    bool maskEnabled = false;
    float maskClearance = 0;
    Osmirel::Layer startLayer = Osmirel::CopperTop;
    Osmirel::Layer endLayer = Osmirel::CopperBottom;
    QHash<QString, TLayers> otherLayers; ///< By former name, if they differed from those of the pair.
    TLinkList linked{LinkNode()};
};
