#include "properties/commands/TCmdText.h"
#include "tests/laws/LawMaking.h"

#include <cmath>

namespace Test {

namespace {

using Fields = StateFields;

template <class Command, class Value, class Redone>
CommandLaw TextLaw(const Value& first, const Value& second, Redone redone)
{
    return LawOver<Command, TGraphicsTextItem>(first, second, redone);
}

/** A size in whole points: truncated on the way to pixels. What is no pixel leaves the text as it is. */
void SetPoints(Fields& text, int points)
{
    const int pixels = static_cast<int>(points * 0.3528 * 11.811023622047244);
    if (pixels > 0) {
        text.Set("pixels", pixels);
    }
}

void SetWeight(Fields& text, bool bold)
{
    text.Set("weight", bold ? 75 : 50);
}

void SetItalic(Fields& text, bool italic)
{
    text.Set("style", italic ? 1 : 0);
}

} // namespace

// What undo does not bring back is a size between two whole points, a fraction of a degree, weights besides normal and
// bold, and the oblique style.
std::vector<CommandLaw> LawsOfTexts()
{
    return {
        TextLaw<TCmdTextTrueType>(true, false, [](Fields& text, bool outlines) { text.Set("vector", !outlines); }),
        TextLaw<TCmdTextFontName>(QString("Serif"), QString("of no font"), Sets<QString>("family")),
        TextLaw<TCmdTextFontSize>(14, 72, SetPoints).WithId(1245, Merging::EqualValue).Undone([](Fields& text) {
            SetPoints(text, static_cast<int>(std::round(text.Number("pixels") / 4.166929133858268)));
        }),
        TextLaw<TCmdTextAlign>(132, 2, Sets<int>("alignment")),
        TextLaw<TCmdTextAngle>(90, 270,
                               [](Fields& text, int degrees) { text.Set("rotation", static_cast<double>(degrees)); })
            .Undone([](Fields& text) { text.Set("rotation", std::trunc(text.Number("rotation"))); }),
        TextLaw<TCmdTextBold>(true, false, SetWeight).Undone([](Fields& text) {
            SetWeight(text, text.Integer("weight") > 57);
        }),
        TextLaw<TCmdTextItalic>(true, false, SetItalic).Undone([](Fields& text) {
            SetItalic(text, text.Integer("style") != 0);
        }),
        TextLaw<TCmdTextLayer>(Osmirel::SilkBottom, Osmirel::CopperTop,
                               [](Fields& text, Osmirel::Layer layer) { text.Set("layer", static_cast<int>(layer)); }),
        TextLaw<TCmdTextMirrH>(true, false, SetsFlag(0x800)),
        TextLaw<TCmdTextMirrV>(true, false, SetsFlag(0x1000)),
    };
}

} // namespace Test
