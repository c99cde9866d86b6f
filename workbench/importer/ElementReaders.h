#pragma once

class TSexpression;
struct TBoardDraft;
struct TFootprintFrame;
struct TPadDefaults;

/**
 * One reader for each kind of element of a board file; `ReadBoard.cpp` has the table of who reads what. A reader puts
 * what it reads into the draft, and throws `TImportError` for what cannot be.
 */
namespace ElementReaders {

// What other elements refer to.
void ReadLayers(const TSexpression& layers, TBoardDraft& draft);
void ReadSetup(const TSexpression& setup, TBoardDraft& draft);
void ReadNet(const TSexpression& net, TBoardDraft& draft);
void ReadNetClass(const TSexpression& netClass, TBoardDraft& draft);

// The items of the board.
void ReadFootprint(const TSexpression& footprint, TBoardDraft& draft);
void ReadPad(const TSexpression& pad, const TFootprintFrame& footprint, TBoardDraft& draft);
/** What a footprint or a pad says of the properties that pads inherit, and the inherited ones where it is silent. */
TPadDefaults ReadPadDefaults(const TSexpression& element, TPadDefaults defaults);
void ReadSegment(const TSexpression& segment, TBoardDraft& draft);
void ReadTrackArc(const TSexpression& arc, TBoardDraft& draft);
void ReadVia(const TSexpression& via, TBoardDraft& draft);

/** Counts an element that is not read yet; the properties of what it stands in are no elements. */
void CountElement(const TSexpression& element, TBoardDraft& draft);

} // namespace ElementReaders
