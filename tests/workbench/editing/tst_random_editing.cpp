#include "tests/support/RandomCases.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/editing/EditingSession.h"
#include "tests/workbench/support/FreePads.h"
#include "tests/workbench/support/SmallProject.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/editing/Kinds.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

#include <QtTest>

#include <algorithm>
#include <ostream>
#include <vector>

namespace {

using Items = QList<TGraphicsItem*>;

/** What is done next. The numbers are taken modulo what there is, so that every step can be done and dropped. */
struct Step
{
    int action;
    int what;
    int value;
    int spread;
};

enum Action : int { Select, Replace, Undo, Redo, Bypass, Edit, Law };

constexpr Action actions[] = {Edit,   Select, Undo, Law,  Edit, Redo,    Edit,
                              Select, Law,    Edit, Undo, Edit, Replace, Bypass};

Action ActionOf(const Step& step)
{
    return actions[static_cast<std::size_t>(step.action) % std::size(actions)];
}

void showValue(const Step& step, std::ostream& stream)
{
    constexpr const char* names[] = {"Select", "Replace", "Undo", "Redo", "Bypass", "Edit", "Law"};
    stream << names[ActionOf(step)] << '(' << step.what << ", " << step.value << ", " << step.spread << ')';
}

template <class Item, class Document>
Item* Add(Document& document)
{
    auto item = std::make_unique<Item>();
    Item* added = item.get();
    document.Attach(std::move(item));
    return added;
}

/** The sample's board, with some pads of no package, and small pages; and so much besides that every law has items. */
TImportResult Sample()
{
    TImportResult result = Test::MakeSchematic();
    result.board = ImportBoard(SampleBoardFile()).board;
    Test::FreePads(*result.board, 2);
    Add<TGraphicsKeepoutItem>(*result.board)->SetArea(QPolygonF(QRectF(0, 0, 40, 40)));
    TLayerManager& layers = *result.board->LayerManager();
    layers.AddDrillPair({QStringLiteral("Top - Bottom"), Osmirel::CopperTop, Osmirel::CopperBottom});
    layers.AddDrillPair({QStringLiteral("Top - Inner 1"), Osmirel::CopperTop, Osmirel::Copper2});

    TSchematicPage& page = *result.schematic->Pages().front();
    for (const char* name : {"CLK", "D"}) {
        auto* pin = Add<TGraphicsPinItem>(page);
        pin->SetName(QLatin1String(name));
        pin->NumberText()->SetText(QLatin1String("1"));
    }
    Add<TGraphicsPortItem>(page)->SetName(QStringLiteral("IN"), {});
    Add<TGraphicsTagItem>(page)->SetName(QStringLiteral("AUTHOR"), true);
    return result;
}

/** What all cases did together. */
struct Used
{
    QSet<QString> cells;
    QSet<QString> laws;
};

/** A design that is edited step by step. */
class Run
{
public:
    Run(Test::PanelWindow& window, Used& usedByAll) : session(Sample(), window, usedByAll.cells), used(usedByAll) {}

    void Do(const Step& step)
    {
        switch (ActionOf(step)) {
        case Select: session.Select(Pick(step)); break;
        case Replace: session.ShowNewSet(); break;
        case Undo: session.Undo(); break;
        case Redo: session.Redo(); break;
        case Bypass: session.ToggleBypass(step.what); break;
        case Edit: session.Edit(step.what, step.value); break;
        case Law: PushLaw(step); break;
        }
    }

    /** Edits each cell of the panel over two items of a kind, with and without an undo step. */
    void EditEachCell(const TKind& kind, int value)
    {
        Items items;
        for (TGraphicsItem* item : session.Items()) {
            if (Kinds::Of(*item) == &kind) {
                items.append(item);
            }
        }
        std::stable_partition(items.begin(), items.end(),
                              [](const TGraphicsItem* item) { return !item->parentItem(); });
        for (int times : {1, 2}) {
            session.Select(items.mid(0, 2));
            const int cells = session.CellCount();
            for (int cell = 0; cell < cells; ++cell) {
                session.Edit(cell, value * times);
                session.ShowNewSet();
            }
            session.ToggleBypass(1);
        }
    }

    void UndoAndRedoAll() { session.UndoAndRedoAll(); }
    const QString& Problem() const { return session.Problem(); }

private:
    /** Some in a row or spread over the candidates, in their order or backwards. */
    static Items Spread(const Items& candidates, const Step& step)
    {
        Items picked;
        const int count = step.spread % 6 == 5 ? std::min(candidates.size(), 60) : step.spread % 6 + 1;
        const int stride = step.spread / 6 + 1;
        for (int i = 0; i < count && !candidates.isEmpty(); ++i) {
            TGraphicsItem* item = candidates[(step.value + i * stride) % candidates.size()];
            if (!picked.contains(item)) {
                picked.append(item);
            }
        }
        if (step.value % 2 == 1) {
            std::reverse(picked.begin(), picked.end());
        }
        return picked;
    }

