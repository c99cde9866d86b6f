#pragma once

class TGraphicsPadItem;
class TSexpression;
struct TBoardDraft;

/** Gives a pad the size and the shape of its copper, and the place of the copper seen from the hole. */
void ReadPadCopper(const TSexpression& pad, TGraphicsPadItem& item, TBoardDraft& draft);
