#pragma once

#include "properties/TPropertySet.h"

class TPropertyEnum;
class TPropertyIntSpin;
class TPropertyText;

/**
 * Edits pins. Name and number of pins of a placed symbol cannot be edited, nor their length unless the symbol is open
 * for editing; whether it is placed is read from the first pin.
 */
class PROPERTIES_EXPORT TPropertySetForPin : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the pins of @p selection. The name of the set counts only these. */
    explicit TPropertySetForPin(QList<TGraphicsItem*> selection);

public Q_SLOTS:
    void SetName(const QString& newName);
    void SetNameVisible(bool on);
    void SetNumber(const QString& newNumber);
    void SetNumberVisible(bool on);
    /** A `TGraphicsPinItem::TypePinType`. */
    void SetPinType(int newType);
    /** A `TGraphicsPinItem::TypePinStyle`. */
    void SetPinStyle(int newStyle);
    /** A `TGraphicsPinItem::TypePinLength`. */
    void SetPinLength(int newLength);
    /** A swap group, 0 to 255. */
    void SetSwap(int group);

private:
    struct Values;
    void MakeTextRows(const Values& values);
    void MakeChoiceRows(const Values& values);
    bool IsPlaced() const;
    bool IsSymbolOpen() const;

    QList<TGraphicsItem*> pins;
    QPointer<TPropertyText> name;
    QPointer<TPropertyText> number;
    QPointer<TPropertyEnum> type;
    QPointer<TPropertyEnum> style;
    QPointer<TPropertyEnum> length;
    QPointer<TPropertyIntSpin> swap;
};
