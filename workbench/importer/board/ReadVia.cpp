#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"

#include <objects/TGraphicsViaItem.h>

namespace {

/** The drill pair of the two layers that a via connects; that through the whole board if it names none. */
QString DrillPair(const TSexpression& via, TBoardDraft& draft)
{
    Osmirel::Layer ends[] = {Osmirel::CopperTop, Osmirel::CopperBottom};
    if (const std::optional<TSexpression> layers = via.Find("layers")) {
        for (int i = 0; i < 2; ++i) {
            const TSexpression name = layers->Value(i);
            ends[i] = draft.layers.Find(name.Text());
            if (!Osmirel::IsCopper(ends[i])) {
                name.Fail(
                    QStringLiteral("a via on layer '%1', which is not a copper layer of the board").arg(name.Text()));
            }
        }
    }
    return draft.DrillPair(ends[0], ends[1]);
}

/** The drill diameter in nanometres: the via's own, else its net's, else the board's, else half its size. */
qint64 Drill(const TSexpression& via, const QString& net, qint64 size, const TBoardDraft& draft)
{
    if (const std::optional<TSexpression> drill = via.Find("drill")) {
        return drill->Value(0).Extent();
    }
    const auto drillOf = via.HasFlag("micro") ? &TViaDrills::microVia : &TViaDrills::via;
    const std::optional<qint64> ofNet = draft.netViaDrills.value(net).*drillOf;
    return ofNet ? *ofNet : (draft.viaDrills.*drillOf).value_or(size / 2);
}

} // namespace

void ElementReaders::ReadVia(const TSexpression& via, TBoardDraft& draft)
{
    const QString net = draft.NetOf(via);
    const qint64 size = via.Get("size").Value(0).Extent();

    auto item = std::make_unique<TGraphicsViaItem>();
    item->SetWorkspace(draft.board->Workspace());
    item->setPos(ElementValues::Position(via.Get("at")));
    // Commands store a via's diameter in single precision: only a size rounded to that survives an undo.
    const auto diameter = static_cast<double>(static_cast<float>(Measures::SceneLength(size)));
    item->SetSize(diameter, diameter);
    item->SetDrill(static_cast<float>(Measures::SceneLength(Drill(via, net, size, draft))));
    item->SetViaGroup(DrillPair(via, draft));
    item->SetNet(net);
    const std::optional<TSexpression> tenting = via.Find("tenting");
    item->SetMaskEnabled(!(tenting ? ElementValues::CoversBothSides(*tenting) : draft.viasTented));
    item->SetMaskClearance(static_cast<float>(Measures::SceneLength(draft.padDefaults.maskMargin)));
    item->SetTFlag(TGraphicsItem::Lock, via.HasFlag("locked"));
    draft.board->Attach(std::move(item));
}
