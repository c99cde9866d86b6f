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

/** The entries of a window's menu bar. They say what the user wants; whoever receives that knows how it is done. */
class TMenus : public QObject
{
    Q_OBJECT

public:
    using TViewChange = void (TCanvas::*)();

    /** Belongs to the bar. */
    TMenus(QMenuBar& menuBar, QUndoStack& undoStack, const QList<QDockWidget*>& docks);

    /** The actions whose keys belong to the canvases: in an editor they mean something else. */
    const QList<QAction*>& CanvasActions() const { return canvasActions; }
    TLanguages& Languages() { return languages; }

    /** Takes over which texts of packages a board shows; null for no board. Reports nothing. */
    void TakeBoard(const TBoard* board);
    void TickDesignators(bool on);
    void TickValues(bool on);
    /** Offers the selection of those kinds only that the items are of. */
    void OfferKindsOf(const QList<TGraphicsItem*>& items);

signals:
    void sigOpen();
    void sigQuit();
    /** Select all visible items of a kind, or of all kinds for null. */
    void sigSelect(const TKind* kind);
    /** The edit menu is about to be seen. */
    void sigEditMenuOpens();
    void sigAction(const TDesignAction& action);
    void sigCloseSymbol();
    void sigDesignators(bool on);
    void sigValues(bool on);
    /** Change what is seen of the document. */
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
