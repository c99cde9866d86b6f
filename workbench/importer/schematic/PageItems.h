#pragma once

#include "workbench/importer/schematic/TConnectionPoints.h"
#include "workbench/importer/schematic/TSchematicDraft.h"

#include <functional>
#include <memory>

class TGraphicsPenItem;
class TGraphicsPinItem;
class TGraphicsTextItem;

/** A page under construction. */
struct TPageDraft
{
    const TSheetPage& page;
    TSchematicPage& target;
    TextVariables::TValues variables;   ///< With those of the project.
    TConnectionPoints connectionPoints; ///< Where wires, pins and ports can meet,
    TConnectionPoints busMeetings;      ///< and where buses can.
};

/** The items of a page, one function for each kind. Items that can be linked are recorded at their positions. */
namespace PageItems {

void AddParts(TPageDraft& page, TSchematicDraft& draft);
void AddPorts(TPageDraft& page, TSchematicDraft& draft);
/** The ports for a power symbol, one for each pin. */
void AddPowerPorts(const TPageSymbol& symbol, TPageDraft& page, TSchematicDraft& draft);
/** The boxes of other sheets, without their pins. */
void AddBoxes(TPageDraft& page);
/** Local labels, which become texts: the wires have their nets. */
void AddLabels(TPageDraft& page);
void AddGraphics(TPageDraft& page, TSchematicDraft& draft);
void AddNoConnects(TPageDraft& page);

/** Creates net wires, buses, entries and junctions, and links everything that meets: to be called last. */
void LinkPage(TPageDraft& page, TSchematicDraft& draft);

/** Whether a symbol is a net tie: two pins that are joined on purpose. */
bool IsNetTie(const TPageSymbol& symbol);

/** Whether a symbol only names the nets of its pins, and becomes ports. */
bool IsPort(const TPageSymbol& symbol);

/** The key shared by all parts of one component; empty for symbols that are not components. */
QString ComponentKey(const TPageSymbol& symbol);

/** The scene position of a point of the file. */
using TMap = std::function<TGridPoint(const TGridPoint&)>;

/** A primitive of a sheet or of a symbol; null for other elements. */
std::unique_ptr<TGraphicsPenItem> Shape(const TSexpression& element, const TMap& map);

/**
 * A text in a rotated symbol: its content, and its alignment and angle as drawn, upright or to be read from the right.
 * The caller sets its position.
 */
std::unique_ptr<TGraphicsTextItem> Text(const TSexpression& element, const QString& content, int quarters,
                                        const TSymbolFrame& frame);
/** The rotation, in clockwise degrees, that aligns an item with a step along one of the axes. */
double RotationAlong(const TGridPoint& step);

} // namespace PageItems
