#include "workbench/editing/DesignActions.h"

#include "properties/commands/ProjectContext.h"
#include "properties/commands/TCmdBusEntry.h"
#include "properties/commands/TCmdLock.h"
#include "properties/commands/TCmdNet.h"
#include "properties/commands/TCmdNetTie.h"
#include "properties/commands/TCmdPart.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdWire.h"
#include "workbench/design/TDesign.h"
#include "workbench/editing/TValueCommands.h"

#include <graphics/TGraphicsRectItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <workspace/TWorkspace.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

using TCommand = std::unique_ptr<TUndoCommand>;

bool HasAny(const TActionContext& context, std::initializer_list<ItemType::Number> kinds)
{
    return std::any_of(context.selection.cbegin(), context.selection.cend(), [kinds](const TGraphicsItem* item) {
        return std::find(kinds.begin(), kinds.end(), item->type()) != kinds.end();
    });
}

/** In a project that is kept in sync, the packages of components are named on the schematic. */
bool HasPackageOfItsOwn(const TActionContext& context)
{
    const bool inSync = ProjectContext::IsInSync(&context.design.Project());
    return std::any_of(context.selection.cbegin(), context.selection.cend(), [inSync](const TGraphicsItem* item) {
        return item->type() == ItemType::Package
               && !(inSync && static_cast<const TGraphicsPackageItem*>(item)->ComponentNumber() != 0);
    });
}

TCommand MakeRenaming(const TActionContext& context)
{
    return HasPackageOfItsOwn(context) ? std::make_unique<TCmdPackageRefDes>(context.text, &context.design.Project())
                                       : nullptr;
}

/** The components of the selected parts and packages that the schematic knows, each once. */
QList<unsigned short> Components(const TActionContext& context)
{
    QList<unsigned short> numbers;
    QSet<unsigned short> known;
    for (const TGraphicsItem* item : context.selection) {
        if (item->type() == ItemType::Part || item->type() == ItemType::Package) {
            const auto number = static_cast<const TGraphicsComponentItem*>(item)->ComponentNumber();
            if (!known.contains(number) && context.design.Schematic().CmpModel()->CmpModelItem(number)) {
                known.insert(number);
                numbers.append(number);
            }
        }
    }
    return numbers;
}

/** A component has one value on schematic and board; a package without one has its own. */
TCommand MakeRevaluing(const TActionContext& context)
{
    const QList<unsigned short> components = Components(context);
    const bool hasOthers = HasPackageOfItsOwn(context);
    TProject* project = &context.design.Project();
    if (!components.isEmpty() && hasOthers) {
        return std::make_unique<TValueCommands>(components, context.text, project);
    }
    if (!components.isEmpty()) {
        return std::make_unique<TCmdCmpValue>(components, context.text, project);
    }
    return hasOthers ? std::make_unique<TCmdPackageValue>(context.text, project) : nullptr;
}

template <bool lock>
TCommand MakeLocking(const TActionContext& context)
{
    return HasAny(context, {ItemType::Package, ItemType::Part}) ? std::make_unique<TCmdLock>(context.selection, lock)
                                                                : nullptr;
}

template <class BoardCommand, class PageCommand>
TCommand MakeConnecting(const TActionContext& context)
{
    if (HasAny(context, {ItemType::Package, ItemType::NetTiePcb})) {
        return std::make_unique<BoardCommand>(context.selection, context.design.Board());
    }
    return HasAny(context, {ItemType::Part})
               ? std::make_unique<PageCommand>(context.selection, &context.design.Project())
               : nullptr;
}

TCommand MakeEntryDisconnecting(const TActionContext& context)
{
    return HasAny(context, {ItemType::BusEntry}) ? std::make_unique<TCmdBusEntryDisconnect>(context.selection)
                                                 : nullptr;
}

template <class Item>
QList<Item*> Selected(const TActionContext& context, ItemType::Number kind)
{
    QList<Item*> items;
    for (TGraphicsItem* item : context.selection) {
        if (item->type() == kind) {
            items.append(static_cast<Item*>(item));
        }
    }
    return items;
}

/** Edits the nets of all that is selected. */
TCommand MakePriority(const TActionContext& context)
{
    const TNetModel& model = *context.design.Schematic().NetModel();
    QStringList nets;
    for (const TGraphicsItem* item : context.selection) {
        if (const QString net = item->Net(); model.HasNet(net)) {
            nets.append(net);
        }
    }
    nets.removeDuplicates();
    return nets.isEmpty() ? nullptr : std::make_unique<TCmdNetPrio>(nets, context.text, &context.design.Project());
}

TCommand MakeTieWidth(const TActionContext& context)
{
    const auto ties = Selected<TGraphicsNetTiePcbItem>(context, ItemType::NetTiePcb);
    return ties.isEmpty() ? nullptr
                          : std::make_unique<TCmdNetTieWireWidth>(ties, context.point.x(), &context.design.Project());
}

