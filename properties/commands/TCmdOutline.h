#pragma once

#include "properties/commands/TReversibleCommand.h"

#include <properties/Export.h>

class QPointF;
class TGraphicsOutlineItem;

/** Intended: a placeholder that stores nothing and changes nothing. */
class PROPERTIES_EXPORT TCmdOutlineAddNode : public TReversibleCommand
{
public:
    TCmdOutlineAddNode(TGraphicsOutlineItem* outline, const QPointF& point);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;
};

/** Intended: a placeholder that stores nothing and changes nothing. */
class PROPERTIES_EXPORT TCmdOutlineDelNode : public TReversibleCommand
{
public:
    TCmdOutlineDelNode(TGraphicsOutlineItem* outline, const QPointF& point);
    TCommandKind Kind() const override;

protected:
    bool Do() override;
    bool Undo() override;
};
