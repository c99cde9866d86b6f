#include "properties/commands/TCmdOutline.h"

TCmdOutlineAddNode::TCmdOutlineAddNode(TGraphicsOutlineItem*, const QPointF&) {}

TCommandKind TCmdOutlineAddNode::Kind() const
{
    return {"OutlineAddNode", QT_TRANSLATE_NOOP("TCommandKind", "Add a node to %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "the outline")};
}

bool TCmdOutlineAddNode::Do()
{
    return true;
}

bool TCmdOutlineAddNode::Undo()
{
    return true;
}

TCmdOutlineDelNode::TCmdOutlineDelNode(TGraphicsOutlineItem*, const QPointF&) {}

TCommandKind TCmdOutlineDelNode::Kind() const
{
    return {"OutlineDelNode", QT_TRANSLATE_NOOP("TCommandKind", "Remove a node from %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "the outline")};
}

bool TCmdOutlineDelNode::Do()
{
    return true;
}

bool TCmdOutlineDelNode::Undo()
{
    return true;
}
