#pragma once

#include "properties/rows/TAbstractProperty.h"

class QCheckBox;
class TDoubleSpinBox;

/**
 * A row that edits a real number, usually a length in millimetres, optionally with an enable box in front.
 *
 * The parts are open to the set that makes the row, which gives them value, suffix and check state; they live as long
 * as the editor does.
 */
class PROPERTIES_EXPORT TPropertyFloatSpin : public TAbstractProperty
{
    Q_OBJECT

public:
    TPropertyFloatSpin(const QString& label, double min, double max, double step, int decimals);

    TDoubleSpinBox* const spin;
    QCheckBox* const check; ///< Hidden until the set shows it; reports clicks only.

signals:
    void sigValueChanged(double value);
    void sigCheckChanged(bool on);

private slots:
    /** Passes the value on as it is: it stays a double, whatever the name says. */
    void slotDoubleToFloat(double value);
};
