// The tables and settings of a board that its items refer to.

#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/ElementValues.h"

namespace {

/** Reads the measure of a list such as `(name measure)`; unchanged if there is no such list. */
template <class Measure>
void ReadExtent(const TSexpression& element, std::string_view name, Measure& measure)
{
    if (const std::optional<TSexpression> list = element.Find(name)) {
        measure = list->Value(0).Extent();
    }
}

/** Whether vias are tented: newer files name the covered sides, older ones have a switch for both. */
bool AreViasTented(const TSexpression& setup)
{
    if (const std::optional<TSexpression> tenting = setup.Find("tenting")) {
        return ElementValues::CoversBothSides(*tenting);
    }
    const std::optional<TSexpression> plotting = setup.Find("pcbplotparams");
    return !plotting || !plotting->Find("viasonmask") || !plotting->HasFlag("viasonmask");
}

} // namespace

void ElementReaders::ReadLayers(const TSexpression& layers, TBoardDraft& draft)
{
    draft.layers.Read(layers, *draft.board->LayerManager());
    draft.DrillPair(Osmirel::CopperTop, Osmirel::CopperBottom);
}

void ElementReaders::ReadSetup(const TSexpression& setup, TBoardDraft& draft)
{
    TPadDefaults& pads = draft.padDefaults;
    if (const std::optional<TSexpression> margin = setup.Find("pad_to_mask_clearance")) {
        pads.maskMargin = margin->Value(0).Millionths();
    }
    if (const std::optional<TSexpression> margin = setup.Find("pad_to_paste_clearance")) {
        pads.pasteMargin = margin->Value(0).Millionths();
    }
    if (const std::optional<TSexpression> ratio = setup.Find("pad_to_paste_clearance_ratio")) {
        pads.pasteRatio = ratio->Value(0).Decimal();
    }
    ReadExtent(setup, "via_drill", draft.viaDrills.via);
    ReadExtent(setup, "uvia_drill", draft.viaDrills.microVia);
    draft.viasTented = AreViasTented(setup);
}

void ElementReaders::ReadTitleBlock(const TSexpression& titleBlock, TBoardDraft& draft)
{
    const TextVariables::TValues values = TextVariables::OfTitleBlock(titleBlock);
    for (auto value = values.begin(); value != values.end(); ++value) {
        draft.textVariables.insert(value.key(), value.value());
    }
}

void ElementReaders::ReadNet(const TSexpression& net, TBoardDraft& draft)
{
    const int number = net.Value(0).Integer();
    if (draft.nets.contains(number)) {
        net.Fail(QStringLiteral("net %1 is listed twice").arg(number));
    }
    const QString name = ElementValues::UserName(net.Value(1));
    draft.nets.insert(number, name);
    draft.netNames.append(name);
}

void ElementReaders::ReadNetClass(const TSexpression& netClass, TBoardDraft& draft)
{
    TViaDrills drills;
    ReadExtent(netClass, "via_drill", drills.via);
    ReadExtent(netClass, "uvia_drill", drills.microVia);
    const QString name = ElementValues::UserName(netClass.Value(0));
    draft.netSettings.AddClass(name);
    for (const TSexpression value : netClass) {
        if (value.Name() == "add_net") {
            const QString net = ElementValues::UserName(value.Value(0));
            draft.netViaDrills.insert(net, drills);
            draft.netSettings.Assign(net, name);
        }
    }
}
