#include "properties/commands/TCmdPackage.h"

#include "properties/commands/ProjectParts.h"
#include "properties/commands/TUniqueNumbers.h"

#include <application/TBoard.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>

namespace {

QGraphicsView* ViewOf(TBoard* board)
{
    return board ? board->View() : nullptr;
}

/** Forgets the wires that are no longer on the board. */
void KeepExistingConnections(const TExistingItems& existing, QVector<QVector<TGraphicsItem*>>& connections)
{
    for (QVector<TGraphicsItem*>& ofItem : connections) {
        existing.KeepOnlyExisting(ofItem);
    }
}

/** The component numbers of the packages among the items, each once. */
template <class Items>
QList<unsigned short> ComponentsOf(const Items& items, bool withNone)
{
    TUniqueNumbers components;
    for (const TGraphicsItem* item : items) {
        if (item->type() == ItemType::Package) {
            const quint16 number = static_cast<const TGraphicsPackageItem*>(item)->ComponentNumber();
            if (number != 0 || withNone) {
                components.Add(number);
            }
        }
    }
    return components.List();
}

} // namespace

TCmdPkgSide::TCmdPkgSide(const QList<TGraphicsPackageItem*>& packages, Osmirel::Layer layer, TBoard* ofBoard)
    : board(ofBoard), newLayer(layer)
{
    for (TGraphicsPackageItem* package : packages) {
        if (package && package->Layer() != newLayer) {
            items.append(package);
            oldLayers.append(package->Layer());
        }
    }
}

void TCmdPkgSide::ExistItems()
{
    const TExistingItems existing(ViewOf(board), {ItemType::Package, ItemType::Wire});
    existing.KeepOnlyExisting(items, oldLayers, savedConnections);
    KeepExistingConnections(existing, savedConnections);
}

void TCmdPkgSide::SetLayer(TGraphicsPackageItem* package, Osmirel::Layer layer)
{
    if (!package || !board) {
        return;
    }
    package->SetLayer(layer);
    if (TGraphicsItem* refDes = package->RefDesText()) {
        refDes->setVisible(board->RefDesVisible());
    }
    if (TGraphicsItem* value = package->ValueText()) {
        value->setVisible(board->ValuesVisible());
    }
}

void TCmdPkgSide::Do()
{
    if (!ViewOf(board)) {
        return;
    }
    savedConnections.clear();
    ExistItems();
    for (TGraphicsPackageItem* package : qAsConst(items)) {
        savedConnections.append(package->Disconnect({}));
        SetLayer(package, newLayer);
        package->Connect({});
    }
    board->UpdateRats(ComponentsOf(items, false));
}

void TCmdPkgSide::Undo()
{
    if (!ViewOf(board)) {
        return;
    }
    ExistItems();
    for (int i = 0; i < items.size(); ++i) {
        TGraphicsPackageItem* package = items.at(i);
        package->Disconnect({});
        SetLayer(package, oldLayers.at(i));
        const QVector<TGraphicsItem*> saved = savedConnections.value(i);
        if (!saved.isEmpty()) {
            package->Connect(saved);
        }
    }
    board->UpdateRats(ComponentsOf(items, false));
}

TCmdPackageRefDes::TCmdPackageRefDes(const QString& text, TProject* ofProject) : newText(text), project(ofProject)
{
    for (TGraphicsItem* item : ItemsOfView(ProjectParts::BoardView(project), {ItemType::Package})) {
        auto* package = static_cast<TGraphicsPackageItem*>(item);
        if (package->HasTFlag(TGraphicsItem::Selected) && !BelongsToSchematic(*package)) {
            items.append(package);
            oldTexts.append(package->RefDes());
        }
    }
}

bool TCmdPackageRefDes::BelongsToSchematic(const TGraphicsPackageItem& package) const
{
    return ProjectParts::IsInStep(project) && package.ComponentNumber() != 0;
}

void TCmdPackageRefDes::ExistItems()
{
    const TExistingItems existing(ProjectParts::BoardView(project), {ItemType::Package});
    existing.KeepOnlyExisting(items, oldTexts);
}

