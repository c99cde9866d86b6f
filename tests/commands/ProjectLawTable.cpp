#include "tests/commands/ProjectLawTable.h"
#include "properties/commands/TCmdBusEntry.h"
#include "properties/commands/TCmdComponent.h"
#include "properties/commands/TCmdNet.h"
#include "properties/commands/TCmdNetTie.h"
#include "properties/commands/TCmdOutline.h"
#include "properties/commands/TCmdPackage.h"
#include "properties/commands/TCmdPart.h"
#include "properties/commands/TCmdPort.h"
#include "properties/commands/TCmdProjectTree.h"
#include "properties/commands/TCmdWire.h"
#include "properties/commands/TCmdWireLayer.h"
#include "tests/laws/LawMaking.h"

namespace Test {

namespace {

using All = WholeProject;
using Made = std::unique_ptr<TUndoCommand>;

template <class Command, class Make>
ProjectLaw Law(Make make, const QStringList& touched)
{
    ProjectLaw law;
    law.name = NameOf<Command>();
    law.hasMergeRule = HasMergeRule<Command>::value;
    law.make = [make](const Given& given) -> Made { return make(given); };
    law.touched = touched;
    law.touched.sort();
    return law;
}

ProjectLaw WithId(ProjectLaw law, int id)
{
    law.id = id;
    return law;
}

ProjectLaw WithCategories(ProjectLaw law, unsigned bits)
{
    law.categories = bits;
    return law;
}

template <class Command, class Value>
ProjectLaw NetLaw(const Value& first, const Value& second, const QStringList& touched)
{
    return Law<Command>(
        [=](const Given& given) {
            return std::make_unique<Command>("A", given.Either(first, second), given.Project());
        },
        touched);
}

template <class Command>
ProjectLaw NamingLaw()
{
    return Law<Command>(
        [](const Given& given) {
            TWorkspace* workspace = given.Board() ? given.Board()->Workspace() : nullptr;
            return std::make_unique<Command>(given.One(&All::ports), "new", workspace, given.Project());
        },
        {});
}

template <class Command>
ProjectLaw OutlineLaw()
{
    return Law<Command>(
        [](const Given& given) { return std::make_unique<Command>(given.One(&All::outlines), QPointF(50, 0)); }, {});
}

/** A command that acts on the selected packages. */
template <class Command>
ProjectLaw SelectedLaw(const QString& first, const QString& second, const QStringList& touched)
{
    return Law<Command>(
        [=](const Given& given) { return std::make_unique<Command>(given.Either(first, second), given.Project()); },
        touched);
}

/** A net-tie command that is made on the schematic the first time and on the board the second time. */
template <class Command, class Value>
ProjectLaw TieLaw(const Value& first, const Value& second, const QStringList& touched)
{
    return Law<Command>(
        [=](const Given& given) {
            return given.IsFirst() ? std::make_unique<Command>(given.ListOf(&All::sheetTies), first, given.Project())
                                   : std::make_unique<Command>(given.ListOf(&All::boardTies), second, given.Project());
        },
        touched);
}

template <class Command, class Item, class Value>
ProjectLaw TieLaw(All::Two<Item> All::*ties, const Value& first, const Value& second, const QStringList& touched)
{
    return Law<Command>(
        [=](const Given& given) {
            return std::make_unique<Command>(given.ListOf(ties), given.Either(first, second), given.Project());
        },
        touched);
}

/** A command over items of a project or a board, which @p owner tells. */
template <class Command, class Item, class Owner>
ProjectLaw ConnectLaw(All::Two<Item> All::*items, Owner* (Given::*owner)() const, const QStringList& touched)
{
    return Law<Command>(
        [=](const Given& given) {
            return std::make_unique<Command>(given.ListOf<TGraphicsItem>(items), (given.*owner)());
        },
        touched);
}

std::vector<ProjectLaw> NetLaws()
{
    return {
        NetLaw<TCmdNetClass>(QString("fast"), QString("strong"), {"net.class"}),
        Law<TCmdNetColorSch>(
            [](const Given& given) {
                return std::make_unique<TCmdNetColorSch>("A", given.Either(QColor(Qt::red), QColor(Qt::green)),
                                                         given.Schematic());
            },
            {"net.colorSch", "netwire.color", "port.color"}),
        NetLaw<TCmdNetColorPcb>(QColor(Qt::red), QColor(Qt::green), {"net.colorPcb", "pad.color", "wire.color"}),
        Law<TCmdNetPrio>(
            [](const Given& given) {
                return std::make_unique<TCmdNetPrio>(QStringList{"A"}, given.Either(QString("7"), QString("Default")),
                                                     given.Project());
            },
            {"net.priority", "rats.lines"}),
        NamingLaw<TCmdNetName>(),
        NamingLaw<TCmdFragmName>(),
        Law<TCmdPortName>(
            [](const Given& given) {
                return std::make_unique<TCmdPortName>(given.ListOf(&All::ports), "new", given.Schematic());
            },
            {"+net", "-net", "netwire.net", "netwire.own", "pad.net", "pad.own", "pin.net", "pin.own", "port.name",
             "port.net", "rats.lines", "wire.net"}),
        WithId(Law<TCmdBusEntryDisconnect>(
                   [](const Given& given) {
                       return std::make_unique<TCmdBusEntryDisconnect>(given.ListOf<TGraphicsItem>(&All::entries));
                   },
                   {"-busentry", "bus.entries", "netwire.first", "netwire.last"}),
               1262),
    };
}

std::vector<ProjectLaw> TieLaws()
{
    return {
        Law<TCmdNetTieBase>([](const Given& given) { return std::make_unique<TCmdNetTieBase>(given.Project()); }, {}),
        TieLaw<TCmdNetTieName>(QString("new"), QString("newer"), {"nettie.name", "nettiesymbol.name"}),
        TieLaw<TCmdNetTieNameVis>(false, false, {"nettie.nameVisible", "nettiesymbol.nameVisible"}),
        TieLaw<TCmdNetTiePcbLayer>(&All::boardTies, Osmirel::CopperBottom, Osmirel::Copper2, {"nettie.layer"}),
        TieLaw<TCmdNetTiePadSz>(&All::boardTies, 11.0, 12.0, {"nettie.padSize"}),
        TieLaw<TCmdNetTieWireWidth>(&All::boardTies, 5.0, 6.0, {"nettie.wireWidth"}),
        TieLaw<TCmdNetTieSchSymbol>(&All::sheetTies, 2, 1, {"nettiesymbol.symbol"}),
    };
}

std::vector<ProjectLaw> BoardLaws()
{
    const auto nodeOf = [](const Given& given) {
        const TGraphicsWireItem* wire = given.One(&All::wires);
        return wire ? wire->ScenePoint(TGraphicsItem::LinkEnd::First) + QPointF(40, 0) : QPointF();
    };
    return {
        OutlineLaw<TCmdOutlineAddNode>(),
        OutlineLaw<TCmdOutlineDelNode>(),
        SelectedLaw<TCmdPackageRefDes>("U8", "U9", {"package.refDes"}),
        SelectedLaw<TCmdPackageValue>("TL081", "TL082", {"package.value"}),
        ConnectLaw<TCmdPkgConnect>(&All::packages, &Given::Board, {"pad.wires", "wire.first"}),
        ConnectLaw<TCmdPkgDisconnect>(&All::packages, &Given::Board, {"pad.wires", "rats.lines", "wire.first"}),
        Law<TCmdPkgSide>(
            [](const Given& given) {
                return std::make_unique<TCmdPkgSide>(given.ListOf(&All::packages), Osmirel::CopperBottom,
                                                     given.Board());
            },
            {"package.layer", "pad.at", "pad.end", "pad.layer", "pad.start", "pad.wires", "rats.lines", "wire.first"}),
        Law<TCmdWireAddNode>(
            [=](const Given& given) {
                return std::make_unique<TCmdWireAddNode>(given.One(&All::wires), nodeOf(given));
            },
            {"+wire", "wire.first", "wire.last", "wire.to"}),
        Law<TCmdWireDelNode>(
            [](const Given& given) {
                return std::make_unique<TCmdWireDelNode>(given.One(&All::wires), given.One(&All::nextWires));
            },
            {"-wire", "wire.last", "wire.to"}),
        Law<TCmdWireLayer>(
            [](const Given& given) {
                return std::make_unique<TCmdWireLayer>(given.Project(), given.ListOf(&All::wires),
                                                       Osmirel::CopperBottom);
            },
            {"+via", "wire.first", "wire.last", "wire.layer"}),
    };
}

std::vector<ProjectLaw> ComponentLaws()
{
    return {
        ConnectLaw<TCmdPartConnect>(
            &All::parts, &Given::Project,
            {"netwire.first", "netwire.last", "pad.net", "pad.own", "pin.links", "pin.net", "rats.lines"}),
        ConnectLaw<TCmdPartDisconnect>(&All::parts, &Given::Project,
                                       {"netwire.first", "netwire.last", "pad.net", "pad.own", "pin.links", "pin.net"}),
        Law<TCmdCmpValue>(
            [](const Given& given) {
                return std::make_unique<TCmdCmpValue>(QList<unsigned short>{given.Either<unsigned short>(1, 2)}, "47k",
                                                      given.Project());
            },
            {"component.count", "component.value", "package.value", "part.value", "text.text"}),
        WithCategories(
            Law<TCmdPartRename>(
                [](const Given& given) { return std::make_unique<TCmdPartRename>(given.Part(), "regulator"); },
                {"treepart.name"}),
            8),
        Law<TCmdPageRename>([](const Given& given) { return std::make_unique<TCmdPageRename>(given.Page(), "supply"); },
                            {"treepage.name"}),
        WithCategories(
            Law<TCmdPartOpen>([](const Given& given) { return std::make_unique<TCmdPartOpen>(nullptr, given.Part()); },
                              {"asks.part"}),
            8 | 16),
        WithCategories(Law<TCmdPageOpen>(
                           [](const Given& given) {
                               return std::make_unique<TCmdPageOpen>(given.Either<unsigned char>(1, 2),
                                                                     given.Either<unsigned char>(2, 1));
                           },
                           {"asks.page"}),
                       32),
    };
}

} // namespace

const std::vector<ProjectLaw>& ProjectLawTable()
{
    static const std::vector<ProjectLaw> table = [] {
        std::vector<ProjectLaw> all;
        for (const auto& part : {NetLaws(), TieLaws(), BoardLaws(), ComponentLaws()}) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }();
    return table;
}

} // namespace Test
