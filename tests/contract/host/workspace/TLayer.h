#pragma once

#include <QColor>
#include <QString>

/** A row of the layer table. */
struct TLayer
{
    QString name;
    QColor color;
    QString pairedLayer;
    bool keepoutFixed = false;
};
