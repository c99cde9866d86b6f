#pragma once

/** The ids of the commands that have one, unique in the library. */
namespace CommandId {

enum Id : int {
    None = -1,
    PadWidth = 1237,
    PadHeight = 1238,
    ViaDrill = 1241,
    ViaDiam = 1242,
    MaskClearance = 1278,
    PasteClearance = 1280,
    RectSize = 1282,
};

} // namespace CommandId
