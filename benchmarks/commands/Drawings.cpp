#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdText.h"

namespace Bench {

void AddDrawings(Shelf& shelf)
{
    AddAttribute<TCmdPenWidth>(shelf, "TCmdPenWidth", Kind::Drawing, 0.5);
    AddAttribute<TCmdPenStyle>(shelf, "TCmdPenStyle", Kind::Drawing, Qt::DashLine);
    AddAttribute<TCmdBrushStyle>(shelf, "TCmdBrushStyle", Kind::Drawing, int{Qt::SolidPattern});
    AddAttribute<TCmdLayerPrim>(shelf, "TCmdLayerPrim", Kind::Drawing, Osmirel::DrawingsBottom);
    AddAttribute<TCmdUserColor>(shelf, "TCmdUserColor", Kind::Drawing, QColor(Qt::green));
    AddAttribute<TCmdTextTrueType>(shelf, "TCmdTextTrueType", Kind::Text, true);
    AddAttribute<TCmdTextFontName>(shelf, "TCmdTextFontName", Kind::Text, QStringLiteral("Serif"));
    AddAttribute<TCmdTextFontSize>(shelf, "TCmdTextFontSize", Kind::Text, 8);
    AddAttribute<TCmdTextAlign>(shelf, "TCmdTextAlign", Kind::Text, int{Qt::AlignRight});
    AddAttribute<TCmdTextAngle>(shelf, "TCmdTextAngle", Kind::Text, 90);
    AddAttribute<TCmdTextBold>(shelf, "TCmdTextBold", Kind::Text, true);
    AddAttribute<TCmdTextItalic>(shelf, "TCmdTextItalic", Kind::Text, true);
    AddAttribute<TCmdTextLayer>(shelf, "TCmdTextLayer", Kind::Text, Osmirel::SilkBottom);
    AddAttribute<TCmdTextMirrH>(shelf, "TCmdTextMirrH", Kind::Text, true);
    AddAttribute<TCmdTextMirrV>(shelf, "TCmdTextMirrV", Kind::Text, true);
}

} // namespace Bench
