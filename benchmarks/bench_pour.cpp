#include "benchmarks/support/BenchBoard.h"
#include "benchmarks/support/Ratios.h"
#include "benchmarks/support/Shelf.h"

#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPourItem.h>

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

constexpr double pitch = 30;
constexpr int padsInARow = 100;

/** A pour over through-hole pads, every other one of its net. */
class PouredBoard : public Bench::ShownBoard
{
public:
    explicit PouredBoard(int padCount)
    {
        for (int number = 0; number < padCount; ++number) {
            auto* pad =
                Place<TGraphicsPadItem>({pitch * (number % padsInARow), pitch * (number / padsInARow)}); // NOLINT
            pad->SetSize(12, 12);
            pad->SetDrill(6);
            pad->SetNet((number + number / padsInARow) % 2 == 0 ? QStringLiteral("GND")
                                                                : QStringLiteral("N%1").arg(number));
            pads.append(pad);
        }
        const int rows = (padCount + padsInARow - 1) / padsInARow;
        pour = Place<TGraphicsPourItem>({});
        pour->SetArea(QPolygonF(QRectF(-pitch, -pitch, pitch * (padsInARow + 1), pitch * (rows + 1))));
        pour->SetClearanceToEtch(3);
        pour->SetLineWidth(2);
        pour->SetThermalEnable(true);
        pour->SetThermalLine(3);
        pour->SetThermalIsolation(3);
        pour->SetNet(QStringLiteral("GND"));
        Settle();
    }

    QList<TGraphicsPadItem*> pads;
    TGraphicsPourItem* pour = nullptr;
};

/** Reads everything that a fill has to read, without using it. */
void LookAtPads(const PouredBoard& board)
{
    for (const TGraphicsPadItem* pad : board.pads) {
        benchmark::DoNotOptimize(pad->Net() == board.pour->Net());
        benchmark::DoNotOptimize(pad->mapToItem(board.pour, pad->Outline()));
    }
}

void Add(Bench::Shelf& shelf, const std::string& name, int fillType, bool thermal)
{
    const auto round = [&shelf, fillType, thermal](int size) {
        auto& board =
            shelf.Get<PouredBoard>("poured board", size, [size] { return std::make_unique<PouredBoard>(size); });
        board.pour->SetFillType(fillType);
        board.pour->SetThermalEnable(thermal);
        return Bench::MedianOfRounds([&board] {
            const double look = Bench::SecondsOf([&board] { LookAtPads(board); });
            QPainterPath filled;
            const double fill = Bench::SecondsOf([&board, &filled] {
                board.pour->Fill();
                filled = board.pour->FilledPath();
            });
            if (filled.isEmpty()) {
                qFatal("the pour has no copper");
            }
            // A change elsewhere requests no fill, so that reading again returns the same copper.
            const double again =
                Bench::SecondsOf([&board] { benchmark::DoNotOptimize(board.pour->FilledPath().elementCount()); });
            return Bench::Times{look, fill, again};
        });
    };
    Bench::Register(name, {"look at pads", "fill", "look again"}, {100, 1'000, 10'000}, round);
}

} // namespace

int main(int argc, char** argv)
{
    Bench::UseOffscreenPlatform();
    const QApplication application(argc, argv);
    Bench::Shelf shelf;
    Add(shelf, "solid, thermal spokes", Qt::SolidPattern, true);
    Add(shelf, "solid, connected in full", Qt::SolidPattern, false);
    Add(shelf, "cross, thermal spokes", Qt::CrossPattern, true);
    return Bench::RunAndCompare(argc, argv, {{"fill", "look at pads"}, {"look again", "fill"}},
                                Bench::Order::AsRegistered);
}
