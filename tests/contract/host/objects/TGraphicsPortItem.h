#pragma once

#include <graphics/TGraphicsItem.h>

class TGraphicsPinItem;

/** A named connector on a page. */
class TGraphicsPortItem : public TGraphicsItem
{
public:
    TGraphicsPortItem();
    int type() const override;

    QString Name() const;
    void SetName(const QString& newName, const QColor& color);
    bool NameVisible() const;
    void SetNameVisible(bool on);
    TGraphicsPinItem* Pin() const;
    QVector<TGraphicsItem*> ConnectedItems() const;

protected:
    QString name;
    bool nameVisible = true;
    TGraphicsPinItem* pin;
};
