#include "properties/commands/TCmdNet.h"
#include "tests/commands/ContextTable.h"
#include "tests/commands/LawRows.h"
#include "tests/commands/ProjectLawTable.h"
#include "tests/support/LineDifferences.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

#include <bitset>

using Test::Context;
using Test::ContextLaw;
using Test::Given;
using Test::LineDifferences;
using Test::ProjectLaw;
using Test::WholeProject;
using Test::Without;

namespace {

constexpr std::array<Context, 3> allContexts = {Context::Board, Context::View, Context::Schematic};
constexpr std::array<std::size_t, 2> bothOfAKind = {0, 1};

/** A project that parts are taken from and given back to, with the states that a command makes of it undisturbed. */
class Session
{
public:
    Session(const ProjectLaw& law, std::size_t index) : given(&project, index)
    {
        project.Model().SetNetClass("A", "Default");
        project.sheet.SetNetColor("A", Qt::blue);
        TCmdNetColorPcb("A", Qt::yellow, &project.project).redo();
        before = State();
        const auto undisturbed = law.make(given);
        undisturbed->redo();
        redone = State();
        undisturbed->undo();
    }

    /** Sorted, since every command makes items of its own. */
    QString State() const
    {
        QStringList lines = project.State().values();
        lines.sort();
        return lines.join('\n');
    }

    void Put(Context context, bool isThere)
    {
        switch (context) {
        case Context::Board: project.project.SetBoard(isThere ? &project.board : nullptr); break;
        case Context::View: project.board.SetView(isThere ? &project.view : nullptr); break;
        case Context::Schematic: project.project.SetSchematic(isThere ? &project.sheet : nullptr); break;
        }
    }

    /** Redo or undo, with a part of the project there or missing. Afterwards it is there. */
    void Step(TUndoCommand& command, bool isRedo, Context context, bool isThere)
    {
        Put(context, isThere);
        if (isRedo) {
            command.redo();
        } else {
            command.undo();
        }
        Put(context, true);
    }

    WholeProject project;
    Given given;
    QString before;
    QString redone;
};

const ProjectLaw& CurrentLaw()
{
    return Test::CurrentRowOf(Test::ProjectLawTable());
}

/** What is expected after a step, from what the state was before it. */
QString Expected(const Session& session, bool isRedo, bool acts, const QString& former)
{
    return !acts ? former : isRedo ? session.redone : session.before;
}

} // namespace

/** What commands do while the board, its view or the schematic is missing that they act on. */
class TestContexts : public QObject
{
    Q_OBJECT

private slots:
    void tableNamesCommandsOnce()
    {
        QStringList known;
        for (const ProjectLaw& law : Test::ProjectLawTable()) {
            known.append(law.name);
        }
        for (const ContextLaw& law : Test::ContextTable()) {
            QVERIFY2(known.removeOne(law.name), qPrintable(law.name));
        }
    }

    // Redo, undo, redo, undo, with a part of the project missing at any of them: what could not act changes nothing and
    // is not undone, and whatever acts with all there comes to the state that it always comes to.
    void comesAndGoes_data() { Test::AddRowForEach(Test::ProjectLawTable()); }
    void comesAndGoes()
    {
        const ContextLaw contexts = Test::ContextLawOf(CurrentLaw().name);
        for (const std::size_t index : bothOfAKind) {
            Session session(CurrentLaw(), index);
            for (const Context context : allContexts) {
                const unsigned patterns = contexts.While(context) == Without::Acts ? 1 : 16;
                for (unsigned pattern = 0; pattern < patterns; ++pattern) {
                    const QString fault = FaultOf(session, contexts, context, std::bitset<4>(pattern));
                    QVERIFY2(fault.isEmpty(), qPrintable(fault));
                }
            }
        }
    }

    // Something acts where there is a rest to act on, and something is left out.
    void actsOnTheRest_data() { Test::AddRowForEach(Test::ProjectLawTable()); }
    void actsOnTheRest()
    {
        const ContextLaw contexts = Test::ContextLawOf(CurrentLaw().name);
        for (const Context context : allContexts) {
            bool acts = false;
            bool leavesOut = false;
            for (const std::size_t index : bothOfAKind) {
                Session session(CurrentLaw(), index);
                const auto command = CurrentLaw().make(session.given);
                session.Step(*command, true, context, false);
                acts = acts || session.State() != session.before;
                leavesOut = leavesOut || session.State() != session.redone;
            }
            if (contexts.While(context) == Without::ActsOnTheRest) {
                QVERIFY(acts);
                QVERIFY(leavesOut);
            }
        }
    }

    void missingWhenMade_data() { Test::AddRowForEach(Test::ProjectLawTable()); }
    void missingWhenMade()
    {
        const ContextLaw contexts = Test::ContextLawOf(CurrentLaw().name);
        for (const std::size_t index : bothOfAKind) {
            Session session(CurrentLaw(), index);
            for (const Context context : allContexts) {
                session.Put(context, false);
                const auto command = CurrentLaw().make(session.given);
                session.Put(context, true);
                const bool acts = !contexts.isMadeFrom.contains(context);
                for (const bool isRedo : {true, false, true, false}) {
                    session.Step(*command, isRedo, context, true);
                    QCOMPARE(session.State(), Expected(session, isRedo, acts, session.before));
                }
            }
        }
    }

    void nullWhenMade_data() { Test::AddRowForEach(Test::ProjectLawTable()); }
    void nullWhenMade()
    {
        const Without without = Test::ContextLawOf(CurrentLaw().name).documents;
        for (const std::size_t index : bothOfAKind) {
            Session session(CurrentLaw(), index);
            const auto command = CurrentLaw().make(session.given.WithoutDocuments());
            for (const bool isRedo : {true, false, true, false}) {
                session.Step(*command, isRedo, Context::Board, true);
                if (without != Without::ActsOnTheRest) {
                    QCOMPARE(session.State(), Expected(session, isRedo, without == Without::Acts, session.before));
                }
                QCOMPARE(session.project.LinkFaults(), QString());
            }
        }
    }

private:
    /** What goes wrong in four steps, of which the bits say whether the part is there. Ends as it began. */
    static QString FaultOf(Session& session, const ContextLaw& contexts, Context context, std::bitset<4> isThere)
    {
        const auto command = CurrentLaw().make(session.given);
        QString former = session.before;
        for (std::size_t step = 0; step < 6; ++step) {
            const bool isRedo = step % 2 == 0;
            const bool there = step >= isThere.size() || isThere[step];
            session.Step(*command, isRedo, context, there);
            const QString state = session.State();
            const bool isKnown = there || contexts.While(context) != Without::ActsOnTheRest;
            const bool acts = there || contexts.While(context) == Without::Acts;
            const QString fault =
                session.project.LinkFaults()
                + (isKnown ? LineDifferences(state, Expected(session, isRedo, acts, former)) : QString());
            if (!fault.isEmpty()) {
                return QStringLiteral("part %1, there %2, step %3:\n%4")
                    .arg(static_cast<int>(context))
                    .arg(QString::fromStdString(isThere.to_string()))
                    .arg(step)
                    .arg(fault);
            }
            former = state;
        }
        return {};
    }
};

PROPERTIES_TEST(TestContexts)
#include "tst_contexts.moc"
