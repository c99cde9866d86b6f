#pragma once

#include "workbench/importer/schematic/TSheetPage.h"

#include <QHash>

struct TBoardDraft;

/**
 * Gives packages and net ties of a board the numbers of their symbols, matched by path (theirs ends with the symbol's),
 * or else by designator.
 */
void MatchNumbers(TBoardDraft& board, const TSheetHierarchy& hierarchy, const QHash<QString, quint16>& numbers);

/** Gives unnamed nets the net names of the board's pads. */
void TakeBoardNames(TSheetHierarchy& hierarchy, const TBoardDraft& board);
