#pragma once

#include "properties/rows/TPropertyChoice.h"

#include <objects/TGraphicsPadItem.h>

/** A row that picks one of all shapes that a pad can have. */
class PROPERTIES_EXPORT TPropertyPadShape : public TPropertyChoice
{
    Q_OBJECT

public:
    explicit TPropertyPadShape(const QString& label);

    /** The current shape; 0, which is not a shape, without a current item. */
    TGraphicsPadItem::TypePadShape CurrentPadShape() const;
    void SetCurrentPadShape(TGraphicsPadItem::TypePadShape shape);

Q_SIGNALS:
    void sigPadShapeChanged(TGraphicsPadItem::TypePadShape shape);

private Q_SLOTS:
    void slotRowChanged(int row);
};
