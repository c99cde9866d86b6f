#pragma once

#include "workbench/importer/BoardImporter.h"

class QWidget;

/** The built-in sample project, and its board. */
QString SampleProjectFile();
QString SampleBoardFile();

/** Reads a project, a schematic or a board; a long load shows its progress in a dialog above @p parent, and can be
 * cancelled there. */
TImportResult LoadDesignWithDialog(const QString& file, QWidget* parent);

/** Whether a board or a schematic page was read. */
bool HasDesign(const TImportResult& result);

/** Notices about a file that was read, one line each: what is not shown, and other problems. */
QStringList Notices(const TImportResult& result);
