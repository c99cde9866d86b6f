#include "workbench/window/TMainWindow.h"

#include "properties/TPropertyWidget.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/design/Picking.h"
#include "workbench/design/TDesign.h"
#include "workbench/editing/DesignActions.h"
#include "workbench/editing/Kinds.h"
#include "workbench/editing/TPropertyEditing.h"
#include "workbench/editing/TSelection.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TDocumentTabs.h"
#include "workbench/window/Theme.h"
#include "workbench/window/TLayerList.h"
#include "workbench/window/TMenus.h"
#include "workbench/window/TNavigation.h"
#include "workbench/window/TProjectDock.h"
#include "workbench/window/TStatusLine.h"
#include "workbench/window/TUndoKeys.h"

#include <application/TBoard.h>
#include <application/TUndoCommand.h>

#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QUndoStack>
#include <QUndoView>

TMainWindow::TMainWindow(QWidget* parent)
    : QMainWindow(parent),
      undoStack(new QUndoStack(this)),
      selection(new TSelection(this)),
      tabs(new TDocumentTabs(this)),
      statusLine(new TStatusLine(*statusBar()))
{
    setWindowTitle(tr("Workbench"));
    setCentralWidget(tabs);
    MakeDocks();
    // Created first, so that it has opened what a command requests before the panel is updated.
    navigation = std::make_unique<TNavigation>(*tabs, *undoStack);
    editing = std::make_unique<TPropertyEditing>(*panel, *selection, *undoStack);
    menus = new TMenus(*menuBar(), *undoStack, docks);
    Connect();
    ConnectMenus();
    qApp->installEventFilter(new TUndoKeys(this));
}

TMainWindow::~TMainWindow()
{
    DropDesign();
}

void TMainWindow::MakeDocks()
{
    const auto addDock = [this](Qt::DockWidgetArea area, const QString& title, const char* name) {
        auto* dock = new QDockWidget(title, this);
        dock->setObjectName(QString::fromLatin1(name));
        addDockWidget(area, dock);
        docks.append(dock);
        return dock;
    };
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);

    projectDock = new TProjectDock(this);
    projectDock->setObjectName(QStringLiteral("project"));
    addDockWidget(Qt::LeftDockWidgetArea, projectDock);
    docks.append(projectDock);

    QDockWidget* layersDock = addDock(Qt::LeftDockWidgetArea, tr("Layers"), "layers");
    layerList = new TLayerList(layersDock);
    layersDock->setWidget(layerList);

    QDockWidget* panelDock = addDock(Qt::RightDockWidgetArea, QString(), "properties");
    panel = new TPropertyWidget(panelDock);
    Theme::MakeRoomy(*panel);
    panelDock->setWidget(panel);
    panel->SetPropertySet(nullptr);

    QDockWidget* historyDock = addDock(Qt::RightDockWidgetArea, tr("History"), "history");
    auto* history = new QUndoView(undoStack, historyDock);
    history->setEmptyLabel(tr("As opened"));
    history->setFrameShape(QFrame::NoFrame);
    historyDock->setWidget(history);

    resizeDocks({layersDock, panelDock}, {200, 340}, Qt::Horizontal);
    resizeDocks({panelDock, historyDock}, {460, 300}, Qt::Vertical);
}

void TMainWindow::Connect()
{
    connect(editing.get(), &TPropertyEditing::sigSetShown, this, &TMainWindow::slotSetShown);
    connect(layerList, &TLayerList::sigVisibilityChanged, this, &TMainWindow::slotLayerVisibility);
    connect(&menus->Languages(), &TLanguages::sigSwitched, this, &TMainWindow::slotLanguage);
    connect(tabs, &TDocumentTabs::sigShown, this, &TMainWindow::slotDocumentShown);
    TNavigation* user = navigation.get();
    connect(projectDock, &TProjectDock::sigOpenPage, user, &TNavigation::OpenPage);
    connect(projectDock, &TProjectDock::sigOpenPart, user, &TNavigation::OpenPart);
    connect(projectDock, &TProjectDock::sigCloseSymbol, user, &TNavigation::CloseSymbol);
    connect(projectDock, &TProjectDock::sigRenamePage, user, &TNavigation::RenamePage);
    connect(projectDock, &TProjectDock::sigRenamePart, user, &TNavigation::RenamePart);
}

