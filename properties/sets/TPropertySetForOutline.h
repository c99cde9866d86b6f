#pragma once

#include "properties/TPropertySet.h"

class TGraphicsOutlineItem;
class TPropertySize;
class TPropertyText;

/** Shows the size of the board's outline and, while the outline bypasses undo, the length of its last straight line. */
class PROPERTIES_EXPORT TPropertySetForOutline : public TPropertySet
{
    Q_OBJECT

public:
    /** Takes the last outline of @p selection. */
    explicit TPropertySetForOutline(const QList<TGraphicsItem*>& selection);

private:
    void AddLineLength(const TGraphicsOutlineItem& outline);

    QPointer<TPropertySize> size;
    QPointer<TPropertyText> lineLength;
};
