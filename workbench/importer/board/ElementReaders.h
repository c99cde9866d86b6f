#pragma once

class TSexpression;
struct TBoardDraft;
struct TEdgeShape;
struct TFootprintFrame;
struct TPadDefaults;

/**
 * One reader for each kind of element of a board file; `ReadBoard.cpp` has the table of readers. A reader adds what it
 * reads to the draft, and throws `TImportError` if that is invalid.
 */
namespace ElementReaders {

// Definitions that other elements refer to.
void ReadLayers(const TSexpression& layers, TBoardDraft& draft);
void ReadSetup(const TSexpression& setup, TBoardDraft& draft);
void ReadNet(const TSexpression& net, TBoardDraft& draft);
void ReadNetClass(const TSexpression& netClass, TBoardDraft& draft);

// The items of the board.
void ReadFootprint(const TSexpression& footprint, TBoardDraft& draft);
/** Whether a footprint is a net tie, two surface pads that are joined on purpose; and the item for a net tie. */
bool IsNetTie(const TSexpression& footprint, const TBoardDraft& draft);
void ReadNetTie(const TSexpression& footprint, TBoardDraft& draft);
void ReadPad(const TSexpression& pad, const TFootprintFrame& footprint, TBoardDraft& draft);
/** The inheritable pad properties of a footprint or a pad; those that it lacks are inherited. */
TPadDefaults ReadPadDefaults(const TSexpression& element, TPadDefaults defaults);
void ReadSegment(const TSexpression& segment, TBoardDraft& draft);
void ReadTrackArc(const TSexpression& arc, TBoardDraft& draft);
/** Zones become pours or keepouts; on layers other than copper, polygons. */
void ReadZone(const TSexpression& zone, TBoardDraft& draft);
void ReadFootprintZone(const TSexpression& zone, const TFootprintFrame& footprint, TBoardDraft& draft);
/** Shapes on the edge layer are only collected; see `BuildOutline`. */
void ReadGraphic(const TSexpression& shape, TBoardDraft& draft);
void ReadFootprintGraphic(const TSexpression& shape, const TFootprintFrame& footprint, TBoardDraft& draft);
void ReadText(const TSexpression& element, TBoardDraft& draft);
void ReadFootprintText(const TSexpression& element, const TFootprintFrame& footprint, TBoardDraft& draft);
/** Text boxes become a text and a polygon. */
void ReadTextBox(const TSexpression& element, TBoardDraft& draft);
void ReadFootprintTextBox(const TSexpression& element, const TFootprintFrame& footprint, TBoardDraft& draft);
void ReadTitleBlock(const TSexpression& titleBlock, TBoardDraft& draft);
void ReadOpenEdge(const TEdgeShape& edge, TBoardDraft& draft);
void ReadVia(const TSexpression& via, TBoardDraft& draft);

/** Counts an unsupported element; properties of its parent are not counted. */
void CountElement(const TSexpression& element, TBoardDraft& draft);

} // namespace ElementReaders
