#pragma once

#include "workbench/importer/schematic/TConnectionPoints.h"
#include "workbench/importer/schematic/TSchematicDraft.h"

#include <functional>
#include <memory>

class TGraphicsPenItem;
class TGraphicsPinItem;
class TGraphicsTextItem;

/** A page in the making. */
struct TPageDraft
{
    const TSheetPage& page;
    TSchematicPage& target;
    TextVariables::TValues variables;   ///< With those of the project.
    TConnectionPoints connectionPoints; ///< Where wires, pins and ports can meet,
    TConnectionPoints busMeetings;      ///< and where buses can.
};

/** The items of a page, one function for each kind. What can be linked is noted at its place. */
namespace PageItems {

void AddParts(TPageDraft& page, TSchematicDraft& draft);
void AddPorts(TPageDraft& page, TSchematicDraft& draft);
/** The ports that stand for a power symbol, one for each pin. */
void AddPowerPorts(const TPageSymbol& symbol, TPageDraft& page, TSchematicDraft& draft);
/** The boxes of other sheets, without their pins. */
void AddBoxes(TPageDraft& page);
/** Local labels, which are texts: their nets are those of the wires. */
void AddLabels(TPageDraft& page);
void AddGraphics(TPageDraft& page, TSchematicDraft& draft);
void AddNoConnects(TPageDraft& page);

/** Makes net wires, buses, entries and junctions, and links all that meets: to be called last. */
void LinkPage(TPageDraft& page, TSchematicDraft& draft);

/** Whether a symbol is no more than two pins that are joined on purpose. */
bool IsNetTie(const TPageSymbol& symbol);

/** Whether a symbol stands for the nets of its pins, and becomes ports. */
bool IsPort(const TPageSymbol& symbol);

/** What parts of one component have in common; empty for symbols that are no components. */
QString ComponentKey(const TPageSymbol& symbol);

/** Where a place of the file is drawn. */
using TMap = std::function<TGridPoint(const TGridPoint&)>;

/** A drawing of a sheet or of a symbol; null for what is none. */
std::unique_ptr<TGraphicsPenItem> Shape(const TSexpression& element, const TMap& map);

/**
 * A text that lies in a symbol which is turned: its content, and its alignment and angle as they are drawn, upright or
 * to be read from the right. The place is left to the caller.
 */
std::unique_ptr<TGraphicsTextItem> Text(const TSexpression& element, const QString& content, int quarters,
                                        const TSymbolFrame& frame);
/** Clockwise degrees of a step along one of the axes, as an item is rotated to lie along it. */
double RotationAlong(const TGridPoint& step);

} // namespace PageItems
