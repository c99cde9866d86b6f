#include "tests/support/Places.h"

#include <QDir>

QString Test::SourcePath(const QString& name)
{
    return QStringLiteral(PROPERTIES_SOURCE_DIR "/") + name;
}

QString Test::DesignsFolder()
{
    const QString folder = qEnvironmentVariable("PROPERTIES_DESIGNS");
    return folder.isEmpty() ? QString() : QDir(folder).absolutePath();
}