void TCmdPackageRefDes::Write(TGraphicsPackageItem& package, const QString& text) const
{
    package.SetRefDes(text);
}

void TCmdPackageRefDes::Do()
{
    if (!ProjectParts::BoardView(project)) {
        return;
    }
    ExistItems();
    for (TGraphicsPackageItem* package : qAsConst(items)) {
        if (!BelongsToSchematic(*package)) {
            Write(*package, newText);
        }
    }
}

void TCmdPackageRefDes::Undo()
{
    if (!ProjectParts::BoardView(project)) {
        return;
    }
    ExistItems();
    for (int i = 0; i < items.size(); ++i) {
        if (!BelongsToSchematic(*items.at(i))) {
            Write(*items.at(i), oldTexts.at(i));
        }
    }
}

TCmdPackageValue::TCmdPackageValue(const QString& text, TProject* ofProject) : TCmdPackageRefDes(text, ofProject)
{
    oldTexts.clear();
    for (const TGraphicsPackageItem* package : qAsConst(items)) {
        oldTexts.append(package->Value());
    }
}

void TCmdPackageValue::Write(TGraphicsPackageItem& package, const QString& text) const
{
    package.SetValue(text);
}

TCmdPkgConnect::TCmdPkgConnect(const QList<TGraphicsItem*>& selection, TBoard* ofBoard) : board(ofBoard)
{
    for (TGraphicsItem* item : selection) {
        if (item && (item->type() == ItemType::Package || item->type() == ItemType::NetTiePcb)) {
            items.append(item);
        }
    }
}

void TCmdPkgConnect::ExistItems()
{
    const TExistingItems existing(ViewOf(board), {ItemType::Package, ItemType::NetTiePcb, ItemType::Wire});
    existing.KeepOnlyExisting(items, savedConnections);
    KeepExistingConnections(existing, savedConnections);
}

void TCmdPkgConnect::Do()
{
    ActOnAll(Action::Connect);
}

void TCmdPkgConnect::Undo()
{
    ActOnSaved(Action::Disconnect);
}

QVector<TGraphicsItem*> TCmdPkgConnect::Act(Action action, TGraphicsItem& item,
                                            const QVector<TGraphicsItem*>& connections)
{
    const auto act = [action, &connections](auto& connectable) {
        return action == Action::Connect ? connectable.Connect(connections) : connectable.Disconnect(connections);
    };
    return item.type() == ItemType::Package ? act(static_cast<TGraphicsPackageItem&>(item))
                                            : act(static_cast<TGraphicsNetTiePcbItem&>(item));
}

void TCmdPkgConnect::ActOnAll(Action action)
{
    if (!ViewOf(board)) {
        return;
    }
    ExistItems();
    savedConnections.clear();
    for (TGraphicsItem* item : qAsConst(items)) {
        savedConnections.append(Act(action, *item, {}));
    }
    UpdateRats();
}

void TCmdPkgConnect::ActOnSaved(Action action)
{
    if (!ViewOf(board)) {
        return;
    }
    ExistItems();
    for (int i = 0; i < items.size(); ++i) {
        const QVector<TGraphicsItem*> saved = savedConnections.value(i);
        if (!saved.isEmpty()) { // Nothing was changed here: an empty list would mean everything.
            Act(action, *items.at(i), saved);
        }
    }
    UpdateRats();
}

void TCmdPkgConnect::UpdateRats()
{
    // Intended: unlike a change of side, this lists the packages of no component too, as number 0.
    board->UpdateRats(ComponentsOf(items, true));
}

TCmdPkgDisconnect::TCmdPkgDisconnect(const QList<TGraphicsItem*>& selection, TBoard* ofBoard)
    : TCmdPkgConnect(selection, ofBoard)
{}

void TCmdPkgDisconnect::Do()
{
    ActOnAll(Action::Disconnect);
}

void TCmdPkgDisconnect::Undo()
{
    ActOnSaved(Action::Connect);
}
