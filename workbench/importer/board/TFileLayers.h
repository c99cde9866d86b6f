#pragma once

#include "workbench/importer/format/TSexpression.h"

#include <workspace/TLayerManager.h>

#include <QHash>

/** The layers by the names of a file: its own names of copper layers, and the fixed names of all others. */
class TFileLayers
{
public:
    TFileLayers();

    /** Reads the file's layer table and fills that of the board. Copper layers keep the names that the file uses; a
     * layer that the user calls "Milling" is the milling layer. */
    void Read(const TSexpression& table, TLayerManager& board);

    /** The layer of that name; `Osmirel::NoLayer` for a layer that boards do not have here. */
    Osmirel::Layer Find(const QString& name) const { return layers.value(name, Osmirel::NoLayer); }

    /** The layers that a list names or its wildcards match, from the top down; unknown names are skipped. */
    QList<Osmirel::Layer> Resolve(const TSexpression& list) const;

private:
    void AddOptional(const TSexpression& row, TLayerManager& board);
    void AddCopper(const QStringList& names, TLayerManager& board);

    QHash<QString, Osmirel::Layer> layers;
    QList<Osmirel::Layer> copper;
};
