#include "properties/sets/TPropertySetForKeepout.h"

#include "properties/commands/TCmdKeepout.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/sets/Selection.h"

#include <objects/TGraphicsKeepoutItem.h>
#include <workspace/TWorkspace.h>

#include <algorithm>

TPropertySetForKeepout::TPropertySetForKeepout(const QList<TGraphicsItem*>& selection)
    : TPropertySet(tr("Keepout polygons")),
      keepouts(Selection::Pick<Attributes::OfKind<ItemType::Keepout>, TGraphicsKeepoutItem>(selection))
{
    const TWorkspace* workspace = keepouts.isEmpty() ? nullptr : keepouts.first()->Workspace();
    if (!workspace) {
        return;
    }
    for (int i = 0; i < Osmirel::maxCopperLayers; ++i) {
        const auto layer = static_cast<Osmirel::Layer>(Osmirel::CopperTop + i);
        const TLayer* record = workspace->Layers().Layer(layer);
        if (!record || record->keepoutFixed) {
            continue;
        }
        auto* row = NewRow<TPropertyCheck>(record->name);
        row->SetCurrentState(keepouts.first()->IsLayerEnable(layer));
        connect(row, SIGNAL(sigStateChanged(bool)), this, SLOT(SetEn(bool)));
        rows.at(static_cast<size_t>(i)) = row;
        AddProperty(row);
    }
}

void TPropertySetForKeepout::SetEn(bool on)
{
    const auto* row = sender();
    const auto found = std::find_if(rows.cbegin(), rows.cend(), [row](const QPointer<TPropertyCheck>& candidate) {
        return row && candidate == row;
    });
    if (found == rows.cend()) {
        return;
    }
    const auto layer = static_cast<Osmirel::Layer>(Osmirel::CopperTop + std::distance(rows.cbegin(), found));
    EditBy(
        keepouts, [&] { return new TCmdKeepoutLayEn(keepouts, layer, on); },
        [layer, on](TGraphicsKeepoutItem& keepout) { keepout.SetLayerEnable(layer, on); });
}
