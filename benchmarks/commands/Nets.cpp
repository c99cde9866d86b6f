#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdNet.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsRatLineItem.h>
#include <objects/TGraphicsWireItem.h>

#include <array>

namespace Bench {

namespace {

/** A board with its schematic. */
class NetBoard : public ShownBoard
{
public:
    NetBoard()
    {
        schematic.AddNetClass(QStringLiteral("Power"));
        project.SetSchematic(&schematic);
        project.SetBoard(this);
    }

    ~NetBoard()
    {
        project.SetBoard(nullptr);
        project.SetSchematic(nullptr);
    }
    NetBoard(const NetBoard&) = delete;
    NetBoard& operator=(const NetBoard&) = delete;

    TNetModel* Nets() { return schematic.NetModel(); }

    void AddNet(const QString& name) { Nets()->AddNet(name, QStringLiteral("Default"), QColor(), QColor(), 0); }

    TSchematic schematic;
    TProject project;
};

/** Nets of two pads that are not connected: each has one rat line. */
class Unrouted : public NetBoard
{
public:
    explicit Unrouted(int count)
    {
        for (int number = 0; number < count; ++number) {
            const QString net = QStringLiteral("N%1").arg(number);
            AddNet(net);
            names.append(net);
            for (const double y : {0.0, 20.0}) {
                auto* pad = Place<TGraphicsPadItem>(GridPoint(number) + QPointF(0, y));
                pad->SetSize(10, 10);
                pad->SetNet(net);
            }
        }
        Settle();
        const QList<TGraphicsItem*> items = Items();
        for (TGraphicsItem* item : items) {
            if (item->type() == ItemType::RatLine) {
                lines.push_back(static_cast<TGraphicsRatLineItem*>(item));
            }
        }
    }

    QStringList names;
    std::vector<TGraphicsRatLineItem*> lines; // As many as nets.
};

class NetsEdit : public ManyCommandsEdit
{
public:
    NetsEdit(Shelf& shelf, int size)
        : board(shelf.Get<Unrouted>("unrouted", size, [size] { return std::make_unique<Unrouted>(size); }))
    {}

    void ReadAll() override
    {
        for (const QString& name : qAsConst(board.names)) {
            benchmark::DoNotOptimize(board.Nets()->NetRow(name));
        }
    }

    void Settle() override { board.Settle(); }
    QString State() override { return SortedState(board) + board.Nets()->Dump(); }

protected:
    Unrouted& board;
};

/** Gives every net another class, with one command per net. */
class ChangingClass : public NetsEdit
{
public:
    using NetsEdit::NetsEdit;

    void Loop() override { SetAll(QStringLiteral("Power")); }
    void LoopBack() override { SetAll(QStringLiteral("Default")); }

private:
    void SetAll(const QString& netClass)
    {
        for (const QString& name : qAsConst(board.names)) {
            board.Nets()->SetNetClass(name, netClass);
        }
    }

    std::vector<Command> MakeCommands() const override
    {
        std::vector<Command> made;
        for (const QString& name : qAsConst(board.names)) {
            made.push_back(std::make_unique<TCmdNetClass>(name, QStringLiteral("Power"), &board.project));
        }
        return made;
    }
};

/** Gives all nets another priority with one command. */
class ChangingPriority : public NetsEdit
{
public:
    using NetsEdit::NetsEdit;

    void Loop() override { SetAll(QStringLiteral("3")); }
    void LoopBack() override { SetAll(QStringLiteral("0")); }

private:
    void SetAll(const QString& level)
    {
        for (const QString& name : qAsConst(board.names)) {
            board.Nets()->SetPriority(name, level);
        }
        for (TGraphicsRatLineItem* line : board.lines) {
            line->SetPriority(level);
        }
        board.RatPriority(-1);
    }

    std::vector<Command> MakeCommands() const override
    {
        std::vector<Command> one;
        one.push_back(std::make_unique<TCmdNetPrio>(board.names, QStringLiteral("3"), &board.project));
        return one;
    }
};

/** Alternating wires of two nets, all of a net linked head to tail. */
class TwoNets : public NetBoard
{
public:
    explicit TwoNets(int count)
    {
        std::array<TGraphicsWireItem*, 2> previousOf{};
        for (int number = 0; number < count; ++number) {
            const int net = number % 2;
            const QPointF at = GridPoint(number);
            auto* wire = Place<TGraphicsWireItem>({});
            wire->SetLayer(Osmirel::CopperTop);
            wire->SetPoint1(at);
            wire->SetPoint2(at + QPointF(20, 0));
            wire->SetNet(Name(net));
            TGraphicsWireItem*& previous = previousOf.at(static_cast<std::size_t>(net));
            if (previous) {
                previous->LinkToLast(wire);
            }
            previous = wire;
            if (net == 0) {
                ofFirst.push_back(wire);
            }
        }
        AddNet(Name(0));
        AddNet(Name(1));
        Settle();
    }

    static QString Name(int net) { return QStringLiteral("N%1").arg(net); }

    std::vector<TGraphicsItem*> ofFirst;
};

/** Colours one of two nets. The sizes are those of the board: half of its items are on the net. */
class Colouring : public OneCommandEdit
{
public:
    Colouring(Shelf& shelf, int size)
        : board(shelf.Get<TwoNets>("two nets", size, [size] { return std::make_unique<TwoNets>(size); }))
    {}

    void ReadAll() override
    {
        for (const TGraphicsItem* item : board.ofFirst) {
            benchmark::DoNotOptimize(item->AltColor());
        }
    }

    void Loop() override { SetAll(Qt::green); }
    void LoopBack() override { SetAll(QColor()); }
    void Settle() override { board.Settle(); }
    QString State() override { return SortedState(board) + board.Nets()->Dump(); }

private:
    void SetAll(const QColor& color)
    {
        board.Nets()->SetColorPcb(TwoNets::Name(0), color);
        for (TGraphicsItem* item : board.ofFirst) {
            item->SetAltColor(color);
        }
    }

    Command MakeCommand() const override
    {
        return std::make_unique<TCmdNetColorPcb>(TwoNets::Name(0), QColor(Qt::green), &board.project);
    }

    TwoNets& board;
};

} // namespace

void AddNets(Shelf& shelf)
{
    RegisterEdit("TCmdNetClass", [&shelf](int size) { return std::make_unique<ChangingClass>(shelf, size); });
    RegisterEdit("TCmdNetPrio", [&shelf](int size) { return std::make_unique<ChangingPriority>(shelf, size); });
    RegisterEdit("TCmdNetColorPcb", [&shelf](int size) { return std::make_unique<Colouring>(shelf, size); });
}

} // namespace Bench