    /** Items of one kind, sometimes among those of another, all of one document. */
    Items Pick(const Step& step) const
    {
        const QVector<TKind>& kinds = Kinds::All();
        const TKind* kind = &kinds[step.what % kinds.size()];
        const TKind* other = step.spread % 4 == 0 ? &kinds[step.value % kinds.size()] : nullptr;
        Items candidates;
        for (TGraphicsItem* item : session.Items()) {
            const TKind* own = Kinds::Of(*item);
            const bool isSought = own == kind || (own && own == other && !candidates.isEmpty());
            if (isSought && (candidates.isEmpty() || item->Owner() == candidates.first()->Owner())) {
                candidates.append(item);
            }
        }
        return Spread(candidates, step);
    }

    /** A command over items that it keeps and items that it does not. */
    void PushLaw(const Step& step)
    {
        const auto& laws = Test::LawTable();
        const Test::CommandLaw& law = laws[static_cast<std::size_t>(step.what) % laws.size()];
        const Items all = session.Items();
        Items accepted;
        std::copy_if(all.cbegin(), all.cend(), std::back_inserter(accepted),
                     [&law](const TGraphicsItem* item) { return law.accepts(*item); });
        Items items = Spread(accepted, step);
        for (TGraphicsItem* item : Spread(all, step)) {
            if (!items.contains(item)) {
                items.insert(step.value % (items.size() + 1), item);
            }
        }
        used.laws.insert(law.name + QString::number(step.value % 2));
        session.PushLaw(law, step.value % 2, items);
    }

    Test::EditingSession session;
    Used& used;
};

/** Of a case; half as many on average. */
rc::Gen<std::vector<Step>> Steps()
{
    return Test::UpTo(60, rc::gen::build<Step>(rc::gen::set(&Step::action, rc::gen::inRange(0, 140)),
                                               rc::gen::set(&Step::what, rc::gen::inRange(0, 1000)),
                                               rc::gen::set(&Step::value, rc::gen::inRange(0, 2500)),
                                               rc::gen::set(&Step::spread, rc::gen::inRange(0, 60))));
}

} // namespace

class TestRandomEditing : public QObject
{
    Q_OBJECT

private slots:
    void sampleHasItemsForEveryLaw()
    {
        const TDesign design(Sample());
        const Items items = Test::ItemsOf(design);
        for (const Test::CommandLaw& law : Test::LawTable()) {
            const auto count = std::count_if(items.cbegin(), items.cend(),
                                             [&law](const TGraphicsItem* item) { return law.accepts(*item); });
            QVERIFY2(count >= 2, qPrintable(law.name));
        }
    }

    void everyCellIsAsTheLawsSay_data()
    {
        QTest::addColumn<int>("kind");
        for (int kind = 0; kind < Kinds::All().size(); ++kind) {
            if (Kinds::All()[kind].makeSet) {
                QTest::newRow(Kinds::All()[kind].many) << kind;
            }
        }
    }
    void everyCellIsAsTheLawsSay()
    {
        QFETCH(int, kind);
        Test::PanelWindow window;
        Used used;
        Run run(window, used);
        run.EditEachCell(Kinds::All()[kind], 107);
        run.UndoAndRedoAll();
        QVERIFY2(run.Problem().isEmpty(), qPrintable(run.Problem()));
    }

    void everyStepIsAsTheLawsSay()
    {
        const bool isUsual = Test::TriesUsualCases(50);
        Test::PanelWindow window;
        Used used;
        const auto editingKeepsTheLaws = [&window, &used] {
            const std::vector<Step> steps = *Steps();
            Run run(window, used);
            for (const Step& step : steps) {
                run.Do(step);
                if (!run.Problem().isEmpty()) {
                    showValue(step, RC_LOG() << "after ");
                    RC_LOG() << '\n' << run.Problem().toStdString();
                    RC_FAIL("a step is not as the laws say");
                }
            }
            run.UndoAndRedoAll();
            RC_LOG() << "undone and redone\n" << run.Problem().toStdString();
            RC_ASSERT(run.Problem().isEmpty());
        };
        QVERIFY(rc::check("what is edited, undone and redone is what the laws say", editingKeepsTheLaws));
        if (isUsual) {
            qInfo("%d cells and %d values of commands", used.cells.size(), used.laws.size());
        }
    }
};

PROPERTIES_TEST(TestRandomEditing)
#include "tst_random_editing.moc"
