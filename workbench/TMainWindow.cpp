#include "workbench/TMainWindow.h"

#include "properties/TPropertyWidget.h"
#include "workbench/DesignActions.h"
#include "workbench/Kinds.h"
#include "workbench/LoadDesign.h"
#include "workbench/TCanvas.h"
#include "workbench/TDesign.h"
#include "workbench/Theme.h"
#include "workbench/TLayerList.h"
#include "workbench/TPropertyEditing.h"
#include "workbench/TSelection.h"
#include "workbench/TUndoKeys.h"

#include <application/TBoard.h>
#include <application/TUndoCommand.h>

#include <QActionGroup>
#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QUndoStack>
#include <QUndoView>

namespace {

/** Shows as much of a text as the status bar has room for, and all of it as a tool tip. */
void ShowShortened(QLabel& label, const QString& text)
{
    constexpr int widest = 460;
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, widest));
    label.setToolTip(text);
}

} // namespace

TMainWindow::TMainWindow(QWidget* parent)
    : QMainWindow(parent), undoStack(new QUndoStack(this)), selection(new TSelection(this)), canvas(new TCanvas(this))
{
    setWindowTitle(tr("Workbench"));
    setCentralWidget(canvas);
    MakeDocks();
    editing = std::make_unique<TPropertyEditing>(*panel, *selection, *undoStack);
    MakeMenus();
    MakeStatusBar();
    Connect();
    qApp->installEventFilter(new TUndoKeys(this));
    canvas->setFocus();
}

TMainWindow::~TMainWindow()
{
    DropBoard();
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

void TMainWindow::MakeMenus()
{
    MakeFileMenu();
    MakeEditMenu();
    MakeDesignMenu();
    MakeViewMenu();
    MakeLanguageMenu();
}

void TMainWindow::MakeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Open…"), this, &TMainWindow::slotOpen, QKeySequence::Open);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
}

void TMainWindow::MakeEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = undoStack->createUndoAction(this);
    undo->setShortcuts(QKeySequence::Undo);
    QAction* redo = undoStack->createRedoAction(this);
    redo->setShortcuts(QKeySequence::Redo);
    menu->addActions({undo, redo});
    menu->addSeparator();
    QAction* all = menu->addAction(tr("Select &all"), this, &TMainWindow::slotSelectAll, QKeySequence::SelectAll);
    all->setShortcutContext(Qt::WidgetShortcut); // In an editor the key selects its text.
    canvas->addAction(all);
    for (const TKind& kind : Kinds::All()) {
        menu->addAction(tr("Select all %1").arg(kind.Plural()), this, [this, &kind] { slotSelectKind(kind); });
    }
}

void TMainWindow::MakeDesignMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Design"));
    for (const TDesignAction& action : DesignActions::All()) {
        QAction* entry = menu->addAction(action.MenuText(), this, [this, &action] { slotAction(action); });
        entry->setShortcut(QString::fromLatin1(action.key));
        entry->setShortcutContext(Qt::WidgetShortcut);
        canvas->addAction(entry);
    }
    menu->addSeparator();
    designators = menu->addAction(tr("Show d&esignators"));
    values = menu->addAction(tr("Show v&alues"));
    for (QAction* shown : {designators, values}) {
        shown->setCheckable(true);
    }
    connect(designators, &QAction::toggled, this, &TMainWindow::slotDesignators);
    connect(values, &QAction::toggled, this, &TMainWindow::slotValues);
}

void TMainWindow::MakeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    // These keys belong to the canvas: in an editor they mean something else.
    const auto add = [this, menu](const QString& text, void (TCanvas::*slot)(), const QList<QKeySequence>& keys) {
        QAction* action = menu->addAction(text, canvas, slot);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        canvas->addAction(action);
    };
    add(tr("Zoom to &fit"), &TCanvas::FitAll, {Qt::Key_F, Qt::Key_Home});
    add(tr("Zoom to &selection"), &TCanvas::FitSelection, {QKeySequence(QStringLiteral("Shift+F"))});
    add(tr("Zoom &in"), &TCanvas::ZoomIn, {Qt::Key_Plus, QKeySequence(QKeySequence::ZoomIn)});
    add(tr("Zoom &out"), &TCanvas::ZoomOut, {Qt::Key_Minus, QKeySequence(QKeySequence::ZoomOut)});
    menu->addSeparator();
    for (const QDockWidget* dock : qAsConst(docks)) {
        menu->addAction(dock->toggleViewAction());
    }
}

void TMainWindow::MakeLanguageMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Language"));
    auto* group = new QActionGroup(menu);
    for (const QString& code : TLanguages::Available()) {
        QAction* action =
            menu->addAction(TLanguages::NameOf(code), &languages, [this, code] { languages.Switch(code); });
        action->setCheckable(true);
        action->setChecked(code == languages.Current());
        group->addAction(action);
    }
}

