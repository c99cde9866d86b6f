#include "tests/host/Sheet.h"
#include "tests/host/StateChanges.h"

namespace Test {

namespace {

template <class Item>
Item* Beside(const TGraphicsItem& item)
{
    auto* added = new Item;
    added->AttachTo(item.Owner());
    return added;
}

TGraphicsItem* PinOfPart(TestBoard& board)
{
    return new TGraphicsPinItem(Placed<TGraphicsPartItem>(board));
}

} // namespace

QList<Change> StateChangesOfSheets()
{
    using Pin = TGraphicsPinItem;
    using Port = TGraphicsPortItem;
    using Part = TGraphicsPartItem;
    using Wire = TGraphicsNetItem;
    using Bus = TGraphicsBusItem;
    using Entry = TGraphicsBusEntryItem;
    using Tag = TGraphicsTagItem;
    return {
        {"pin name", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetName("CLK"); }), {"name"}},
        {"pin name hidden", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetNameVisible(false); }), {"nameVisible"}},
        {"pin number", Placed<Pin>, On<Pin>([](Pin& pin) { pin.NumberText()->SetText("A1"); }), {"number"}},
        {"pin number hidden", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetNumberVisible(false); }), {"numberVisible"}},
        {"pin type", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetPinType(Pin::TypePower); }), {"type"}},
        {"pin style", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetPinStyle(Pin::StyleInverse); }), {"style"}},
        {"pin length", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetPinLength(Pin::LengthLong); }), {"length", "line"}},
        {"pin length of its symbol", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetSymbolLength(7.5); }), {"line"}},
        {"pin swap group", Placed<Pin>, On<Pin>([](Pin& pin) { pin.SetSwap(255); }), {"swap"}},
        {"pin net", Placed<Pin>, On<Pin>([](Pin& pin) { pin.NameNet("GND"); }), {"net"}},
        {"wire linked to a pin",
         Placed<Pin>,
         On<Pin>([](Pin& pin) { Beside<Wire>(pin)->LinkToFirst(&pin); }),
         {"links"}},
        {"pin linked to a pin", Placed<Pin>, On<Pin>([](Pin& pin) { Beside<Pin>(pin)->LinkToPin(&pin); }), {"links"}},
        {"position of a part moves its pins",
         PinOfPart,
         [](TGraphicsItem& item) { item.parentItem()->moveBy(1, 0); },
         {"at", "in.at"}},

        {"port name", Placed<Port>, On<Port>([](Port& port) { port.SetName("GND", {}); }), {"net", "name"}},
        {"port name with a colour",
         Placed<Port>,
         On<Port>([](Port& port) { port.SetName("GND", Qt::red); }),
         {"color", "net", "name"}},
        {"port name hidden", Placed<Port>, On<Port>([](Port& port) { port.SetNameVisible(false); }), {"nameVisible"}},
        {"port shape", Placed<Port>, On<Port>([](Port& port) { port.SetPortShape(Port::ShapePower); }), {"shape"}},

        {"symbol name", Placed<Part>, On<Part>([](Part& part) { part.SetName("R_US"); }), {"name"}},
        {"swap number", Placed<Part>, On<Part>([](Part& part) { part.SetSwapNumber(3); }), {"swap"}},
        {"open symbol", Placed<Part>, On<Part>([](Part& part) { part.SetSymbolOpen(true); }), {"symbolOpen"}},
        {"part value", Placed<Part>, On<Part>([](Part& part) { part.SetValue("4k7"); }), {"value"}},
        {"part number", Placed<Part>, On<Part>([](Part& part) { part.SetComponentNumber(65535); }), {"component"}},

        {"net wire net", Placed<Wire>, On<Wire>([](Wire& wire) { wire.SetNet("GND"); }), {"net"}},
        {"net wire linked", Placed<Wire>, On<Wire>([](Wire& wire) { wire.LinkToFirst(Beside<Pin>(wire)); }), {"first"}},

        {"bus name", Placed<Bus>, On<Bus>([](Bus& bus) { bus.SetName("D[0..7]"); }), {"name"}},
        {"bus with an entry", Placed<Bus>, On<Bus>([](Bus& bus) { Beside<Entry>(bus)->LinkToBus(&bus); }), {"entries"}},
        {"bus ends at a bus", Placed<Bus>, On<Bus>([](Bus& bus) { bus.LinkToLast(Beside<Bus>(bus)); }), {"last"}},

        {"entry at a bus",
         Placed<Entry>,
         On<Entry>([](Entry& entry) { entry.LinkToBus(Beside<Bus>(entry)); }),
         {"links"}},
        {"entry with a wire",
         Placed<Entry>,
         On<Entry>([](Entry& entry) { Beside<Wire>(entry)->LinkToLast(&entry); }),
         {"links"}},

        {"tag name", Placed<Tag>, On<Tag>([](Tag& tag) { tag.SetName("TITLE", false); }), {"name"}},
        {"tag value", Placed<Tag>, On<Tag>([](Tag& tag) { tag.SetValue("Amplifier", false); }), {"value"}},
        {"tag value that is shown",
         Placed<Tag>,
         On<Tag>([](Tag& tag) { tag.SetValue("Amplifier", true); }),
         {"text", "value"}},
        {"tag name that is shown",
         Placed<Tag>,
         On<Tag>([](Tag& tag) { tag.SetName("TITLE", true); }),
         {"text", "name"}},
    };
}

} // namespace Test
