#include "properties/commands/TCmdWireLayer.h"

#include "properties/commands/ProjectContext.h"
#include "properties/commands/TDetachedItem.h"
#include "properties/commands/TRecreatedItems.h"
#include "properties/commands/Units.h"

#include <application/TBoard.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsViaItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QSettings>

#include <algorithm>

namespace {

TGraphicsItem::LinkEnd End(bool atFirst)
{
    return atFirst ? TGraphicsItem::LinkEnd::First : TGraphicsItem::LinkEnd::Last;
}

} // namespace

struct TCmdWireLayer::ReplacedJunction
{
    TGraphicsViaItem* via;
    TDetachedItem<TGraphicsJunctionItem> junction;
};

TCmdWireLayer::TCmdWireLayer(TProject* ofProject, const QList<TGraphicsWireItem*>& given, Osmirel::Layer layer)
    : project(ofProject), newLayer(layer), madeVias(std::make_unique<TRecreatedItems<TGraphicsViaItem>>())
{
    TBoard* board = ProjectContext::Board(project);
    if (!board) {
        return;
    }
    owner = board->Scene();
    for (TGraphicsWireItem* wire : given) {
        if (wire && wire->Layer() != newLayer && !Moves(wire)) {
            wires.append(wire);
            oldLayers.append(wire->Layer());
            moving.insert(wire);
        }
    }
}

