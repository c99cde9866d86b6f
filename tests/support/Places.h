#pragma once

#include <QString>

namespace Test {

/** A file or folder of the project, named from its root; the root itself, ending with a slash, without a name. */
QString SourcePath(const QString& name = {});

/** The text of a file of the project, named from its root. One that cannot be read ends the program. */
QString TextOf(const QString& name);

/**
 * The folder of real designs to test with, as the environment variable PROPERTIES_DESIGNS says when the test runs;
 * empty when there is none. Tests over real designs are skipped then.
 */
QString DesignsFolder();

} // namespace Test
