#pragma once

#include <graphics/TGraphicsItem.h>
#include <graphics/TItemScene.h>
#include <workspace/TWorkspace.h>

#include <QPointer>
#include <QStringList>

#include <memory>

class QGraphicsView;
class TRatsnest;
class TSchematic;

/**
 * A printed-circuit board: its layer table, its drill pairs, its items and its rat lines.
 *
 * The items are owned by the board's scene. A view may show the scene; it belongs to the application.
 *
 * Rat lines are the missing connections of each net, its ratsnest. They follow from the items: whatever links, cuts,
 * resizes, renames or moves copper to another layer marks its net. The marked nets are computed lazily, once: when the
 * view, the items or the dump are requested, and when control returns to the event loop. Moving an item marks nothing;
 * its caller requests an update.
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

    /** The owner of the board's items, which are attached to it and detached from it. */
    TItemScene* Scene() { return &scene; }

    /** The view that shows the board, null while there is none. */
    QGraphicsView* View() const;
    void SetView(QGraphicsView* newView);

    /** Where nets get priority and colour from, and pads their nets. Set by the project. */
    void SetSchematic(TSchematic* newSchematic);

    /** Places an item, with its children, on the board, which owns it from then on. */
    void Attach(std::unique_ptr<TGraphicsItem> item);

    /** All items in the order in which they first joined the board, packages before their pads; then the rat lines in
     *  the order of their nets. */
    QList<TGraphicsItem*> Items() const;

    /** Names of the drill pairs, in the order in which they were defined. */
    QStringList ViaGroups() const;

    /** The state of every item, one line each, ordered like `Items`. */
    QString Dump() const;

    /** Whether the packages' designators and values are shown. The setters only store. */
    bool RefDesVisible() const { return refDesVisible; }
    void SetRefDesVisible(bool on) { refDesVisible = on; }
    bool ValuesVisible() const { return valuesVisible; }
    void SetValuesVisible(bool on) { valuesVisible = on; }

    /** Whether nets and values of the board follow the schematic. The setter only stores. */
    bool ConnectivityEnabled() const { return connectivityEnabled; }
    void SetConnectivityEnabled(bool on) { connectivityEnabled = on; }

    /** Requests new rat lines for nets, or for all nets of the components' pads. Cheap, however often it is called:
     * they are computed later. */
    void UpdateRats(const QStringList& nets);
    void UpdateRats(const QList<unsigned short>& componentNumbers);
    /** The nets requested since the rat lines were last computed, sorted. */
    QStringList AskedRats() const;

    /** Gives the pads of the components their nets in the schematic; others keep theirs. */
    void UpdatePadNets(const QList<unsigned short>& componentNumbers);

    /** Updates the rat lines of a priority level to the nets' priorities; -1 for all levels. */
    void RatPriority(int level);

private:
    TWorkspace workspace; // Outlives the scene and its items, which point to it.
    TItemScene scene;
    std::unique_ptr<TRatsnest> rats; // Its lines belong to the scene.
    QPointer<QObject> view;
    TSchematic* schematic = nullptr;
    bool refDesVisible = true;
    bool valuesVisible = true;
    bool connectivityEnabled = false;
};
