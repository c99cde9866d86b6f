#include "tests/support/Places.h"

#include <QDir>
#include <QFile>

QString Test::SourcePath(const QString& name)
{
    return QStringLiteral(PROPERTIES_SOURCE_DIR "/") + name;
}

QString Test::TextOf(const QString& name)
{
    QFile file(SourcePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(name));
    }
    return QString::fromUtf8(file.readAll());
}

QString Test::DesignsFolder()
{
    const QString folder = qEnvironmentVariable("PROPERTIES_DESIGNS");
    return folder.isEmpty() ? QString() : QDir(folder).absolutePath();
}
