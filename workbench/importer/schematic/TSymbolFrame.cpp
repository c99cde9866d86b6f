#include "workbench/importer/schematic/TSymbolFrame.h"

#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/TSexpression.h"

TGridPoint UnitStep(int quarters)
{
    constexpr TGridPoint steps[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    return steps[quarters & 3];
}

TGridPoint TSymbolFrame::Turned(const TGridPoint& inSymbol) const
{
    const TGridPoint along = UnitStep(quarters);
    const qint64 x = along.x * inSymbol.x - along.y * inSymbol.y;
    const qint64 y = along.y * inSymbol.x + along.x * inSymbol.y;
    return {mirrorsY ? -x : x, mirrorsX ? y : -y};
}

TSymbolFrame TSymbolFrame::Read(const TSexpression& symbol)
{
    const TSexpression at = symbol.Get("at");
    const std::optional<TSexpression> mirror = symbol.Find("mirror");
    return {ElementValues::GridPoint(at), Quarters(at), mirror && mirror->HasFlag("x"), mirror && mirror->HasFlag("y")};
}

int Quarters(const TSexpression& at)
{
    constexpr qint64 quarter = 90'000'000;
    const std::optional<TSexpression> angle = at.FindValue(2);
    const qint64 turned = angle ? angle->Millionths() : 0;
    if (turned % quarter != 0) {
        angle->Fail(QStringLiteral("'%1' is not a multiple of 90 degrees").arg(angle->Text()));
    }
    return static_cast<int>((turned / quarter % 4 + 4) % 4);
}
