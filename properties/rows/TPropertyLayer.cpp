#include "properties/rows/TPropertyLayer.h"

#include "properties/rows/Swatch.h"

#include <workspace/TWorkspace.h>

#include <QComboBox>

TPropertyLayer::TPropertyLayer(const QString& label, QList<Osmirel::Layer> layers, TWorkspace* ws)
    : TPropertyChoice(label)
{
    ReportRowChanges();
    SetLayers(ws, layers);
}

void TPropertyLayer::SetLayers(TWorkspace* ws, QList<Osmirel::Layer> layers)
{
    workspace = ws;
    offered = layers;
    QComboBox* box = Box();
    if (!box) {
        return;
    }
    box->clear();
    box->setIconSize(QSize(Swatch::side, Swatch::side));
    if (!workspace) {
        return;
    }
    for (const Osmirel::Layer layer : qAsConst(offered)) {
        Append(NameOf(layer), static_cast<int>(layer), SwatchOf(layer));
    }
}

Osmirel::Layer TPropertyLayer::CurrentLayer() const
{
    return static_cast<Osmirel::Layer>(CurrentData().toInt());
}

void TPropertyLayer::SetCurrentLayer(Osmirel::Layer layer)
{
    const QComboBox* box = Box();
    if (!box || box->count() == 0) {
        return;
    }
    const int row = box->findData(static_cast<int>(layer));
    if (row >= 0) {
        MakeCurrent(row);
    } else {
        InsertAsCurrent(NameOf(layer), static_cast<int>(layer), SwatchOf(layer));
    }
}

void TPropertyLayer::slotRowChanged(int row)
{
    ReportItem(row, [this, row] { emit sigLayerChanged(static_cast<Osmirel::Layer>(DataAt(row).toInt())); });
}

const TLayer* TPropertyLayer::Record(Osmirel::Layer layer) const
{
    return workspace->Layers().Layer(layer);
}

QString TPropertyLayer::NameOf(Osmirel::Layer layer) const
{
    const TLayer* record = Record(layer);
    return record ? record->name : tr("Layer %1").arg(static_cast<int>(layer));
}

QIcon TPropertyLayer::SwatchOf(Osmirel::Layer layer) const
{
    const TLayer* record = Record(layer);
    return Swatch::Icon(record ? record->color : QColor(Qt::gray), Swatch::side - 1);
}
