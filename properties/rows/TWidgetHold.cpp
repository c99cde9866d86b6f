#include "properties/rows/TWidgetHold.h"

#include <QEvent>
#include <QVector>

namespace {

/** A child of a held widget that counts the holds and defers every deletion requested meanwhile. */
class Keeper : public QObject
{
public:
    explicit Keeper(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::DeferredDelete) {
            doomed.append(watched);
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

    int holds = 0;
    QVector<QPointer<QObject>> doomed; ///< To be deleted at the end: the held widget, or a parent of it.
};

Keeper* KeeperIn(const QWidget* widget, Qt::FindChildOptions where)
{
    const QList<QObject*> children = widget->findChildren<QObject*>(QString(), where);
    for (QObject* child : children) {
        if (auto* keeper = dynamic_cast<Keeper*>(child)) {
            return keeper;
        }
    }
    return nullptr;
}

} // namespace

TWidgetHold::TWidgetHold(QWidget* widget) : held(widget)
{
    if (!held) {
        return;
    }
    Keeper* keeper = KeeperIn(held, Qt::FindDirectChildrenOnly);
    if (!keeper) {
        keeper = new Keeper(held);
    }
    ++keeper->holds;
}

TWidgetHold::~TWidgetHold()
{
    Keeper* keeper = held ? KeeperIn(held, Qt::FindDirectChildrenOnly) : nullptr;
    if (!keeper || --keeper->holds > 0) {
        return;
    }
    const QVector<QPointer<QObject>> doomed = keeper->doomed;
    delete keeper;
    for (const QPointer<QObject>& widget : doomed) {
        if (widget) {
            widget->deleteLater();
        }
    }
}

bool TWidgetHold::Rescue(QWidget* widget)
{
    Keeper* keeper = KeeperIn(widget, Qt::FindChildrenRecursively);
    if (!keeper) {
        return false;
    }
    keeper->doomed.append(widget);
    widget->installEventFilter(keeper);
    widget->setParent(nullptr);
    return true;
}