void TMainWindow::MakeStatusBar()
{
    const auto add = [this](bool permanent) {
        auto* label = new QLabel(this);
        label->setContentsMargins(6, 0, 6, 0);
        permanent ? statusBar()->addPermanentWidget(label) : statusBar()->addWidget(label);
        return label;
    };
    content = add(false);
    notice = add(false);
    selected = add(true);
    position = add(true);
    position->setMinimumWidth(position->fontMetrics().horizontalAdvance(QStringLiteral("-0000.000, -0000.000 mm"))
                              + 12);
    position->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void TMainWindow::Connect()
{
    connect(canvas, &TCanvas::sigGestureBegun, selection, &TSelection::BeginGesture);
    connect(canvas, &TCanvas::sigGestureEnded, selection, &TSelection::EndGesture);
    connect(canvas, &TCanvas::sigKey, editing.get(), &TPropertyEditing::ForwardKey);
    connect(canvas, &TCanvas::sigCursorMoved, this, &TMainWindow::slotCursorMoved);
    connect(editing.get(), &TPropertyEditing::sigSetShown, this, &TMainWindow::slotSetShown);
    connect(layerList, &TLayerList::sigVisibilityChanged, this, &TMainWindow::slotLayerVisibility);
    connect(&languages, &TLanguages::sigSwitched, this, &TMainWindow::slotLanguage);
}

void TMainWindow::DropBoard()
{
    // From the top down: the set's rows and the commands point to items, the items to the board.
    editing->SetDesign(nullptr);
    selection->SetScene(nullptr);
    undoStack->clear();
    layerList->SetLayers(nullptr);
    canvas->Show(nullptr);
    design.reset();
}

void TMainWindow::ShowBoard(TImportResult result, const QString& name)
{
    DropBoard();
    const QStringList notices = Notices(result);
    design = std::make_unique<TDesign>(std::move(result));
    TBoard& board = design->Board();
    board.SetView(canvas);
    canvas->Show(board.Scene());
    layerList->SetLayers(board.LayerManager());
    selection->SetScene(board.Scene());
    editing->SetDesign(design.get());
    const QSignalBlocker designatorsBlocker(designators);
    const QSignalBlocker valuesBlocker(values);
    designators->setChecked(board.RefDesVisible());
    values->setChecked(board.ValuesVisible());
    setWindowTitle(tr("%1 – Workbench").arg(name));
    ShowShortened(*content, Kinds::Summary(board.Items()));
    ShowShortened(*notice, notices.join(QStringLiteral("; ")));
}

TBoard* TMainWindow::Board() const
{
    return design ? &design->Board() : nullptr;
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
    QString text;
    if (action.asks == TDesignAction::Asks::Text) {
        bool accepted = false;
        text = QInputDialog::getText(this, tr("Design"), action.Question(), QLineEdit::Normal, QString(), &accepted);
        if (!accepted) {
            return;
        }
    }
    if (!Do(action, text, cursor)) {
        constexpr int shownForMilliseconds = 5000;
        statusBar()->showMessage(tr("Select %1 first").arg(action.Needs()), shownForMilliseconds);
    }
}

void TMainWindow::ShowDesignators(bool on)
{
    designators->setChecked(on);
}

void TMainWindow::ShowValues(bool on)
{
    values->setChecked(on);
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
    TImportResult result = LoadBoardWithDialog(file, this);
    if (result.board) {
        ShowBoard(std::move(result), QFileInfo(file).fileName());
    } else if (!result.cancelled) {
        QMessageBox::warning(this, tr("Open"), result.error);
    }
}

void TMainWindow::slotOpen()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open"), QString(), tr("Boards (*.kicad_pcb)"));
    if (!file.isEmpty()) {
        OpenFile(file);
    }
}

void TMainWindow::slotSelectKind(const TKind& kind)
{
    SelectVisible(&kind);
}

void TMainWindow::slotSelectAll()
{
    SelectVisible(nullptr);
}

void TMainWindow::SelectVisible(const TKind* kind)
{
    QList<TGraphicsItem*> items;
    for (TGraphicsItem* item : design ? design->Board().Items() : QList<TGraphicsItem*>()) {
        if ((!kind || kind->Holds(*item)) && item->IsOnVisibleLayer()) {
            items.append(item);
        }
    }
    selection->Select(items);
}

void TMainWindow::slotLayerVisibility()
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
    canvas->viewport()->update();
}

void TMainWindow::slotLanguage()
{
    panel->UpdateTranslate();
    editing->ShowSelection();
}

void TMainWindow::slotSetShown()
{
    const QString summary = Kinds::Summary(selection->Items());
    selected->setText(summary.isEmpty() ? tr("Nothing selected") : tr("Selected: %1").arg(summary));
}

void TMainWindow::slotCursorMoved(const QPointF& scenePoint)
{
    cursor = scenePoint;
    if (design) {
        const TWorkspace& workspace = *design->Board().Workspace();
        position->setText(QStringLiteral("%1, %2 %3")
                              .arg(workspace.ValueFromScene(scenePoint.x()), 0, 'f', 3)
                              .arg(workspace.ValueFromScene(scenePoint.y()), 0, 'f', 3)
                              .arg(workspace.CurrentUnitStr()));
    }
}
