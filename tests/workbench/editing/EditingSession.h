#pragma once

#include "tests/support/PanelFixture.h"
#include "tests/workbench/editing/HeldCommand.h"
#include "tests/workbench/support/PanelCells.h"

#include <QGraphicsView>
#include <QUndoStack>

#include <memory>
#include <vector>

class TUndoCommand;

namespace Test {

/** A design that is edited through the real panel and by commands of the laws, and every step is held to the laws. */
class EditingSession : public QObject
{
    Q_OBJECT

public:
    /** The window, which outlives the session, is left without a set. The cells that are used are added to
     *  @p usedCells, with " direct" behind those that are written without an undo step. */
    EditingSession(TImportResult result, PanelWindow& shownIn, QSet<QString>& usedCells);
    ~EditingSession() override;

    /** Shows a new set for these items, as the workbench does. */
    void Select(const QList<TGraphicsItem*>& items);
    void ShowNewSet();
    int CellCount() const { return static_cast<int>(EditableCells().size()); }
    void Edit(int which, int number);
    void PushLaw(const CommandLaw& law, int value, const QList<TGraphicsItem*>& items);
    void ToggleBypass(int which);
    void Undo();
    void Redo();
    /** Undoes everything and does it again. */
    void UndoAndRedoAll();

    /** What was not as it should be first, with the step that it came of; empty if nothing was. */
    const QString& Problem() const { return problem; }
    QList<TGraphicsItem*> Items() const { return ItemsOf(design); }

private slots:
    void Push(TUndoCommand* command);

private:
    void Hold(HeldCommand held, TUndoCommand* command);
    void Written();
    void Note(const QString& found);
    std::vector<PanelCell> EditableCells() const;
    QList<TGraphicsItem*> Taken() const;
    QList<TGraphicsItem*> Skipped(int index) const;
    void EditCell(const QString& name, int number);
    void EditDirectly(const QString& name, int number);
    void GiveValue(const QString& name, int number);
    void HoldToSelected(const ItemStates& from, const QString& cell);
    void CompareRows(const QString& cell);

    TDesign design;
    QGraphicsView view;
    PanelWindow& window;
    TPropertyWidget spare; ///< Shows new sets to compare with.
    QSet<QString>& used;

    QUndoStack stack; // Its commands point to items.
    std::vector<HeldCommand> commands;
    QList<TGraphicsItem*> selection;
    QSet<const TGraphicsItem*> bypassing; ///< Compared only.
    bool rowsAreNew = false;              ///< Nothing but the panel has written to items since its set was made.
    QStringList stale;                    ///< Labels of rows that need not show what a new set does.
    ItemStates now;
    ItemStates opened;
    ItemFields inexact; ///< What undo did not bring back and what was written without a command.
    QString problem;
};

} // namespace Test
