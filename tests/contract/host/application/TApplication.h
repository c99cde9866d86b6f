#pragma once

#include <QStringList>

/** What the whole application knows. */
class TApplication
{
public:
    static QStringList CharSetNames();
};
