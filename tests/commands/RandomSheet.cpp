#include "tests/commands/RandomSheet.h"

#include "properties/commands/TCmdBusEntry.h"
#include "properties/commands/TCmdComponent.h"
#include "properties/commands/TCmdNet.h"
#include "properties/commands/TCmdPart.h"
#include "properties/commands/TCmdPin.h"
#include "properties/commands/TCmdPort.h"
#include "properties/commands/TCmdProjectTree.h"
#include "properties/commands/TCmdTag.h"

#include <QRegularExpression>

#include <algorithm>

namespace Test {

namespace {

const QStringList names{"A", "B", "C", "D", ""};
constexpr int gridSize = 4;
constexpr double pitch = 100;

/** The place of a number on a grid. */
QPointF GridPoint(int number)
{
    const int place = number % (gridSize * gridSize);
    return {pitch * (place % gridSize), pitch * (place / gridSize)};
}

template <class List>
auto At(const List& list, int number)
{
    return list[number % list.size()];
}

/** Links the free end of a wire, as drawing it does. */
class LinkCommand : public QUndoCommand
{
public:
    LinkCommand(TGraphicsNetItem* ofWire, TGraphicsItem::LinkEnd ofEnd, TGraphicsItem* ofTarget)
        : wire(ofWire), end(ofEnd), target(ofTarget)
    {}
    void redo() override { wire->LinkTo(end, target); }
    void undo() override { wire->Unlink(end); }

private:
    TGraphicsNetItem* wire;
    TGraphicsItem::LinkEnd end;
    TGraphicsItem* target;
};

} // namespace

std::ostream& operator<<(std::ostream& stream, const PlannedThing& thing)
{
    return stream << '{' << thing.kind << ',' << thing.place << ',' << thing.value << '}';
}

std::ostream& operator<<(std::ostream& stream, const PlannedWire& wire)
{
    return stream << '{' << wire.from << ',' << wire.to << ',' << wire.linked << '}';
}

RandomSheet::RandomSheet(const std::vector<PlannedThing>& things, const std::vector<PlannedWire>& wires)
{
    design.AddNets({"A", "C", "W"});
    design.project.SetTagValues({{"A", "value of A"}, {"B", "value of B"}});
    design.sheet.AddPage();
    tree.AddPage(1, "first");
    tree.AddPage(2, "second");
    for (quint16 component = 1; component <= 3; ++component) {
        design.sheet.CmpModel()->Add(component, {"U", QString::number(component), "P", 0});
        tree.AddPart(component, "U", "part");
        design.Package(component)->SetValue("of the package");
    }
    design.sheet.CmpModel()->UpdateCount();
    for (const PlannedThing& thing : things) {
        AddThing(thing);
    }
    for (const PlannedWire& wire : wires) {
        AddWire(wire);
    }
    // Values that components bring back are those of the model.
    for (TGraphicsPartItem* part : design.sheet.PartItems(0)) {
        part->SetValue(QString::number(part->ComponentNumber()));
    }
    for (TGraphicsItem* item : design.board.Items()) {
        if (auto* package = dynamic_cast<TGraphicsPackageItem*>(item)) {
            package->SetValue(QString::number(package->ComponentNumber()));
        }
    }
    stack.Begin();
}

void RandomSheet::AddThing(const PlannedThing& thing)
{
    Sheet& sheet = design.sheet;
    sheet.GoToPage(sheet.Page(thing.place % 5 == 0 ? 2 : 1));
    const QPointF at = GridPoint(thing.place);
    switch (thing.kind % 8) {
    case 0:
    case 1:
    case 2: sheet.Port(at, At(names, thing.value)); break;
    case 3:
    case 4: {
        const QPointF second = thing.value % 3 == 0 ? QPointF() : QPointF(pitch, 0); // stacked, or side by side
        sheet.Part(at, static_cast<quint16>(thing.value % 4), {{0, 0}, second});
        break;
    }
    case 5: sheet.Junction(at, At(names, thing.value / 3)); break;
    case 6: {
        TGraphicsBusEntryItem* entry = sheet.Entry(at);
        if (thing.value % 4 != 0) {
            entry->LinkToBus(sheet.Bus(at, at + QPointF(0, pitch)));
        }
        break;
    }
    default:
        sheet.NetTie(at + QPointF(15, 0), static_cast<quint16>(thing.value % 4));
        sheet.Tag(at, At(names, thing.value))->SetValue(design.project.TagValues().value(At(names, thing.value)), true);
        break;
    }
}

QList<TGraphicsItem*> RandomSheet::LinkableAt(const QPointF& point, const TItemScene* page) const
{
    QList<TGraphicsItem*> found;
    for (TGraphicsItem* item : page->DesignItems()) {
        const bool isPlace =
            item->type() == ItemType::Pin || item->type() == ItemType::Junction || item->type() == ItemType::BusEntry;
        if (isPlace && item->scenePos() == point) {
            found.append(item);
        }
    }
    return found;
}

void RandomSheet::AddWire(const PlannedWire& planned)
{
    design.sheet.GoToPage(design.sheet.Page(planned.linked % 7 == 0 ? 2 : 1));
    TGraphicsNetItem* wire = design.sheet.Wire(GridPoint(planned.from), GridPoint(planned.to),
                                               planned.linked % 3 == 0 ? "W" : At(names, planned.linked / 3));
    for (const auto end : {TGraphicsItem::LinkEnd::First, TGraphicsItem::LinkEnd::Last}) {
        const QList<TGraphicsItem*> places = LinkableAt(wire->ScenePoint(end), wire->Owner());
        TGraphicsItem* place = places.isEmpty() ? nullptr : At(places, planned.linked / 2);
        const bool isOtherEndThere = place && wire->FirstLink() == place && place->type() == ItemType::BusEntry;
        if (place && !isOtherEndThere && planned.linked % 4 != static_cast<int>(end)) {
            wire->LinkTo(end, place);
        }
    }
}

template <class Item>
QList<Item*> RandomSheet::Some(ItemType::Number kind, const PlannedEdit& edit) const
{
    QList<Item*> some;
    int number = 0;
    for (TGraphicsItem* item : design.sheet.AllItems()) {
        if (item->type() == kind && (edit.what >> (number++ % 10) & 1) != 0) {
            some.append(static_cast<Item*>(item));
        }
    }
    if (edit.what % 3 == 0) {
        std::reverse(some.begin(), some.end());
    }
    return some;
}

std::unique_ptr<QUndoCommand> RandomSheet::Command(const PlannedEdit& edit)
{
    Sheet& sheet = design.sheet;
    const auto ofKind = [&](ItemType::Number kind) { return Some<TGraphicsItem>(kind, edit); };
    switch (edit.action) {
    case 0:
    case 1:
    case 2: {
        commandName = "port name";
        return std::make_unique<TCmdPortName>(Some<TGraphicsPortItem>(ItemType::Port, edit), At(names, edit.value),
                                              &sheet);
    }
    case 3: commandName = "connect"; return std::make_unique<TCmdPartConnect>(ofKind(ItemType::Part), &design.project);
    case 4: {
        commandName = "disconnect";
        return std::make_unique<TCmdPartDisconnect>(ofKind(ItemType::Part), &design.project);
    }
    case 5: commandName = "entries"; return std::make_unique<TCmdBusEntryDisconnect>(ofKind(ItemType::BusEntry));
    case 6: {
        commandName = "value";
        const QList<unsigned short> numbers{1, 2, 3, 9, 0};
        return std::make_unique<TCmdCmpValue>(numbers.mid(edit.what % 5, edit.what % 3 + 1), At(names, edit.value),
                                              &design.project);
    }
    case 7: {
        commandName = "colour";
        const QColor color = edit.value % 4 == 0 ? QColor() : QColor(edit.value % 256, 20, 30);
        return std::make_unique<TCmdNetColorSch>(At(names, edit.what), color, &sheet);
    }
    case 8: return PinCommand(edit);
    case 9: {
        commandName = "tag";
        return std::make_unique<TCmdTagName>(Some<TGraphicsTagItem>(ItemType::Tag, edit), At(names, edit.value),
                                             &design.project);
    }
    case 10: return TreeCommand(edit);
    default: return LinkOfAFreeEnd(edit);
    }
}

std::unique_ptr<QUndoCommand> RandomSheet::PinCommand(const PlannedEdit& edit)
{
    commandName = "pin";
    const QList<TGraphicsItem*> pins = Some<TGraphicsItem>(ItemType::Pin, edit);
    switch (edit.value % 9) {
    case 0: return std::make_unique<TCmdPinName>(pins, At(names, edit.value));
    case 1: return std::make_unique<TCmdPinNameVis>(pins, edit.value % 2 == 0);
    case 2: return std::make_unique<TCmdPinNumber>(pins, QString::number(edit.value));
    case 3: return std::make_unique<TCmdPinNumberVis>(pins, edit.value % 2 == 0);
    case 4: return std::make_unique<TCmdPinType>(pins, edit.value % 8);
    case 5: return std::make_unique<TCmdPinStyle>(pins, edit.value % 2);
    case 6: return std::make_unique<TCmdPinLength>(pins, edit.value % 4);
    case 7: return std::make_unique<TCmdPinSwap>(pins, edit.value % 256);
    default:
        return std::make_unique<TCmdPortNameVis>(Some<TGraphicsPortItem>(ItemType::Port, edit), edit.value % 2 == 0);
    }
}

std::unique_ptr<QUndoCommand> RandomSheet::TreeCommand(const PlannedEdit& edit)
{
    commandName = "tree";
    switch (edit.value % 4) {
    case 0: return std::make_unique<TCmdPartRename>(At(tree.Parts(), edit.what), At(names, edit.what));
    case 1: return std::make_unique<TCmdPageRename>(At(tree.Pages(), edit.what), At(names, edit.what));
    case 2: return std::make_unique<TCmdPartOpen>(nullptr, At(tree.Parts(), edit.what));
    default: return std::make_unique<TCmdPageOpen>(1, 2);
    }
}

std::unique_ptr<QUndoCommand> RandomSheet::LinkOfAFreeEnd(const PlannedEdit& edit)
{
    commandName = "link";
    for (TGraphicsNetItem* wire : Some<TGraphicsNetItem>(ItemType::NetWire, edit)) {
        for (const auto end : {TGraphicsItem::LinkEnd::First, TGraphicsItem::LinkEnd::Last}) {
            for (TGraphicsItem* place : LinkableAt(wire->ScenePoint(end), wire->Owner())) {
                if (!wire->Link(end) && place->type() != ItemType::BusEntry) {
                    return std::make_unique<LinkCommand>(wire, end, place);
                }
            }
        }
    }
    return nullptr;
}

QString RandomSheet::Do(const PlannedEdit& edit)
{
    std::unique_ptr<QUndoCommand> command = Command(edit);
    return command ? stack.Push(std::move(command), commandName) : QString();
}

/** All lines without the items' colours, which undo takes from the nets. Of the board only what packages say: pads get
 *  their nets from some commands only. */
QString RandomSheet::State() const
{
    static const QRegularExpression color(QStringLiteral(" color=\\S+"));
    QString state = design.sheet.DumpWithOwnNets().remove(color) + QLatin1Char('\n') + tree.Dump();
    for (const TGraphicsItem* item : design.board.Items()) {
        state += item->type() == ItemType::Package ? item->StateLine() + QLatin1Char('\n') : QString();
    }
    return state;
}

QString RandomSheet::Fault() const
{
    const QString ofLinks = design.Fault();
    return ofLinks.isEmpty() ? WrongNet() : ofLinks;
}

/** An item that does not bear the net that all ports agree on that are joined with it, or a port that does not name
 *  what it says. */
QString RandomSheet::WrongNet() const
{
    QSet<TGraphicsItem*> seen;
    for (TGraphicsItem* start : design.sheet.AllItems()) {
        const auto* port = dynamic_cast<TGraphicsPortItem*>(start);
        if (port && port->Pin()->OwnNet() != port->Name()) {
            return QStringLiteral("not of its name: ") + port->StateLine();
        }
        if (seen.contains(start) || start->type() == ItemType::Bus) {
            continue;
        }
        QVector<TGraphicsItem*> joined{start};
        QSet<QString> named;
        seen.insert(start);
        for (int i = 0; i < joined.size(); ++i) {
            if (const auto* owner = dynamic_cast<TGraphicsPortItem*>(joined[i]->parentItem())) {
                named.insert(owner->Name());
            }
            for (TGraphicsItem* next : joined[i]->Links()) {
                if (!seen.contains(next) && next->type() != ItemType::Bus) {
                    seen.insert(next);
                    joined.append(next);
                }
            }
        }
        named.remove(QString());
        for (const TGraphicsItem* item : qAsConst(joined)) {
            const bool isPort = dynamic_cast<TGraphicsPortItem*>(item->parentItem());
            if (named.size() == 1 && !isPort && item->type() != ItemType::Port && item->Net() != *named.cbegin()) {
                return QStringLiteral("not on net ") + *named.cbegin() + QStringLiteral(": ") + item->StateLine();
            }
        }
    }
    return {};
}

} // namespace Test
