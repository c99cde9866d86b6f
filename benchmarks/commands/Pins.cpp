#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdPin.h"

namespace Bench {

void AddPins(Shelf& shelf)
{
    AddAttribute<TCmdPinName>(shelf, "TCmdPinName", Kind::Pin, QStringLiteral("GND"));
    AddAttribute<TCmdPinNameVis>(shelf, "TCmdPinNameVis", Kind::Pin, false);
    AddAttribute<TCmdPinNumber>(shelf, "TCmdPinNumber", Kind::Pin, QStringLiteral("7"));
    AddAttribute<TCmdPinNumberVis>(shelf, "TCmdPinNumberVis", Kind::Pin, false);
    AddAttribute<TCmdPinType>(shelf, "TCmdPinType", Kind::Pin, int{TGraphicsPinItem::TypeNoConnect});
    AddAttribute<TCmdPinStyle>(shelf, "TCmdPinStyle", Kind::Pin, int{TGraphicsPinItem::StyleInverse});
    AddAttribute<TCmdPinLength>(shelf, "TCmdPinLength", Kind::Pin, int{TGraphicsPinItem::LengthLong});
    AddAttribute<TCmdPinSwap>(shelf, "TCmdPinSwap", Kind::Pin, 7);
}

} // namespace Bench
