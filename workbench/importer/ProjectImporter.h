#pragma once

#include "workbench/importer/BoardImporter.h"

/**
 * Reads a design, by the suffix of the file: a board (`.kicad_pcb`) as `ImportBoard` does, a schematic with all its
 * sheets (`.kicad_sch`, formats 20211123 to 20250114), or a project (`.kicad_pro`) with the board and the schematic
 * beside it, one of which may be missing. Of a design with both, the packages have the component numbers of
 * their symbols, and nets one name on both sides.
 */
TImportResult ImportDesign(const QString& fileName, const TImportProgress& progress = {});
