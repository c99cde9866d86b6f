#pragma once

#include <QStringList>

namespace Test {

/**
 * The real designs whose file names match a pattern, sorted, but for those of versions that cannot be opened yet; none
 * without a folder of them. Sanitized programs take one version of each design.
 */
QStringList RealDesigns(const QString& pattern);

/** The projects among them that have a schematic; they may have a board. */
QStringList RealProjects();

} // namespace Test
