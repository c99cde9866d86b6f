#pragma once

#include <properties/Export.h>

#include <application/TUndoCommand.h>

class QPointF;
class TGraphicsOutlineItem;

/** Intended: a placeholder that stores nothing and changes nothing. */
class PROPERTIES_EXPORT TCmdOutlineAddNode : public TUndoCommand
{
public:
    TCmdOutlineAddNode(TGraphicsOutlineItem* outline, const QPointF& point);
    void redo() override;
    void undo() override;
};

/** Intended: a placeholder that stores nothing and changes nothing. */
class PROPERTIES_EXPORT TCmdOutlineDelNode : public TUndoCommand
{
public:
    TCmdOutlineDelNode(TGraphicsOutlineItem* outline, const QPointF& point);
    void redo() override;
    void undo() override;
};
