#include <workspace/TDoubleSpinBox.h>
#include <workspace/TWorkspace.h>

const TLayer* TLayerManager::Layer(Osmirel::Layer layer) const
{
    const auto found = table.constFind(layer);
    return found == table.constEnd() ? nullptr : &*found;
}

Osmirel::Layer TLayerManager::LayerId(const QString& name) const
{
    for (const Osmirel::Layer layer : table.keys()) {
        if (table.value(layer).name == name) {
            return layer;
        }
    }
    return Osmirel::NoLayer;
}

QList<Osmirel::Layer> TLayerManager::CopperLayers() const
{
    QList<Osmirel::Layer> copper;
    for (int number = 0; number < Osmirel::maxCopperLayers; ++number) {
        const auto layer = static_cast<Osmirel::Layer>(Osmirel::CopperTop + number);
        if (table.contains(layer)) {
            copper.append(layer);
        }
    }
    return copper;
}

int TWorkspace::Mode() const { return mode; }
double TWorkspace::ValueFromScene(double sceneLength) const { return sceneLength / (300 / 25.4); }
QString TWorkspace::CurrentUnitStr() const { return QStringLiteral("mm"); }
const TLayerManager& TWorkspace::Layers() const { return *layers; }

TDoubleSpinBox::TDoubleSpinBox()
{
    setDecimals(2);
    setSingleStep(0.05);
    setSuffix(QStringLiteral(" mm"));
}
