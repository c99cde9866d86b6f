#pragma once

#include <QMainWindow>
#include <QPointF>

#include <memory>

class QUndoStack;
class TBoard;
class TCanvas;
class TDesign;
class TDocumentTabs;
class TGraphicsItem;
class TLayerList;
class TMenus;
class TNavigation;
class TProjectDock;
class TPropertyEditing;
class TPropertyWidget;
class TSelection;
class TStatusLine;
struct TDesignAction;
struct TImportResult;
struct TKind;

/** The workbench's window: a design on its tabs, and around it the project, the panel, the undo history and the layers.
 */
class TMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit TMainWindow(QWidget* parent = nullptr);
    ~TMainWindow() override;

    /** Shows what was read, which must have a board or pages; the former design and its history are discarded. */
    void ShowDesign(TImportResult result, const QString& name);

    /** Null before the first one is shown. */
    TDesign* Design() const { return design.get(); }
    /** The design's board, null if it has none. */
    TBoard* Board() const;
    TDocumentTabs& Tabs() const { return *tabs; }
    TNavigation& Navigation() const { return *navigation; }
    /** The selection in the shown document. */
    TSelection& Selection() const { return *selection; }
    QUndoStack& UndoStack() const { return *undoStack; }
    TPropertyEditing& Editing() const { return *editing; }
    TPropertyWidget& Panel() const { return *panel; }
    /** The canvas of the document that is shown; only with a design. */
    TCanvas& Canvas() const;
    TLayerList& Layers() const { return *layerList; }

    /** Performs an action on the selection; false if the selection is unsuitable, or nothing is shown. The point is in
     *  scene coordinates. */
    bool Do(const TDesignAction& action, const QString& text, const QPointF& point);

    /** Shows or hides the designators, or the values, of all packages. */
    void ShowDesignators(bool on);
    void ShowValues(bool on);

public slots:
    /** Opens a file. On failure the shown design stays, and one message says why. */
    void OpenFile(const QString& file);

private slots:
    void slotOpen();
    void slotDocumentShown();
    void slotSelect(const TKind* kind);
    void slotLayerVisibility();
    void slotLanguage();
    void slotSetShown();
    void slotCursorMoved(const QPointF& scenePoint);
    void slotAction(const TDesignAction& action);
    void slotDesignators(bool on);
    void slotValues(bool on);

private:
    void MakeDocks();
    void Connect();
    void ConnectMenus();
    void ConnectCanvas(const TCanvas& canvas);
    void DropDesign();
    QList<TGraphicsItem*> ShownItems() const;
    void SelectOnlyVisible();
    bool AskFor(const TDesignAction& action, QString& text, QPointF& point);

    std::unique_ptr<TDesign> design;

    // Owned by their parents, this window or one of its docks.
    QUndoStack* undoStack;
    TSelection* selection;
    TDocumentTabs* tabs;
    TStatusLine* statusLine;
    TMenus* menus = nullptr;
    TPropertyWidget* panel = nullptr;
    TLayerList* layerList = nullptr;
    TProjectDock* projectDock = nullptr;
    QList<QDockWidget*> docks;

    std::unique_ptr<TNavigation> navigation;
    std::unique_ptr<TPropertyEditing> editing;
    QPointF cursor; ///< Its last position above a canvas, in scene units.
};
