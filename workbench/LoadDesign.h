#pragma once

#include "workbench/importer/BoardImporter.h"

class QWidget;

/** The board that is compiled in. */
QString SampleBoardFile();

/** Reads a board file; a long load shows its progress in a dialog above @p parent, and can be cancelled there. */
TImportResult LoadBoardWithDialog(const QString& file, QWidget* parent);

/** What a person should know of a file that was read: what is not shown, and what else went wrong; a line for each. */
QStringList Notices(const TImportResult& result);
