#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/ArcPath.h"
#include "workbench/importer/format/ElementValues.h"

#include <algorithm>
#include <cmath>

namespace {

/** The oldest files have a bit field, one bit of which locks the track. */
bool IsLockedByStatus(const TSexpression& element)
{
    constexpr uint lockBit = 0x40000;
    const std::optional<TSexpression> status = element.Find("status");
    return status && (status->Value(0).Text().toUInt(nullptr, 16) & lockBit) != 0;
}

/** The attributes of a track besides its position. */
TTrack Track(const TSexpression& element, const TBoardDraft& draft)
{
    TTrack track;
    const TSexpression layer = element.Get("layer").Value(0);
    track.start = ElementValues::GridPoint(element.Get("start"));
    track.end = ElementValues::GridPoint(element.Get("end"));
    track.width = element.Get("width").Value(0).Extent();
    track.layer = draft.layers.Find(layer.Text());
    track.net = draft.NetOf(element);
    track.isLocked = element.HasFlag("locked") || IsLockedByStatus(element);
    if (!Osmirel::IsCopper(track.layer)) {
        layer.Fail(QStringLiteral("a track on layer '%1', which is not a copper layer of the board").arg(layer.Text()));
    }
    return track;
}

} // namespace

void ElementReaders::ReadSegment(const TSexpression& segment, TBoardDraft& draft)
{
    draft.tracks.push_back(Track(segment, draft));
}

void ElementReaders::ReadTrackArc(const TSexpression& arc, TBoardDraft& draft)
{
    TTrack track = Track(arc, draft);
    const TGridPoint end = track.end;
    const std::vector<TGridPoint> corners =
        ArcPath::CornersThrough(track.start, ElementValues::GridPoint(arc.Get("mid")), track.end);
    for (const TGridPoint& corner : corners) {
        track.end = corner;
        draft.tracks.push_back(track);
        track.start = corner;
    }
    track.end = end;
    draft.tracks.push_back(track);
}
