#pragma once

#include <QPointer>
#include <QWidget>

/**
 * Keeps a widget alive for as long as this object lives, while a signal of the widget is handled: the toolkit still
 * uses the widget afterwards, and the handler may have deleted the panel, or run a dialog whose event loop performs
 * deferred deletions. A widget may be held several times; holding null is a no-op.
 */
class TWidgetHold
{
public:
    explicit TWidgetHold(QWidget* widget);
    ~TWidgetHold();
    Q_DISABLE_COPY(TWidgetHold)

    /**
     * Protects a widget that is held, or has a held part, from the deletion of its parent: it is reparented to none and
     * deleted when the last hold ends. Returns false, and is a no-op, if there is no hold.
     */
    static bool Rescue(QWidget* widget);

private:
    QPointer<QWidget> held;
};