void TMainWindow::ConnectMenus()
{
    connect(menus, &TMenus::sigOpen, this, &TMainWindow::slotOpen);
    connect(menus, &TMenus::sigQuit, this, &QWidget::close);
    connect(menus, &TMenus::sigSelect, this, &TMainWindow::slotSelect);
    connect(menus, &TMenus::sigEditMenuOpens, this, [this] { menus->OfferKindsOf(Picking::Selectable(ShownItems())); });
    connect(menus, &TMenus::sigAction, this, &TMainWindow::slotAction);
    connect(menus, &TMenus::sigCloseSymbol, navigation.get(), &TNavigation::CloseSymbol);
    connect(menus, &TMenus::sigDesignators, this, &TMainWindow::slotDesignators);
    connect(menus, &TMenus::sigValues, this, &TMainWindow::slotValues);
    connect(menus, &TMenus::sigView, this, [this](TMenus::TViewChange change) {
        if (design) {
            (Canvas().*change)();
        }
    });
}

void TMainWindow::ConnectCanvas(const TCanvas& canvas)
{
    connect(&canvas, &TCanvas::sigGestureBegun, selection, &TSelection::BeginGesture);
    connect(&canvas, &TCanvas::sigGestureEnded, selection, &TSelection::EndGesture);
    connect(&canvas, &TCanvas::sigKey, editing.get(), &TPropertyEditing::ForwardKey);
    connect(&canvas, &TCanvas::sigCursorMoved, this, &TMainWindow::slotCursorMoved);
}

void TMainWindow::DropDesign()
{
    // From the top down: the set's rows and the commands point to items, the items to their document.
    editing->SetDesign(nullptr);
    selection->SetScene(nullptr);
    undoStack->clear();
    navigation->SetDesign(nullptr);
    layerList->SetLayers(nullptr);
    projectDock->SetTree(nullptr);
    tabs->SetDesign(nullptr);
    design.reset();
}

void TMainWindow::ShowDesign(TImportResult result, const QString& name)
{
    DropDesign();
    const QStringList notices = Notices(result);
    design = std::make_unique<TDesign>(std::move(result));
    tabs->SetDesign(design.get());
    const QList<TCanvas*> canvases = tabs->Canvases();
    for (TCanvas* canvas : canvases) {
        ConnectCanvas(*canvas);
        canvas->addActions(menus->CanvasActions());
    }
    projectDock->SetTree(&design->Tree());
    projectDock->setVisible(!design->Tree().Pages().isEmpty());
    connect(&design->Tree(), &QTreeWidget::itemChanged, tabs, &TDocumentTabs::UpdateNames);
    navigation->SetDesign(design.get());
    editing->SetDesign(design.get());

    menus->TakeBoard(design->Board());
    setWindowTitle(tr("%1 – Workbench").arg(name));
    statusLine->ShowNotices(notices);
    slotDocumentShown();
    Canvas().setFocus();
}

void TMainWindow::slotDocumentShown()
{
    if (!design) {
        return;
    }
    if (panel->isAncestorOf(QApplication::focusWidget())) {
        Canvas().setFocus(); // Commits half-typed text to the document that was shown.
    }
    const TDocument& document = tabs->Document();
    layerList->SetLayers(&document.workspace->Layers());
    selection->SetScene(document.scene);
    SelectOnlyVisible();
    editing->ShowSelection();
    statusLine->ShowContent(Kinds::Summary(Picking::Selectable(ShownItems())));
}

TBoard* TMainWindow::Board() const
{
    return design ? design->Board() : nullptr;
}

TCanvas& TMainWindow::Canvas() const
{
    return tabs->Canvas();
}

QList<TGraphicsItem*> TMainWindow::ShownItems() const
{
    return design ? design->ItemsOf(tabs->Document()) : QList<TGraphicsItem*>();
}

