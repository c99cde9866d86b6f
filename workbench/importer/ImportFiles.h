#pragma once

#include "workbench/importer/BoardImporter.h"

#include <exception>

/** What all imports have in common. */
namespace ImportFiles {

/** Thrown where the caller of an import cancels it. */
class TCancelled : public std::exception
{};

/** What the caller is told of a step that does the work between two percentages of the whole. */
std::function<void(int)> Part(int from, int to, const TImportProgress& progress);

/** What stands in a file. Throws a `TImportError` whose cause names the file, if it cannot be read. */
QByteArray Read(const QString& fileName);

/** What stands in a project file; @p problem says why it cannot be read. */
QByteArray ReadProject(const QString& fileName, QString& problem);

/** Draws the items of nets that have a colour of their own in it. */
void ShowNetColors(const TBoard& board, const TNetModel& nets);

} // namespace ImportFiles
