#pragma once

#include <graphics/TGraphicsItem.h>

/** A missing connection. */
class TGraphicsRatLineItem : public TGraphicsItem
{
public:
    int type() const override;

    void SetPriority(const QString& level);

protected:
    QString priority;
};
