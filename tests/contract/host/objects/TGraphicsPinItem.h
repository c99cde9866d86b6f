#pragma once

#include <graphics/TGraphicsItem.h>

class TGraphicsTextItem;

/** A pin of a symbol. */
class TGraphicsPinItem : public TGraphicsItem
{
public:
    enum TypePinType : int {};
    enum TypePinStyle : int {};
    enum TypePinLength : int {};

    TGraphicsPinItem();
    int type() const override;

    QString Name() const;
    void SetName(const QString& text);
    bool NameVisible() const;
    void SetNameVisible(bool on);
    QString Number() const;
    TGraphicsTextItem* NumberText() const;
    void UpdateNumberPos();
    bool NumberVisible() const;
    void SetNumberVisible(bool on);
    TypePinType PinType() const;
    void SetPinType(TypePinType newType);
    TypePinStyle PinStyle() const;
    void SetPinStyle(TypePinStyle style);
    TypePinLength PinLength() const;
    void SetPinLength(TypePinLength length);
    void UpdatePath();
    quint8 Swap() const;
    void SetSwap(quint8 group);

protected:
    QString name;
    bool nameVisible = true;
    TGraphicsTextItem* numberText;
    bool numberVisible = true;
    TypePinType pinType{};
    TypePinStyle pinStyle{};
    TypePinLength pinLength{};
    quint8 swap = 0;
};
