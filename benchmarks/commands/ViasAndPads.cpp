#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdVia.h"

namespace Bench {

void AddViasAndPads(Shelf& shelf)
{
    AddAttribute<TCmdViaDiam>(shelf, "TCmdViaDiam", Kind::Via, 0.8);
    AddAttribute<TCmdViaDrill>(shelf, "TCmdViaDrill", Kind::Via, 0.4);
    AddAttribute<TCmdViaTherm>(shelf, "TCmdViaTherm", Kind::Via, int{TGraphicsViaItem::ThermalYes});
    AddAttribute<TCmdViaGroup>(shelf, "TCmdViaGroup", Kind::Via, QStringLiteral("Bottom - Top"));
    AddAttribute<TCmdPadNumber>(shelf, "TCmdPadNumber", Kind::Pad, QStringLiteral("7"));
    AddAttribute<TCmdPadName>(shelf, "TCmdPadName", Kind::Pad, QStringLiteral("GND"));
    AddAttribute<TCmdPadWidth>(shelf, "TCmdPadWidth", Kind::Pad, 1.2);
    AddAttribute<TCmdPadHeight>(shelf, "TCmdPadHeight", Kind::Pad, 1.2);
    AddAttribute<TCmdPadShape>(shelf, "TCmdPadShape", Kind::Pad, int{TGraphicsPadItem::ShapeObround});
    AddAttribute<TCmdPadSide>(shelf, "TCmdPadSide", Kind::Pad, Osmirel::CopperBottom);
    AddAttribute<TCmdPadType>(shelf, "TCmdPadType", Kind::Pad, false);
    AddAttribute<TCmdMaskEn>(shelf, "TCmdMaskEn", Kind::Pad, true);
    AddAttribute<TCmdMaskClearance>(shelf, "TCmdMaskClearance", Kind::Pad, 0.1);
    AddAttribute<TCmdPasteEn>(shelf, "TCmdPasteEn", Kind::Pad, true);
    AddAttribute<TCmdPasteClearance>(shelf, "TCmdPasteClearance", Kind::Pad, 0.1);
    AddAttribute<TCmdRectSize>(shelf, "TCmdRectSize", Kind::Hole, 40.0, 40.0);
}

} // namespace Bench
