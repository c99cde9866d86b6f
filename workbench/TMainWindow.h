#pragma once

#include "workbench/TLanguages.h"

#include <QMainWindow>
#include <QPointF>

#include <memory>

class QLabel;
class QUndoStack;
class TBoard;
class TCanvas;
class TDesign;
class TGraphicsItem;
class TLayerList;
class TPropertyEditing;
class TPropertyWidget;
class TSelection;
struct TDesignAction;
struct TImportResult;
struct TKind;

/** The workbench's window: a board on a canvas, and around it the panel, the undo history and the layers. */
class TMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit TMainWindow(QWidget* parent = nullptr);
    ~TMainWindow() override;

    /** Shows the board of @p result, which must have one; the board shown before, its panel and its history go. */
    void ShowBoard(TImportResult result, const QString& name);

    /** Null before the first one is shown. */
    TBoard* Board() const;
    TDesign* Design() const { return design.get(); }
    TSelection& Selection() const { return *selection; }
    QUndoStack& UndoStack() const { return *undoStack; }
    TPropertyEditing& Editing() const { return *editing; }
    TPropertyWidget& Panel() const { return *panel; }
    TCanvas& Canvas() const { return *canvas; }
    TLayerList& Layers() const { return *layerList; }

    /** Does something with what is selected; false if the selection does not suit it, or nothing is shown. The point
     *  is one of the scene. */
    bool Do(const TDesignAction& action, const QString& text, const QPointF& point);

    /** Shows or hides the designators, or the values, of all packages. */
    void ShowDesignators(bool on);
    void ShowValues(bool on);

public slots:
    /** Opens a file. Without success the shown board stays, and one message says why. */
    void OpenFile(const QString& file);

private slots:
    void slotOpen();
    void slotSelectKind(const TKind& kind);
    void slotSelectAll();
    void slotLayerVisibility();
    void slotLanguage();
    void slotSetShown();
    void slotCursorMoved(const QPointF& scenePoint);
    void slotAction(const TDesignAction& action);
    void slotDesignators(bool on);
    void slotValues(bool on);

private:
    void MakeDocks();
    void MakeMenus();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeDesignMenu();
    void MakeViewMenu();
    void MakeLanguageMenu();
    void MakeStatusBar();
    void Connect();
    void DropBoard();
    void SelectVisible(const TKind* kind);

    std::unique_ptr<TDesign> design;
    TLanguages languages;

    // Owned by their parents, this window or one of its docks.
    QUndoStack* undoStack;
    TSelection* selection;
    TCanvas* canvas;
    TPropertyWidget* panel = nullptr;
    TLayerList* layerList = nullptr;
    QList<QDockWidget*> docks;
    QAction* designators = nullptr;
    QAction* values = nullptr;
    QLabel* content = nullptr;
    QLabel* notice = nullptr;
    QLabel* selected = nullptr;
    QLabel* position = nullptr;

    std::unique_ptr<TPropertyEditing> editing;
    QPointF cursor; ///< Where it was last above the canvas, in scene units.
};
