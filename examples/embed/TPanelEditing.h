#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QUndoStack;
class TPropertySet;
class TPropertyWidget;
class TUndoCommand;

/** Shows the properties of a selection in the panel, and keeps what it shows up to date. */
class TPanelEditing : public QObject
{
public:
    /** Makes the set of the present selection; null for none. */
    using TMakeSet = std::function<TPropertySet*()>;

    /** Panel and stack outlive this. */
    TPanelEditing(TPropertyWidget& panel, QUndoStack& undoStack, TMakeSet makeSet);

    /** To be called whenever the selection changes. */
    void ShowSelection();
    /** To be called with the keys that the canvas gets. */
    void ForwardKey(QKeyEvent* event);

private:
    void Push(TUndoCommand* command);
    void IndexChanged();
    QString FocusedLabel() const;
    void FocusRow(const QString& label) const;

    TPropertyWidget& panel;
    QUndoStack& undoStack;
    TMakeSet makeSet;
    bool isPushing = false;
};
