#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdKeepout.h"
#include "properties/commands/TCmdPour.h"

#include <objects/TGraphicsKeepoutItem.h>

namespace Bench {

namespace {

constexpr Osmirel::Layer keepoutLayer = Osmirel::CopperTop;

struct KeepoutLayer
{
    using Item = TGraphicsKeepoutItem;
    using Value = bool;
    static bool Read(const Item& keepout) { return keepout.IsLayerEnable(keepoutLayer); }
    static void Write(Item& keepout, bool on) { keepout.SetLayerEnable(keepoutLayer, on); }
};

} // namespace

void AddPours(Shelf& shelf)
{
    // The figures include only the request for a refill: the copper is computed when it is next read.
    AddAttribute<TCmdPourClEtch>(shelf, "TCmdPourClEtch", Kind::Pour, 0.3);
    AddAttribute<TCmdPourClBorder>(shelf, "TCmdPourClBorder", Kind::Pour, 0.3);
    AddAttribute<TCmdPourClPour>(shelf, "TCmdPourClPour", Kind::Pour, 0.3);
    AddAttribute<TCmdPourLineWidth>(shelf, "TCmdPourLineWidth", Kind::Pour, 0.3);
    AddAttribute<TCmdPourMinArea>(shelf, "TCmdPourMinArea", Kind::Pour, 2.0);
    AddAttribute<TCmdPourThermLine>(shelf, "TCmdPourThermLine", Kind::Pour, 0.3);
    AddAttribute<TCmdPourThermIsol>(shelf, "TCmdPourThermIsol", Kind::Pour, 0.3);
    AddAttribute<TCmdPourPrio>(shelf, "TCmdPourPrio", Kind::Pour, quint8{3});
    AddAttribute<TCmdPourFillType>(shelf, "TCmdPourFillType", Kind::Pour, int{Qt::CrossPattern});
    AddAttribute<TCmdPourOnlyConn>(shelf, "TCmdPourOnlyConn", Kind::Pour, true);
    AddAttribute<TCmdPourThermEn>(shelf, "TCmdPourThermEn", Kind::Pour, true);
    AddAttribute<TCmdPourNet>(shelf, "TCmdPourNet", Kind::Pour, QStringLiteral("GND"));
    // Moving a pour with a pending refill would compute the copper: for these a fill was never requested.
    AddAttribute<TCmdPourLayer>(shelf, "TCmdPourLayer", Kind::UnfilledPour, Osmirel::CopperBottom);

    RegisterEdit("TCmdKeepoutLayEn", [&shelf](int size) {
        return std::make_unique<AttributeEdit<KeepoutLayer, TGraphicsKeepoutItem>>(
            BoardOf(shelf, Kind::Keepout, std::max(size, itemsInAStretch)), size, true,
            [](const QList<TGraphicsKeepoutItem*>& keepouts) {
                return std::make_unique<TCmdKeepoutLayEn>(keepouts, keepoutLayer, true);
            });
    });
}

} // namespace Bench
