#pragma once

/**
 * The whole program: parses the command line, opens the design, and then shows the window to a user, runs the steps of
 * the command line, or plays a tour if there is neither a step nor a screen. Returns the exit code.
 */
int RunWorkbench(int argc, char** argv);
