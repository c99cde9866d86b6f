#include "workbench/window/TUndoKeys.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>

bool TUndoKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const bool isInSpinBox =
        qobject_cast<QAbstractSpinBox*>(watched) || qobject_cast<QAbstractSpinBox*>(watched->parent());
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!isInSpinBox || !(key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo))) {
        return false;
    }
    event->ignore();
    return true;
}
