#pragma once

#include <QObject>

/**
 * Passes undo and redo keys on to the window while a number box has the focus: the box would use them for its text, but
 * every change of the text has already changed the design.
 */
class TUndoKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
