#pragma once

#include <objects/TGraphicsComponentItem.h>

/** A component's symbol on a page. */
class TGraphicsPartItem : public TGraphicsComponentItem
{
public:
    int type() const override;

    QString Name() const;
    quint8 SwapNumber() const;
    bool IsSymbolOpen() const;
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);

protected:
    QString name;
    quint8 swapNumber = 0;
    bool symbolOpen = false;
};
