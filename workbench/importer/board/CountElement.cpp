#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TBoardDraft.h"

#include <algorithm>
#include <utility>

namespace {

/** The elements of boards and footprints that are not supported yet, with their names for users. */
constexpr std::pair<std::string_view, const char*> kinds[] = {
    {"dimension", "dimensions"}, {"group", "groups"}, {"generated", "length-tuning patterns"},
    {"image", "images"},         {"table", "tables"}, {"target", "alignment targets"},
    {"model", "3D models"},
};

/** Properties of the board or the footprint itself. */
constexpr std::string_view properties[] = {
    "version",
    "host",
    "generator",
    "generator_version",
    "general",
    "paper",
    "page",
    "title_block",
    "embedded_fonts",
    "embedded_files",
    "layer",
    "at",
    "locked",
    "placed",
    "descr",
    "tags",
    "path",
    "sheetname",
    "sheetfile",
    "attr",
    "tedit",
    "tstamp",
    "uuid",
    "autoplace_cost90",
    "autoplace_cost180",
    "clearance",
    "solder_mask_margin",
    "solder_paste_margin",
    "solder_paste_ratio",
    "solder_paste_margin_ratio",
    "zone_connect",
    "thermal_width",
    "thermal_gap",
    "net_tie_pad_groups",
    "private_layers",
    "units",
    "component_classes",
    "property",
    "fill",
    "duplicate_pad_numbers_are_jumpers",
};

} // namespace

void ElementReaders::CountElement(const TSexpression& element, TBoardDraft& draft)
{
    const std::string_view token = element.Name();
    const auto known =
        std::find_if(std::begin(kinds), std::end(kinds), [token](const auto& entry) { return entry.first == token; });
    if (known != std::end(kinds)) {
        draft.notShown.Count(known->second);
    } else if (element.IsList() && std::count(std::begin(properties), std::end(properties), token) == 0) {
        draft.notShown.Count("other elements");
    }
}
