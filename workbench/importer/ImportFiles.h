#pragma once

#include "workbench/importer/BoardImporter.h"

#include <exception>

/** Shared by all imports. */
namespace ImportFiles {

/** Thrown if the caller of an import cancels it. */
class TCancelled : public std::exception
{};

/** The caller's progress for a step that covers the work between two percentages of the whole. */
std::function<void(int)> Part(int from, int to, const TImportProgress& progress);

/** The contents of a file. Throws a `TImportError` whose cause names the file if it cannot be read. */
QByteArray Read(const QString& fileName);

/** The contents of a project file; @p problem says why it cannot be read. */
QByteArray ReadProject(const QString& fileName, QString& problem);

/** Sets the colour of the items of each net that has its own colour. */
void ShowNetColors(const TBoard& board, const TNetModel& nets);

} // namespace ImportFiles
