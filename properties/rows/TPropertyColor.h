#pragma once

#include "properties/rows/TPropertyChoice.h"

#include <QColor>

/** A row that picks a colour from a fixed palette, or "Default". The text of a list item names its colour. */
class PROPERTIES_EXPORT TPropertyColor : public TPropertyChoice
{
    Q_OBJECT

public:
    /** Shows @p current, or "Default" when it is invalid. */
    TPropertyColor(const QString& label, const QColor& current);

Q_SIGNALS:
    /** An invalid colour stands for "Default". */
    void sigColorChanged(const QColor& color);

private Q_SLOTS:
    void slotRowChanged(int row);
};
