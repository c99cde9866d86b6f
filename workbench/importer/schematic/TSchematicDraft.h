#pragma once

#include "workbench/importer/format/TextVariables.h"
#include "workbench/importer/format/TNotShown.h"
#include "workbench/importer/schematic/TSheetPage.h"

#include <application/TSchematic.h>

#include <QMap>

/** A schematic under construction, and the data that its items refer to meanwhile. */
struct TSchematicDraft
{
    TSchematic& schematic;
    const TSheetHierarchy& hierarchy;
    TextVariables::TValues variables; ///< Of the whole project.
    QHash<QString, quint16> numbers;  ///< Of components and net ties, by `ComponentKey`.
    QMap<QString, QString> tagValues; ///< The values of tags, by name.
    TNotShown notShown;

    /** The name of a net; empty for -1. */
    QString NetName(int net) const { return net < 0 ? QString() : hierarchy.nets[static_cast<std::size_t>(net)].name; }
    QColor NetColor(const QString& name) const
    {
        return schematic.NetModel()->ColorSch(schematic.NetModel()->NetRow(name));
    }
};
