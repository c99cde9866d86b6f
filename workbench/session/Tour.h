#pragma once

#include "workbench/session/RunSteps.h"

class TMainWindow;

/**
 * Demonstrates the workbench on the design of a window, on its board and its first page, with an explanation of each
 * step, and saves a picture in the current folder. Returns the exit code.
 */
int RunTour(TMainWindow& window, const TStreams& streams);
