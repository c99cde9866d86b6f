#pragma once

/**
 * The whole program: reads the command line, opens the board, and then shows the window to a person, does the steps of
 * the command line, or plays a tour when there is neither a step nor a screen. Returns the exit code.
 */
int RunWorkbench(int argc, char** argv);
