#pragma once

#include <QLineF>
#include <QMap>
#include <QSet>
#include <QString>
#include <QTimer>
#include <QVector>

class TGraphicsItem;
class TGraphicsRatLineItem;
class TItemScene;
class TNetModel;

/**
 * The rat lines of a board: for each net a smallest set of straight lines that would join all of its copper. A part of
 * its board.
 *
 * Copper is joined by links, by lying over each other (pads and vias), and by a pour of its net that covers it: one
 * whose polygon holds it, where no keepout and no stronger pour of another net does. The lines follow from the items'
 * state alone, so that the same state has the same lines.
 */
class TRatsnest
{
public:
    explicit TRatsnest(TItemScene& ofBoard);
    ~TRatsnest();
    TRatsnest(const TRatsnest&) = delete;
    TRatsnest& operator=(const TRatsnest&) = delete;

    /** Where nets have their priority and colour; null for nowhere. */
    void SetNetModel(const TNetModel* newModel);

    /** Asks for nets, or for all nets of components' pads, to be worked out. */
    void Ask(const QStringList& nets);
    void Ask(const QList<unsigned short>& components);
    /** The nets that were asked for since the last `WorkOut`, sorted. */
    QStringList Asked() const;

    /** Works out the nets that were asked for or marked, all of them the first time. */
    void WorkOut();

    /** The lines, by net. */
    QList<TGraphicsItem*> Lines() const;

    /** Brings the lines of a priority level, or with -1 all, up to date with the nets' priorities. */
    void UpdatePriorities(int level);

private:
    void WorkOutLater();
    QSet<QString> AskedNets() const;
    QString PriorityOf(const QString& net) const;
    void Replace(const QString& net, const QVector<QLineF>& lines);
    TGraphicsRatLineItem* Added(const QLineF& line, const QString& net);

    TItemScene& scene;
    const TNetModel* model = nullptr;
    QTimer whenIdle;
    QMap<QString, QVector<TGraphicsRatLineItem*>> linesOf; // Owned by the scene.
    QSet<QString> askedNets;
    QStringList lastAsked; ///< The list that was asked for last.
    QSet<unsigned short> askedComponents;
    bool first = true;
};
