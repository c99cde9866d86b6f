#include "benchmarks/commands/Families.h"
#include "benchmarks/support/BenchBoard.h"
#include "benchmarks/support/Edits.h"

#include "properties/commands/TCmdWireLayer.h"
#include "properties/commands/Units.h"

#include <application/TProject.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsWireItem.h>

#include <benchmark/benchmark.h>

namespace Bench {

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

constexpr double length = 20;
constexpr Osmirel::Layer oldLayer = Osmirel::CopperTop;
constexpr Osmirel::Layer newLayer = Osmirel::CopperBottom;
constexpr int movingInAChain = 4;

/**
 * Of each chain four wires move and two stay, which exercises every step of the command:
 *
 *     surface pad - a - b - moving junction - c - junction - d - staying wire
 *                                                  |
 *                                            staying wire - via
 */
struct Chain
{
    TGraphicsPadItem* pad;
    TGraphicsWireItem* a;
    TGraphicsWireItem* b;
    TGraphicsJunctionItem* movingJunction;
    TGraphicsWireItem* c;
    TGraphicsJunctionItem* junction;
    TGraphicsWireItem* d;
    TGraphicsWireItem* staying;
    TGraphicsWireItem* branch;
};

/** A board of chains, each on a net of its own, in a project in sync mode, which updates nets. */
class Network : public ShownBoard
{
public:
    explicit Network(int movingWires)
    {
        project.SetBoard(this);
        project.SetKind(TProject::InStep);
        for (int number = 0; number < movingWires / movingInAChain; ++number) {
            chains.push_back(PlaceChain(GridPoint(number, 8 * length), QStringLiteral("N%1").arg(number)));
        }
        Settle();
    }

    ~Network() { project.SetBoard(nullptr); }
    Network(const Network&) = delete;
    Network& operator=(const Network&) = delete;

    TProject project;
    std::vector<Chain> chains;

private:
    Chain PlaceChain(const QPointF& at, const QString& net)
    {
        const auto point = [at](int x, int y = 0) { return at + length * QPointF(x, y); };
        Chain chain{};
        chain.pad = Place<TGraphicsPadItem>(at);
        chain.pad->SetSize(length / 2, length / 2);
        chain.pad->SetLayers(oldLayer, oldLayer);
        chain.pad->SetNet(net);
        chain.a = PlaceWire(point(0), point(1), net);
        chain.b = PlaceWire(point(1), point(2), net);
        chain.movingJunction = PlaceJunction(point(2));
        chain.c = PlaceWire(point(2), point(3), net);
        chain.junction = PlaceJunction(point(3));
        chain.d = PlaceWire(point(3), point(4), net);
        chain.staying = PlaceWire(point(4), point(5), net);
        chain.branch = PlaceWire(point(3), point(3, 1), net);
        auto* via = Place<TGraphicsViaItem>(point(3, 1));
        via->SetSize(length / 2, length / 2);

        chain.a->LinkToFirst(chain.pad);
        chain.a->LinkToLast(chain.b);
        chain.b->LinkToLast(chain.movingJunction);
        chain.c->LinkToFirst(chain.movingJunction);
        chain.c->LinkToLast(chain.junction);
        chain.d->LinkToFirst(chain.junction);
        chain.branch->LinkToFirst(chain.junction);
        chain.d->LinkToLast(chain.staying);
        chain.branch->LinkToLast(via);
        return chain;
    }

    TGraphicsWireItem* PlaceWire(const QPointF& from, const QPointF& to, const QString& net)
    {
        auto* wire = Place<TGraphicsWireItem>({});
        wire->SetLayer(oldLayer);
        wire->SetPenWidth(2);
        wire->SetPoint1(from);
        wire->SetPoint2(to);
        wire->SetNet(net);
        return wire;
    }

    TGraphicsJunctionItem* PlaceJunction(const QPointF& at)
    {
        auto* junction = Place<TGraphicsJunctionItem>(at);
        junction->SetLayer(oldLayer);
        junction->SetSize(2, 2);
        return junction;
    }
};

/** Moves four wires of each chain. The loop knows the chains, and needs no lookup. */
class MovingWires : public OneCommandEdit
{
public:
    MovingWires(Shelf& shelf, int size)
        : network(shelf.Get<Network>("network", size, [size] { return std::make_unique<Network>(size); }))
    {
        for (const Chain& chain : network.chains) {
            wires << chain.a << chain.b << chain.c << chain.d;
        }
        vias.reserve(2 * network.chains.size());
    }

