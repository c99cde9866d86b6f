#include "benchmarks/commands/Families.h"
#include "benchmarks/support/Edits.h"
#include "benchmarks/support/Shelf.h"

#include "properties/commands/TCmdProjectTree.h"

#include <application/TProjectTree.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>

namespace Bench {

namespace {

/** A tree that is shown, with as many parts as pages. Entries after the largest number share numbers. */
struct Tree
{
    explicit Tree(int count)
    {
        for (int number = 0; number < count; ++number) {
            const QString name = QString::number(number);
            pages.push_back(tree.AddPage(static_cast<unsigned char>(number), name));
            parts.push_back(tree.AddPart(static_cast<unsigned short>(number), QStringLiteral("R") + name, name));
        }
        tree.expandAll();
        tree.resize(200, 400);
        tree.show();
        QCoreApplication::processEvents();
    }

    TProjectTree tree;
    std::vector<TSchPage*> pages;
    std::vector<TPart*> parts;
};

Tree& TreeOf(Shelf& shelf, int size)
{
    return shelf.Get<Tree>("project tree", size, [size] { return std::make_unique<Tree>(size); });
}

/** Renames all entries of a kind, with a command for each. */
template <class NamedCommand, class Entry, std::vector<Entry*> Tree::*entries>
class RenamingEntries : public ManyCommandsEdit
{
public:
    RenamingEntries(Shelf& shelf, int size) : design(TreeOf(shelf, size)) {}

    void ReadAll() override
    {
        for (const Entry* entry : design.*entries) {
            benchmark::DoNotOptimize(entry->Name());
        }
    }

    void Settle() override { QCoreApplication::processEvents(); }
    QString State() override { return design.tree.Dump(); }

    void Loop() override
    {
        for (Entry* entry : design.*entries) {
            entry->setText(Entry::nameColumn, newName);
        }
    }

    void LoopBack() override
    {
        const auto& all = design.*entries;
        for (std::size_t i = all.size(); i-- > 0;) { // In the order of undo.
            all[i]->setText(Entry::nameColumn, QString::number(i));
        }
    }

private:
    std::vector<Command> MakeCommands() const override
    {
        std::vector<Command> made;
        for (Entry* entry : design.*entries) {
            made.push_back(std::make_unique<NamedCommand>(entry, newName));
        }
        return made;
    }

    Tree& design;
    QString newName = QStringLiteral("Amplifier");
};

using RenamingParts = RenamingEntries<TCmdPartRename, TPart, &Tree::parts>;
using RenamingPages = RenamingEntries<TCmdPageRename, TSchPage, &Tree::pages>;

/** The commands that note a part for the application to open. */
struct PartOpening
{
    using Command = TCmdPartOpen;
    using Opened = TPart*;

    static Opened Of(const Tree& tree, std::size_t index) { return tree.parts[index % tree.parts.size()]; }
    static Opened Asked(const TUndoCommand& command) { return command.PartToOpen(); }
    static QString Describe(Opened part) { return part->Name(); }
};

/** Those that note a page. */
struct PageOpening
{
    using Command = TCmdPageOpen;
    using Opened = unsigned char;

    static Opened Of(const Tree&, std::size_t index) { return static_cast<Opened>(1 + index % 255); }
    static Opened Asked(const TUndoCommand& command) { return command.PageToOpen(); }
    static QString Describe(Opened page) { return QString::number(page); }
};

/** Opens one entry after the other, each with a command, and reads what to open. The loop stores that. */
template <class Opening>
class OpeningEntries : public Edit
{
public:
    OpeningEntries(Shelf& shelf, int size) : tree(TreeOf(shelf, size)), open(static_cast<std::size_t>(size))
    {
        LoopBack();
    }

    void Prepare() override { commands = MakeCommands(); }
    void Construct() override { unused = MakeCommands(); }
    void Discard() override { unused.clear(); }

    void ReadAll() override
    {
        for (const auto& each : open) {
            benchmark::DoNotOptimize(each);
        }
    }

    void Loop() override
    {
        for (std::size_t i = 0; i < open.size(); ++i) {
            open[i] = Opening::Of(tree, i + 1);
        }
    }

    void LoopBack() override
    {
        for (std::size_t i = open.size(); i-- > 0;) {
            open[i] = Opening::Of(tree, i);
        }
    }

    void Redo() override
    {
        for (std::size_t i = 0; i < open.size(); ++i) {
            commands[i]->redo();
            open[i] = Opening::Asked(*commands[i]);
        }
    }

    void Undo() override
    {
        for (std::size_t i = open.size(); i-- > 0;) {
            commands[i]->undo();
            open[i] = Opening::Asked(*commands[i]);
        }
    }

    void Settle() override { QCoreApplication::processEvents(); }

    QString State() override
    {
        QStringList lines;
        for (const auto each : open) {
            lines.append(Opening::Describe(each));
        }
        return lines.join('\n');
    }

private:
    using Commands = std::vector<std::unique_ptr<TUndoCommand>>;

    Commands MakeCommands() const
    {
        Commands made;
        for (std::size_t i = 0; i < open.size(); ++i) {
            made.push_back(std::make_unique<typename Opening::Command>(Opening::Of(tree, i), Opening::Of(tree, i + 1)));
        }
        return made;
    }

    Tree& tree;
    std::vector<typename Opening::Opened> open;
    Commands commands;
    Commands unused;
};

template <class EntriesEdit>
void Add(Shelf& shelf, const char* name, int largest)
{
    RegisterEdit(
        name, [&shelf](int size) { return std::make_unique<EntriesEdit>(shelf, size); }, AllSizes(largest));
}

} // namespace

void AddProjectTree(Shelf& shelf)
{
    Add<RenamingParts>(shelf, "TCmdPartRename", 100'000);
    // The column of pages is measured again for each: 3 ms.
    Add<RenamingPages>(shelf, "TCmdPageRename", 1'000);
    Add<OpeningEntries<PartOpening>>(shelf, "TCmdPartOpen", 100'000);
    Add<OpeningEntries<PageOpening>>(shelf, "TCmdPageOpen", 100'000);
}

} // namespace Bench
