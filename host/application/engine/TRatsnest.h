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
 * The ratsnest of a board: for each net a minimum spanning tree of straight lines that would join all of its copper.
 * Owned by its board.
 *
 * Copper is joined by links, by overlap (pads and vias), and by a pour of its net that covers it: one whose polygon
 * contains it, where no keepout and no pour of another net with higher priority does. The lines depend on the items'
 * state alone, so that equal states have equal lines.
 */
class TRatsnest
{
public:
    explicit TRatsnest(TItemScene& ofBoard);
    ~TRatsnest();
    TRatsnest(const TRatsnest&) = delete;
    TRatsnest& operator=(const TRatsnest&) = delete;

    /** The source of the nets' priority and colour, or null. */
    void SetNetModel(const TNetModel* newModel);

    /** Requests the rat lines of nets, or of all nets of components' pads. */
    void Ask(const QStringList& nets);
    void Ask(const QList<unsigned short>& components);
    /** The nets requested since the last `WorkOut`, sorted. */
    QStringList Asked() const;

    /** Computes the nets that were requested or marked; all nets the first time. */
    void WorkOut();

    /** The lines, by net. */
    QList<TGraphicsItem*> Lines() const;

    /** Updates the lines of a priority level, or all with -1, to the nets' priorities. */
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
    QStringList lastAsked; ///< The last requested list.
    QSet<unsigned short> askedComponents;
    bool first = true;
};
