#pragma once

#include <QStringList>

/** What the whole application knows. */
class TApplication
{
public:
    /** Names of the fonts that texts may be set in, sorted. */
    static QStringList CharSetNames();
};
