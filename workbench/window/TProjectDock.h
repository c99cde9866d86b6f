#pragma once

#include <QDockWidget>

class QAction;
class QTreeWidgetItem;
class TPart;
class TProjectTree;
class TSchPage;

/** Shows the tree of a project, and lets the user open and rename its entries. It changes nothing by itself. */
class TProjectDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit TProjectDock(QWidget* parent = nullptr);

    /** Shows a tree without taking ownership; null removes it. */
    void SetTree(TProjectTree* newTree);

signals:
    void sigOpenPage(TSchPage& page);
    void sigOpenPart(TPart& part);
    void sigCloseSymbol();
    void sigRenamePage(TSchPage& page, const QString& name);
    void sigRenamePart(TPart& part, const QString& name);

private slots:
    void slotOpen();
    void slotRename();

private:
    void Renamed(const QString& name);

    TProjectTree* tree = nullptr;
    QTreeWidgetItem* edited = nullptr; ///< The row whose name is, or was last, edited.
    QAction* open;
    QAction* rename;
    QAction* close;
};
