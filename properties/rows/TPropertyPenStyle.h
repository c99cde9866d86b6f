#pragma once

#include "properties/rows/TPropertyChoice.h"

/** A row that picks a line style, each shown as a sample beside its name. */
class PROPERTIES_EXPORT TPropertyPenStyle : public TPropertyChoice
{
    Q_OBJECT

public:
    explicit TPropertyPenStyle(const QString& label);

    /** The current style; `Qt::NoPen` when there is no current item. */
    Qt::PenStyle CurrentPenStyle() const;
    void SetCurrentPenStyle(Qt::PenStyle style);

Q_SIGNALS:
    void sigPenStyleChanged(Qt::PenStyle style);

private Q_SLOTS:
    void slotRowChanged(int row);
};
