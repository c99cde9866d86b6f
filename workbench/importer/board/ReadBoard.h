#pragma once

#include <functional>

class TSexpression;
struct TBoardDraft;

/**
 * Reads a whole board into an empty draft, and reports progress in percent whenever it has grown. Throws
 * `TImportError`.
 */
void ReadBoard(const TSexpression& root, TBoardDraft& draft, const std::function<void(int percent)>& progress);
