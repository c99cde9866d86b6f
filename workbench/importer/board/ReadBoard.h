#pragma once

#include <functional>

class TSexpression;
struct TBoardDraft;

/**
 * Reads a whole board into an empty draft, calling back with the part that is done, in percent, as it grows. Throws
 * `TImportError`.
 */
void ReadBoard(const TSexpression& root, TBoardDraft& draft, const std::function<void(int percent)>& progress);
