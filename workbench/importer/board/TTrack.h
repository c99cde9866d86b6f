#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <workspace/Osmirel.h>

#include <QString>

/** A straight piece of track from the file, or a part cut from one. */
struct TTrack
{
    TGridPoint start;
    TGridPoint end;
    qint64 width = 0; ///< In nanometres.
    Osmirel::Layer layer = Osmirel::NoLayer;
    QString net;
    bool isLocked = false;
};
