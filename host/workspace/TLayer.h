#pragma once

#include <workspace/Osmirel.h>

#include <QColor>
#include <QString>

/** One row of the layer table: name and appearance of a layer. A plain value, owned by its `TLayerManager`. */
struct TLayer
{
    Osmirel::Layer id = Osmirel::NoLayer;
    QString name;
    QColor color;
    QString pairedLayer;       ///< Name of the same kind of layer on the other side; empty if there is none.
    bool visible = true;       ///< Items on the layer are drawn and can be picked.
    bool keepoutFixed = false; ///< Keepouts always act on this layer: it is not offered as a choice.
};
