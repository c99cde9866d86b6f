#include "benchmarks/support/Edits.h"

#include "benchmarks/support/Ratios.h"

#include <application/TBoard.h>

#include <algorithm>

namespace Bench {

namespace {

void ExpectSame(const std::string& name, const char* what, const QString& actual, const QString& expected)
{
    if (actual == expected) {
        return;
    }
    const QStringList actualLines = actual.split('\n');
    const QStringList expectedLines = expected.split('\n');
    for (int i = 0; i < std::max(actualLines.size(), expectedLines.size()); ++i) {
        if (actualLines.value(i) != expectedLines.value(i)) {
            qFatal("%s: %s: '%s' is not '%s'", name.c_str(), what, qPrintable(actualLines.value(i)),
                   qPrintable(expectedLines.value(i)));
        }
    }
}

/** Checks that the command does the same as the loop, that this changes anything, and that both undo it equally: if an
 *  undo does not restore everything, neither does its loop. */
void Check(const std::string& name, Edit& edit)
{
    const QString before = edit.State();
    edit.Loop();
    const QString after = edit.State();
    edit.LoopBack();
    const QString takenBack = edit.State();
    if (after == before || after == takenBack) {
        qFatal("%s: the loop changes nothing", name.c_str());
    }
    edit.Redo();
    ExpectSame(name, "redone", edit.State(), after);
    edit.Undo();
    ExpectSame(name, "undone", edit.State(), takenBack);
    edit.Settle();
}

} // namespace

void ManyCommandsEdit::Redo()
{
    for (const Command& command : commands) {
        command->redo();
    }
}

void ManyCommandsEdit::Undo()
{
    for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
        (*command)->undo();
    }
}

std::vector<Command> OneCommandEdit::MakeCommands() const
{
    std::vector<Command> one;
    one.push_back(MakeCommand());
    return one;
}

std::vector<int> AllSizes(int largest)
{
    std::vector<int> sizes;
    for (int size = 100; size <= largest; size *= 10) {
        sizes.push_back(size);
    }
    return sizes;
}

void RegisterEdit(const std::string& name, const MakeEdit& make, const std::vector<int>& sizes)
{
    const auto round = [name, make](int size) {
        const std::unique_ptr<Edit> edit = make(size);
        edit->Prepare();
        constexpr int small = 100;
        if (size <= small) {
            Check(name, *edit);
        }
        const auto secondsOf = [&edit](void (Edit::*step)()) {
            edit->ReadAll();
            const double seconds = SecondsOf([&] { ((*edit).*step)(); });
            edit->Discard();
            edit->Settle();
            return seconds / edit->Selections();
        };
        return MedianOfRounds([&] {
            // Twice, so that the loop and redo both come after it.
            const double construct = secondsOf(&Edit::Construct);
            const double loop = secondsOf(&Edit::Loop);
            const double loopBack = secondsOf(&Edit::LoopBack);
            const double constructAgain = secondsOf(&Edit::Construct);
            const double redo = secondsOf(&Edit::Redo);
            const double undo = secondsOf(&Edit::Undo);
            return Times{loop, loopBack, (construct + constructAgain) / 2, redo, undo};
        });
    };
    Register(name, {"loop", "loop back", "construct", "redo", "undo"}, sizes, round);
}

QString SortedState(const TBoard& board)
{
    QStringList lines = board.Dump().split('\n');
    lines.sort();
    return lines.join('\n');
}

} // namespace Bench
