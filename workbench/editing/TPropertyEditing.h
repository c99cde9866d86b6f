#pragma once

#include <QObject>

#include <memory>

class QKeyEvent;
class QUndoStack;
class TDesign;
class TPropertySet;
class TPropertyWidget;
class TSelection;
class TUndoCommand;

/**
 * Embeds the panel: creates and shows a set for each selection, pushes the set's commands onto the undo stack, and
 * rebuilds the set after an undo or redo. Panel, selection and stack belong to the window and outlive it.
 */
class TPropertyEditing : public QObject
{
    Q_OBJECT

public:
    TPropertyEditing(TPropertyWidget& panel, TSelection& selection, QUndoStack& undoStack);

    /** The design whose items are edited; null for none. The panel is empty until something is selected. */
    void SetDesign(TDesign* newDesign);

    /** Pushes a command of the application, and rebuilds the set. */
    void Push(std::unique_ptr<TUndoCommand> command);

    /** Forwards a key to the shown set. */
    void ForwardKey(QKeyEvent* event);

public slots:
    /** Shows a new set for the selection; the focus moves from an editor to that of the same row. */
    void ShowSelection();

signals:
    /** The panel shows another set, or none. */
    void sigSetShown();

private slots:
    void slotCmd(TUndoCommand* command);
    void slotIndexChanged();

private:
    void Name(TUndoCommand& command) const;
    QString FocusedLabel() const;
    void FocusRow(const QString& label) const;

    TPropertyWidget& panel;
    TSelection& selection;
    QUndoStack& undoStack;
    TDesign* design = nullptr;
    bool isPushing = false;
};
