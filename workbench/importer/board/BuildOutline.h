#pragma once

struct TBoardDraft;

/**
 * Builds the board's outline from the shapes on its edge layer: of those that close, by themselves or end to end, the
 * largest is the outer edge and the others are cut-outs. Open shapes become primitives on that layer.
 */
void BuildOutline(TBoardDraft& draft);
