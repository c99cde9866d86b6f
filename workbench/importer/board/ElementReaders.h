#pragma once

class TSexpression;
struct TBoardDraft;
struct TEdgeShape;
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
/** Whether a footprint is no more than two surface pads that are joined on purpose; and the item for one that is. */
bool IsNetTie(const TSexpression& footprint, const TBoardDraft& draft);
void ReadNetTie(const TSexpression& footprint, TBoardDraft& draft);
void ReadPad(const TSexpression& pad, const TFootprintFrame& footprint, TBoardDraft& draft);
/** What a footprint or a pad says of the properties that pads inherit, and the inherited ones where it is silent. */
TPadDefaults ReadPadDefaults(const TSexpression& element, TPadDefaults defaults);
void ReadSegment(const TSexpression& segment, TBoardDraft& draft);
void ReadTrackArc(const TSexpression& arc, TBoardDraft& draft);
/** Zones are pours, or keepouts; on layers without copper they are polygons. */
void ReadZone(const TSexpression& zone, TBoardDraft& draft);
void ReadFootprintZone(const TSexpression& zone, const TFootprintFrame& footprint, TBoardDraft& draft);
/** Shapes on the board's edge are only gathered; see `BuildOutline`. */
void ReadGraphic(const TSexpression& shape, TBoardDraft& draft);
void ReadFootprintGraphic(const TSexpression& shape, const TFootprintFrame& footprint, TBoardDraft& draft);
void ReadText(const TSexpression& element, TBoardDraft& draft);
void ReadFootprintText(const TSexpression& element, const TFootprintFrame& footprint, TBoardDraft& draft);
/** Text boxes are a text and a polygon. */
void ReadTextBox(const TSexpression& element, TBoardDraft& draft);
void ReadFootprintTextBox(const TSexpression& element, const TFootprintFrame& footprint, TBoardDraft& draft);
void ReadTitleBlock(const TSexpression& titleBlock, TBoardDraft& draft);
void ReadOpenEdge(const TEdgeShape& edge, TBoardDraft& draft);
void ReadVia(const TSexpression& via, TBoardDraft& draft);

/** Counts an element that is not read yet; the properties of what it stands in are no elements. */
void CountElement(const TSexpression& element, TBoardDraft& draft);

} // namespace ElementReaders