bool TMainWindow::Do(const TDesignAction& action, const QString& text, const QPointF& point)
{
    if (!design) {
        return false;
    }
    std::unique_ptr<TUndoCommand> command = action.make({*design, selection->Items(), text, point});
    if (command) {
        editing->Push(std::move(command));
        return true;
    }
    return false;
}

void TMainWindow::slotAction(const TDesignAction& action)
{
    constexpr int shownForMilliseconds = 5000;
    QString text;
    QPointF point = cursor;
    if (AskFor(action, text, point) && !Do(action, text, point)) {
        statusBar()->showMessage(tr("Select %1 first").arg(action.Needs()), shownForMilliseconds);
    }
}

bool TMainWindow::AskFor(const TDesignAction& action, QString& text, QPointF& point)
{
    using Asks = TDesignAction::Asks;
    if (action.asks == Asks::Nothing || action.asks == Asks::Point) {
        return true;
    }
    bool accepted = false;
    text =
        action.asks == Asks::Level
            ? QInputDialog::getItem(this, tr("Design"), action.Question(), DesignActions::Levels(), 0, false, &accepted)
            : QInputDialog::getText(this, tr("Design"), action.Question(), QLineEdit::Normal, QString(), &accepted);
    if (accepted && action.AsksForNumbers()) {
        const std::optional<QPointF> numbers = DesignActions::ParseNumbers(action.asks, text);
        if (!numbers) {
            QMessageBox::warning(this, tr("Design"), tr("\"%1\" is not valid: %2").arg(text, action.Question()));
        }
        point = numbers.value_or(point);
        accepted = numbers.has_value();
    }
    return accepted;
}

void TMainWindow::ShowDesignators(bool on)
{
    menus->TickDesignators(on);
}

void TMainWindow::ShowValues(bool on)
{
    menus->TickValues(on);
}

void TMainWindow::slotDesignators(bool on)
{
    if (design) {
        design->ShowDesignators(on);
    }
}

void TMainWindow::slotValues(bool on)
{
    if (design) {
        design->ShowValues(on);
    }
}

void TMainWindow::OpenFile(const QString& file)
{
    TImportResult result = LoadDesignWithDialog(file, this);
    if (HasDesign(result)) {
        ShowDesign(std::move(result), QFileInfo(file).fileName());
    } else if (!result.cancelled) {
        QMessageBox::warning(this, tr("Open"), result.error);
    }
}

void TMainWindow::slotOpen()
{
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Open"), QString(),
        tr("Designs (*.kicad_pro *.kicad_sch *.kicad_pcb);;Projects (*.kicad_pro);;Schematics (*.kicad_sch);;"
           "Boards (*.kicad_pcb)"));
    if (!file.isEmpty()) {
        OpenFile(file);
    }
}

void TMainWindow::slotSelect(const TKind* kind)
{
    QList<TGraphicsItem*> items;
    const QList<TGraphicsItem*> shown = ShownItems();
    for (TGraphicsItem* item : shown) {
        if ((!kind || kind->Holds(*item)) && item->IsOnVisibleLayer()) {
            items.append(item);
        }
    }
    selection->Select(items);
}

void TMainWindow::SelectOnlyVisible()
{
    QList<TGraphicsItem*> visible;
    for (TGraphicsItem* item : selection->Items()) {
        if (item->IsOnVisibleLayer()) {
            visible.append(item);
        }
    }
    if (visible.size() != selection->Items().size()) {
        selection->Select(visible);
    }
}

void TMainWindow::slotLayerVisibility()
{
    SelectOnlyVisible();
    const QList<TCanvas*> canvases = tabs->Canvases(); // Pages share their layers.
    for (const TCanvas* canvas : canvases) {
        canvas->viewport()->update();
    }
}

void TMainWindow::slotLanguage()
{
    panel->UpdateTranslate();
    editing->ShowSelection();
}

void TMainWindow::slotSetShown()
{
    statusLine->ShowSelected(Kinds::Summary(selection->Items()));
}

void TMainWindow::slotCursorMoved(const QPointF& scenePoint)
{
    cursor = scenePoint;
    if (design) {
        statusLine->ShowPosition(scenePoint, *tabs->Document().workspace);
    }
}
