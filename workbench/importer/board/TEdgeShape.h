#pragma once

#include "workbench/importer/format/TSexpression.h"

#include <QTransform>

class TGraphicsPackageItem;

/** A shape on the edge layer of the board, and the transformation of its coordinates to the scene. */
struct TEdgeShape
{
    TSexpression shape;
    QTransform toScene;
    TGraphicsPackageItem* package =
        nullptr; ///< The package whose footprint has the shape; null for a shape of the board.
};
