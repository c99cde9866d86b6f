#include "properties/commands/TCmdPackage.h"

#include "properties/commands/EachOnce.h"
#include "properties/commands/ProjectContext.h"
#include "properties/commands/TExistingItems.h"
#include "properties/commands/TUniqueNumbers.h"

#include <application/TBoard.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>

namespace {

QGraphicsView* ViewOf(TBoard* board)
{
    return board ? board->View() : nullptr;
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
    const QList<TGraphicsPackageItem*> once = EachOnce(packages);
    for (TGraphicsPackageItem* package : once) {
        if (package->Layer() != newLayer) {
            items.append(package);
            oldLayers.append(package->Layer());
        }
    }
}

TCommandKind TCmdPkgSide::Kind() const
{
    return {"PkgSide", QT_TRANSLATE_NOOP("TCommandKind", "Change side of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "packages")};
}

void TCmdPkgSide::ExistItems()
{
    const TExistingItems existing(ViewOf(board));
    existing.KeepOnlyExisting({ItemType::Package}, items, oldLayers, savedConnections);
    existing.KeepOnlyExisting(savedConnections);
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

bool TCmdPkgSide::Do()
{
    if (!ViewOf(board)) {
        return false;
    }
    savedConnections.clear();
    ExistItems();
    for (TGraphicsPackageItem* package : qAsConst(items)) {
        savedConnections.append(package->Disconnect({}));
        SetLayer(package, newLayer);
        package->Connect({});
    }
    board->UpdateRats(ComponentsOf(items, false));
    return true;
}

bool TCmdPkgSide::Undo()
{
    if (!ViewOf(board)) {
        return false;
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
    return true;
}

TCmdPackageRefDes::TCmdPackageRefDes(const QString& text, TProject* ofProject) : newText(text), project(ofProject)
{
    for (TGraphicsItem* item : ItemsOfView(ProjectContext::BoardView(project), {ItemType::Package})) {
        auto* package = static_cast<TGraphicsPackageItem*>(item);
        if (package->HasTFlag(TGraphicsItem::Selected) && !BelongsToSchematic(*package)) {
            items.append(package);
            oldTexts.append(package->RefDes());
        }
    }
}

TCommandKind TCmdPackageRefDes::Kind() const
{
    return {"PackageRefDes", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "packages")};
}

bool TCmdPackageRefDes::BelongsToSchematic(const TGraphicsPackageItem& package) const
{
    return ProjectContext::IsInSync(project) && package.ComponentNumber() != 0;
}

void TCmdPackageRefDes::ExistItems()
{
    const TExistingItems existing(ProjectContext::BoardView(project));
    existing.KeepOnlyExisting({ItemType::Package}, items, oldTexts);
}

void TCmdPackageRefDes::Write(TGraphicsPackageItem& package, const QString& text) const
{
    package.SetRefDes(text);
}

bool TCmdPackageRefDes::Do()
{
    if (!ProjectContext::BoardView(project)) {
        return false;
    }
    ExistItems();
    for (TGraphicsPackageItem* package : qAsConst(items)) {
        if (!BelongsToSchematic(*package)) {
            Write(*package, newText);
        }
    }
    return true;
}

bool TCmdPackageRefDes::Undo()
{
    if (!ProjectContext::BoardView(project)) {
        return false;
    }
    ExistItems();
    for (int i = 0; i < items.size(); ++i) {
        if (!BelongsToSchematic(*items.at(i))) {
            Write(*items.at(i), oldTexts.at(i));
        }
    }
    return true;
}

TCmdPackageValue::TCmdPackageValue(const QString& text, TProject* ofProject) : TCmdPackageRefDes(text, ofProject)
{
    oldTexts.clear();
    for (const TGraphicsPackageItem* package : qAsConst(items)) {
        oldTexts.append(package->Value());
    }
}

TCommandKind TCmdPackageValue::Kind() const
{
    return {"PackageValue", QT_TRANSLATE_NOOP("TCommandKind", "Change value of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "packages")};
}

void TCmdPackageValue::Write(TGraphicsPackageItem& package, const QString& text) const
{
    package.SetValue(text);
}

TCmdPkgConnect::TCmdPkgConnect(const QList<TGraphicsItem*>& selection, TBoard* ofBoard)
    : TCmdPkgConnect(selection, ofBoard, Action::Connect)
{}

TCmdPkgConnect::TCmdPkgConnect(const QList<TGraphicsItem*>& selection, TBoard* ofBoard, Action ofRedo)
    : TConnectCommand(ofRedo), board(ofBoard)
{
    const QList<TGraphicsItem*> once = EachOnce(selection);
    for (TGraphicsItem* item : once) {
        if (item->type() == ItemType::Package || item->type() == ItemType::NetTiePcb) {
            items.append(item);
        }
    }
}

TCommandKind TCmdPkgConnect::Kind() const
{
    return {"PkgConnect", QT_TRANSLATE_NOOP("TCommandKind", "Connect %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "packages")};
}

void TCmdPkgConnect::ExistItems()
{
    const TExistingItems existing(ViewOf(board));
    existing.KeepOnlyExisting({ItemType::Package, ItemType::NetTiePcb}, items, savedConnections);
    existing.KeepOnlyExisting(savedConnections);
}

bool TCmdPkgConnect::Prepare()
{
    if (!ViewOf(board)) {
        return false;
    }
    ExistItems();
    return true;
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

void TCmdPkgConnect::Update()
{
    // Intended: unlike a change of side, this also lists packages without a component, as number 0.
    board->UpdateRats(ComponentsOf(items, true));
}

TCmdPkgDisconnect::TCmdPkgDisconnect(const QList<TGraphicsItem*>& selection, TBoard* ofBoard)
    : TCmdPkgConnect(selection, ofBoard, Action::Disconnect)
{}

TCommandKind TCmdPkgDisconnect::Kind() const
{
    return {"PkgDisconnect", QT_TRANSLATE_NOOP("TCommandKind", "Disconnect %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "packages")};
}
