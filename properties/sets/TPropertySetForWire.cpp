#include "properties/sets/TPropertySetForWire.h"

#include "properties/commands/ProjectContext.h"
#include "properties/commands/TCmdNet.h"
#include "properties/commands/TCmdWire.h"
#include "properties/commands/TCmdWireLayer.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/sets/CompositionModes.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"
#include "properties/sets/TDisplayUnit.h"

#include <application/TSchematic.h>
#include <objects/TGraphicsViaItem.h>
#include <workspace/TWorkspace.h>

#include <QKeyEvent>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

/** The item at which the chain of first links of a wire being routed begins; null for none or a closed loop. */
const TGraphicsItem* StartOfRoute(const TGraphicsWireItem& wire)
{
    QSet<const TGraphicsItem*> passed;
    const TGraphicsItem* item = wire.FirstLink();
    while (item && item->type() == ItemType::Wire && item->HasTFlag(TGraphicsItem::Routing)) {
        if (passed.contains(item)) {
            return nullptr;
        }
        passed.insert(item);
        item = static_cast<const TGraphicsWireItem*>(item)->FirstLink();
    }
    return item;
}

} // namespace

TPropertySetForWire::TPropertySetForWire(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TPropertySet(tr("Wire")),
      wires(Selection::Pick<Attributes::OfKind<ItemType::Wire>, TGraphicsWireItem>(selection)),
      project(ofProject)
{
    if (wires.isEmpty()) {
        return;
    }
    netName = wires.first()->Net();
    MakeWireRows();
    if (ShowsNetRows()) {
        MakeNetRows();
    }
    AddProperties({width, net, netClass, color, layer});
}

void TPropertySetForWire::MakeWireRows()
{
    const TDisplayUnit unit(*wires.first());
    const TGraphicsWireItem& shown = *wires.last();

    width = NewRow<TPropertyFloatSpin>(tr("Width:"), 0.01, 999.99, 0.05, 2);
    RowValues::Show(*width, unit.FromScene(Attributes::WireWidth::Read(shown)), unit.Suffix());
    connect(width, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetWidth(qreal)));

    layer = NewRow<TPropertyLayer>(tr("Layer:"), OfferedLayers(), wires.first()->Workspace());
    layer->SetCurrentLayer(shown.Layer());
    connect(layer, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(SetLayer(Osmirel::Layer)));

    compositionMode = NewRow<TPropertyEnum>(tr("Comp mode:")); // Intended: created but not shown.
    CompositionModes::AddTo(*compositionMode);
    compositionMode->SetCurrentEnum(shown.CompositionMode());
    connect(compositionMode, SIGNAL(sigEnumChanged(int)), this, SLOT(SetCompMode(int)));
}

void TPropertySetForWire::MakeNetRows()
{
    const bool onOneNet = IsOnOneNet();
    net = NewRow<TPropertyText>(tr("Net:"), onOneNet ? netName : QString(), false);
    net->line->SetEditable(false);
    net->SetMixed(!onOneNet);
    if (!ProjectContext::Schematic(project)) {
        return;
    }
    MakeNetClassRow(onOneNet);

    const TNetModel* model = ProjectContext::NetModel(project);
    color = NewRow<TPropertyColor>(tr("Color:"), model ? model->ColorPcb(model->NetRow(netName)) : QColor());
    color->SetEnabled(onOneNet);
    connect(color, SIGNAL(sigColorChanged(QColor)), this, SLOT(SetColor(QColor)));
}

void TPropertySetForWire::MakeNetClassRow(bool onOneNet)
{
    const TSchematic* schematic = ProjectContext::Schematic(project);
    netClass = NewRow<TPropertyEnum>(tr("Net class:"), schematic->NetClassNames());
    const std::optional<QString> className = schematic->NetClass(netName);
    if (className) {
        netClass->SetCurrentText(className->isEmpty() ? QStringLiteral("Default") : *className);
    }
    netClass->SetEnabled(className && onOneNet);
    connect(netClass, SIGNAL(sigTextChanged(QString)), this, SLOT(SetClass(QString)));
}

bool TPropertySetForWire::ShowsNetRows() const
{
    return ProjectContext::IsInSync(project) && !netName.isEmpty();
}

bool TPropertySetForWire::IsOnOneNet() const
{
    return std::all_of(wires.cbegin(), wires.cend(),
                       [this](const TGraphicsWireItem* wire) { return wire->Net() == netName; });
}

QList<Osmirel::Layer> TPropertySetForWire::OfferedLayers() const
{
    const TGraphicsWireItem& wire = *wires.first();
    const TGraphicsItem* start = wire.HasTFlag(TGraphicsItem::UndoBypass) ? StartOfRoute(wire) : nullptr;
    if (start) {
        const bool reachesLayers = start->type() == ItemType::Via || start->type() == ItemType::Pad;
        return reachesLayers ? static_cast<const TGraphicsViaItem*>(start)->EtchLayers()
                             : QList<Osmirel::Layer>{wire.Layer()};
    }
    return wire.Workspace() ? wire.Workspace()->Layers().CopperLayers() : QList<Osmirel::Layer>();
}

void TPropertySetForWire::SetLayer(Osmirel::Layer newLayer)
{
    // Intended: unlike the command, the direct write adapts none of the links.
    EditBy(
        wires, [&] { return new TCmdWireLayer(project, wires, newLayer); },
        [newLayer](TGraphicsWireItem& wire) { wire.SetLayer(newLayer); });
}

void TPropertySetForWire::SetWidth(qreal newWidth)
{
    const double sceneWidth = Units::SceneFromMillimetres(newWidth);
    Edit<TCmdWireWidth>(wires, sceneWidth, [sceneWidth](TGraphicsWireItem& wire) {
        // Intended: only the command fits the junctions to the width.
        wire.SetPenWidth(static_cast<float>(sceneWidth));
    });
}

void TPropertySetForWire::SetClass(QString newClass)
{
    if (!wires.isEmpty()) {
        Emit(new TCmdNetClass(netName, newClass, project));
    }
}

void TPropertySetForWire::SetColor(const QColor& newColor)
{
    if (!wires.isEmpty()) {
        Emit(new TCmdNetColorPcb(netName, newColor, project));
    }
}

void TPropertySetForWire::SetCompMode(int mode)
{
    WriteAll(wires, [mode](TGraphicsWireItem& wire) {
        wire.SetCompositionMode(mode);
        wire.update();
    });
}

void TPropertySetForWire::KeyPressEvent(QKeyEvent* event)
{
    if (!event || wires.isEmpty()) {
        return;
    }
    const int key = event->key();
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        event->accept();
        SetWidth(key == Qt::Key_0 ? 1.0 : (key - Qt::Key_0) / 10.0);
    } else if (key == Qt::Key_O && layer && wires.first()->Workspace()) {
        const TLayerManager& layers = wires.first()->Workspace()->Layers();
        const TLayer* record = layers.Layer(layer->CurrentLayer());
        const bool hasPair = record && !record->pairedLayer.isEmpty();
        const Osmirel::Layer paired = hasPair ? layers.LayerId(record->pairedLayer) : Osmirel::NoLayer;
        if (paired != Osmirel::NoLayer) {
            event->accept();
            SetLayer(paired);
        }
    }
}
