#include "workbench/DesignActions.h"

#include "properties/commands/ProjectParts.h"
#include "properties/commands/TCmdLock.h"
#include "properties/commands/TCmdPackage.h"
#include "properties/commands/TCmdWire.h"
#include "workbench/TDesign.h"

#include <objects/TGraphicsPackageItem.h>

#include <QCoreApplication>

#include <algorithm>

namespace {

using TCommand = std::unique_ptr<TUndoCommand>;

bool HasAny(const TActionContext& context, std::initializer_list<ItemType::Number> kinds)
{
    return std::any_of(context.selection.cbegin(), context.selection.cend(), [kinds](const TGraphicsItem* item) {
        return std::find(kinds.begin(), kinds.end(), item->type()) != kinds.end();
    });
}

/** In a project that is kept in step, the packages of components are named on the schematic. */
bool HasPackageOfItsOwn(const TActionContext& context)
{
    const bool inStep = ProjectParts::IsInStep(&context.design.Project());
    return std::any_of(context.selection.cbegin(), context.selection.cend(), [inStep](const TGraphicsItem* item) {
        return item->type() == ItemType::Package
               && !(inStep && static_cast<const TGraphicsPackageItem*>(item)->ComponentNumber() != 0);
    });
}

template <class Command>
TCommand MakeNaming(const TActionContext& context)
{
    return HasPackageOfItsOwn(context) ? std::make_unique<Command>(context.text, &context.design.Project()) : nullptr;
}

template <bool lock>
TCommand MakeLocking(const TActionContext& context)
{
    return HasAny(context, {ItemType::Package}) ? std::make_unique<TCmdLock>(context.selection, lock) : nullptr;
}

template <class Command>
TCommand MakeConnecting(const TActionContext& context)
{
    return HasAny(context, {ItemType::Package, ItemType::NetTiePcb})
               ? std::make_unique<Command>(context.selection, &context.design.Board())
               : nullptr;
}

QList<TGraphicsWireItem*> Wires(const TActionContext& context)
{
    QList<TGraphicsWireItem*> wires;
    for (TGraphicsItem* item : context.selection) {
        if (item->type() == ItemType::Wire) {
            wires.append(static_cast<TGraphicsWireItem*>(item));
        }
    }
    return wires;
}

TCommand MakeNode(const TActionContext& context)
{
    const QList<TGraphicsWireItem*> wires = Wires(context);
    return wires.size() == 1 ? std::make_unique<TCmdWireAddNode>(wires.first(), context.point) : nullptr;
}

/** The two selected wires become one, or the selected one and the next one, if nothing else meets them there. */
TCommand RemoveNode(const TActionContext& context)
{
    const QList<TGraphicsWireItem*> wires = Wires(context);
    for (TGraphicsWireItem* wire : wires) {
        TGraphicsItem* next = wire->LastLink();
        const bool joins = next && next != wire && next->type() == ItemType::Wire && next->Layer() == wire->Layer();
        const bool isMeant =
            wires.size() == 1 || (wires.size() == 2 && wires.contains(dynamic_cast<TGraphicsWireItem*>(next)));
        if (joins && isMeant) {
            return std::make_unique<TCmdWireDelNode>(wire, static_cast<TGraphicsWireItem*>(next));
        }
    }
    return nullptr;
}

QString Translated(const char* text)
{
    return QCoreApplication::translate("DesignActions", text);
}

} // namespace

QString TDesignAction::MenuText() const
{
    return Translated(menuText);
}

QString TDesignAction::Question() const
{
    return Translated(question);
}

QString TDesignAction::Needs() const
{
    return Translated(needs);
}

const QVector<TDesignAction>& DesignActions::All()
{
    using Asks = TDesignAction::Asks;
    static const char* const packages = QT_TRANSLATE_NOOP("DesignActions", "packages");
    static const char* const renamable =
        QT_TRANSLATE_NOOP("DesignActions", "packages that are not named on the schematic");
    static const char* const connectable = QT_TRANSLATE_NOOP("DesignActions", "packages or net ties");
    static const QVector<TDesignAction> actions{
        {"--rename", Asks::Text, QT_TRANSLATE_NOOP("DesignActions", "&Rename packages…"),
         QT_TRANSLATE_NOOP("DesignActions", "Reference designator"), "F2", renamable, MakeNaming<TCmdPackageRefDes>},
        {"--revalue", Asks::Text, QT_TRANSLATE_NOOP("DesignActions", "Change &value of packages…"),
         QT_TRANSLATE_NOOP("DesignActions", "Value"), "V", renamable, MakeNaming<TCmdPackageValue>},
        {"--lock", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Lock packages"), "", "L", packages,
         MakeLocking<true>},
        {"--unlock", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Unlock packages"), "", "Shift+L", packages,
         MakeLocking<false>},
        {"--connect", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Connect packages and net ties"), "", "C",
         connectable, MakeConnecting<TCmdPkgConnect>},
        {"--disconnect", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Disconnect packages and net ties"), "",
         "Shift+C", connectable, MakeConnecting<TCmdPkgDisconnect>},
        {"--add-node", Asks::Point, QT_TRANSLATE_NOOP("DesignActions", "&Add a node to the wire"), "", "N",
         QT_TRANSLATE_NOOP("DesignActions", "one wire"), MakeNode},
        {"--remove-node", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "Re&move the node of two wires"), "",
         "Shift+N", QT_TRANSLATE_NOOP("DesignActions", "a wire that ends where the next one begins, or those two"),
         RemoveNode},
    };
    return actions;
}
