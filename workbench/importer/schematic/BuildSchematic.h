#pragma once

#include "workbench/importer/schematic/TSchematicDraft.h"

/** Numbers for the components and net ties of a design, from 1 in the order of their designators. */
QHash<QString, quint16> NumberComponents(const TSheetHierarchy& hierarchy);

/** The names of a design's nets, sorted, each once. */
QStringList NetNames(const TSheetHierarchy& hierarchy);

/** Creates the pages with their items, and the entries of the components. The schematic must already have its nets.
 * Throws `TImportError`, with the file. */
void BuildSchematic(TSchematicDraft& draft);
