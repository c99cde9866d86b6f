#include "properties/commands/TCmdPin.h"
#include "properties/commands/TCmdPort.h"
#include "properties/commands/TCmdTag.h"
#include "tests/laws/LawMaking.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

namespace Test {

namespace {

using Fields = StateFields;

const auto pins = OfKind({0x1000c});

void SetLength(Fields& pin, int length)
{
    pin.Set("length", length);
    pin.Set("line", 15.0 * length); // Multiples of a twentieth of an inch.
}

/** A tag of no project shows its own name. */
void SetNameAlone(Fields& tag, const QString& name)
{
    tag.Set("name", name);
    tag.Set("value", QString());
    tag.Set("text", "{" + name + "}");
}

CommandLaw TagLaw()
{
    const auto make = [](const Items& items, const QString& name) {
        return std::make_unique<TCmdTagName>(OfClass<TGraphicsTagItem>(items), name, nullptr);
    };
    // Undo brings back what the project holds under the old name now, which is nothing without a project.
    return MadeLaw<TCmdTagName>(IsOfClass<TGraphicsTagItem>, QString("DATE"), QString("author of it"), make,
                                SetNameAlone)
        .Undone([](Fields& tag) {
            const QString quoted = tag.Text("name");
            SetNameAlone(tag, quoted.mid(1, quoted.size() - 2));
        });
}

} // namespace

std::vector<CommandLaw> LawsOfSheets()
{
    return {
        Law<TCmdPinName>(pins, QString("D0"), QString(), Sets<QString>("name")),
        Law<TCmdPinNameVis>(pins, false, true, Sets<bool>("nameVisible")),
        Law<TCmdPinNumber>(pins, QString("B7"), QString(), Sets<QString>("number"))
            .WithRepaintOf(
                [](const TGraphicsItem& pin) { return static_cast<const TGraphicsPinItem&>(pin).NumberText(); }),
        Law<TCmdPinNumberVis>(pins, false, true, Sets<bool>("numberVisible")),
        Law<TCmdPinType>(pins, 7, 1, Sets<int>("type")).WithId(1254, Merging::EqualValue),
        Law<TCmdPinStyle>(pins, 1, 0, Sets<int>("style")).WithId(1255, Merging::EqualValue),
        Law<TCmdPinLength>(pins, 3, 0, SetLength).WithId(1256, Merging::EqualValue),
        Law<TCmdPinSwap>(pins, 255, 0, Sets<int>("swap")).WithId(1257, Merging::EqualValue).WithoutRepaint(),
        LawOver<TCmdPortNameVis, TGraphicsPortItem>(false, true, Sets<bool>("nameVisible")),
        TagLaw(),
    };
}

} // namespace Test
