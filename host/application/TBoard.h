#pragma once

#include <graphics/TGraphicsItem.h>
#include <workspace/TWorkspace.h>

#include <QGraphicsScene>
#include <QPointer>
#include <QStringList>

#include <memory>

class QGraphicsView;

/**
 * A printed-circuit board: its layer table, its drill pairs and its items.
 *
 * The items are owned by the board's scene. A view may show the scene; it belongs to the application.
 */
class TBoard
{
public:
    TBoard();
    ~TBoard();
    TBoard(const TBoard&) = delete;
    TBoard& operator=(const TBoard&) = delete;

    TWorkspace* Workspace() { return &workspace; }
    TLayerManager* LayerManager() { return &workspace.Layers(); }

    /** What items are attached to when they are placed on the board. */
    QGraphicsScene* Scene() { return &scene; }

    /** The view that shows the board, null while there is none. */
    QGraphicsView* View() const;
    void SetView(QGraphicsView* newView);

    /** Places an item, with its children, on the board, which owns it from then on. */
    void Attach(std::unique_ptr<TGraphicsItem> item);

    /** All items, packages before their pads, in the order in which they first joined the board. */
    QList<TGraphicsItem*> Items() const;

    /** Names of the drill pairs, in the order in which they were defined. */
    QStringList ViaGroups() const;

    /** The state of every item, one line each, in the design's order. */
    QString Dump() const;

private:
    void Number(TGraphicsItem& item);

    TWorkspace workspace; // Outlives the scene with its items, which point to it.
    QGraphicsScene scene;
    QPointer<QObject> view;
    int attachedItems = 0;
};
