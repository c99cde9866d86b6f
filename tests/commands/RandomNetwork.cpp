#include "tests/commands/RandomNetwork.h"

#include "properties/commands/TCmdNet.h"
#include "properties/commands/TCmdPackage.h"
#include "properties/commands/TCmdWire.h"
#include "properties/commands/TCmdWireLayer.h"
#include "tests/commands/StackedPads.h"

#include <QRegularExpression>

#include <algorithm>

namespace Test {

namespace {

constexpr Osmirel::Layer layers[] = {Osmirel::CopperTop, Osmirel::CopperBottom, Osmirel::Copper2,
                                     Osmirel::Copper6}; // the last is none of the board's
const QStringList nets{"P0", "P1", "P2", "W0", "W1"};

/** The place of a number on a grid. */
QPointF GridPoint(int number)
{
    return {100.0 * (number % 6), 100.0 * (number / 6)};
}

template <class List>
auto At(const List& list, int number)
{
    return list[number % list.size()];
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const PlannedTrack& track)
{
    return stream << '{' << track.from << ',' << track.to << ',' << track.layer << ',' << track.shape << '}';
}

RandomNetwork::RandomNetwork(const std::vector<int>& kindsOfPlaces, const std::vector<PlannedTrack>& tracks)
{
    for (const QString& net : nets) {
        schematic.NetModel()->AddNet(net, QString(), QColor(), QColor(), 0);
    }
    view.setScene(board.Scene());
    board.SetView(&view);
    project.SetBoard(&board);
    project.SetSchematic(&schematic);
    project.SetKind(TProject::InStep);
    for (const int kind : kindsOfPlaces) {
        places.append(AddPlace(places.size(), kind));
    }
    for (const PlannedTrack& track : tracks) {
        AddTrack(track);
    }
    FitJunctions();
    stack.Begin();
}

TGraphicsItem* RandomNetwork::AddPlace(int number, int kind)
{
    const QPointF at = GridPoint(number);
    const QString net = kind % 2 == 0 ? QString() : At(nets.mid(0, 3), kind / 8);
    switch (kind % 10) {
    case 8:
    case 9: return AddPackage(at, kind);
    default: break;
    }
    switch (kind % 8) {
    case 0: return board.Via(at);
    case 1: {
        TGraphicsViaItem* blind = board.Via(at);
        blind->SetViaGroup("Top - Inner 1");
        return blind;
    }
    case 2:
    case 3: return board.Pad(at, net, kind % 3 == 0 ? Osmirel::CopperBottom : Osmirel::CopperTop);
    case 4: {
        TGraphicsPadItem* through = board.Pad(at, net);
        through->SetLayers(Osmirel::CopperTop, Osmirel::CopperBottom);
        return through;
    }
    default: return board.Junction(at, kind % 3 == 0 ? Osmirel::CopperBottom : Osmirel::CopperTop);
    }
}

/** A package of which two pads lie at a place, and one of its pads, which need not be one of them. */
TGraphicsPadItem* RandomNetwork::AddPackage(const QPointF& at, int kind)
{
    const StackedPads pads(board, at - QPointF(20, 0), kind % 3 == 0 ? QString() : At(nets.mid(0, 3), kind));
    pads.package->SetComponentNumber(static_cast<quint16>(packages.size()));
    packages.append(pads.package);
    return kind % 4 == 0 ? pads.exposed : pads.drilled[kind % 2];
}

void RandomNetwork::AddTrack(const PlannedTrack& track)
{
    const auto layer = layers[track.layer % 3];
    const QString net = track.shape % 5 == 0 ? At(nets, track.shape) : QString();
    const QPointF from = GridPoint(places.isEmpty() ? track.from % 36 : track.from % places.size());
    const bool isLoop = track.shape % 7 == 0;
    const QPointF to = isLoop ? from : GridPoint(places.isEmpty() ? track.to % 36 : track.to % places.size());
    const int count = track.shape % 4 + 1;
    QList<TGraphicsWireItem*> wires;
    QPointF begin = from;
    for (int i = 1; i <= count; ++i) {
        // Whole numbers, and each corner beside the straight line.
        const QPointF corner = from + (to - from) * i / count + QPointF(7 * i, -11 * i);
        const QPointF end = i == count ? to : QPointF(corner.toPoint());
        wires.append(board.Wire(begin, end, net, layer));
        wires.last()->SetPenWidth(static_cast<float>(1 + track.shape % 3));
        if (i > 1) {
            wires[i - 2]->LinkToLast(wires[i - 1]);
        }
        begin = end;
    }
    if (isLoop) {
        wires.last()->LinkToLast(wires.first()); // by itself
        return;
    }
    const auto link = [&](TGraphicsWireItem* wire, TGraphicsItem::LinkEnd end, int number) {
        TGraphicsItem* place = places.isEmpty() ? nullptr : At(places, number);
        if (place && place->HasCopperOn(layer)) {
            wire->LinkTo(end, place);
        }
    };
    link(wires.first(), TGraphicsItem::LinkEnd::First, track.from);
    link(wires.last(), TGraphicsItem::LinkEnd::Last, track.to);
}

// A change of width fits junctions to their wires, which undo does as well: they have to fit from the beginning.
void RandomNetwork::FitJunctions()
{
    for (TGraphicsItem* place : qAsConst(places)) {
        if (auto* junction = dynamic_cast<TGraphicsJunctionItem*>(place)) {
            float size = 0;
            for (const TGraphicsSectionItem* section : junction->LinkedSections()) {
                size = std::max(size, section->PenWidth());
            }
            junction->SetSize(size, size);
        }
    }
}

QList<TGraphicsWireItem*> RandomNetwork::WiresOnBoard() const
{
    QList<TGraphicsWireItem*> wires;
    for (TGraphicsItem* item : board.Items()) {
        if (auto* wire = dynamic_cast<TGraphicsWireItem*>(item)) {
            wires.append(wire);
        }
    }
    return wires;
}

/** One to all of the wires, those that items hold in common more often than not. */
QList<TGraphicsWireItem*> RandomNetwork::SomeWires(const PlannedEdit& edit) const
{
    const QList<TGraphicsWireItem*> all = WiresOnBoard();
    QList<TGraphicsWireItem*> some;
    for (int i = 0; i < all.size(); ++i) {
        if ((edit.what >> (i % 10) & 1) != 0) {
            some.append(all[i]);
        }
    }
    if (edit.what % 3 == 0) {
        std::reverse(some.begin(), some.end());
    }
    return some;
}

/** None to all of the packages. */
template <class Item>
QList<Item*> RandomNetwork::SomePackages(const PlannedEdit& edit) const
{
    QList<Item*> some;
    for (int i = 0; i < packages.size(); ++i) {
        if ((edit.what >> (i % 10) & 1) != 0) {
            some.append(packages[i]);
        }
    }
    return some;
}

std::unique_ptr<QUndoCommand> RandomNetwork::PackageCommand(const PlannedEdit& edit)
{
    switch (edit.action) {
    case 0:
    case 1: {
        commandName = "side";
        const auto side = edit.value % 2 == 0 ? Osmirel::PackagesTop : Osmirel::PackagesBottom;
        return std::make_unique<TCmdPkgSide>(SomePackages<TGraphicsPackageItem>(edit), side, &board);
    }
    case 2: commandName = "connect"; return std::make_unique<TCmdPkgConnect>(SomePackages<TGraphicsItem>(edit), &board);
    default:
        commandName = "disconnect";
        return std::make_unique<TCmdPkgDisconnect>(SomePackages<TGraphicsItem>(edit), &board);
    }
}

std::unique_ptr<QUndoCommand> RandomNetwork::Command(const PlannedEdit& edit)
{
    constexpr int ofPackages = 4;
    return edit.action < ofPackages ? PackageCommand(edit)
                                    : WireCommand({edit.action - ofPackages, edit.what, edit.value});
}

std::unique_ptr<QUndoCommand> RandomNetwork::WireCommand(const PlannedEdit& edit)
{
    const QList<TGraphicsWireItem*> all = WiresOnBoard();
    if (all.isEmpty()) {
        return nullptr;
    }
    switch (edit.action) {
    case 0: commandName = "width"; return std::make_unique<TCmdWireWidth>(SomeWires(edit), 0.5 * (edit.value % 9));
    case 1:
    case 2: {
        commandName = "layer";
        return std::make_unique<TCmdWireLayer>(&project, SomeWires(edit), layers[edit.value % 4]);
    }
    case 3: {
        commandName = "add node";
        TGraphicsWireItem* wire = At(all, edit.what);
        const QLineF line = wire->SceneLine();
        const double part = (edit.value % 9 + 1) / 10.0;
        return std::make_unique<TCmdWireAddNode>(wire, line.pointAt(part) + QPointF(edit.value % 5, 0));
    }
    case 4: {
        // Of equal widths, as the junction at the far end is not fitted to the kept wire.
        QList<TGraphicsWireItem*> joinable;
        std::copy_if(all.cbegin(), all.cend(), std::back_inserter(joinable), [](const TGraphicsWireItem* wire) {
            const auto* next = dynamic_cast<const TGraphicsWireItem*>(wire->LastLink());
            return next && next != wire && next->PenWidth() == wire->PenWidth();
        });
        if (joinable.isEmpty()) {
            return nullptr;
        }
        commandName = "delete node";
        TGraphicsWireItem* kept = At(joinable, edit.what);
        return std::make_unique<TCmdWireDelNode>(kept, static_cast<TGraphicsWireItem*>(kept->LastLink()));
    }
    default: {
        commandName = "net color";
        coloredNet = At(nets, edit.what);
        newColor = edit.value % 4 == 0 ? QColor() : QColor(edit.value % 256, 20, 30);
        return std::make_unique<TCmdNetColorPcb>(coloredNet, newColor, &project);
    }
    }
}

QString RandomNetwork::Do(const PlannedEdit& edit)
{
    std::unique_ptr<QUndoCommand> command = Command(edit);
    if (!command) {
        return {};
    }
    const QString fault = stack.Push(std::move(command), commandName);
    if (commandName == "net color") {
        const auto isOdd = [this](const TGraphicsItem* item) {
            return item->Net() == coloredNet && item->AltColor() != newColor;
        };
        const QList<TGraphicsItem*> items = board.Items();
        const auto odd = std::find_if(items.cbegin(), items.cend(), isOdd);
        if (odd != items.cend()) {
            return QStringLiteral("not in the color of its net: ") + (*odd)->StateLine();
        }
    }
    return fault;
}

/** All lines without the items' colours, which undo takes from the nets, and the colours of the nets. */
QString RandomNetwork::State() const
{
    static const QRegularExpression color(QStringLiteral(" color=\\S+"));
    QString state = board.Dump().remove(color);
    for (const QString& net : nets) {
        const TNetModel* model = schematic.NetModel();
        const QColor ofNet = model->ColorPcb(model->NetRow(net));
        state += net + ' ' + (ofNet.isValid() ? ofNet.name() : QStringLiteral("default")) + '\n';
    }
    return state;
}

QString RandomNetwork::Fault() const
{
    const QString ofLinks = LinkFault(board);
    return ofLinks.isEmpty() ? WrongNet() : ofLinks;
}

/** An item that does not bear the net that all pads agree on that are joined with it. */
QString RandomNetwork::WrongNet() const
{
    QSet<TGraphicsItem*> seen;
    for (TGraphicsItem* start : board.Items()) {
        if (seen.contains(start)) {
            continue;
        }
        QVector<TGraphicsItem*> joined{start};
        QSet<QString> ofPads;
        seen.insert(start);
        for (int i = 0; i < joined.size(); ++i) {
            if (joined[i]->type() == ItemType::Pad) {
                ofPads.insert(joined[i]->OwnNet());
            }
            for (TGraphicsItem* next : joined[i]->Links()) {
                if (!seen.contains(next)) {
                    seen.insert(next);
                    joined.append(next);
                }
            }
        }
        ofPads.remove(QString());
        for (const TGraphicsItem* item : qAsConst(joined)) {
            if (ofPads.size() == 1 && item->type() != ItemType::Pad && item->Net() != *ofPads.cbegin()) {
                return QStringLiteral("not on net ") + *ofPads.cbegin() + QStringLiteral(": ") + item->StateLine();
            }
        }
    }
    return {};
}

} // namespace Test
