#pragma once

#include <workspace/TLayer.h>

#include <QList>
#include <QMap>

/** Two copper layers that a drill connects, with all copper layers between them. */
struct TDrillPair
{
    QString name; ///< As shown to the user, unique in a board.
    Osmirel::Layer first = Osmirel::CopperTop;
    Osmirel::Layer last = Osmirel::CopperBottom;
};

/** The layer table and the drill pairs of one document. A plain object, owned by its `TWorkspace`. */
class TLayerManager
{
public:
    /** Adds a layer, or replaces the one of the same id. */
    void AddLayer(const TLayer& layer);

    bool HasLayer(Osmirel::Layer layer) const { return layers.contains(layer); }

    /** The table's row of a layer, null if the document has no such layer. Valid until layers are added. */
    const TLayer* Layer(Osmirel::Layer layer) const;

    /** The id of the layer of that name, `Osmirel::NoLayer` if there is none. */
    Osmirel::Layer LayerId(const QString& name) const;

    /** All layers, in ascending order of their ids. */
    QList<Osmirel::Layer> Layers() const { return layers.keys(); }

    /** The copper layers that exist, from the top down. */
    QList<Osmirel::Layer> CopperLayers() const { return CopperLayers(Osmirel::CopperTop, Osmirel::CopperBottom); }

    /** The copper layers that exist from one to another, both included; empty when neither end is copper. */
    QList<Osmirel::Layer> CopperLayers(Osmirel::Layer from, Osmirel::Layer to) const;

    /** Whether items of the layer are drawn; true for a layer that is not in the table. */
    bool IsVisible(Osmirel::Layer layer) const;
    void SetVisible(Osmirel::Layer layer, bool visible);

    /** Colour of a layer; mid grey for a layer that is not in the table. */
    QColor Color(Osmirel::Layer layer) const;

    /** Adds a drill pair, or replaces the one of the same name. */
    void AddDrillPair(const TDrillPair& pair);

    /** The drill pairs in the order in which they were added. */
    const QList<TDrillPair>& DrillPairs() const { return drillPairs; }

    /** The drill pair of that name, null if there is none. Valid until drill pairs are added. */
    const TDrillPair* DrillPair(const QString& name) const;

private:
    QMap<Osmirel::Layer, TLayer> layers;
    QList<TDrillPair> drillPairs;
};
