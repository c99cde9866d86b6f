#pragma once

#include "properties/rows/TPropertyChoice.h"

#include <workspace/Osmirel.h>

#include <QList>

struct TLayer;
class TWorkspace;

/** A row that picks one of several layers, each shown with a swatch of its colour. */
class PROPERTIES_EXPORT TPropertyLayer : public TPropertyChoice
{
    Q_OBJECT

public:
    /** Offers @p layers, named and coloured as in the workspace's layer table. */
    TPropertyLayer(const QString& label, QList<Osmirel::Layer> layers, TWorkspace* ws);

    /** Replaces the offered layers; none is current. Without a workspace the list is empty. */
    void SetLayers(TWorkspace* ws, QList<Osmirel::Layer> layers);

    /** The current layer; `Osmirel::NoLayer` when there is none. */
    Osmirel::Layer CurrentLayer() const;
    /** Makes a layer current; a layer that is not offered becomes a new first item. An empty list stays empty. */
    void SetCurrentLayer(Osmirel::Layer layer);

Q_SIGNALS:
    void sigLayerChanged(Osmirel::Layer layer);

private Q_SLOTS:
    void slotRowChanged(int row);

private:
    QString NameOf(Osmirel::Layer layer) const;
    QIcon SwatchOf(Osmirel::Layer layer) const;
    /** The layer's row in the layer table, null if it has none. */
    const TLayer* Record(Osmirel::Layer layer) const;

    TWorkspace* workspace = nullptr;
    QList<Osmirel::Layer> offered;
};
