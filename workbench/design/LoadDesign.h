#pragma once

#include "workbench/importer/BoardImporter.h"

class QWidget;

/** The project that is compiled in, and its board. */
QString SampleProjectFile();
QString SampleBoardFile();

/** Reads a project, a schematic or a board; a long load shows its progress in a dialog above @p parent, and can be
 * cancelled there. */
TImportResult LoadDesignWithDialog(const QString& file, QWidget* parent);

/** Whether anything was read that can be shown. */
bool HasDesign(const TImportResult& result);

/** What a person should know of a file that was read: what is not shown, and what else went wrong; a line for each. */
QStringList Notices(const TImportResult& result);
