#pragma once

#include <graphics/engine/TLinkNode.h>

#include <QGraphicsScene>
#include <QList>
#include <QSet>
#include <QStringList>

class TGraphicsItem;
class TWorkspace;

/**
 * The scene that owns the items of a board or a schematic page; items are attached to it and detached from it.
 *
 * It numbers the items in the order in which they first join, parents before their children, and an item that leaves
 * and comes back keeps its number. It also collects the nets whose copper has changed, for the ratsnest.
 */
class TItemScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /** The workspace is given to the items that are attached, and outlives the scene. */
    explicit TItemScene(TWorkspace* ofDocument = nullptr, QObject* parent = nullptr);
    ~TItemScene() override;

    TWorkspace* Workspace() const { return workspace; }

    /** All design items, including children, in the order in which they first joined. Linear in all that ever joined.
     */
    QList<TGraphicsItem*> DesignItems() const;

    /**
     * The items whose bounding rectangles intersect a rectangle in scene coordinates, in no particular order. Sets a
     * fixed scene rectangle, that of its items, since the toolkit visits every item after each change of geometry in a
     * scene that grows automatically.
     */
    QList<QGraphicsItem*> ItemsNear(const QRectF& rect);

    /** Updates the nets to the links. Reading the net of an item does that implicitly. */
    void ApplyLinks();

    /** Marks the copper of a net as changed, added or removed. The empty name is ignored. */
    void MarkNet(const QString& net);
    /** Marks pours, or what keeps pours away, as changed. */
    void MarkPours();

    /** The nets marked since the last call. */
    QSet<QString> TakeMarkedNets();
    /** Whether pours were marked since the last call. */
    bool TakeMarkedPours();

Q_SIGNALS:
    /** The first mark since the marks were last taken. */
    void sigMarked();

private:
    friend class TGraphicsItem;
    friend class TLinkNode;

    void Join(TGraphicsItem& item);
    void Leave(TGraphicsItem& item);
    void Number(TGraphicsItem& item);
    bool IsNumbered(const TGraphicsItem& item) const;

    TWorkspace* workspace;
    QVector<TGraphicsItem*> numbered; ///< By number, from 1; null for an item that has left.
    int numberedWhenFitted = 0;       ///< How many items had joined when the scene's rectangle was last fixed.
    TLinkChanges linkChanges;
    QSet<QString> markedNets;
    QString lastMarkedNet;
    bool markedPours = false;
    bool closing = false;
};
