#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdNetTie.h"

#include <application/TProject.h>
#include <application/TSchematic.h>

namespace Bench {

namespace {

/** The ties of a board, in a project. */
struct TiesOfBoard
{
    using Tie = TGraphicsNetTiePcbItem;

    explicit TiesOfBoard(int count) : board(Kind::NetTie, count)
    {
        project.SetBoard(&board);
        for (TGraphicsItem* item : board.Made()) {
            ties.append(static_cast<Tie*>(item));
        }
    }

    QString State() const { return SortedState(board); }

    BenchBoard board;
    TProject project; // Destroyed before the board.
    QList<Tie*> ties;
};

/** The symbols of a schematic. */
struct TiesOfSchematic
{
    using Tie = TGraphicsNetTieSchItem;

    explicit TiesOfSchematic(int count)
    {
        project.SetSchematic(&schematic);
        for (int number = 0; number < count; ++number) {
            const auto ofTie = static_cast<quint16>(number);
            auto tie = std::make_unique<Tie>();
            tie->setPos(GridPoint(number));
            tie->SetNumber(ofTie);
            tie->SetName(QStringLiteral("NT%1").arg(ofTie));
            tie->SetSymbol(ofTie % 2);
            ties.append(tie.get());
            page->Attach(std::move(tie));
        }
    }

    QString State() const
    {
        QString lines;
        for (const Tie* tie : ties) {
            lines += tie->StateLine() + '\n';
        }
        return lines;
    }

    TSchematic schematic;
    TSchematicPage* page = schematic.AddPage();
    ShownBoard board; // For its event loop.
    TProject project;
    QList<Tie*> ties;
};

/** Edits all ties of a document. The command looks them up, by number, among all items of the document. */
template <class Design, class NamedCommand, class Attribute>
class TieEdit : public OneCommandEdit
{
public:
    using Tie = typename Design::Tie;
    using Value = typename Attribute::Value;

    TieEdit(Design& ofTies, const Value& value) : design(ofTies), newValue(value)
    {
        for (const Tie* tie : qAsConst(design.ties)) {
            oldValues.append(Attribute::Read(*tie));
        }
    }

    void ReadAll() override
    {
        for (const Tie* tie : qAsConst(design.ties)) {
            benchmark::DoNotOptimize(Attribute::Read(*tie));
        }
    }

    void Loop() override
    {
        for (Tie* tie : qAsConst(design.ties)) {
            Attribute::Write(*tie, newValue);
        }
    }

    void LoopBack() override
    {
        auto oldValue = oldValues.cbegin();
        for (Tie* tie : qAsConst(design.ties)) {
            Attribute::Write(*tie, *oldValue++);
        }
    }

    void Settle() override { design.board.Settle(); }
    QString State() override { return design.State(); }

private:
    Command MakeCommand() const override
    {
        return std::make_unique<NamedCommand>(design.ties, newValue, &design.project);
    }

    Design& design;
    Value newValue;
    QVector<Value> oldValues;
};

template <class Design, class NamedCommand, class Attribute>
void Add(Shelf& shelf, const char* name, const typename Attribute::Value& value)
{
    RegisterEdit(name, [&shelf, value](int size) {
        constexpr bool ofBoard = std::is_same_v<Design, TiesOfBoard>;
        auto& design = shelf.Get<Design>(ofBoard ? "ties of a board" : "ties of a schematic", size,
                                         [size] { return std::make_unique<Design>(size); });
        return std::make_unique<TieEdit<Design, NamedCommand, Attribute>>(design, value);
    });
}

} // namespace

void AddNetTies(Shelf& shelf)
{
    const QString name = QStringLiteral("NT");
    Add<TiesOfBoard, TCmdNetTieName, Attributes::NetTieName>(shelf, "TCmdNetTieName", name);
    Add<TiesOfBoard, TCmdNetTieNameVis, Attributes::NetTieNameVisible>(shelf, "TCmdNetTieNameVis", false);
    Add<TiesOfBoard, TCmdNetTiePcbLayer, Attributes::NetTieLayer>(shelf, "TCmdNetTiePcbLayer", Osmirel::CopperBottom);
    Add<TiesOfBoard, TCmdNetTiePadSz, Attributes::NetTiePadSize>(shelf, "TCmdNetTiePadSz", 30.0);
    Add<TiesOfBoard, TCmdNetTieWireWidth, Attributes::NetTieWireWidth>(shelf, "TCmdNetTieWireWidth", 10.0);
    Add<TiesOfSchematic, TCmdNetTieName, Attributes::NetTieName>(shelf, "TCmdNetTieName (schematic)", name);
    Add<TiesOfSchematic, TCmdNetTieNameVis, Attributes::NetTieNameVisible>(shelf, "TCmdNetTieNameVis (schematic)",
                                                                           false);
    Add<TiesOfSchematic, TCmdNetTieSchSymbol, Attributes::NetTieSymbol>(shelf, "TCmdNetTieSchSymbol", 2);
}

} // namespace Bench