    void ReadAll() override
    {
        for (const TGraphicsWireItem* wire : qAsConst(wires)) {
            benchmark::DoNotOptimize(wire->LastLink());
        }
    }

    void Loop() override
    {
        vias.clear();
        for (const Chain& chain : network.chains) {
            for (TGraphicsWireItem* wire : {chain.a, chain.b, chain.c, chain.d}) {
                wire->SetLayer(newLayer);
            }
            chain.a->Unlink(LinkEnd::First);
            chain.movingJunction->SetLayer(newLayer);

            TGraphicsViaItem* atJunction = PlaceVia(chain.c->ScenePoint(LinkEnd::Last));
            for (TGraphicsWireItem* wire : {chain.c, chain.d, chain.branch}) {
                wire->ReplaceLinkedItem(chain.junction, atJunction);
                chain.junction->RemoveLinkedSection(wire);
                atJunction->AddLinkedWire(wire);
            }

            TGraphicsViaItem* between = PlaceVia(chain.d->ScenePoint(LinkEnd::Last));
            chain.d->LinkToLast(between);
            chain.staying->LinkToFirst(between);
        }
        for (const Chain& chain : network.chains) {
            chain.junction->Detach();
        }
    }

    void LoopBack() override
    {
        for (const Chain& chain : network.chains) {
            for (TGraphicsWireItem* wire : {chain.a, chain.b, chain.c, chain.d}) {
                wire->SetLayer(oldLayer);
            }
        }
        for (std::size_t i = network.chains.size(); i-- > 0;) {
            const Chain& chain = network.chains[i];
            chain.d->LinkToLast(chain.staying);
            vias[2 * i + 1]->Detach();
            delete vias[2 * i + 1];
        }
        for (std::size_t i = network.chains.size(); i-- > 0;) {
            network.chains[i].movingJunction->SetLayer(oldLayer);
            network.chains[i].a->LinkToFirst(network.chains[i].pad);
        }
        for (std::size_t i = 0; i < network.chains.size(); ++i) {
            const Chain& chain = network.chains[i];
            for (TGraphicsWireItem* wire : {chain.c, chain.d, chain.branch}) {
                wire->ReplaceLinkedItem(vias[2 * i], chain.junction);
                vias[2 * i]->RemoveLinkedWire(wire);
                chain.junction->AddLinkedSection(wire);
            }
            chain.junction->AttachTo(network.Scene());
        }
        for (std::size_t i = 0; i < network.chains.size(); ++i) {
            vias[2 * i]->Detach();
            delete vias[2 * i];
        }
    }

    void Settle() override { network.Settle(); }
    QString State() override { return SortedState(network); }

private:
    Command MakeCommand() const override { return std::make_unique<TCmdWireLayer>(&network.project, wires, newLayer); }

    TGraphicsViaItem* PlaceVia(const QPointF& at)
    {
        TGraphicsViaItem* via = nullptr;
        if (vias.empty()) {
            via = new TGraphicsViaItem;
            via->SetSize(Units::SceneFromMillimetres(1.0), Units::SceneFromMillimetres(1.0));
            via->SetDrill(static_cast<float>(Units::SceneFromMillimetres(0.6)));
        } else {
            via = static_cast<TGraphicsViaItem*>(vias.front()->CreateCopy());
        }
        via->setPos(at);
        via->AttachTo(network.Scene());
        vias.push_back(via);
        return via;
    }

    Network& network;
    QList<TGraphicsWireItem*> wires;
    std::vector<TGraphicsViaItem*> vias; ///< Two of each chain, between the loop and its undo.
};

} // namespace

void AddWireLayer(Shelf& shelf)
{
    RegisterEdit(
        "TCmdWireLayer", [&shelf](int size) { return std::make_unique<MovingWires>(shelf, size); }, AllSizes(100'000));
}

} // namespace Bench
