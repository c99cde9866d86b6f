#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"

#include "properties/commands/TCmdTag.h"

#include <application/TProject.h>
#include <objects/TGraphicsTagItem.h>

namespace Bench {

namespace {

/** Gives all tags another name, with the project's value for it. Undo looks up a value for each. */
class RenamingTags : public OneCommandEdit
{
public:
    RenamingTags(Shelf& shelf, int size) : board(BoardOf(shelf, Kind::Tag, size))
    {
        QMap<QString, QString> values{{newName, QStringLiteral("Amplifier")}};
        for (int number = 0; number < 10; ++number) {
            values.insert(QStringLiteral("Title%1").arg(number), QString::number(number));
        }
        project.SetTagValues(values);
        const QList<TGraphicsItem*>& made = board.Made();
        for (TGraphicsItem* item : made) {
            tags.append(static_cast<TGraphicsTagItem*>(item));
            oldNames.append(tags.last()->Name());
        }
        LoopBack(); // So that the tags show values from the start.
        Settle();
    }

    void ReadAll() override
    {
        for (const TGraphicsTagItem* tag : qAsConst(tags)) {
            benchmark::DoNotOptimize(tag->Name());
        }
    }

    void Loop() override
    {
        const QString value = project.TagValues().value(newName);
        for (TGraphicsTagItem* tag : qAsConst(tags)) {
            tag->SetValue(value, false);
            tag->SetName(newName, true);
        }
    }

    void LoopBack() override
    {
        auto oldName = oldNames.cbegin();
        for (TGraphicsTagItem* tag : qAsConst(tags)) {
            tag->SetValue(project.TagValues().value(*oldName), false);
            tag->SetName(*oldName++, true);
        }
    }

    void Settle() override { board.Settle(); }
    QString State() override { return SortedState(board); }

private:
    Command MakeCommand() const override { return std::make_unique<TCmdTagName>(tags, newName, &project); }

    BenchBoard& board;
    mutable TProject project; // Commands are given it for writing.
    QString newName = QStringLiteral("Title");
    QList<TGraphicsTagItem*> tags;
    QStringList oldNames;
};

} // namespace

void AddTags(Shelf& shelf)
{
    RegisterEdit(
        "TCmdTagName", [&shelf](int size) { return std::make_unique<RenamingTags>(shelf, size); },
        AllSizes(MostOf(Kind::Tag)));
}

} // namespace Bench
