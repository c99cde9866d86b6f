#include "workbench/window/TMenus.h"

#include "workbench/editing/DesignActions.h"
#include "workbench/editing/Kinds.h"
#include "workbench/window/TCanvas.h"

#include <application/TBoard.h>

#include <QActionGroup>
#include <QDockWidget>
#include <QMenuBar>
#include <QSet>
#include <QSignalBlocker>
#include <QUndoStack>

TMenus::TMenus(QMenuBar& menuBar, QUndoStack& undoStack, const QList<QDockWidget*>& docks)
    : QObject(&menuBar), bar(menuBar)
{
    MakeFileMenu();
    MakeEditMenu(undoStack);
    MakeDesignMenu();
    MakeViewMenu(docks);
    MakeLanguageMenu();
}

void TMenus::TakeBoard(const TBoard* board)
{
    const QSignalBlocker designatorsBlocker(designators);
    const QSignalBlocker valuesBlocker(values);
    designators->setEnabled(board != nullptr);
    designators->setChecked(board && board->RefDesVisible());
    values->setEnabled(board != nullptr);
    values->setChecked(board && board->ValuesVisible());
}

void TMenus::TickDesignators(bool on)
{
    designators->setChecked(on);
}

void TMenus::TickValues(bool on)
{
    values->setChecked(on);
}

void TMenus::OfferKindsOf(const QList<TGraphicsItem*>& items)
{
    QSet<const TKind*> present;
    for (const TGraphicsItem* item : items) {
        present.insert(Kinds::Of(*item));
    }
    for (auto entry = selectKind.cbegin(); entry != selectKind.cend(); ++entry) {
        entry.value()->setVisible(present.contains(entry.key()));
    }
}

void TMenus::MakeFileMenu()
{
    QMenu* menu = bar.addMenu(tr("&File"));
    menu->addAction(tr("&Open…"), this, &TMenus::sigOpen, QKeySequence::Open);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &TMenus::sigQuit, QKeySequence::Quit);
}

void TMenus::MakeEditMenu(QUndoStack& undoStack)
{
    QMenu* menu = bar.addMenu(tr("&Edit"));
    QAction* undo = undoStack.createUndoAction(this);
    undo->setShortcuts(QKeySequence::Undo);
    QAction* redo = undoStack.createRedoAction(this);
    redo->setShortcuts(QKeySequence::Redo);
    menu->addActions({undo, redo});
    menu->addSeparator();
    QAction* all = menu->addAction(
        tr("Select &all"), this, [this] { emit sigSelect(nullptr); }, QKeySequence::SelectAll);
    AddCanvasAction(*all);
    for (const TKind& kind : Kinds::All()) {
        selectKind[&kind] =
            menu->addAction(tr("Select all %1").arg(kind.Plural()), this, [this, &kind] { emit sigSelect(&kind); });
    }
    connect(menu, &QMenu::aboutToShow, this, &TMenus::sigEditMenuOpens);
}

void TMenus::MakeDesignMenu()
{
    QMenu* menu = bar.addMenu(tr("&Design"));
    for (const TDesignAction& action : DesignActions::All()) {
        QAction* entry = menu->addAction(action.MenuText(), this, [this, &action] { emit sigAction(action); });
        entry->setShortcut(QString::fromLatin1(action.key));
        AddCanvasAction(*entry);
    }
    menu->addAction(tr("Close s&ymbol"), this, &TMenus::sigCloseSymbol);
    menu->addSeparator();
    designators = menu->addAction(tr("Show d&esignators"));
    values = menu->addAction(tr("Show v&alues"));
    for (QAction* shown : {designators, values}) {
        shown->setCheckable(true);
    }
    connect(designators, &QAction::toggled, this, &TMenus::sigDesignators);
    connect(values, &QAction::toggled, this, &TMenus::sigValues);
}

void TMenus::MakeViewMenu(const QList<QDockWidget*>& docks)
{
    QMenu* menu = bar.addMenu(tr("&View"));
    const auto add = [this, menu](const QString& text, TViewChange change, const QList<QKeySequence>& keys) {
        QAction* action = menu->addAction(text, this, [this, change] { emit sigView(change); });
        action->setShortcuts(keys);
        AddCanvasAction(*action);
    };
    add(tr("Zoom to &fit"), &TCanvas::FitAll, {Qt::Key_F, Qt::Key_Home});
    add(tr("Zoom to &selection"), &TCanvas::FitSelection, {QKeySequence(QStringLiteral("Shift+F"))});
    add(tr("Zoom &in"), &TCanvas::ZoomIn, {Qt::Key_Plus, QKeySequence(QKeySequence::ZoomIn)});
    add(tr("Zoom &out"), &TCanvas::ZoomOut, {Qt::Key_Minus, QKeySequence(QKeySequence::ZoomOut)});
    menu->addSeparator();
    for (const QDockWidget* dock : docks) {
        menu->addAction(dock->toggleViewAction());
    }
}

void TMenus::MakeLanguageMenu()
{
    QMenu* menu = bar.addMenu(tr("&Language"));
    auto* group = new QActionGroup(menu);
    for (const QString& code : TLanguages::Available()) {
        QAction* action =
            menu->addAction(TLanguages::NameOf(code), &languages, [this, code] { languages.Switch(code); });
        action->setCheckable(true);
        action->setChecked(code == languages.Current());
        group->addAction(action);
    }
}

void TMenus::AddCanvasAction(QAction& action)
{
    action.setShortcutContext(Qt::WidgetShortcut);
    canvasActions.append(&action);
}
