#include "tests/commands/LawRows.h"
#include "tests/commands/ProjectLawTable.h"
#include "tests/laws/LawTable.h"
#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include <QSet>
#include <QUndoStack>

using Test::Given;
using Test::ProjectLaw;
using Test::ProjectState;
using Test::WholeProject;

namespace {

/** A project with commands of one law over it. */
struct Session
{
    explicit Session(const ProjectLaw& tested) : law(tested), before(project.State()) {}

    std::unique_ptr<TUndoCommand> Make(std::size_t index) { return law.make(Given(&project, index)); }
    std::unique_ptr<TUndoCommand> MakeOfNothing() const { return law.make(Given(nullptr, 0)); }

    const ProjectLaw& law;
    WholeProject project;
    const ProjectState before;
};

const ProjectLaw& CurrentLaw()
{
    return Test::CurrentRowOf(Test::ProjectLawTable());
}

void EachCommand()
{
    Test::AddRowForEach(Test::ProjectLawTable());
}

/** The lines of one state that are not in the other, as they are and as they were. */
QString Differences(const ProjectState& is, const ProjectState& was)
{
    QString differences;
    ProjectState all = was;
    for (auto line = is.cbegin(); line != is.cend(); ++line) {
        all.insert(line.key(), *line);
    }
    for (const QString& key : all.keys()) {
        if (is.value(key) != was.value(key)) {
            differences += QStringLiteral("\nis  %1\nwas %2").arg(is.value(key), was.value(key));
        }
    }
    return differences;
}

/** The state with what the command asks the application to open. */
ProjectState WithAsked(ProjectState state, const TUndoCommand& command)
{
    const QString part = command.PartToOpen() ? command.PartToOpen()->Name() : QString();
    const QString line = TStateText("asks").Add("part", part).Add("page", command.PageToOpen()).Line();
    state.insert(QStringLiteral("asks"), line);
    return state;
}

} // namespace

class TestProjectLaws : public QObject
{
    Q_OBJECT

private slots:
    void tableHasNoCommandTwice()
    {
        QSet<QString> names;
        for (const ProjectLaw& law : Test::ProjectLawTable()) {
            QVERIFY2(!names.contains(law.name), qPrintable(law.name));
            names.insert(law.name);
        }
        for (const Test::CommandLaw& law : Test::LawTable()) {
            QVERIFY2(!names.contains(law.name), qPrintable(law.name));
        }
    }

    void hasItsIdAndNothingElse_data() { EachCommand(); }
    void hasItsIdAndNothingElse()
    {
        Session session(CurrentLaw());
        for (const auto& command : {session.Make(0), session.MakeOfNothing()}) {
            QCOMPARE(command->id(), session.law.id);
            QCOMPARE(command->Categories(), session.law.categories);
            QCOMPARE(command->text(), QString());
            QCOMPARE(command->childCount(), 0);
            QVERIFY(!command->isObsolete());
        }
        QCOMPARE(session.law.hasMergeRule, session.law.id != -1);
    }

    void makingItChangesNothing_data() { EachCommand(); }
    void makingItChangesNothing()
    {
        Session session(CurrentLaw());
        const auto command = session.Make(0);
        QCOMPARE(Differences(session.project.State(), session.before), QString());
    }

    void undoBeforeRedoDoesNothing_data() { EachCommand(); }
    void undoBeforeRedoDoesNothing()
    {
        Session session(CurrentLaw());
        session.Make(0)->undo();
        QCOMPARE(Differences(session.project.State(), session.before), QString());
    }

    void touchesWhatItSaysAndBringsItBack_data() { EachCommand(); }
    void touchesWhatItSaysAndBringsItBack()
    {
        QSet<QString> touched;
        for (const std::size_t index : {std::size_t(0), std::size_t(1)}) {
            Session session(CurrentLaw());
            const auto command = session.Make(index);
            const ProjectState before = WithAsked(session.before, *command);
            command->redo();
            const ProjectState redone = session.project.State();
            touched += Test::Touched(before, WithAsked(redone, *command));
            QCOMPARE(session.project.LinkFaults(), QString());
            for (int round = 0; round < 2; ++round) {
                command->undo();
                QCOMPARE(Differences(session.project.State(), session.before), QString());
                QCOMPARE(session.project.LinkFaults(), QString());
                command->redo();
                QCOMPARE(Differences(session.project.State(), redone), QString());
                QCOMPARE(session.project.LinkFaults(), QString());
            }
        }
        QStringList all = touched.values();
        all.sort();
        QCOMPARE(all.join(' '), CurrentLaw().touched.join(' '));
    }

    // Neither items nor a project: what a caller may hold when the selection is gone.
    void madeOfNothingDoesNothing_data() { EachCommand(); }
    void madeOfNothingDoesNothing()
    {
        Session session(CurrentLaw());
        const auto command = session.MakeOfNothing();
        command->redo();
        command->undo();
        command->redo();
        QCOMPARE(Differences(session.project.State(), session.before), QString());
    }

    void stackGoesToAnyIndexAndIsClearedThere_data() { EachCommand(); }
    void stackGoesToAnyIndexAndIsClearedThere()
    {
        for (int cleared = 0; cleared <= 2; ++cleared) {
            Session session(CurrentLaw());
            QUndoStack stack;
            QVector<ProjectState> states{session.before};
            for (const std::size_t index : {std::size_t(0), std::size_t(1)}) {
                stack.push(session.Make(index).release());
                states.append(session.project.State());
            }
            QCOMPARE(stack.count(), 2); // Nothing is merged.
            for (const int index : {0, 2, 1, 0, 1, 2, cleared}) {
                stack.setIndex(index);
                QCOMPARE(Differences(session.project.State(), states[index]), QString());
            }
            stack.clear();
            QCOMPARE(Differences(session.project.State(), states[cleared]), QString());
            QCOMPARE(session.project.LinkFaults(), QString());
        }
    }

    // The address sanitizer watches.
    void isDestroyedAfterItsProject_data() { EachCommand(); }
    void isDestroyedAfterItsProject()
    {
        std::unique_ptr<TUndoCommand> done;
        std::unique_ptr<TUndoCommand> undone;
        {
            Session session(CurrentLaw());
            undone = session.Make(0);
            undone->redo();
            undone->undo();
            done = session.Make(1);
            done->redo();
        }
        QCOMPARE(done->id(), CurrentLaw().id); // What is left can still be asked, and destroyed.
        done.reset();
        undone.reset();
    }
};

PROPERTIES_TEST(TestProjectLaws)
#include "tst_project_laws.moc"
