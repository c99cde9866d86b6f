#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"

#include <objects/TGraphicsNetTiePcbItem.h>

#include <QLineF>
#include <QTransform>

#include <algorithm>
#include <vector>

namespace {

std::vector<TSexpression> Pads(const TSexpression& footprint)
{
    std::vector<TSexpression> pads;
    for (const TSexpression element : footprint) {
        if (element.Name() == "pad") {
            pads.push_back(element);
        }
    }
    return pads;
}

/** Whether the footprint is declared as a net tie; in the oldest files only its name and keywords tell. */
bool JoinsNets(const TSexpression& footprint)
{
    if (footprint.Find("net_tie_pad_groups")) {
        return true;
    }
    const auto isSaidIn = [](const QString& text) {
        return text.contains(QLatin1String("NetTie"), Qt::CaseInsensitive)
               || text.contains(QLatin1String("Net tie"), Qt::CaseInsensitive);
    };
    const std::optional<TSexpression> tags = footprint.Find("tags");
    return isSaidIn(footprint.Value(0).Text()) || (tags && isSaidIn(tags->Value(0).Text()));
}

/** The copper layer of a surface pad; none for a pad with copper on several layers. */
Osmirel::Layer CopperLayer(const TSexpression& pad, const TBoardDraft& draft)
{
    const QList<Osmirel::Layer> layers = draft.layers.Resolve(pad.Get("layers"));
    const auto isDrilled = !pad.Value(1).IsWord("smd") && !pad.Value(1).IsWord("connect");
    const auto copper = std::count_if(layers.begin(), layers.end(), Osmirel::IsCopper);
    return isDrilled || copper != 1 ? Osmirel::NoLayer : *std::find_if(layers.begin(), layers.end(), Osmirel::IsCopper);
}

/** The width of the copper between the pads: that of a line, or the shorter side of an area. */
double WireWidth(const TSexpression& footprint, double otherwise, const TBoardDraft& draft)
{
    for (const TSexpression shape : footprint) {
        if (!ShapeValues::IsShape(shape) || !Osmirel::IsCopper(draft.LayerOf(shape))) {
            continue;
        }
        if (!ShapeValues::IsArea(shape)) {
            return ShapeValues::StrokeWidth(shape);
        }
        const QRectF box = ShapeValues::Path(shape).boundingRect();
        return std::min(box.width(), box.height()) + ShapeValues::StrokeWidth(shape);
    }
    return otherwise;
}

bool IsReference(const TSexpression& element)
{
    const bool isField = element.Name() == "property" && element.Value(0).Text() == QLatin1String("Reference");
    return isField || (element.Name() == "fp_text" && element.Value(0).IsWord("reference"));
}

void ApplyName(const TSexpression& footprint, TGraphicsNetTiePcbItem& tie)
{
    tie.SetNameVisible(false);
    for (const TSexpression element : footprint) {
        if (IsReference(element)) {
            tie.SetName(ElementValues::UserName(element.Value(1)));
            tie.SetNameVisible(element.Find("at") && !element.HasFlag("hide", 2));
        }
    }
}

} // namespace

bool ElementReaders::IsNetTie(const TSexpression& footprint, const TBoardDraft& draft)
{
    if (!JoinsNets(footprint)) {
        return false;
    }
    const std::vector<TSexpression> pads = Pads(footprint);
    if (pads.size() != 2 || pads[0].Value(0).Text() == pads[1].Value(0).Text()) {
        return false;
    }
    const Osmirel::Layer layer = CopperLayer(pads[0], draft);
    return layer != Osmirel::NoLayer && layer == CopperLayer(pads[1], draft);
}

void ElementReaders::ReadNetTie(const TSexpression& footprint, TBoardDraft& draft)
{
    const std::vector<TSexpression> pads = Pads(footprint);
    const TSexpression at = footprint.Get("at");
    const QTransform toScene = QTransform()
                                   .translate(ElementValues::Position(at).x(), ElementValues::Position(at).y())
                                   .rotate(Measures::SceneRotation(ElementValues::Angle(at)));
    const QLineF between(toScene.map(ElementValues::Position(pads[0].Get("at"))),
                         toScene.map(ElementValues::Position(pads[1].Get("at"))));
    const TSexpression size = pads[0].Get("size");
    const double padSize = Measures::SceneLength(std::min(size.Value(0).Extent(), size.Value(1).Extent()));

    constexpr int mostTies = 0xffff;
    if (draft.netsOfTies.size() == mostTies) {
        footprint.Fail(QStringLiteral("more than %1 net ties").arg(mostTies));
    }
    auto tie = std::make_unique<TGraphicsNetTiePcbItem>();
    tie->SetNumber(static_cast<quint16>(draft.netsOfTies.size() + 1));
    tie->SetLayer(CopperLayer(pads[0], draft));
    tie->setPos(between.center());
    tie->setRotation(-between.angle());
    // Single precision is unchanged by any undo.
    tie->SetPadSize(static_cast<double>(static_cast<float>(padSize)));
    tie->SetPadDistance(between.length());
    tie->Pen().setWidthF(static_cast<double>(static_cast<float>(WireWidth(footprint, padSize, draft))));
    tie->SetTFlag(TGraphicsItem::Lock, footprint.HasFlag("locked", 1));
    ApplyName(footprint, *tie);
    draft.netsOfTies.insert(tie.get(), {draft.NetOf(pads[0]), draft.NetOf(pads[1])});
    if (const std::optional<TSexpression> path = footprint.Find("path")) {
        draft.paths.insert(tie.get(), path->Value(0).Text());
    }
    for (const TSexpression element : footprint) {
        const bool isText = element.Name() == "fp_text" || (element.Name() == "property" && element.Find("at"));
        const bool isDrawing = ShapeValues::IsShape(element) && !Osmirel::IsCopper(draft.LayerOf(element));
        if (isDrawing || (isText && !IsReference(element))) {
            draft.notShown.Count("graphic shapes and texts of net ties");
        } else if (!isText && !ShapeValues::IsShape(element) && element.Name() != "pad") {
            CountElement(element, draft);
        }
    }
    draft.board->Attach(std::move(tie));
}
