#include "tests/commands/LawTable.h"

#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdVia.h"
#include "tests/support/TestBoard.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <typeinfo>

namespace Test {

CommandLaw& CommandLaw::WithId(int number, Merging rule)
{
    id = number;
    merging = rule;
    return *this;
}

CommandLaw& CommandLaw::WithoutRepaint()
{
    repaints = false;
    return *this;
}

CommandLaw& CommandLaw::Undone(std::function<void(StateFields&)> quirk)
{
    undone = std::move(quirk);
    return *this;
}

namespace {

using Items = QList<TGraphicsItem*>;
using Fields = StateFields;

template <class Command>
QString NameOf()
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(Command).name(), nullptr, nullptr, nullptr), &std::free);
    return QString::fromLatin1(name.get());
}

template <class Command, class = void>
struct HasMergeRule : std::false_type
{};
template <class Command>
struct HasMergeRule<Command,
                    std::void_t<decltype(static_cast<bool (Command::*)(const TUndoCommand*)>(&Command::mergeWith))>>
    : std::true_type
{};

/** The law of a command that @p make builds over the items with a value. */
template <class Command, class Value, class Make, class Redone>
CommandLaw MadeLaw(std::function<bool(const TGraphicsItem&)> accepts, const Value& first, const Value& second,
                   Make make, Redone redone)
{
    CommandLaw law;
    law.name = NameOf<Command>();
    law.accepts = std::move(accepts);
    const std::array<Value, 2> values{first, second};
    law.make = [=](const Items& items, int value) -> std::unique_ptr<TUndoCommand> {
        return make(items, values.at(static_cast<std::size_t>(value)));
    };
    law.redone = [=](Fields& fields, int value) { redone(fields, values.at(static_cast<std::size_t>(value))); };
    law.undone = [](Fields&) {};
    law.mergeWith = [](TUndoCommand& command, const TUndoCommand* other) {
        return static_cast<Command&>(command).mergeWith(other);
    };
    law.hasMergeRule = HasMergeRule<Command>::value;
    return law;
}

/** The law of a command that is made of the selection and a value. */
template <class Command, class Value, class Redone>
CommandLaw Law(std::function<bool(const TGraphicsItem&)> accepts, const Value& first, const Value& second,
               Redone redone)
{
    const auto make = [](const Items& items, const Value& value) { return std::make_unique<Command>(items, value); };
    return MadeLaw<Command>(std::move(accepts), first, second, make, redone);
}

double Scene(double millimetres)
{
    return millimetres * sceneUnitsPerMillimetre;
}

// Which items a command keeps.

std::function<bool(const TGraphicsItem&)> OfKind(std::initializer_list<int> types)
{
    return [kinds = std::vector<int>(types)](const TGraphicsItem& item) {
        return std::find(kinds.begin(), kinds.end(), item.type()) != kinds.end();
    };
}

const auto vias = OfKind({0x10011});
const auto pads = OfKind({0x10012});
const auto viasAndPads = OfKind({0x10011, 0x10012});

bool HasDrill(const TGraphicsItem& item)
{
    const Fields fields(item.StateLine());
    return vias(item) || (pads(item) && fields.Text("start") != fields.Text("end"));
}

bool IsPadObject(const TGraphicsItem& item)
{
    return dynamic_cast<const TGraphicsPadItem*>(&item);
}

bool IsRectangle(const TGraphicsItem& item)
{
    return dynamic_cast<const TGraphicsRectItem*>(&item);
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

QSizeF Narrowed(const QSizeF& size)
{
    // Through memory, since g++ 12 at -O2 drops the narrowing of two neighbours that it handles as one vector.
    const volatile auto width = static_cast<float>(size.width());
    const volatile auto height = static_cast<float>(size.height());
    return {static_cast<double>(width), static_cast<double>(height)};
}

CommandLaw RectSizeLaw()
{
    const auto make = [](const Items& items, const QSizeF& size) {
        QList<TGraphicsRectItem*> rectangles;
        for (TGraphicsItem* item : items) {
            if (auto* rectangle = dynamic_cast<TGraphicsRectItem*>(item)) {
                rectangles.append(rectangle);
            }
        }
        return std::make_unique<TCmdRectSize>(rectangles, size.width(), size.height());
    };
    const auto redone = [](Fields& rectangle, const QSizeF& size) { rectangle.Set("size", Narrowed(size)); };
    return MadeLaw<TCmdRectSize>(IsRectangle, QSizeF(30.1, 20.7), QSizeF(12.3, 4.56), make, redone);
}

// The millimetres are such that their scene units are no numbers of single precision.
std::vector<CommandLaw> MakeTable()
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
        Law<TCmdPadName>(IsPadObject, QString("VCC"), QString(),
                         [](Fields& pad, const QString& text) { pad.Set("name", text); }),
        Law<TCmdPadNumber>(IsPadObject, QString("A1"), QString("\"7\""),
                           [](Fields& pad, const QString& text) { pad.Set("number", text); }),
        Law<TCmdPadShape>(pads, 4, 3, [](Fields& pad, int shape) { pad.Set("shape", shape); }),
        Law<TCmdPadSide>(pads, Osmirel::CopperBottom, Osmirel::Copper2, SetSide),
        Law<TCmdPadType>(pads, true, false, SetSurface),
        Law<TCmdPasteClearance>(pads, 0.07, -0.3,
                                [](Fields& pad, double mm) { pad.Set("pasteClearance", Single(Scene(mm))); })
            .WithId(1280, Merging::TakeOver),
        Law<TCmdPasteEn>(pads, true, false, [](Fields& pad, bool on) { pad.Set("paste", on); }),
        RectSizeLaw().WithId(1282, Merging::Never),
    };
}

} // namespace

const std::vector<CommandLaw>& LawTable()
{
    static const std::vector<CommandLaw> table = MakeTable();
    return table;
}

} // namespace Test
