#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdWire.h"

#include <objects/TGraphicsViaItem.h>

namespace Bench {

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

constexpr double length = 20;

/** Pairs of wires, each pair on a net of its own, linked head to tail, and the last end of the second with a via. */
class WirePairs : public ShownBoard
{
public:
    struct Pair
    {
        TGraphicsWireItem* first;
        TGraphicsWireItem* second;
    };

    explicit WirePairs(int count)
    {
        for (int number = 0; number < count; ++number) {
            const QPointF at = GridPoint(number);
            const QString net = QStringLiteral("N%1").arg(number);
            TGraphicsWireItem* first = PlaceWire(at, net);
            TGraphicsWireItem* second = PlaceWire(at + QPointF(length, 0), net);
            first->LinkToLast(second);
            auto* via = Place<TGraphicsViaItem>(at + QPointF(2 * length, 0));
            via->SetSize(length / 2, length / 2);
            second->LinkToLast(via);
            pairs.push_back({first, second});
        }
        Settle();
    }

    const std::vector<Pair>& Pairs() const { return pairs; }

private:
    TGraphicsWireItem* PlaceWire(const QPointF& from, const QString& net)
    {
        auto* wire = Place<TGraphicsWireItem>({});
        wire->SetLayer(Osmirel::CopperTop);
        wire->SetPenWidth(2);
        wire->SetPoint1(from);
        wire->SetPoint2(from + QPointF(length, 0));
        wire->SetNet(net);
        return wire;
    }

    std::vector<Pair> pairs;
};

class PairsEdit : public ManyCommandsEdit
{
public:
    PairsEdit(Shelf& shelf, int size)
        : board(shelf.Get<WirePairs>("wire pairs", size, [size] { return std::make_unique<WirePairs>(size); }))
    {}

    void ReadAll() override
    {
        for (const WirePairs::Pair& pair : board.Pairs()) {
            benchmark::DoNotOptimize(pair.first->LastLink());
            benchmark::DoNotOptimize(pair.second->LastLink());
        }
    }

    void Settle() override { board.Settle(); }
    QString State() override { return SortedState(board); }

protected:
    WirePairs& board;
};

/** Splits the second wires in their middle. */
class Splitting : public PairsEdit
{
public:
    using PairsEdit::PairsEdit;

    void Loop() override
    {
        for (const auto& [first, wire] : board.Pairs()) {
            const QPointF middle = wire->SceneLine().center();
            auto* added = static_cast<TGraphicsWireItem*>(wire->CreateCopy());
            added->AttachTo(board.Scene());
            wire->SetPoint2(middle);
            added->SetPoint1(middle);
            TGraphicsItem* last = wire->LastLink();
            added->SetLastLink(last);
            last->ReplaceLinkedItem(wire, added);
            wire->SetLastLink(added);
            added->SetFirstLink(wire);
        }
    }

    void LoopBack() override
    {
        for (auto pair = board.Pairs().rbegin(); pair != board.Pairs().rend(); ++pair) {
            TGraphicsWireItem* wire = pair->second;
            auto* added = static_cast<TGraphicsWireItem*>(wire->LastLink());
            wire->SetPoint2(added->Point2());
            TGraphicsItem* last = added->LastLink();
            wire->SetLastLink(last);
            last->ReplaceLinkedItem(added, wire);
            added->SetFirstLink(nullptr);
            added->SetLastLink(nullptr);
            added->Detach();
            delete added;
        }
    }

protected:
    std::vector<Command> MakeCommands() const override
    {
        std::vector<Command> made;
        for (const auto& [first, wire] : board.Pairs()) {
            made.push_back(std::make_unique<TCmdWireAddNode>(wire, wire->SceneLine().center()));
        }
        return made;
    }
};

/** Joins the wires of each pair. */
class Joining : public PairsEdit
{
public:
    using PairsEdit::PairsEdit;

    void Loop() override
    {
        for (const auto& [kept, removed] : board.Pairs()) {
            TGraphicsItem* last = removed->LastLink();
            kept->SetPoint2(removed->Point2());
            kept->Unlink(LinkEnd::Last);
            removed->Unlink(LinkEnd::Last);
            kept->LinkToLast(last);
            removed->Detach();
        }
    }

    void LoopBack() override
    {
        for (auto pair = board.Pairs().rbegin(); pair != board.Pairs().rend(); ++pair) {
            const auto& [kept, removed] = *pair;
            removed->AttachTo(board.Scene());
            kept->SetPoint2(removed->Point1());
            TGraphicsItem* last = kept->LastLink();
            last->ReplaceLinkedItem(kept, removed);
            removed->SetLastLink(last);
            kept->SetLastLink(removed);
            removed->SetFirstLink(kept);
        }
    }

protected:
    std::vector<Command> MakeCommands() const override
    {
        std::vector<Command> made;
        for (const auto& [kept, removed] : board.Pairs()) {
            made.push_back(std::make_unique<TCmdWireDelNode>(kept, removed));
        }
        return made;
    }
};

} // namespace

void AddWires(Shelf& shelf)
{
    AddAttribute<TCmdWireWidth>(shelf, "TCmdWireWidth", Kind::Wire, 20.0);
    const std::vector<int> sizes = AllSizes(100'000);
    RegisterEdit(
        "TCmdWireAddNode", [&shelf](int size) { return std::make_unique<Splitting>(shelf, size); }, sizes);
    RegisterEdit(
        "TCmdWireDelNode", [&shelf](int size) { return std::make_unique<Joining>(shelf, size); }, sizes);
}

} // namespace Bench
