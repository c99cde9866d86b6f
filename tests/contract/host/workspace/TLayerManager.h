#pragma once

#include <workspace/Osmirel.h>
#include <workspace/TLayer.h>

#include <QList>
#include <QMap>

/** The layer table of a document. */
class TLayerManager
{
public:
    const TLayer* Layer(Osmirel::Layer layer) const;
    Osmirel::Layer LayerId(const QString& name) const;
    QList<Osmirel::Layer> CopperLayers() const;

protected:
    QMap<Osmirel::Layer, TLayer> table;
};
