#pragma once

#include "workbench/session/RunSteps.h"

class TMainWindow;

/**
 * Shows on the design of a window, on its board and its first page, what the workbench does, says at each step what
 * that is, and leaves a picture in the current folder. Returns the exit code.
 */
int RunTour(TMainWindow& window, const TStreams& streams);
