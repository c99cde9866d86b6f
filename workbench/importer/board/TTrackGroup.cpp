#include "workbench/importer/board/TTrackGroup.h"

#include "workbench/importer/format/GridBoxes.h"

#include <graphics/engine/DisjointSets.h>

#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 onMiddleLine = 1000; // Nanometres.

double Distance(const TGridPoint& one, const TGridPoint& other)
{
    return std::hypot(static_cast<double>(one.x - other.x), static_cast<double>(one.y - other.y));
}

/** The point on a track's centre line that is nearest to another. */
TGridPoint Foot(const TTrack& track, const TGridPoint& place)
{
    const auto dx = static_cast<double>(track.end.x - track.start.x);
    const auto dy = static_cast<double>(track.end.y - track.start.y);
    const double square = dx * dx + dy * dy;
    if (square <= 0) {
        return track.start;
    }
    const double along =
        static_cast<double>(place.x - track.start.x) * dx + static_cast<double>(place.y - track.start.y) * dy;
    const double share = std::clamp(along / square, 0.0, 1.0);
    return {track.start.x + std::llround(share * dx), track.start.y + std::llround(share * dy)};
}

/** Whether a point is strictly between the ends of a track. */
bool IsBetweenEnds(const TTrack& track, const TGridPoint& place)
{
    return Distance(place, track.start) > onMiddleLine && Distance(place, track.end) > onMiddleLine;
}

/** An index where a track's middle line meets all places within @p margin nanometres of it, and few others. */
TBoxIndex IndexOf(const QVector<TGridPoint>& places, qint64 margin)
{
    constexpr qint64 rounding = 2; // Feet are rounded to whole nanometres.
    return {places, [&](const TGridPoint& place) { return GridBoxes::Around(place, margin + rounding); }};
}

QVector<TGridPoint> WithoutRepeats(const QVector<TGridPoint>& places)
{
    QSet<TGridPoint> seen;
    QVector<TGridPoint> once;
    for (const TGridPoint& place : places) {
        if (!seen.contains(place)) {
            seen.insert(place);
            once.append(place);
        }
    }
    return once;
}

QLineF MiddleLine(const TTrack& track)
{
    return {static_cast<double>(track.start.x), static_cast<double>(track.start.y), static_cast<double>(track.end.x),
            static_cast<double>(track.end.y)};
}

} // namespace

void TTrackGroup::Add(const TTrack& track, int source)
{
    pieces.push_back({track, source, track.start, track.end});
}

void TTrackGroup::Join()
{
    CutAtPlaces();
    FindContacts();
    JoinLooseEnds();
    for (TTrackPiece& piece : pieces) {
        piece.startNode = NodeOf(piece.track.start);
        piece.endNode = NodeOf(piece.track.end);
    }
}

void TTrackGroup::CutAtPlaces()
{
    QVector<TGridPoint> places = contacts.Centres();
    for (const TTrackPiece& piece : pieces) {
        places << piece.track.start << piece.track.end;
    }
    places = WithoutRepeats(places);
    const TBoxIndex index = IndexOf(places, onMiddleLine);
    std::vector<QVector<TGridPoint>> cuts(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const TTrack& track = pieces[i].track;
        const QVector<int> near = index.Meeting(MiddleLine(track));
        for (const int number : near) {
            const TGridPoint& place = places[number];
            if (Distance(place, Foot(track, place)) <= onMiddleLine && IsBetweenEnds(track, place)) {
                cuts[i].append(place);
            }
        }
    }
    Cut(cuts);
}

void TTrackGroup::Cut(std::vector<QVector<TGridPoint>>& places)
{
    std::vector<TTrackPiece> cut;
    cut.reserve(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        TTrackPiece piece = pieces[i];
        const TGridPoint start = piece.track.start;
        const TGridPoint end = piece.track.end;
        std::sort(places[i].begin(), places[i].end(), [&start](const TGridPoint& one, const TGridPoint& other) {
            return Distance(start, one) < Distance(start, other);
        });
        for (const TGridPoint& place : qAsConst(places[i])) {
            if (place != piece.track.start) {
                piece.track.end = place;
                cut.push_back(piece);
                piece.track.start = place;
            }
        }
        piece.track.end = end;
        cut.push_back(piece);
    }
    pieces = std::move(cut);
}

void TTrackGroup::FindContacts()
{
    for (const TTrackPiece& piece : pieces) {
        for (const TGridPoint& end : {piece.track.start, piece.track.end}) {
            if (!contactOf.contains(end)) {
                contactOf.insert(end, contacts.At(end));
            }
        }
    }
}

