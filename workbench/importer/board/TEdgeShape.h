#pragma once

#include "workbench/importer/format/TSexpression.h"

#include <QTransform>

class TGraphicsPackageItem;

/** A shape on the layer of the board's edge, and what takes its coordinates to the scene. */
struct TEdgeShape
{
    TSexpression shape;
    QTransform toScene;
    TGraphicsPackageItem* package = nullptr; ///< The one whose footprint it belongs to; null for one of the board.
};
