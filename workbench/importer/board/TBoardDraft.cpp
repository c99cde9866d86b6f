#include "workbench/importer/board/TBoardDraft.h"

#include <algorithm>

QString TBoardDraft::DrillPair(Osmirel::Layer one, Osmirel::Layer other)
{
    TLayerManager& table = *board->LayerManager();
    const auto [first, last] = std::minmax(one, other);
    QStringList names;
    for (const Osmirel::Layer layer : {first, last}) {
        if (const TLayer* row = table.Layer(layer)) {
            names.append(row->name);
        }
    }
    QString pair = names.join(QStringLiteral(" - "));
    if (!table.DrillPair(pair)) {
        table.AddDrillPair({pair, first, last});
    }
    return pair;
}

QString TBoardDraft::NetOf(const TSexpression& element) const
{
    constexpr int noNet = 0;
    const std::optional<TSexpression> net = element.Find("net");
    const int number = net ? net->Value(0).Integer() : noNet;
    if (number == noNet) {
        return {};
    }
    const auto named = nets.constFind(number);
    if (named == nets.constEnd()) {
        net->Fail(QStringLiteral("net %1 is not in the board's list of nets").arg(number));
    }
    return *named;
}

Osmirel::Layer TBoardDraft::LayerOf(const TSexpression& element) const
{
    if (const std::optional<TSexpression> several = element.Find("layers")) {
        return layers.Resolve(*several).value(0, Osmirel::NoLayer);
    }
    return layers.Find(element.Get("layer").Value(0).Text());
}
