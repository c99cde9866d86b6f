#pragma once

#include <properties/Export.h>

/** The ids of the commands that have one, unique in the library. */
namespace CommandId {

enum PROPERTIES_EXPORT Id : int {
    None = -1,
    PenWidth = 1234,
    PenStyle = 1235,
    PadWidth = 1237,
    PadHeight = 1238,
    ViaDrill = 1241,
    ViaDiam = 1242,
    UserColor = 1244,
    TextFontSize = 1245,
    PinType = 1254,
    PinStyle = 1255,
    PinLength = 1256,
    PinSwap = 1257,
    Lock = 1260,
    BusEntryDisconnect = 1262,
    LayerPrim = 1264,
    PourThermIsol = 1267,
    PourThermLine = 1268,
    PourPrio = 1269,
    PourNet = 1271,
    PourClEtch = 1272,
    PourClPour = 1273,
    PourClBorder = 1274,
    PourLineWidth = 1275,
    PourMinArea = 1276,
    WireWidth = 1277,
    MaskClearance = 1278,
    PasteClearance = 1280,
    RectSize = 1282,
};

} // namespace CommandId
