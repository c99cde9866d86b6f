#pragma once

#include "workbench/importer/board/TCopperContacts.h"
#include "workbench/importer/board/TTrack.h"

#include <vector>

/** A track, or a part cut from one, between two nodes at which its ends meet others. */
struct TTrackPiece
{
    TTrack track;
    int source = 0;       ///< Which of the file's tracks it comes from.
    TGridPoint startNode; ///< The end itself, unless it is beside what it meets.
    TGridPoint endNode;
};

/**
 * The tracks of one net on one layer, which can only meet each other. Cuts them where others end on them, and
 * determines what they meet at their ends.
 *
 * A track is cut where another one ends, or a via or a pad has its centre, on its centre line or within a micrometre of
 * it. An end that then still meets nothing is joined to a track whose copper it lies on, unless the two are already
 * connected: tracks shorter than their width overlap.
 */
class TTrackGroup
{
public:
    explicit TTrackGroup(const QVector<TGraphicsItem*>& copper) : contacts(copper) {}

    void Add(const TTrack& track, int source);
    /** To be called once when all tracks have been added. */
    void Join();

    /** The tracks in their order, cut, each from its start on. */
    const std::vector<TTrackPiece>& Pieces() const { return pieces; }
    /** The item on which the ends at a node lie; null if there is none. */
    TGraphicsItem* Contact(const TGridPoint& node) const { return contactOf.value(node); }

private:
    struct TTouch
    {
        double distance = 0; ///< From the centre line, in nanometres.
        std::size_t piece = 0;
        TGridPoint foot;
    };

    void CutAtPlaces();
    void FindContacts();
    void JoinLooseEnds();
    QHash<TGridPoint, TTouch> TouchesOf(const QVector<TGridPoint>& ends) const;
    QVector<TGridPoint> LooseEnds() const;
    /** A number for each piece, equal for connected pieces. */
    std::vector<int> Islands() const;
    void Cut(std::vector<QVector<TGridPoint>>& places);
    void JoinNodes(const TGridPoint& node, const TGridPoint& with);
    TGridPoint NodeOf(TGridPoint place) const;

    TCopperContacts contacts;
    std::vector<TTrackPiece> pieces;
    QHash<TGridPoint, TGraphicsItem*> contactOf;
    QHash<TGridPoint, TGridPoint> joinedTo;
};
