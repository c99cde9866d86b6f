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

/**
 * Whether a design is one of those that the tests were written with, by its name. They are routed, have parts, vias and
 * turned packages, and tests hold them to that; others may lack anything.
 */
bool IsAtHand(const QString& design);

} // namespace Test
