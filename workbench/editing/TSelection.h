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
 * However many signals the scene sends, one gesture of the user is one change. Items that one gesture selects together
 * follow each other in the design's order; a later gesture's come after them.
 */
class TSelection : public QObject
{
    Q_OBJECT

public:
    explicit TSelection(QObject* parent = nullptr);

    /** Follows another scene; what it has selected is not reported. A scene that is left keeps its selection, in its
     *  order, until none is followed. */
    void SetScene(QGraphicsScene* newScene);

    /** The items that are selected now, those of a gesture that goes on too. None of them is deleted. */
    const QList<TGraphicsItem*>& Items();

    /** Selects exactly these items, in the order given, and reports the change at once. */
    void Select(const QList<TGraphicsItem*>& items);

    /** Between these two nothing is reported. */
    void BeginGesture();
    void EndGesture();

signals:
    /** The selection is another one. Sent from the event loop, once for a gesture. */
    void sigChanged();

private slots:
    void slotSceneChanged();
    void slotReport();

private:
    void Order();

    QPointer<QGraphicsScene> scene;
    QTimer timer;
    QList<TGraphicsItem*> ordered;
    QHash<const QGraphicsScene*, QList<TGraphicsItem*>> ofOthers; ///< The order in scenes that were left.
    bool outdated = false; ///< The scene has changed since the items were put in order.
    bool unreported = false;
    bool inGesture = false;
};
