#include "workbench/importer/TBoardDraft.h"

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
