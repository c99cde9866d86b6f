#pragma once

/** What `type()` returns for the kinds of items that the library knows by number. */
namespace ItemType {

enum Number : int {
    Line = 0x10002,
    Rectangle = 0x10003,
    Ellipse = 0x10004,
    Polyline = 0x10005,
    Polygon = 0x10006,
    Arc = 0x10007,
    Text = 0x10008,
    Port = 0x10009,
    Part = 0x1000a,
    Package = 0x1000b,
    Pin = 0x1000c,
    Junction = 0x1000d,
    NetWire = 0x1000e,
    BusEntry = 0x1000f,
    Wire = 0x10010,
    Via = 0x10011,
    Pad = 0x10012,
    RatLine = 0x10013,
    Pour = 0x10014,
    Hole = 0x10015,
    Outline = 0x10018,
    Tag = 0x1001b,
    NetTieSch = 0x1001d,
    NetTiePcb = 0x1001e,
    Keepout = 0x1001f,
};

} // namespace ItemType
