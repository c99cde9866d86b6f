#pragma once

#include <graphics/engine/TLinkNode.h>

#include <QGraphicsScene>
#include <QList>
#include <QSet>
#include <QStringList>

class TGraphicsItem;
class TWorkspace;

/**
 * The scene that owns the items of a board or a schematic page: what items are attached to and detached from.
 *
 * It numbers the items in the order in which they first join, parents before their children, and keeps that number for
 * an item that leaves and comes back. It also gathers the nets whose copper has changed, for those who draw what is
 * missing in them.
 */
class TItemScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /** The workspace is given to the items that are attached, and outlives the scene. */
    explicit TItemScene(TWorkspace* ofDocument = nullptr, QObject* parent = nullptr);
    ~TItemScene() override;

    TWorkspace* Workspace() const { return workspace; }

    /** All design items, children too, in the order in which they first joined. Linear in all that ever joined. */
    QList<TGraphicsItem*> DesignItems() const;

    /**
     * The items whose bounding rectangles meet one of the scene (scene units), in no useful order. Gives the scene a
     * fixed rectangle, that of its items, since the toolkit looks at every item after each change of geometry in a
     * scene that grows by itself.
     */
    QList<QGraphicsItem*> ItemsNear(const QRectF& rect);

    /** Brings the nets up to date with the links. Asking an item for its net does it by itself. */
    void ApplyLinks();

    /** Notes that copper of a net has been changed, added or taken away. The empty name is ignored. */
    void MarkNet(const QString& net);
    /** Notes that pours, or what keeps pours away, have changed. */
    void MarkPours();

    /** The nets noted since the last call. */
    QSet<QString> TakeMarkedNets();
    /** Whether pours were noted since the last call. */
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
    QVector<TGraphicsItem*> numbered; ///< By number, from 1; null where the item is away.
    int numberedWhenFitted = 0;       ///< How many items had joined when the scene's rectangle was last fixed.
    TLinkChanges linkChanges;
    QSet<QString> markedNets;
    QString lastMarkedNet;
    bool markedPours = false;
    bool closing = false;
};
