#include <application/TBoard.h>

#include <QGraphicsView>

#include <algorithm>

TBoard::TBoard() = default;

TBoard::~TBoard() = default;

QGraphicsView* TBoard::View() const
{
    return qobject_cast<QGraphicsView*>(view.data());
}

void TBoard::SetView(QGraphicsView* newView)
{
    view = newView;
}

void TBoard::Attach(std::unique_ptr<TGraphicsItem> item)
{
    if (!item) {
        return;
    }
    item->SetWorkspace(&workspace);
    Number(*item);
    scene.addItem(item.release());
}

void TBoard::Number(TGraphicsItem& item)
{
    if (item.DesignOrder() == 0) {
        item.SetDesignOrder(++attachedItems);
    }
    for (QGraphicsItem* child : item.childItems()) {
        if (auto* childItem = dynamic_cast<TGraphicsItem*>(child)) {
            Number(*childItem);
        }
    }
}

QList<TGraphicsItem*> TBoard::Items() const
{
    QList<TGraphicsItem*> items;
    for (QGraphicsItem* item : scene.items()) {
        if (auto* designItem = dynamic_cast<TGraphicsItem*>(item)) {
            items.append(designItem);
        }
    }
    std::sort(items.begin(), items.end(), [](const TGraphicsItem* left, const TGraphicsItem* right) {
        return left->DesignOrder() < right->DesignOrder();
    });
    return items;
}

QStringList TBoard::ViaGroups() const
{
    QStringList names;
    for (const TDrillPair& pair : workspace.Layers().DrillPairs()) {
        names.append(pair.name);
    }
    return names;
}

QString TBoard::Dump() const
{
    QString dump;
    for (const TGraphicsItem* item : Items()) {
        dump += item->StateLine() + QLatin1Char('\n');
    }
    return dump;
}
