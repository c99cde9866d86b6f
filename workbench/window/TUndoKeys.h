#pragma once

#include <QObject>

/**
 * Lets undo and redo keys through to the window while a number box has the focus: the box would keep them for its
 * text, but every change of the text has already changed the design.
 */
class TUndoKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
