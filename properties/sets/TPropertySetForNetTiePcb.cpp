#include "properties/sets/TPropertySetForNetTiePcb.h"

#include "properties/commands/TCmdNetTie.h"
#include "properties/commands/Units.h"
#include "properties/sets/NetTieRows.h"
#include "properties/sets/Selection.h"

#include <workspace/TWorkspace.h>

TPropertySetForNetTiePcb::TPropertySetForNetTiePcb(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TPropertySet(tr("Net Tie")),
      ties(Selection::Pick<Attributes::OfKind<ItemType::NetTiePcb>, TGraphicsNetTiePcbItem>(selection)),
      project(ofProject)
{
    if (!ties.isEmpty()) {
        MakeRows(*ties.first());
    }
}

void TPropertySetForNetTiePcb::MakeRows(const TGraphicsNetTiePcbItem& shown)
{
    name = NewRow<TPropertyText>(tr("Name:"), QString(), false);
    NetTieRows::ShowName(*name, shown);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));
    connect(name, SIGNAL(sigVisibleChanged(bool)), this, SLOT(SetNameVis(bool)));

    padSize = NewRow<TPropertyFloatSpin>(tr("Pad size:"), 0.3, 10.0, 0.1, 2);
    padSize->spin->setValue(Units::MillimetresFromScene(Attributes::NetTiePadSize::Read(shown)));
    connect(padSize, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetPadSz(double)));

    wireWidth = NewRow<TPropertyFloatSpin>(tr("Wire width:"), 0.3, 10.0, 0.1, 2);
    wireWidth->spin->setValue(Units::MillimetresFromScene(Attributes::NetTieWireWidth::Read(shown)));
    connect(wireWidth, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetWireWidth(double)));

    TWorkspace* workspace = shown.Workspace();
    layer = NewRow<TPropertyLayer>(tr("Layer:"),
                                   workspace ? workspace->Layers().CopperLayers() : QList<Osmirel::Layer>(), workspace);
    layer->SetCurrentLayer(shown.Layer());
    connect(layer, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(SetLayer(Osmirel::Layer)));

    id = NewRow<TPropertyText>(tr("Id:"), QString(), false);
    NetTieRows::ShowNumber(*id, shown);

    AddProperties({name, padSize, wireWidth, layer, id});
}

void TPropertySetForNetTiePcb::SetName(QString newName)
{
    EditBy(
        ties, [&] { return new TCmdNetTieName(ties, newName, project); },
        [&newName](TGraphicsNetTiePcbItem& tie) { tie.SetName(newName); });
}

void TPropertySetForNetTiePcb::SetNameVis(bool visible)
{
    EditBy(
        ties, [&] { return new TCmdNetTieNameVis(ties, visible, project); },
        [visible](TGraphicsNetTiePcbItem& tie) { tie.SetNameVisible(visible); });
}

void TPropertySetForNetTiePcb::SetLayer(Osmirel::Layer newLayer)
{
    EditBy(
        ties, [&] { return new TCmdNetTiePcbLayer(ties, newLayer, project); },
        [newLayer](TGraphicsNetTiePcbItem& tie) { tie.SetLayer(newLayer); });
}

void TPropertySetForNetTiePcb::SetPadSz(double size)
{
    const double sceneSize = Units::SceneFromMillimetres(size);
    EditBy(
        ties, [&] { return new TCmdNetTiePadSz(ties, sceneSize, project); },
        [sceneSize](TGraphicsNetTiePcbItem& tie) { tie.SetPadSize(sceneSize); });
}

void TPropertySetForNetTiePcb::SetWireWidth(double width)
{
    const double sceneWidth = Units::SceneFromMillimetres(width);
    // Intended: the command sets the pad size; only the direct write changes the wire.
    EditBy(
        ties, [&] { return new TCmdNetTiePadSz(ties, sceneWidth, project); },
        [sceneWidth](TGraphicsNetTiePcbItem& tie) { Attributes::NetTieWireWidth::Write(tie, sceneWidth); });
}
