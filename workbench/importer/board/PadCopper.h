#pragma once

class TGraphicsPadItem;
class TSexpression;
struct TBoardDraft;

/** Sets the size and the shape of a pad's copper, and its offset from the hole. */
void ReadPadCopper(const TSexpression& pad, TGraphicsPadItem& item, TBoardDraft& draft);
