#pragma once

#include <QPointer>
#include <QWidget>

/**
 * Keeps a widget alive for as long as this object lives, while a signal of the widget is handled: the toolkit goes on
 * in the widget afterwards, and the handler may have deleted the panel, or have run a dialog whose event loop deletes
 * what was to be deleted later. A widget may be held several times, and null is held in vain.
 */
class TWidgetHold
{
public:
    explicit TWidgetHold(QWidget* widget);
    ~TWidgetHold();
    Q_DISABLE_COPY(TWidgetHold)

    /**
     * Saves a widget that is held, itself or a part of it, from the end of its parent: it loses its parent and is
     * deleted when nobody holds it any more. Does nothing and returns false if nobody holds it.
     */
    static bool Rescue(QWidget* widget);

private:
    QPointer<QWidget> held;
};
