#include "benchmarks/support/BenchBoard.h"

#include "benchmarks/support/BenchItems.h"

#include <QCoreApplication>

namespace Bench {

ShownBoard::ShownBoard()
{
    LayerManager()->AddLayer({Osmirel::CopperTop, QStringLiteral("Top"), Qt::red, QStringLiteral("Bottom")});
    LayerManager()->AddLayer({Osmirel::CopperBottom, QStringLiteral("Bottom"), Qt::blue, QStringLiteral("Top")});
    LayerManager()->AddDrillPair({QStringLiteral("Top - Bottom"), Osmirel::CopperTop, Osmirel::CopperBottom});
    LayerManager()->AddDrillPair({QStringLiteral("Bottom - Top"), Osmirel::CopperBottom, Osmirel::CopperTop});
    shown.setScene(Scene());
    shown.resize(64, 64);
    shown.show();
    SetView(&shown);
}

void ShownBoard::Settle()
{
    QCoreApplication::processEvents();
}

BenchBoard::BenchBoard(Kind kind, int count)
{
    made.reserve(count);
    for (int number = 0; number < count; ++number) {
        made.append(PlaceItem(*this, kind, number, made.isEmpty() ? nullptr : made.last()));
    }
    Settle();
}

QPointF GridPoint(int number, double pitch, int itemsInARow)
{
    return {pitch * (number % itemsInARow), pitch * (number / itemsInARow)}; // NOLINT: a whole row.
}

int MostOf(Kind kind)
{
    switch (kind) {
    // A text keeps its glyphs as a path: a million of them take 13 GB. Pins have one each, ports a pin.
    case Kind::Text:
    case Kind::Pin:
    case Kind::Port:
    case Kind::Tag: return 100'000;
    default: return 1'000'000;
    }
}

BenchBoard& BoardOf(Shelf& shelf, Kind kind, int count)
{
    const std::string family = "items " + std::to_string(static_cast<int>(kind));
    return shelf.Get<BenchBoard>(family, count, [kind, count] { return std::make_unique<BenchBoard>(kind, count); });
}

} // namespace Bench
