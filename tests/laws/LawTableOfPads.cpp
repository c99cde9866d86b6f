#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdVia.h"
#include "tests/laws/LawMaking.h"

namespace Test {

namespace {

using Fields = StateFields;

const auto vias = OfKind({0x10011});
const auto pads = OfKind({0x10012});
const auto viasAndPads = OfKind({0x10011, 0x10012});

bool HasDrill(const TGraphicsItem& item)
{
    const Fields fields(item.StateLine());
    return vias(item) || (pads(item) && fields.Text("start") != fields.Text("end"));
}

// What a command makes of an item's state.

void SetDiameter(Fields& via, double diameter)
{
    via.Set("width", Single(diameter));
    via.Set("height", Single(diameter));
}

void SetDrillPair(Fields& via, const QString& pair)
{
    const bool through = pair == "Top - Bottom";
    via.Set("drillPair", pair);
    via.Set("start", static_cast<int>(Osmirel::CopperTop));
    via.Set("end", static_cast<int>(through ? Osmirel::CopperBottom : Osmirel::Copper2));
}

void SetSide(Fields& pad, Osmirel::Layer side)
{
    if (pad.Text("start") == pad.Text("end")) {
        pad.Set("layer", static_cast<int>(side));
        pad.Set("start", static_cast<int>(side));
        pad.Set("end", static_cast<int>(side));
    }
}

void SetSurface(Fields& pad, bool smd)
{
    const int start = pad.Integer("start");
    const int through = start == Osmirel::CopperBottom ? Osmirel::CopperTop : Osmirel::CopperBottom;
    pad.Set("end", smd ? start : through);
}

} // namespace

// The millimetres are such that their scene units are no numbers of single precision.
std::vector<CommandLaw> LawsOfPadsAndVias()
{
    return {
        Law<TCmdViaDiam>(vias, 0.8, 1.3, [](Fields& via, double mm) { SetDiameter(via, Scene(mm)); })
            .WithId(1242, Merging::TakeOver)
            .Undone([](Fields& via) { SetDiameter(via, std::min(via.Number("width"), via.Number("height"))); }),
        Law<TCmdViaDrill>(HasDrill, 0.4, 0.7, [](Fields& item, double mm) { item.Set("drill", Single(Scene(mm))); })
            .WithId(1241, Merging::TakeOver),
        Law<TCmdViaGroup>(vias, QString("Top - Inner 1"), QString("Top - Bottom"), SetDrillPair),
        Law<TCmdViaTherm>(viasAndPads, 2, 1, [](Fields& item, int index) { item.Set("thermal", index); })
            .WithoutRepaint(),
        Law<TCmdMaskClearance>(viasAndPads, 0.07, -9.9,
                               [](Fields& item, double mm) { item.Set("maskClearance", Single(Scene(mm))); })
            .WithId(1278, Merging::TakeOver),
        Law<TCmdMaskEn>(viasAndPads, true, false, [](Fields& item, bool on) { item.Set("mask", on); }),
        Law<TCmdPadWidth>(pads, 1.7, 2.9, [](Fields& pad, double mm) { pad.Set("width", Scene(mm)); })
            .WithId(1237, Merging::TakeOver),
        Law<TCmdPadHeight>(pads, 1.7, 2.9, [](Fields& pad, double mm) { pad.Set("height", Scene(mm)); })
            .WithId(1238, Merging::TakeOver)
            .Undone([](Fields& pad) { pad.SetText("height", pad.Text("width")); }),
        Law<TCmdPadName>(IsOfClass<TGraphicsPadItem>, QString("VCC"), QString(),
                         [](Fields& pad, const QString& text) { pad.Set("name", text); }),
        Law<TCmdPadNumber>(IsOfClass<TGraphicsPadItem>, QString("A1"), QString("\"7\""),
                           [](Fields& pad, const QString& text) { pad.Set("number", text); }),
        Law<TCmdPadShape>(pads, 4, 3, [](Fields& pad, int shape) { pad.Set("shape", shape); }),
        Law<TCmdPadSide>(pads, Osmirel::CopperBottom, Osmirel::Copper2, SetSide),
        Law<TCmdPadType>(pads, true, false, SetSurface),
        Law<TCmdPasteClearance>(pads, 0.07, -0.3,
                                [](Fields& pad, double mm) { pad.Set("pasteClearance", Single(Scene(mm))); })
            .WithId(1280, Merging::TakeOver),
        Law<TCmdPasteEn>(pads, true, false, [](Fields& pad, bool on) { pad.Set("paste", on); }),
    };
}

} // namespace Test
