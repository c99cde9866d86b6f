// The smallest application that shows the panel: two vias, edited and undone.

#include <properties/sets/TPropertySetForVia.h>
#include <properties/TPropertyWidget.h>

#include <application/TBoard.h>
#include <application/TUndoCommand.h>
#include <objects/TGraphicsViaItem.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>
#include <QUndoStack>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    TBoard board;
    QList<TGraphicsItem*> selection;
    for (const double x : {0.0, 20.0}) {
        auto via = std::make_unique<TGraphicsViaItem>();
        via->setPos(x, 0);
        via->SetSize(9.5, 9.5);
        selection.append(via.get());
        board.Attach(std::move(via));
    }

    QUndoStack undoStack;
    QMainWindow window;
    auto* dock = new QDockWidget(&window);
    auto* panel = new TPropertyWidget(dock);
    dock->setWidget(panel);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);

    // For each selection: one set, whose commands go onto the undo stack.
    auto* set = new TPropertySetForVia(selection, board.ViaGroups());
    QObject::connect(set, &TPropertySet::sigCmd, [&undoStack](TUndoCommand* command) { undoStack.push(command); });
    panel->SetPropertySet(set);

    QToolBar* bar = window.addToolBar("Edit");
    bar->addAction(undoStack.createUndoAction(bar));
    bar->addAction(undoStack.createRedoAction(bar));
    window.resize(640, 400);
    window.show();

    if (application.arguments().contains("--once")) {
        set->SetDiam(1.2);
        undoStack.undo();
        return undoStack.count() == 1 && board.Items().size() == 2 ? 0 : 1;
    }
    return QApplication::exec();
}
