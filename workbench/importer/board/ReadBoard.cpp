#include "workbench/importer/board/ReadBoard.h"

#include "workbench/importer/board/BuildOutline.h"
#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/LinkTracks.h"
#include "workbench/importer/board/TBoardDraft.h"

#include <algorithm>
#include <iterator>

namespace {

struct TElementReader
{
    std::string_view token;
    void (*read)(const TSexpression& element, TBoardDraft& draft);
};

/** Read before all items, wherever they are in the file. */
constexpr TElementReader definitionReaders[] = {
    {"layers", ElementReaders::ReadLayers},
    {"setup", ElementReaders::ReadSetup},
    {"net", ElementReaders::ReadNet},
    {"net_class", ElementReaders::ReadNetClass},
    {"title_block", ElementReaders::ReadTitleBlock},
};

constexpr TElementReader itemReaders[] = {
    {"footprint", ElementReaders::ReadFootprint},
    {"module", ElementReaders::ReadFootprint}, // the name of footprints in the oldest files
    {"via", ElementReaders::ReadVia},
    {"segment", ElementReaders::ReadSegment},
    {"arc", ElementReaders::ReadTrackArc},
    {"gr_text", ElementReaders::ReadText},
    {"gr_text_box", ElementReaders::ReadTextBox},
    {"zone", ElementReaders::ReadZone},
    {"gr_line", ElementReaders::ReadGraphic},
    {"gr_arc", ElementReaders::ReadGraphic},
    {"gr_circle", ElementReaders::ReadGraphic},
    {"gr_rect", ElementReaders::ReadGraphic},
    {"gr_poly", ElementReaders::ReadGraphic},
    {"gr_curve", ElementReaders::ReadGraphic},
};

template <std::size_t size>
const TElementReader* FindReader(const TElementReader (&readers)[size], const TSexpression& element)
{
    const auto found = std::find_if(std::begin(readers), std::end(readers), [&element](const TElementReader& reader) {
        return reader.token == element.Name();
    });
    return found == std::end(readers) ? nullptr : found;
}

void CheckHeader(const TSexpression& root)
{
    constexpr int oldest = 20171130;
    constexpr int newest = 20241229;
    if (root.Name() != "kicad_pcb") {
        root.Fail(QStringLiteral("not a board file: it does not begin with 'kicad_pcb'"));
    }
    const TSexpression version = root.Get("version").Value(0);
    if (version.Integer() < oldest || version.Integer() > newest) {
        version.Fail(QStringLiteral("unsupported file format %1; supported are %2 to %3")
                         .arg(version.Integer())
                         .arg(oldest)
                         .arg(newest));
    }
}

} // namespace

void ReadBoard(const TSexpression& root, TBoardDraft& draft, const std::function<void(int percent)>& progress)
{
    CheckHeader(root);
    root.Get("layers");
    int elements = 0;
    for (const TSexpression element : root) {
        if (const TElementReader* reader = FindReader(definitionReaders, element)) {
            reader->read(element, draft);
        }
        ++elements;
    }
    int percent = 0;
    int done = 0;
    for (const TSexpression element : root) {
        if (const TElementReader* reader = FindReader(itemReaders, element)) {
            reader->read(element, draft);
        } else if (!FindReader(definitionReaders, element)) {
            ElementReaders::CountElement(element, draft);
        }
        ++done;
        if (const int reached = 100 * done / elements; reached > percent) {
            percent = reached;
            progress(percent);
        }
    }
    BuildOutline(draft);
    LinkTracks(draft);
}
