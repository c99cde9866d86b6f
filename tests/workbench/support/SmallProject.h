#pragma once

#include "workbench/importer/BoardImporter.h"

namespace Test {

/**
 * A project of the board of `ShownWorkbench`, whose package belongs to component 1, and of two pages:
 *
 * "Front": the parts R1 (component 1) and R10 (2), of two pins each, from R1's second pin a net wire to R10's first
 * one, both of net "A", and a free rectangle. "Back": the part R2 (3), a port "OUT" with a wire, a bus "D" with an
 * entry and its wire, a junction, a net tie, a text, and a tag "TITLE" that shows "Amplifier".
 */
TImportResult MakeProject();

/** Its pages without the board. */
TImportResult MakeSchematic();

} // namespace Test
