#include "properties/commands/TCmdOutline.h"

TCmdOutlineAddNode::TCmdOutlineAddNode(TGraphicsOutlineItem*, const QPointF&) {}

void TCmdOutlineAddNode::Do() {}

void TCmdOutlineAddNode::Undo() {}

TCmdOutlineDelNode::TCmdOutlineDelNode(TGraphicsOutlineItem*, const QPointF&) {}

void TCmdOutlineDelNode::Do() {}

void TCmdOutlineDelNode::Undo() {}
