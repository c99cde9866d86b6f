#include <application/TApplication.h>

#include <QFontDatabase>

QStringList TApplication::CharSetNames()
{
    return QFontDatabase().families();
}
