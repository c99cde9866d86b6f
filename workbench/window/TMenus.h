#pragma once

#include "workbench/window/TLanguages.h"

#include <QHash>
#include <QList>
#include <QObject>

class QAction;
class QDockWidget;
class QMenuBar;
class QUndoStack;
class TBoard;
class TCanvas;
class TGraphicsItem;
struct TDesignAction;
struct TKind;

/** The entries of a window's menu bar. They emit the user's requests and do not execute them. */
class TMenus : public QObject
{
    Q_OBJECT

public:
    using TViewChange = void (TCanvas::*)();

    /** Owned by the bar. */
    TMenus(QMenuBar& menuBar, QUndoStack& undoStack, const QList<QDockWidget*>& docks);

    /** The actions whose shortcuts apply to the canvases only: in an editor these keys have another meaning. */
    const QList<QAction*>& CanvasActions() const { return canvasActions; }
    TLanguages& Languages() { return languages; }

    /** Reads which texts of packages a board shows; null for no board. Emits nothing. */
    void TakeBoard(const TBoard* board);
    void TickDesignators(bool on);
    void TickValues(bool on);
    /** Offers to select only the kinds that the items are of. */
    void OfferKindsOf(const QList<TGraphicsItem*>& items);

signals:
    void sigOpen();
    void sigQuit();
    /** Select all visible items of a kind, or of all kinds for null. */
    void sigSelect(const TKind* kind);
    /** The edit menu is about to be shown. */
    void sigEditMenuOpens();
    void sigAction(const TDesignAction& action);
    void sigCloseSymbol();
    void sigDesignators(bool on);
    void sigValues(bool on);
    /** Change the view of the document. */
    void sigView(TMenus::TViewChange change);

private:
    void MakeFileMenu();
    void MakeEditMenu(QUndoStack& undoStack);
    void MakeDesignMenu();
    void MakeViewMenu(const QList<QDockWidget*>& docks);
    void MakeLanguageMenu();
    void AddCanvasAction(QAction& action);

    QMenuBar& bar;
    TLanguages languages;
    QAction* designators = nullptr;
    QAction* values = nullptr;
    QHash<const TKind*, QAction*> selectKind;
    QList<QAction*> canvasActions;
};
