#include "properties/commands/TCmdOutline.h"

TCmdOutlineAddNode::TCmdOutlineAddNode(TGraphicsOutlineItem*, const QPointF&)
{
}

void TCmdOutlineAddNode::redo()
{
}

void TCmdOutlineAddNode::undo()
{
}

TCmdOutlineDelNode::TCmdOutlineDelNode(TGraphicsOutlineItem*, const QPointF&)
{
}

void TCmdOutlineDelNode::redo()
{
}

void TCmdOutlineDelNode::undo()
{
}
