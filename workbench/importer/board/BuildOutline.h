#pragma once

struct TBoardDraft;

/**
 * Makes the board's outline of the shapes on the layer of its edge: of those that close, by themselves or end to end,
 * the largest is the outer edge and the others are cut-outs. What does not close stays a drawing on that layer.
 */
void BuildOutline(TBoardDraft& draft);
