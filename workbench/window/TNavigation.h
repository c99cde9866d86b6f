#pragma once

#include <QObject>
#include <QVector>

#include <memory>

class QUndoCommand;
class QUndoStack;
class TDesign;
class TDocumentTabs;
class TPart;
class TSchPage;
class TUndoCommand;

/**
 * Opens and renames pages and parts for the user through commands, and tracks the undo stack: after any undo or redo,
 * of one step or several, the last command that opens a page or a part determines which one is open, and an edit that
 * is undone or redone is shown where it was made.
 */
class TNavigation : public QObject
{
    Q_OBJECT

public:
    TNavigation(TDocumentTabs& documentTabs, QUndoStack& stack);

    /** The design whose tree is used; null for none. */
    void SetDesign(TDesign* newDesign);

public slots:
    /** Shows a page; coming from another page leaves an undo step. */
    void OpenPage(TSchPage& page);
    /** Opens a part's symbol for editing and shows it; a part that is open already is only shown. */
    void OpenPart(TPart& part);
    void CloseSymbol();
    /** Rename an entry of the tree; a no-op for an empty name, or the current one. */
    void RenamePage(TSchPage& page, const QString& name);
    void RenamePart(TPart& part, const QString& name);

private slots:
    void slotIndexChanged(int index);

private:
    /** A command on the undo stack, never dereferenced, and the page that was shown at its push: 0 for the board. */
    struct Step
    {
        const QUndoCommand* command;
        int page;
    };

    /** Updates `steps` after the stack's index has changed. */
    void NotePushed(int index);
    void Push(std::unique_ptr<TUndoCommand> command, const QString& what);
    void Reveal(const TPart& part);
    void MarkOpenRows();

    TDocumentTabs& tabs;
    QUndoStack& undoStack;
    TDesign* design = nullptr;
    QVector<Step> steps; ///< Parallel to the commands on the stack.
    int lastIndex = 0;
};