QVector<TGridPoint> TTrackGroup::LooseEnds() const
{
    QHash<TGridPoint, int> met; // A track of zero length does not count as two tracks meeting.
    for (const TTrackPiece& piece : pieces) {
        ++met[piece.track.start];
        if (piece.track.end != piece.track.start) {
            ++met[piece.track.end];
        }
    }
    QVector<TGridPoint> loose;
    for (const TTrackPiece& piece : pieces) {
        for (const TGridPoint& end : {piece.track.start, piece.track.end}) {
            if (met.value(end) == 1 && !Contact(end)) {
                loose.append(end);
            }
        }
    }
    return loose;
}

std::vector<int> TTrackGroup::Islands() const
{
    DisjointSets sets;
    QHash<TGridPoint, int> firstAt;
    QHash<const TGraphicsItem*, int> firstOn;
    std::vector<int> islands;
    const auto join = [&sets](auto& first, const auto& place, int set) {
        const auto known = first.constFind(place);
        if (known == first.constEnd()) {
            first.insert(place, set);
        } else {
            sets.Join(*known, set);
        }
    };
    for (const TTrackPiece& piece : pieces) {
        const int set = sets.Add();
        islands.push_back(set);
        for (const TGridPoint& end : {piece.track.start, piece.track.end}) {
            join(firstAt, end, set);
            if (const TGraphicsItem* contact = Contact(end)) {
                join(firstOn, contact, set);
            }
        }
    }
    for (int& island : islands) {
        island = sets.Root(island);
    }
    return islands;
}

QHash<TGridPoint, TTrackGroup::TTouch> TTrackGroup::TouchesOf(const QVector<TGridPoint>& ends) const
{
    const std::vector<int> islands = Islands();
    QHash<TGridPoint, int> islandOf;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        islandOf.insert(pieces[i].track.start, islands[i]);
        islandOf.insert(pieces[i].track.end, islands[i]);
    }
    const auto widest = std::max_element(pieces.begin(), pieces.end(), [](const auto& one, const auto& other) {
        return one.track.width < other.track.width;
    });
    const TBoxIndex index = IndexOf(ends, widest->track.width / 2);
    QHash<TGridPoint, TTouch> touches;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const TTrack& track = pieces[i].track;
        const QVector<int> near = index.Meeting(MiddleLine(track));
        for (const int number : near) {
            const TGridPoint& end = ends[number];
            const TGridPoint foot = Foot(track, end);
            const double distance = Distance(end, foot);
            const bool isOther = islandOf.value(end) != islands[i];
            const auto known = touches.constFind(end);
            if (isOther && distance <= static_cast<double>(track.width) / 2
                && (known == touches.constEnd() || distance < known->distance)) {
                touches.insert(end, {distance, i, foot});
            }
        }
    }
    return touches;
}

void TTrackGroup::JoinLooseEnds()
{
    const QVector<TGridPoint> ends = LooseEnds();
    if (ends.isEmpty()) {
        return;
    }
    const QHash<TGridPoint, TTouch> touches = TouchesOf(ends);
    std::vector<QVector<TGridPoint>> cuts(pieces.size());
    for (const TGridPoint& end : ends) {
        const auto touch = touches.constFind(end);
        if (touch == touches.constEnd()) {
            continue;
        }
        const TTrack& track = pieces[touch->piece].track;
        const bool isNearerToStart = Distance(end, track.start) < Distance(end, track.end);
        const TGridPoint& nearerEnd = isNearerToStart ? track.start : track.end;
        const bool isAtEnd = Distance(end, nearerEnd) <= static_cast<double>(track.width) / 2;
        if (isAtEnd && !Contact(nearerEnd)) {
            JoinNodes(end, nearerEnd);
        } else if (IsBetweenEnds(track, touch->foot)) {
            cuts[touch->piece].append(touch->foot);
            JoinNodes(end, touch->foot);
        } else {
            contactOf[end] = Contact(nearerEnd);
        }
    }
    Cut(cuts);
}

void TTrackGroup::JoinNodes(const TGridPoint& node, const TGridPoint& with)
{
    const TGridPoint root = NodeOf(with);
    if (root != NodeOf(node)) {
        joinedTo.insert(node, root);
    }
}

TGridPoint TTrackGroup::NodeOf(TGridPoint place) const
{
    for (auto next = joinedTo.constFind(place); next != joinedTo.constEnd(); next = joinedTo.constFind(place)) {
        place = *next;
    }
    return place;
}
