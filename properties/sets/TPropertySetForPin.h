#pragma once

#include "properties/TPropertySet.h"

class TPropertyEnum;
class TPropertyIntSpin;
class TPropertyText;

/**
 * Edits pins. Those of a placed symbol keep their name and number, and their length unless the symbol is open for
 * editing; the first pin tells whether it is placed.
 */
class PROPERTIES_EXPORT TPropertySetForPin : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the pins of @p selection, and is named for their number, not for that of all items. */
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
