#include "workbench/importer/board/PadCopper.h"

#include "workbench/importer/board/PadPrimitives.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"

#include <objects/TGraphicsPadItem.h>

#include <algorithm>
#include <cmath>

namespace {

using Measures::SceneLength;

/** The anchor shape of a custom pad, to which the primitives are added. */
TGraphicsPadItem::TypePadShape AnchorShape(const TSexpression& pad)
{
    const std::optional<TSexpression> options = pad.Find("options");
    const std::optional<TSexpression> anchor = options ? options->Find("anchor") : std::nullopt;
    return anchor && anchor->Value(0).IsWord("rect") ? TGraphicsPadItem::ShapeRectangle : TGraphicsPadItem::ShapeRound;
}

TGraphicsPadItem::TypePadShape Shape(const TSexpression& pad)
{
    const TSexpression word = pad.Value(2);
    if (word.IsWord("custom")) {
        return AnchorShape(pad);
    }
    static constexpr struct
    {
        std::string_view word;
        TGraphicsPadItem::TypePadShape shape;
    } shapes[] = {
        {"circle", TGraphicsPadItem::ShapeRound},        {"rect", TGraphicsPadItem::ShapeRectangle},
        {"oval", TGraphicsPadItem::ShapeObround},        {"roundrect", TGraphicsPadItem::ShapeRectangle},
        {"trapezoid", TGraphicsPadItem::ShapeRectangle},
    };
    const auto found = std::find_if(std::begin(shapes), std::end(shapes),
                                    [&word](const auto& entry) { return word.IsWord(entry.word); });
    if (found == std::end(shapes)) {
        word.Fail(QStringLiteral("unsupported pad shape '%1'").arg(word.Text()));
    }
    return found->shape;
}

QSizeF Size(const TSexpression& pad, bool isCircle)
{
    const TSexpression size = pad.Get("size");
    const double width = SceneLength(size.Value(0).Extent());
    return {width, isCircle ? width : SceneLength(size.Value(1).Extent())};
}

/** The offset of the copper's centre from the hole. */
QPointF CopperOffset(const TSexpression& pad)
{
    const std::optional<TSexpression> drill = pad.Find("drill");
    const std::optional<TSexpression> offset = drill ? drill->Find("offset") : std::nullopt;
    return offset ? ElementValues::Position(*offset) : QPointF();
}

/** The file has the differences of the sides to the pad's size: first to its width, the lower side growing. */
QSizeF Taper(const TSexpression& delta)
{
    const double widthAtBottom = SceneLength(delta.Value(0).Millionths());
    const double heightAtLeft = SceneLength(delta.Value(1).Millionths());
    return {2 * heightAtLeft, -2 * widthAtBottom};
}

/** Whether the chamfers form a regular octagon, to the precision of the file. */
bool IsOctagon(const TSexpression& pad, const TSexpression& chamferedCorners)
{
    constexpr double chamferOfOctagon = 0.292893; // 1 - sqrt(1/2), as a fraction of the side
    constexpr double tolerance = 0.005;
    const std::optional<TSexpression> ratio = pad.Find("chamfer_ratio");
    return chamferedCorners.FindValue(3) && ratio && std::abs(ratio->Value(0).Decimal() - chamferOfOctagon) < tolerance;
}

} // namespace

void ReadPadCopper(const TSexpression& pad, TGraphicsPadItem& item, TBoardDraft& draft)
{
    const TGraphicsPadItem::TypePadShape shape = Shape(pad);
    const QSizeF size = Size(pad, shape == TGraphicsPadItem::ShapeRound);
    const QPointF offset = CopperOffset(pad);
    item.SetPadShape(shape);
    item.SetSize(size.width(), size.height());
    item.SetCopperOffset(offset);
    if (const std::optional<TSexpression> delta = pad.Find("rect_delta")) {
        item.SetTaper(Taper(*delta));
    }
    if (const std::optional<TSexpression> ratio = pad.Find("roundrect_rratio")) {
        item.SetCornerRatio(std::clamp(ratio->Value(0).Decimal(), 0.0, 0.5));
    }
    if (const std::optional<TSexpression> corners = pad.Find("chamfer")) {
        if (IsOctagon(pad, *corners)) {
            item.SetPadShape(TGraphicsPadItem::ShapeLongOctagon);
        } else {
            draft.notShown.Count("chamfers of pads");
        }
    }
    if (const std::optional<TSexpression> primitives = pad.Find("primitives")) {
        item.SetExtraCopper(ReadPadPrimitives(*primitives, draft).translated(offset));
    }
}
