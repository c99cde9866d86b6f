#pragma once

#include "workbench/importer/board/TCopperContacts.h"
#include "workbench/importer/board/TTrack.h"

#include <vector>

/** A track, or what was cut from one, between two places at which its ends meet others. */
struct TTrackPiece
{
    TTrack track;
    int source = 0;       ///< Which of the file's tracks it comes from.
    TGridPoint startNode; ///< The end itself, unless it lies beside what it meets.
    TGridPoint endNode;
};

/**
 * The tracks of one net on one layer, which can only meet each other. It cuts them where others end on them, and says
 * what they meet at their ends.
 *
 * A track is cut where another one ends, or a via or a pad has its centre, on its middle line or within a micrometre of
 * it. An end that so far meets nothing joins the copper of a track that it lies on anywhere, unless the two hang
 * together already: tracks that are shorter than wide lie on each other.
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
        double distance = 0; ///< From the middle line, in nanometres.
        std::size_t piece = 0;
        TGridPoint foot;
    };

    void CutAtPlaces();
    void FindContacts();
    void JoinLooseEnds();
    QHash<TGridPoint, TTouch> TouchesOf(const QVector<TGridPoint>& ends) const;
    QVector<TGridPoint> LooseEnds() const;
    /** A number for each piece, the same for those that hang together. */
    std::vector<int> Islands() const;
    void Cut(std::vector<QVector<TGridPoint>>& places);
    void JoinNodes(const TGridPoint& node, const TGridPoint& with);
    TGridPoint NodeOf(TGridPoint place) const;

    TCopperContacts contacts;
    std::vector<TTrackPiece> pieces;
    QHash<TGridPoint, TGraphicsItem*> contactOf;
    QHash<TGridPoint, TGridPoint> joinedTo;
};
