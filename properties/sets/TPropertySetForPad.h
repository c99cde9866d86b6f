#pragma once

#include "properties/TPropertySet.h"

#include <objects/TGraphicsPadItem.h>

class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyLayer;
class TPropertySize;
class TPropertyText;

/**
 * Edits pads. Lengths are the first pad's; of the other values a row shows the one that all pads share. Pads of a
 * package keep their number, side, type, mask and paste.
 */
class PROPERTIES_EXPORT TPropertySetForPad : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the pads of @p selection; @p layers are those that the "Side:" row offers. */
    TPropertySetForPad(const QList<TGraphicsItem*>& selection, const QList<Osmirel::Layer>& layers);

public Q_SLOTS:
    /** Lengths in millimetres. */
    void SetNumber(QString newNumber);
    /** Intended: does nothing, since names of pads are only displayed. */
    void SetName(QString name);
    void SetType(int smd);
    void SetDrill(double newDrill);
    void SetSide(Osmirel::Layer newSide);
    void SetShape(int newShape);
    void SetWidth(double width);
    void SetHeight(double height);
    void SetThermal(int newThermal);
    void SetMaskEnable(bool on);
    void SetMaskClearance(double clearance);
    void SetPasteEnable(bool on);
    void SetPasteClearance(double clearance);
    /** Shows the rows that belong to the type: 1 a surface pad, 0 one that goes through the board. */
    void TypeChanged(int smd);
    /** Puts the size row into the mode that belongs to the shape, a `TGraphicsPadItem::TypePadShape`. */
    void ShapeChanged(int newShape);

private:
    struct Values;
    void MakeRows(const Values& values, const QList<Osmirel::Layer>& layers);
    void MakeTextRows(const Values& values);
    void MakeCopperRows(const Values& values, const QList<Osmirel::Layer>& layers);
    void MakeOpeningRows(const Values& values);

    QList<TGraphicsItem*> items;
    bool hasPackagePad = false; ///< Some pad belongs to a package.
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
