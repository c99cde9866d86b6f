#include "tests/support/RandomCases.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/FreePads.h"
#include "tests/workbench/editing/PanelSession.h"
#include "workbench/design/LoadDesign.h"

#include <QtTest>

#include <algorithm>
#include <ostream>
#include <vector>

namespace {

/** What is done next. The numbers are taken modulo what there is, so that every step can be done and dropped. */
struct Step
{
    int action;
    int what;
    int value;
    int spread;
};

enum Action : int { Select, Replace, Undo, Redo, Bypass, Edit };

// Of twelve steps six edit.
constexpr Action actions[] = {Edit, Select, Undo, Edit, Redo, Edit, Select, Edit, Undo, Edit, Replace, Edit, Bypass};

Action ActionOf(const Step& step)
{
    return actions[static_cast<std::size_t>(step.action) % std::size(actions)];
}

void showValue(const Step& step, std::ostream& stream)
{
    constexpr const char* names[] = {"Select", "Replace", "Undo", "Redo", "Bypass", "Edit"};
    stream << names[ActionOf(step)] << '(' << step.what << ", " << step.value << ", " << step.spread << ')';
}

std::ostream& operator<<(std::ostream& stream, const Step& step)
{
    showValue(step, stream);
    return stream;
}

const QStringList texts{"1", "", "A1", "say \"x\" \\ ", "1", QString::fromUtf8("\xCE\xA9 7")};

std::unique_ptr<TDesign> SampleWithFreePads()
{
    auto design = std::make_unique<TDesign>(ImportBoard(SampleBoardFile()));
    Test::FreePads(*design->Board(), 2);
    return design;
}

/** A board that is edited step by step. */
class Run
{
public:
    Run(Test::PanelWindow& window, QSet<QString>& usedEditors)
        : session(SampleWithFreePads(), window), used(usedEditors)
    {}

    void Do(const Step& step)
    {
        switch (ActionOf(step)) {
        case Select: selection = Pick(step); [[fallthrough]];
        case Replace: session.Show(selection); break;
        case Undo: session.Undo(); break;
        case Redo: session.Redo(); break;
        case Bypass: ToggleBypass(step); break;
        case Edit: EditCell(step); break;
        }
    }

    QString Disagreement() const { return session.Disagreement(); }

private:
    /** Items of one to three kinds, some in a row or spread over the board, in their order or backwards. */
    QVector<int> Pick(const Step& step) const
    {
        const QStringList kinds{"pad", "via", "hole"};
        const int mask = step.what % 7 + 1;
        QVector<int> candidates;
        for (int item = 0; item < session.ItemCount(); ++item) {
            const int kind = kinds.indexOf(session.Model().Kind(item));
            if (kind >= 0 && (mask >> kind & 1) != 0) {
                candidates.append(item);
            }
        }
        QVector<int> picked;
        const int count = step.spread % 6 == 5 ? candidates.size() : step.spread % 6 + 1;
        const int stride = step.spread / 6 + 1;
        for (int i = 0; i < count && !candidates.isEmpty(); ++i) {
            const int item = candidates[(step.value + i * stride) % candidates.size()];
            if (!picked.contains(item)) {
                picked.append(item);
            }
        }
        if (step.value % 2 == 1) {
            std::reverse(picked.begin(), picked.end());
        }
        return picked;
    }

    void ToggleBypass(const Step& step)
    {
        if (!selection.isEmpty()) {
            // Mostly the first one's flag, on which it depends how all are edited.
            const int item = selection[step.what % 4 == 0 ? step.value % selection.size() : 0];
            session.SetBypass(item, !session.Model().Bypasses(item));
        }
    }

