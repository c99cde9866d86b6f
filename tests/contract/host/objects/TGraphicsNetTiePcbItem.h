#pragma once

#include <graphics/TGraphicsItem.h>

#include <QPen>

/** Copper that joins two nets on purpose. */
class TGraphicsNetTiePcbItem : public TGraphicsItem
{
public:
    int type() const override;
    QRectF boundingRect() const override;

    quint16 Number() const;
    QString Name() const;
    void SetName(const QString& text);
    bool NameVisible() const;
    void SetNameVisible(bool on);
    double PadSize() const;
    void SetPadSize(double diameter);
    QPen& Pen();
    const QPen& Pen() const;
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& items);
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& items);

protected:
    quint16 number = 0;
    QString name;
    bool nameVisible = true;
    double padSize = 0;
    QPen pen;
};
