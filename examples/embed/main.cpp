// The smallest application that shows the panel: two wires, edited by rows and keys, undone and redone.

#include "TCanvas.h"
#include "TPanelEditing.h"

#include <properties/sets/TPropertySetForWire.h>
#include <properties/TPropertyWidget.h>

#include <application/TBoard.h>
#include <application/TProject.h>
#include <objects/TGraphicsWireItem.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>
#include <QToolBar>
#include <QUndoStack>

namespace {

QList<TGraphicsItem*> AddWires(TBoard& board)
{
    QList<TGraphicsItem*> wires;
    for (const double y : {0.0, 20.0}) {
        auto wire = std::make_unique<TGraphicsWireItem>();
        wire->SetPoint2({100, 0});
        wire->setPos(0, y);
        wire->SetPenWidth(5);
        wires.append(wire.get());
        board.Attach(std::move(wire));
    }
    return wires;
}

/** One edit by the set and one by a key, undone and redone; whether the wires end up as they should. */
bool TryOut(TPropertyWidget& panel, TCanvas& canvas, QUndoStack& undoStack, const TGraphicsWireItem& wire)
{
    static_cast<TPropertySetForWire*>(panel.PropertySet())->SetWidth(1.2);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_3, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &key);
    const float width = wire.PenWidth();
    undoStack.undo();
    undoStack.undo();
    const bool isUndone = wire.PenWidth() == 5.0F;
    undoStack.redo();
    undoStack.redo();
    return undoStack.count() == 2 && isUndone && wire.PenWidth() == width && width != 5.0F;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    TBoard board;
    TProject project;
    project.SetBoard(&board);
    const QList<TGraphicsItem*> selection = AddWires(board);

    QUndoStack undoStack; // Goes before the items: its commands know them.
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    auto* panel = new TPropertyWidget(dock);
    dock->setWidget(panel);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);

    TPanelEditing editing(*panel, undoStack, [&] { return new TPropertySetForWire(selection, &project); });
    editing.ShowSelection();
    auto* canvas = new TCanvas(board.Scene(), editing);
    board.SetView(canvas);
    window.setCentralWidget(canvas);

    QToolBar* bar = window.addToolBar("Edit");
    for (auto* const action : {undoStack.createUndoAction(bar), undoStack.createRedoAction(bar)}) {
        bar->addAction(action);
    }
    window.resize(640, 400);
    window.show();

    if (application.arguments().contains("--once")) {
        const auto& wire = static_cast<const TGraphicsWireItem&>(*selection.first());
        return TryOut(*panel, *canvas, undoStack, wire) ? 0 : 1;
    }
    return QApplication::exec();
}
