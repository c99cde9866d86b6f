#pragma once

#include <QStringList>

/** Application-wide data. */
class TApplication
{
public:
    /** Names of the fonts that texts may be set in, sorted. */
    static QStringList CharSetNames();
};
