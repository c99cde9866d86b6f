#include "workbench/editing/TSelection.h"

#include <graphics/TGraphicsItem.h>

#include <QGraphicsScene>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>

TSelection::TSelection(QObject* parent) : QObject(parent)
{
    timer.setSingleShot(true);
    timer.setInterval(0);
    connect(&timer, &QTimer::timeout, this, &TSelection::slotReport);
}

void TSelection::SetScene(QGraphicsScene* newScene)
{
    if (scene) {
        ofOthers.insert(scene, Items());
        scene->disconnect(this);
    }
    if (!newScene) {
        ofOthers.clear();
    }
    scene = newScene;
    if (scene) {
        connect(scene, &QGraphicsScene::selectionChanged, this, &TSelection::slotSceneChanged);
    }
    timer.stop();
    ordered = ofOthers.take(scene);
    outdated = true;
    unreported = false;
    inGesture = false;
}

const QList<TGraphicsItem*>& TSelection::Items()
{
    if (outdated) {
        Order();
    }
    return ordered;
}

void TSelection::Order()
{
    outdated = false;
    QSet<TGraphicsItem*> selected;
    for (QGraphicsItem* item : scene ? scene->selectedItems() : QList<QGraphicsItem*>()) {
        if (auto* designItem = dynamic_cast<TGraphicsItem*>(item)) {
            selected.insert(designItem);
        }
    }
    // Deselected items may be deleted: their pointers are compared but never dereferenced.
    QList<TGraphicsItem*> kept;
    for (TGraphicsItem* item : qAsConst(ordered)) {
        if (selected.remove(item)) {
            kept.append(item);
        }
    }
    QList<TGraphicsItem*> added = selected.values();
    std::sort(added.begin(), added.end(), [](const TGraphicsItem* left, const TGraphicsItem* right) {
        return left->DesignOrder() < right->DesignOrder();
    });
    ordered = kept + added;
}

void TSelection::Select(const QList<TGraphicsItem*>& items)
{
    if (!scene) {
        return;
    }
    {
        const QSignalBlocker blocker(scene); // One signal for all of them.
        scene->clearSelection();
        for (TGraphicsItem* item : items) {
            item->setSelected(true);
        }
    }
    ordered.clear();
    for (TGraphicsItem* item : items) {
        if (item->isSelected()) {
            ordered.append(item);
        }
    }
    outdated = false;
    unreported = true;
    slotReport();
}

void TSelection::BeginGesture()
{
    inGesture = true;
    timer.stop();
}

void TSelection::EndGesture()
{
    inGesture = false;
    if (unreported) {
        timer.start();
    }
}

void TSelection::slotSceneChanged()
{
    outdated = true;
    unreported = true;
    if (!inGesture) {
        timer.start();
    }
}

void TSelection::slotReport()
{
    timer.stop();
    if (unreported) {
        unreported = false;
        emit sigChanged();
    }
}
