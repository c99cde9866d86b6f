#pragma once

#include "properties/TPropertySet.h"

#include <objects/TGraphicsPadItem.h>

class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyLayer;
class TPropertySize;
class TPropertyText;

/**
 * Edits pads. Lengths are the first pad's; a row for any other value shows it if all pads share it. Number, side, type,
 * mask and paste of pads that belong to a package cannot be edited.
 */
class PROPERTIES_EXPORT TPropertySetForPad : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the pads of @p selection; @p layers are those that the "Side:" row offers. */
    TPropertySetForPad(const QList<TGraphicsItem*>& selection, const QList<Osmirel::Layer>& layers);

public Q_SLOTS:
    void SetNumber(QString newNumber);
    /** Intended: does nothing, since names of pads are only displayed. */
    void SetName(QString name);
    /** 1 for surface pads, 0 for through-hole pads. */
    void SetType(int smd);
    /** In millimetres. */
    void SetDrill(double newDrill);
    void SetSide(Osmirel::Layer newSide);
    /** A `TGraphicsPadItem::TypePadShape`. */
    void SetShape(int newShape);
    /** @{ In millimetres. */
    void SetWidth(double width);
    void SetHeight(double height);
    /** @} */
    /** A `TGraphicsViaItem::TypeThermal`. */
    void SetThermal(int newThermal);
    void SetMaskEnable(bool on);
    /** In millimetres. */
    void SetMaskClearance(double clearance);
    void SetPasteEnable(bool on);
    /** In millimetres. */
    void SetPasteClearance(double clearance);
    /** Shows the rows that belong to the type: 1 for a surface pad, 0 for a through-hole pad. */
    void TypeChanged(int smd);
    /** Switches the size row to the mode of the shape, a `TGraphicsPadItem::TypePadShape`. */
    void ShapeChanged(int newShape);

private:
    struct Values;
    void MakeRows(const Values& values, const QList<Osmirel::Layer>& layers);
    void MakeTextRows(const Values& values);
    void MakeCopperRows(const Values& values, const QList<Osmirel::Layer>& layers);
    void MakeOpeningRows(const Values& values);

    QList<TGraphicsItem*> items;
    bool hasPackagePad = false; ///< Whether any pad belongs to a package.
    QPointer<TPropertyText> number;
    QPointer<TPropertyText> name;
    QPointer<TPropertyFloatSpin> drill;
    QPointer<TPropertyLayer> side;
    QPointer<TPropertyEnum> type;
    QPointer<TPropertyEnum> shape;
    QPointer<TPropertySize> size;
    QPointer<TPropertyEnum> thermal;
    QPointer<TPropertyFloatSpin> mask;
    QPointer<TPropertyFloatSpin> paste;
};
