#pragma once

#include "tests/support/PanelFixture.h"
#include "tests/workbench/editing/EditingModel.h"
#include "tests/workbench/support/PanelCells.h"

#include "workbench/design/TDesign.h"

#include <QUndoStack>

#include <memory>

class TUndoCommand;

namespace Test {

/** A board that is edited through the real panel, and next to it the model that says what should come of it. */
class PanelSession : public QObject
{
    Q_OBJECT

public:
    /** The window, which outlives the session, is left without a set. */
    PanelSession(std::unique_ptr<TDesign> edited, PanelWindow& shownIn);
    ~PanelSession() override;

    /** Shows a new set for these items, as the workbench does. */
    void Show(const QVector<int>& selection);

    // Each does the same to the panel and to the model; the cell must be one that can be edited.
    void Enter(int cell, double number);
    void Choose(int cell, int option);
    void Click(int cell);
    void Type(int cell, const QString& text);
    void SetBypass(int item, bool on);
    void Undo();
    void Redo();

    /** The first thing that differs between the model and the panel, the stack or the board; empty if nothing does. */
    QString Disagreement() const;

    const EditingModel& Model() const { return model; }
    int ItemCount() const { return items.size(); }

private slots:
    void Push(TUndoCommand* command);

private:
    std::vector<PanelCell> Cells() const;

    std::unique_ptr<TDesign> design;
    const QList<TGraphicsItem*> items; ///< Those that the model knows.
    EditingModel model;
    QUndoStack stack;
    PanelWindow& window;
};

} // namespace Test