TCommandKind TCmdWireLayer::Kind() const
{
    return {"WireLayer", QT_TRANSLATE_NOOP("TCommandKind", "Change layer of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "wires")};
}

TCmdWireLayer::~TCmdWireLayer() = default;

bool TCmdWireLayer::Do()
{
    if (!ProjectContext::Board(project)) {
        return false;
    }
    madeVias->StartOver();
    for (TGraphicsWireItem* wire : qAsConst(wires)) {
        wire->SetLayer(newLayer);
        AdaptLink(wire, true);
        AdaptLink(wire, false);
    }
    TakeOffReplacedJunctions();
    return true;
}

bool TCmdWireLayer::Undo()
{
    if (!ProjectContext::Board(project)) {
        return false;
    }
    for (int i = 0; i < wires.size(); ++i) {
        wires.at(i)->SetLayer(oldLayers.at(i));
    }
    RejoinWires();
    MoveJunctionsBack();
    RelinkCutWires();
    PutJunctionsBack();
    if (ProjectContext::IsInSync(project) && !netsToRefresh.isEmpty()) {
        UpdateRats();
    }
    while (!replacedJunctions.empty()) {
        madeVias->TakeAway(replacedJunctions.back().via);
        replacedJunctions.pop_back();
    }
    return true;
}

void TCmdWireLayer::LinkRedo(TGraphicsWireItem* wire, bool atFirst)
{
    AdaptLink(wire, atFirst);
    TakeOffReplacedJunctions();
}

void TCmdWireLayer::AdaptLink(TGraphicsWireItem* wire, bool atFirst)
{
    TGraphicsItem* endItem = wire && owner ? wire->Link(End(atFirst)) : nullptr;
    if (!endItem) {
        return;
    }
    switch (endItem->type()) {
    case ItemType::Wire:
        if (!Moves(endItem)) {
            PutViaBetween(*wire, atFirst, static_cast<TGraphicsWireItem&>(*endItem));
        }
        break;
    case ItemType::Junction:
        MoveOrReplaceJunction(*wire, atFirst, static_cast<TGraphicsJunctionItem&>(*endItem));
        break;
    case ItemType::Via:
    case ItemType::Pad: CutFromCopperWithoutLayer(*wire, atFirst, static_cast<TGraphicsViaItem&>(*endItem)); break;
    default: break;
    }
}

void TCmdWireLayer::PutViaBetween(TGraphicsWireItem& wire, bool atFirst, TGraphicsWireItem& staying)
{
    TGraphicsViaItem* via = AddVia(wire.ScenePoint(End(atFirst)));
    insertedVias.append(via);
    // Intended: always the opposite end of the other wire, whichever of its ends touches.
    wire.LinkTo(End(atFirst), via);
    staying.LinkTo(End(!atFirst), via);
}

void TCmdWireLayer::RejoinWires()
{
    while (!insertedVias.isEmpty()) {
        TGraphicsViaItem* via = insertedVias.takeLast();
        const QList<TGraphicsSectionItem*> joined = via->LinkedWires();
        for (int i = 0; i < joined.size(); ++i) {
            // The count differs from two only if the links were changed elsewhere: then nothing can be joined.
            joined[i]->ReplaceLinkedItem(via, joined.size() == 2 ? joined[1 - i] : nullptr);
            via->RemoveLinkedWire(joined[i]);
        }
        madeVias->TakeAway(via);
    }
}

void TCmdWireLayer::MoveOrReplaceJunction(TGraphicsWireItem& wire, bool atFirst, TGraphicsJunctionItem& junction)
{
    if (alreadyMoved.contains(&junction)) {
        return;
    }
    const QList<TGraphicsSectionItem*>& sections = junction.LinkedSections();
    const bool allMove = std::all_of(sections.cbegin(), sections.cend(),
                                     [this](const TGraphicsSectionItem* section) { return Moves(section); });
    if (allMove) {
        MoveJunction(junction);
    } else {
        ReplaceJunction(junction, wire.ScenePoint(End(atFirst)));
    }
}

void TCmdWireLayer::MoveJunction(TGraphicsJunctionItem& junction)
{
    alreadyMoved.insert(&junction);
    movedJunctions.append({&junction, junction.Layer()});
    junction.SetLayer(newLayer);
}

void TCmdWireLayer::MoveJunctionsBack()
{
    while (!movedJunctions.isEmpty()) {
        const MovedJunction moved = movedJunctions.takeLast();
        moved.junction->SetLayer(moved.oldLayer);
    }
    alreadyMoved.clear();
}

void TCmdWireLayer::ReplaceJunction(TGraphicsJunctionItem& junction, const QPointF& scenePoint)
{
    TGraphicsViaItem* via = AddVia(scenePoint);
    const QList<TGraphicsSectionItem*> sections = junction.LinkedSections();
    for (TGraphicsSectionItem* section : sections) {
        section->ReplaceLinkedItem(&junction, via);
        junction.RemoveLinkedSection(section);
        via->AddLinkedWire(section);
    }
    replacedJunctions.push_back({via, TDetachedItem<TGraphicsJunctionItem>(&junction)});
}

// After all vias were attached: attaching an item after another has left makes the toolkit sort the whole scene.
void TCmdWireLayer::TakeOffReplacedJunctions()
{
    for (auto replaced = replacedJunctions.rbegin(); replaced != replacedJunctions.rend(); ++replaced) {
        if (replaced->junction.IsDetached()) {
            break;
        }
        replaced->junction.Detach();
    }
}

void TCmdWireLayer::PutJunctionsBack()
{
    for (ReplacedJunction& replaced : replacedJunctions) {
        TGraphicsJunctionItem* junction = replaced.junction.Get();
        const QList<TGraphicsSectionItem*> sections = replaced.via->LinkedWires();
        for (TGraphicsSectionItem* section : sections) {
            section->ReplaceLinkedItem(replaced.via, junction);
            replaced.via->RemoveLinkedWire(section);
            junction->AddLinkedSection(section);
        }
        replaced.junction.Attach();
    }
    // After all junctions were attached, as with `TakeOffReplacedJunctions`.
    for (const ReplacedJunction& replaced : replacedJunctions) {
        replaced.via->Detach();
    }
}

void TCmdWireLayer::CutFromCopperWithoutLayer(TGraphicsWireItem& wire, bool atFirst, TGraphicsViaItem& copper)
{
    if (copper.EtchLayers().contains(newLayer)) {
        return;
    }
    cutWires.append({&wire, atFirst, &copper});
    wire.Unlink(End(atFirst)); // Only this end: both may be linked here.
    if (!ProjectContext::IsInSync(project)) {
        return;
    }
    NoteNet(wire);
    if (!copper.LinkedWires().isEmpty()) {
        NoteNet(*copper.LinkedWires().first());
    }
    UpdateRats();
}

void TCmdWireLayer::RelinkCutWires()
{
    while (!cutWires.isEmpty()) {
        const CutWire cut = cutWires.takeLast();
        cut.wire->LinkTo(End(cut.atFirst), cut.endItem);
    }
}

void TCmdWireLayer::NoteNet(TGraphicsSectionItem& section)
{
    section.UpdateNet();
    const QString net = section.Net();
    if (!net.isEmpty() && !notedNets.contains(net)) {
        notedNets.insert(net);
        netsToRefresh.append(net);
    }
}

void TCmdWireLayer::UpdateRats()
{
    if (TBoard* board = ProjectContext::Board(project)) {
        board->UpdateRats(netsToRefresh);
    }
}

TGraphicsViaItem* TCmdWireLayer::AddVia(const QPointF& scenePoint)
{
    if (!owner) {
        return nullptr;
    }
    const TGraphicsViaItem* pattern = !insertedVias.isEmpty()      ? insertedVias.first()
                                      : !replacedJunctions.empty() ? replacedJunctions.front().via
                                                                   : nullptr;
    std::unique_ptr<TGraphicsViaItem> fresh;
    if (pattern) {
        fresh.reset(static_cast<TGraphicsViaItem*>(pattern->CreateCopy()));
    } else {
        QSettings settings;
        const double size = FromRegDouble(&settings, QStringLiteral("ViaDiam"), 0.3, 100.0, 1.0);
        const double drill = FromRegDouble(&settings, QStringLiteral("ViaDrill"), 0.1, 100.0, 0.6);
        fresh = std::make_unique<TGraphicsViaItem>();
        fresh->SetSize(size, size);
        fresh->SetDrill(static_cast<float>(drill));
        fresh->update();
    }
    fresh->setPos(scenePoint);
    TGraphicsViaItem* via = madeVias->Make(std::move(fresh));
    via->AttachTo(owner);
    return via;
}

double TCmdWireLayer::FromRegDouble(QSettings* settings, const QString& key, double min, double max, double def)
{
    bool isNumber = false;
    const double millimetres = settings ? settings->value(key, def).toDouble(&isNumber) : def;
    const bool isUsable = isNumber && min <= millimetres && millimetres <= max;
    return Units::SceneFromMillimetres(isUsable ? millimetres : def);
}