    void EditCell(const Step& step)
    {
        const auto& cells = session.Model().Cells();
        QVector<int> editable;
        for (std::size_t cell = 0; cell < cells.size(); ++cell) {
            if (cells[cell].CanBeEdited()) {
                editable.append(static_cast<int>(cell));
            }
        }
        if (editable.isEmpty()) {
            return;
        }
        const int index = editable[step.what % editable.size()];
        const Test::ModelCell& cell = cells[static_cast<std::size_t>(index)];
        const bool direct = session.Model().Bypasses(selection.first());
        used.insert(session.Model().Kind(selection.first()) + ' ' + cell.name + (direct ? " direct" : ""));
        switch (cell.kind) {
        case Test::ModelCell::Kind::Number: {
            // Over the whole range and a little beyond, more often small than large.
            const double unit = cell.decimals == 1 ? 10 : 100;
            session.Enter(index, step.value * (step.spread % 4 == 0 ? 5 : 1) / unit);
            break;
        }
        case Test::ModelCell::Kind::Choice: session.Choose(index, step.value % cell.options.size()); break;
        case Test::ModelCell::Kind::Box: session.Click(index); break;
        case Test::ModelCell::Kind::Text: session.Type(index, texts[step.value % texts.size()]); break;
        }
    }

    Test::PanelSession session;
    QSet<QString>& used;
    QVector<int> selection;
};

/** All editors that there are, each with an undo step and without. */
QSet<QString> Editors()
{
    QSet<QString> editors;
    for (const char* editor :
         {"via Diameter:", "via Drill:", "via Thermal:", "via Drill pair:", "via Mask:", "via Mask:check",
          "pad Number:", "pad Size (W x H):width", "pad Size (W x H):height",
          "pad Type:", "pad Drill:", "pad Side:", "pad Shape:", "pad Thermal:", "pad Mask:", "pad Mask:check",
          "pad Paste:", "pad Paste:check", "hole Diameter:"}) {
        editors << editor << QLatin1String(editor) + QStringLiteral(" direct");
    }
    return editors;
}

QStringList Sorted(const QSet<QString>& names)
{
    QStringList sorted(names.cbegin(), names.cend());
    sorted.sort();
    return sorted;
}

/** Of a case; half as many on average. */
rc::Gen<std::vector<Step>> Steps()
{
    return Test::UpTo(60, rc::gen::build<Step>(rc::gen::set(&Step::action, rc::gen::inRange(0, 130)),
                                               rc::gen::set(&Step::what, rc::gen::inRange(0, 1000)),
                                               rc::gen::set(&Step::value, rc::gen::inRange(0, 2500)),
                                               rc::gen::set(&Step::spread, rc::gen::inRange(0, 60))));
}

} // namespace

class TestRandomEditing : public QObject
{
    Q_OBJECT

private slots:
    void sampleHasEveryKind()
    {
        const auto board = ImportBoard(SampleBoardFile()).board;
        QVERIFY(board);
        const QString dump = '\n' + board->Dump();
        for (const char* kind : {"\nvia ", "\npad ", "\nhole ", "\npackage "}) {
            QVERIFY2(dump.contains(kind), kind);
        }
    }

    void panelDoesWhatTheModelSays()
    {
        const bool isUsual = Test::TriesUsualCases(200);
        Test::PanelWindow window;
        QSet<QString> used;
        const auto editingFollowsTheModel = [&window, &used] {
            const std::vector<Step> steps = *Steps();
            Run run(window, used);
            for (const Step& step : steps) {
                run.Do(step);
                const QString disagreement = run.Disagreement();
                if (!disagreement.isEmpty()) {
                    RC_LOG() << "after " << step << '\n' << disagreement.toStdString();
                    RC_FAIL("the library and the model disagree");
                }
            }
        };
        QVERIFY(
            rc::check("board, undo stack and panel are those of the model after every step", editingFollowsTheModel));
        if (isUsual) {
            QVERIFY2((Editors() - used).isEmpty(), qPrintable(Sorted(Editors() - used).join(", ")));
        }
    }
};

PROPERTIES_TEST(TestRandomEditing)
#include "tst_random_editing.moc"
