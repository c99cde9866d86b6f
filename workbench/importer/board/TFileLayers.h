#pragma once

#include "workbench/importer/format/TSexpression.h"

#include <workspace/TLayerManager.h>

#include <QHash>

/** What the layer names of a file stand for: its own names of copper layers, and the fixed names of all others. */
class TFileLayers
{
public:
    TFileLayers();

    /** Reads the file's layer table and fills that of the board. Copper layers keep the names that the file uses; a
     * layer that the user calls "Milling" is the milling layer. */
    void Read(const TSexpression& table, TLayerManager& board);

    /** The layer of that name; `Osmirel::NoLayer` for one that a board has no place for. */
    Osmirel::Layer Find(const QString& name) const { return layers.value(name, Osmirel::NoLayer); }

    /** The layers that a list names or its wildcards stand for, from the top down; unknown names are left out. */
    QList<Osmirel::Layer> Resolve(const TSexpression& list) const;

private:
    void AddOptional(const TSexpression& row, TLayerManager& board);
    void AddCopper(const QStringList& names, TLayerManager& board);

    QHash<QString, Osmirel::Layer> layers;
    QList<Osmirel::Layer> copper;
};
