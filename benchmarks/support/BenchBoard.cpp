#include "benchmarks/support/BenchBoard.h"

#include <QCoreApplication>

namespace Bench {

namespace {

/** Sizes in scene units that differ from item to item, as on a board with a handful of sizes. */
double SizeOf(int number)
{
    return 8 + number % 7;
}

} // namespace

BenchBoard::BenchBoard(Kind kind, int count)
{
    LayerManager()->AddLayer({Osmirel::CopperTop, QStringLiteral("Top"), Qt::red, QStringLiteral("Bottom")});
    LayerManager()->AddLayer({Osmirel::CopperBottom, QStringLiteral("Bottom"), Qt::blue, QStringLiteral("Top")});
    LayerManager()->AddDrillPair({QStringLiteral("Top - Bottom"), Osmirel::CopperTop, Osmirel::CopperBottom});
    LayerManager()->AddDrillPair({QStringLiteral("Bottom - Top"), Osmirel::CopperBottom, Osmirel::CopperTop});
    shown.setScene(Scene());
    shown.resize(64, 64);
    shown.show();
    SetView(&shown);

    constexpr int itemsInARow = 1000;
    constexpr double pitch = 50;
    made.reserve(count);
    for (int number = 0; number < count; ++number) {
        std::unique_ptr<TGraphicsItem> item = MakeItem(kind, number);
        item->setPos(pitch * (number % itemsInARow), pitch * (number / itemsInARow)); // NOLINT
        made.append(item.get());
        Attach(std::move(item));
    }
    Settle();
}

std::unique_ptr<TGraphicsItem> BenchBoard::MakeItem(Kind kind, int number) const
{
    const double size = SizeOf(number);
    switch (kind) {
    case Kind::Via: {
        auto via = std::make_unique<TGraphicsViaItem>();
        via->SetSize(size, size);
        via->SetDrill(static_cast<float>(size / 2));
        via->SetViaGroup(QStringLiteral("Top - Bottom"));
        return via;
    }
    case Kind::Pad: {
        auto pad = std::make_unique<TGraphicsPadItem>();
        pad->SetSize(size, 2 * size);
        pad->SetPadShape(TGraphicsPadItem::ShapeRectangle);
        pad->SetLayers(Osmirel::CopperTop, Osmirel::CopperTop);
        pad->SetNumber(QString::number(number));
        pad->SetName(QStringLiteral("P%1").arg(number));
        return pad;
    }
    case Kind::Hole: break;
    }
    auto hole = std::make_unique<TGraphicsHoleItem>();
    hole->SetSize(static_cast<float>(size), static_cast<float>(size));
    return hole;
}

void BenchBoard::Settle()
{
    QCoreApplication::processEvents();
}

BenchBoard& BoardShelf::Board(Kind kind, int count)
{
    std::unique_ptr<BenchBoard>& board = boards[{kind, count}];
    if (!board) {
        board = std::make_unique<BenchBoard>(kind, count);
    }
    return *board;
}

} // namespace Bench
