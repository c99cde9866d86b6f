#include "workbench/importer/format/TextEffects.h"

#include "workbench/importer/format/Measures.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double usualHeight = 1'000'000; // Nanometres.

/** The text is centred in both directions by default. */
int Alignment(const std::optional<TSexpression>& justify)
{
    const auto isSaid = [&justify](std::string_view side) { return justify && justify->HasFlag(side); };
    if (isSaid("top") || isSaid("bottom")) {
        const int vertical = isSaid("top") ? Qt::AlignTop : Qt::AlignBottom;
        return vertical | (isSaid("left") ? Qt::AlignLeft : isSaid("right") ? Qt::AlignRight : Qt::AlignHCenter);
    }
    return isSaid("left") ? Qt::AlignLeft : isSaid("right") ? Qt::AlignRight : Qt::AlignCenter;
}

/** The item font's pixel size, the line width and the style. */
void ApplyFont(const TSexpression& font, TGraphicsTextItem& text)
{
    constexpr int bold = 75;
    constexpr int normal = 50;
    const std::optional<TSexpression> size = font.Find("size");
    const std::optional<TSexpression> thickness = font.Find("thickness");
    const auto height = size ? static_cast<double>(size->Value(0).Extent()) : usualHeight;
    const bool isBold = font.HasFlag("bold");
    // The default stroke width, as a fraction of the height.
    const double usualThickness = height / (isBold ? 5 : 8);
    const double width = thickness ? static_cast<double>(thickness->Value(0).Extent()) : usualThickness;
    text.Font().setPixelSize(std::max(1, qRound(Measures::SceneLength(std::llround(height)))));
    text.Font().setWeight(isBold ? bold : normal);
    text.Font().setStyle(font.HasFlag("italic") ? QFont::StyleItalic : QFont::StyleNormal);
    text.SetLineWidth(static_cast<float>(Measures::SceneLength(std::llround(width))));
    if (const std::optional<TSexpression> face = font.Find("face")) {
        text.Font().setFamily(face->Value(0).Text());
        text.SetVector(false);
    }
}

} // namespace

void TextEffects::Apply(const TSexpression& element, TGraphicsTextItem& text)
{
    const std::optional<TSexpression> effects = element.Find("effects");
    const std::optional<TSexpression> font = effects ? effects->Find("font") : std::nullopt;
    const std::optional<TSexpression> justify = effects ? effects->Find("justify") : std::nullopt;
    if (font) {
        ApplyFont(*font, text);
    }
    text.SetAlignment(Alignment(justify));
    text.SetTFlag(TGraphicsItem::MirrorHorizontal, justify && justify->HasFlag("mirror"));
    text.UpdatePath(false);
}

bool TextEffects::IsHidden(const TSexpression& element, int from)
{
    const std::optional<TSexpression> effects = element.Find("effects");
    return element.HasFlag("hide", from) || (effects && effects->HasFlag("hide"));
}

QPointF TextEffects::AnchorIn(const QRectF& box, int alignment)
{
    QPointF anchor = box.center();
    if ((alignment & Qt::AlignLeft) != 0) {
        anchor.setX(box.left());
    } else if ((alignment & Qt::AlignRight) != 0) {
        anchor.setX(box.right());
    }
    if ((alignment & Qt::AlignTop) != 0) {
        anchor.setY(box.top());
    } else if ((alignment & Qt::AlignBottom) != 0) {
        anchor.setY(box.bottom());
    }
    return anchor;
}
