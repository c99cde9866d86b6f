#pragma once

#include "workbench/importer/schematic/TSheetPage.h"

#include <QHash>

struct TBoardDraft;

/**
 * Gives packages and net ties of a board the numbers of their symbols: of those whose path theirs ends with, or else
 * that have the same designator.
 */
void MatchNumbers(TBoardDraft& board, const TSheetHierarchy& hierarchy, const QHash<QString, quint16>& numbers);

/** Gives nets that nobody has named the names that the board's pads have for them. */
void TakeBoardNames(TSheetHierarchy& hierarchy, const TBoardDraft& board);
