#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QGraphicsScene;
class TGraphicsItem;

/**
 * The selected items of a scene in the order in which they were selected, which the scene itself does not keep.
 *
 * However many signals the scene emits, one gesture of the user is one change. Items that one gesture selects together
 * are in the design's order; those of later gestures follow.
 */
class TSelection : public QObject
{
    Q_OBJECT

public:
    explicit TSelection(QObject* parent = nullptr);

    /** Tracks another scene, without reporting its selection. A scene that is no longer tracked keeps its selection, in
     *  order, until no scene is tracked. */
    void SetScene(QGraphicsScene* newScene);

    /** The items that are selected now, including those of an unfinished gesture. None of the pointers dangles. */
    const QList<TGraphicsItem*>& Items();

    /** Selects exactly these items, in the order given, and reports the change at once. */
    void Select(const QList<TGraphicsItem*>& items);

    /** Between these two nothing is reported. */
    void BeginGesture();
    void EndGesture();

signals:
    /** The selection has changed. Emitted from the event loop, once per gesture. */
    void sigChanged();

private slots:
    void slotSceneChanged();
    void slotReport();

private:
    void Order();

    QPointer<QGraphicsScene> scene;
    QTimer timer;
    QList<TGraphicsItem*> ordered;
    QHash<const QGraphicsScene*, QList<TGraphicsItem*>> ofOthers; ///< The order in scenes that are no longer tracked.
    bool outdated = false; ///< The selection has changed since the items were sorted.
    bool unreported = false;
    bool inGesture = false;
};
