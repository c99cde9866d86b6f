#pragma once

#include "properties/TPropertySet.h"

class TGraphicsPourItem;
class TPropertyCheck;
class TPropertyEnum;
class TPropertyFloatSpin;
class TPropertyIntSpin;
class TPropertyLayer;
class TPropertyText;

/**
 * Edits pours. Intended: the rows show the last pour's values, and every edit is a command, even if undo is bypassed.
 * Without a pour the rows are still shown, and editing them is a no-op.
 */
class PROPERTIES_EXPORT TPropertySetForPour : public TPropertySet
{
    Q_OBJECT

public:
    /** Keeps the pours of @p selection; @p layers are those that the "Layer:" row offers. */
    TPropertySetForPour(QList<TGraphicsItem*> selection, QList<Osmirel::Layer> layers);

public Q_SLOTS:
    /** @{ In millimetres. */
    void SetClearanceToEtch(qreal clearance);
    void SetClearanceToBorder(qreal clearance);
    void SetClearanceToPour(qreal clearance);
    /** @} */
    /** A `Qt::BrushStyle`. */
    void SetFillType(int brushStyle);
    /** In millimetres. */
    void SetLineWidth(qreal width);
    /** In square millimetres. */
    void SetMinimumArea(qreal area);
    void SetOnlyConnected(bool on);
    void SetPriority(int newPriority);
    void SetThermalEn(bool on);
    /** @{ In millimetres. */
    void SetThermalLine(qreal width);
    void SetThermalIsol(qreal distance);
    /** @} */
    void SetLayer(Osmirel::Layer newLayer);
    void SetNet(QString newNet);
    /** Disables the line width row for a solid fill. */
    void FillTypeChanged(int brushStyle);
    /** Disables the thermal line row for a solid type. Intended: no signal is connected to this slot. */
    void ThermalTypeChanged(int type);
    /** @{ Display only: written at once, without a command and without a refill. */
    void SetCompMode(int mode);
    void SetAlpha(int newAlpha);
    /** @} */

private:
    struct Values;

    TPropertyFloatSpin* NewLengthRow(const QString& label, double sceneLength, const char* slot);
    void MakeFillRows(const Values& shown);
    void MakeClearanceAndThermalRows(const Values& shown);
    void MakeDrawingRows(const Values& shown, const QList<Osmirel::Layer>& layers, TWorkspace* workspace);

    /** Emits a command over all pours; a no-op without pours. */
    template <class Command, class Value>
    void EmitFor(const Value& value);

    QList<TGraphicsPourItem*> pours;
    QPointer<TPropertyFloatSpin> clearanceToEtch;
    QPointer<TPropertyFloatSpin> clearanceToBorder;
    QPointer<TPropertyFloatSpin> clearanceToPour;
    QPointer<TPropertyEnum> fillType;
    QPointer<TPropertyFloatSpin> lineWidth;
    QPointer<TPropertyFloatSpin> minimumArea;
    QPointer<TPropertyCheck> onlyConnected;
    QPointer<TPropertyIntSpin> priority;
    QPointer<TPropertyCheck> thermalEnable;
    QPointer<TPropertyFloatSpin> thermalLine;
    QPointer<TPropertyFloatSpin> thermalIsolation;
    QPointer<TPropertyLayer> layer;
    QPointer<TPropertyText> net;
    QPointer<TPropertyEnum> compositionMode;
    QPointer<TPropertyIntSpin> alpha;
};
