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
 * Embeds the panel: makes a set for each selection and shows it, pushes the set's commands onto the undo stack, and
 * shows the values anew after an undo or redo. Panel, selection and stack are the window's and outlive it.
 */
class TPropertyEditing : public QObject
{
    Q_OBJECT

public:
    TPropertyEditing(TPropertyWidget& panel, TSelection& selection, QUndoStack& undoStack);

    /** The design whose items are edited; null for none. The panel is empty until something is selected. */
    void SetDesign(TDesign* newDesign);

    /** Pushes a command of the application's own, and shows the values anew. */
    void Push(std::unique_ptr<TUndoCommand> command);

    /** Gives a key to the shown set. */
    void ForwardKey(QKeyEvent* event);

public slots:
    /** Shows a new set for the selection; an editor that has the focus hands it to that of the same row. */
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
