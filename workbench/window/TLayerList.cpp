#include "workbench/window/TLayerList.h"

#include <workspace/TLayerManager.h>

#include <QPainter>
#include <QSignalBlocker>

namespace {

constexpr int layerRole = Qt::UserRole;

QIcon SwatchOf(const QColor& color)
{
    constexpr int side = 14;
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color.darker(160));
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(0.5, 0.5, side - 1, side - 1), 3, 3);
    return pixmap;
}

} // namespace

TLayerList::TLayerList(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(NoSelection);
    setUniformItemSizes(true);
    setFrameShape(NoFrame);
    connect(this, &QListWidget::itemChanged, this, &TLayerList::slotItemChanged);
}

void TLayerList::SetLayers(TLayerManager* newLayers)
{
    const QSignalBlocker blocker(this);
    clear();
    layers = newLayers;
    for (const Osmirel::Layer id : layers ? layers->Layers() : QList<Osmirel::Layer>()) {
        const TLayer* layer = layers->Layer(id);
        auto* item = new QListWidgetItem(SwatchOf(layer->color), layer->name, this);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(layer->visible ? Qt::Checked : Qt::Unchecked);
        item->setData(layerRole, static_cast<int>(id));
    }
}

void TLayerList::ShowLayer(const QString& name, bool on)
{
    const QList<QListWidgetItem*> named = findItems(name, Qt::MatchExactly);
    for (QListWidgetItem* item : named) {
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
}

QStringList TLayerList::Names() const
{
    QStringList names;
    for (int row = 0; row < count(); ++row) {
        names.append(item(row)->text());
    }
    return names;
}

void TLayerList::slotItemChanged(QListWidgetItem* item)
{
    if (!layers) {
        return;
    }
    const auto layer = static_cast<Osmirel::Layer>(item->data(layerRole).toInt());
    const bool visible = item->checkState() == Qt::Checked;
    if (layers->IsVisible(layer) != visible) {
        layers->SetVisible(layer, visible);
        emit sigVisibilityChanged(layer, visible);
    }
}
