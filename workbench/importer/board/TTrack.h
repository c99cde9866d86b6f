#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <workspace/Osmirel.h>

#include <QString>

/** A straight piece of track as the file has it, or as it was cut from one. */
struct TTrack
{
    TGridPoint start;
    TGridPoint end;
    qint64 width = 0; ///< In nanometres.
    Osmirel::Layer layer = Osmirel::NoLayer;
    QString net;
    bool isLocked = false;
};
