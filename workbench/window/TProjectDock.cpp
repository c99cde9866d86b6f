#include "workbench/window/TProjectDock.h"

#include <application/TProjectTree.h>

#include <QAction>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include <functional>

namespace {

/** Reports the typed text instead of writing it: names are changed by commands. */
class TNameDelegate : public QStyledItemDelegate
{
public:
    TNameDelegate(std::function<void(const QString&)> receiver, QObject* parent)
        : QStyledItemDelegate(parent), renamed(std::move(receiver))
    {}

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex&) const override
    {
        if (const auto* line = qobject_cast<QLineEdit*>(editor)) {
            renamed(line->text());
        }
    }

private:
    std::function<void(const QString&)> renamed;
};

} // namespace

TProjectDock::TProjectDock(QWidget* parent)
    : QDockWidget(parent),
      open(new QAction(tr("&Open"), this)),
      rename(new QAction(tr("&Rename"), this)),
      close(new QAction(tr("&Close symbol"), this))
{
    setWindowTitle(tr("Project"));
    open->setShortcut(Qt::Key_Return);
    rename->setShortcut(Qt::Key_F2);
    for (QAction* action : {open, rename, close}) {
        action->setShortcutContext(Qt::WidgetShortcut);
    }
    connect(open, &QAction::triggered, this, &TProjectDock::slotOpen);
    connect(rename, &QAction::triggered, this, &TProjectDock::slotRename);
    connect(close, &QAction::triggered, this, &TProjectDock::sigCloseSymbol);
}

void TProjectDock::SetTree(TProjectTree* newTree)
{
    edited = nullptr; // A half-typed name is discarded with its tree.
    if (tree) {
        tree->disconnect(this);
        tree->hide();
        tree->setParent(nullptr);
    }
    tree = newTree;
    if (!tree) {
        return;
    }
    tree->setFrameShape(QFrame::NoFrame);
    tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tree->setIndentation(14);
    tree->setHeaderHidden(false); // A hidden one would not follow the width of the tree.
    tree->header()->setFixedHeight(0);
    tree->header()->setSectionResizeMode(TPart::nameColumn, QHeaderView::Stretch);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers); // Only by the action: not every column is a name.
    tree->setItemDelegate(new TNameDelegate([this](const QString& name) { Renamed(name); }, tree));
    tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    tree->addActions({open, rename, close});
    for (TSchPage* page : tree->Pages()) {
        page->setFlags(page->flags() | Qt::ItemIsEditable);
    }
    for (TPart* part : tree->Parts()) {
        part->setFlags(part->flags() | Qt::ItemIsEditable);
    }
    connect(tree, &QTreeWidget::itemDoubleClicked, this, &TProjectDock::slotOpen);
    setWidget(tree);
    tree->show();
}

void TProjectDock::slotOpen()
{
    QTreeWidgetItem* row = tree ? tree->currentItem() : nullptr;
    if (auto* page = dynamic_cast<TSchPage*>(row)) {
        emit sigOpenPage(*page);
    } else if (auto* part = dynamic_cast<TPart*>(row)) {
        emit sigOpenPart(*part);
    }
}

void TProjectDock::slotRename()
{
    edited = tree ? tree->currentItem() : nullptr;
    if (dynamic_cast<TSchPage*>(edited)) {
        tree->editItem(edited, TSchPage::nameColumn);
    } else if (dynamic_cast<TPart*>(edited)) {
        tree->editItem(edited, TPart::nameColumn);
    }
}

void TProjectDock::Renamed(const QString& name)
{
    if (auto* page = dynamic_cast<TSchPage*>(edited)) {
        emit sigRenamePage(*page, name);
    } else if (auto* part = dynamic_cast<TPart*>(edited)) {
        emit sigRenamePart(*part, name);
    }
}