TCommand MakeSize(const TActionContext& context)
{
    auto rectangles = Selected<TGraphicsRectItem>(context, ItemType::Rectangle);
    const auto isPartOfAnother = [](const TGraphicsRectItem* rectangle) { return rectangle->parentItem() != nullptr; };
    rectangles.erase(std::remove_if(rectangles.begin(), rectangles.end(), isPartOfAnother), rectangles.end());
    return rectangles.isEmpty() ? nullptr
                                : std::make_unique<TCmdRectSize>(rectangles, context.point.x(), context.point.y());
}

TCommand MakeNode(const TActionContext& context)
{
    const auto wires = Selected<TGraphicsWireItem>(context, ItemType::Wire);
    return wires.size() == 1 ? std::make_unique<TCmdWireAddNode>(wires.first(), context.point) : nullptr;
}

/** Joins the two selected wires, or the selected one and the next one, if no other item meets them at the node. */
TCommand RemoveNode(const TActionContext& context)
{
    const auto wires = Selected<TGraphicsWireItem>(context, ItemType::Wire);
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
    static const char* const lockable = QT_TRANSLATE_NOOP("DesignActions", "packages or parts");
    static const char* const renamable =
        QT_TRANSLATE_NOOP("DesignActions", "packages that are not named on the schematic");
    static const char* const revaluable =
        QT_TRANSLATE_NOOP("DesignActions", "parts of components, or packages that the schematic knows or leaves alone");
    static const char* const connectable = QT_TRANSLATE_NOOP("DesignActions", "packages, net ties or parts");
    static const QVector<TDesignAction> actions{
        {"--rename", Asks::Text, QT_TRANSLATE_NOOP("DesignActions", "&Rename packages…"),
         QT_TRANSLATE_NOOP("DesignActions", "Reference designator"), "F2", renamable, MakeRenaming},
        {"--revalue", Asks::Text, QT_TRANSLATE_NOOP("DesignActions", "Change &value of components and packages…"),
         QT_TRANSLATE_NOOP("DesignActions", "Value"), "V", revaluable, MakeRevaluing},
        {"--lock", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Lock packages and parts"), "", "L", lockable,
         MakeLocking<true>},
        {"--unlock", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Unlock packages and parts"), "", "Shift+L",
         lockable, MakeLocking<false>},
        {"--connect", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Connect packages, net ties and parts"), "",
         "C", connectable, MakeConnecting<TCmdPkgConnect, TCmdPartConnect>},
        {"--disconnect", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "&Disconnect packages, net ties and parts"),
         "", "Shift+C", connectable, MakeConnecting<TCmdPkgDisconnect, TCmdPartDisconnect>},
        {"--disconnect-entries", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "Disconnect &bus entries"), "",
         "Shift+B", QT_TRANSLATE_NOOP("DesignActions", "bus entries"), MakeEntryDisconnecting},
        {"--add-node", Asks::Point, QT_TRANSLATE_NOOP("DesignActions", "&Add a node to the wire"), "", "N",
         QT_TRANSLATE_NOOP("DesignActions", "one wire"), MakeNode},
        {"--remove-node", Asks::Nothing, QT_TRANSLATE_NOOP("DesignActions", "Re&move the node of two wires"), "",
         "Shift+N", QT_TRANSLATE_NOOP("DesignActions", "a wire that ends where the next one begins, or those two"),
         RemoveNode},
        {"--priority", Asks::Level, QT_TRANSLATE_NOOP("DesignActions", "Change &priority of nets…"),
         QT_TRANSLATE_NOOP("DesignActions", "Level"), "P",
         QT_TRANSLATE_NOOP("DesignActions", "an item that is on a net"), MakePriority},
        {"--tie-width", Asks::Length, QT_TRANSLATE_NOOP("DesignActions", "Change wire &width of net ties…"),
         QT_TRANSLATE_NOOP("DesignActions", "Width in millimetres"), "W",
         QT_TRANSLATE_NOOP("DesignActions", "net ties of the board"), MakeTieWidth},
        {"--resize", Asks::Size, QT_TRANSLATE_NOOP("DesignActions", "Change &size of rectangles…"),
         QT_TRANSLATE_NOOP("DesignActions", "Width,height in millimetres"), "S",
         QT_TRANSLATE_NOOP("DesignActions", "rectangles that are not part of a package"), MakeSize},
    };
    return actions;
}

QStringList DesignActions::Levels()
{
    QStringList levels{QStringLiteral("Default")};
    for (int level = 1; level <= 9; ++level) {
        levels.append(QString::number(level));
    }
    return levels;
}

std::optional<QPointF> DesignActions::ParseNumbers(TDesignAction::Asks asks, const QString& text)
{
    using Asks = TDesignAction::Asks;
    constexpr double sceneUnitsPerMillimetre = TWorkspace::sceneUnitsPerInch / TWorkspace::millimetresPerInch;
    const QStringList parts = text.split(QLatin1Char(','));
    QPointF numbers;
    const std::initializer_list<qreal*> places = {&numbers.rx(), &numbers.ry()};
    if (parts.size() != (asks == Asks::Length ? 1 : 2)) {
        return {};
    }
    for (int i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        const double number = parts[i].toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number) || (asks != Asks::Point && number <= 0)) {
            return {};
        }
        **(places.begin() + i) = number * sceneUnitsPerMillimetre;
    }
    return numbers;
}
