#include <workspace/TLayerManager.h>

#include <algorithm>

void TLayerManager::AddLayer(const TLayer& layer)
{
    layers.insert(layer.id, layer);
}

const TLayer* TLayerManager::Layer(Osmirel::Layer layer) const
{
    const auto found = layers.constFind(layer);
    return found == layers.constEnd() ? nullptr : &*found;
}

Osmirel::Layer TLayerManager::LayerId(const QString& name) const
{
    const auto found =
        std::find_if(layers.cbegin(), layers.cend(), [&name](const TLayer& layer) { return layer.name == name; });
    return found == layers.cend() ? Osmirel::NoLayer : found->id;
}

QList<Osmirel::Layer> TLayerManager::CopperLayers(Osmirel::Layer from, Osmirel::Layer to) const
{
    QList<Osmirel::Layer> copper;
    if (!Osmirel::IsCopper(from) && !Osmirel::IsCopper(to)) {
        return copper;
    }
    const auto [first, last] = std::minmax(from, to);
    for (auto layer = layers.lowerBound(first); layer != layers.cend() && layer.key() <= last; ++layer) {
        if (Osmirel::IsCopper(layer.key())) {
            copper.append(layer.key());
        }
    }
    return copper;
}

bool TLayerManager::IsVisible(Osmirel::Layer layer) const
{
    const TLayer* found = Layer(layer);
    return !found || found->visible;
}

void TLayerManager::SetVisible(Osmirel::Layer layer, bool visible)
{
    const auto found = layers.find(layer);
    if (found != layers.end()) {
        found->visible = visible;
    }
}

QColor TLayerManager::Color(Osmirel::Layer layer) const
{
    const TLayer* found = Layer(layer);
    return found ? found->color : QColor(Qt::gray);
}

void TLayerManager::AddDrillPair(const TDrillPair& pair)
{
    const auto found = std::find_if(drillPairs.begin(), drillPairs.end(),
                                    [&pair](const TDrillPair& known) { return known.name == pair.name; });
    if (found == drillPairs.end()) {
        drillPairs.append(pair);
    } else {
        *found = pair;
    }
}

const TDrillPair* TLayerManager::DrillPair(const QString& name) const
{
    const auto found = std::find_if(drillPairs.cbegin(), drillPairs.cend(),
                                    [&name](const TDrillPair& pair) { return pair.name == name; });
    return found == drillPairs.cend() ? nullptr : &*found;
}
