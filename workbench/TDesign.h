#pragma once

#include "workbench/importer/BoardImporter.h"

#include <application/TProject.h>
#include <application/TSchematic.h>

/** The design that is edited: a board, the nets that go with it, and the project that they make. */
class TDesign
{
public:
    /** Takes over what was read; there must be a board. Without a schematic the nets are empty. */
    explicit TDesign(TImportResult result);
    ~TDesign();
    TDesign(const TDesign&) = delete;
    TDesign& operator=(const TDesign&) = delete;

    TBoard& Board() const { return *board; }
    TProject& Project() { return project; }

    /** The state of every item of the board, then of every net, one line each. */
    QString Dump() const;

    /** Shows or hides the designators, or the values, of all packages. */
    void ShowDesignators(bool on);
    void ShowValues(bool on);

private:
    std::unique_ptr<TSchematic> schematic;
    std::unique_ptr<TBoard> board;
    TProject project; // Points to both.
};
