#pragma once

#include "properties/rows/TAbstractProperty.h"

class QCheckBox;
class TDoubleSpinBox;

/**
 * A row that edits a real number, usually a length in millimetres, optionally with an enable box in front.
 *
 * The parts are accessible to the set that creates the row, which sets value, suffix and check state. They are null
 * once the editor is gone.
 */
class PROPERTIES_EXPORT TPropertyFloatSpin : public TAbstractProperty
{
    Q_OBJECT

public:
    TPropertyFloatSpin(const QString& label, double min, double max, double step, int decimals);

    TDoubleSpinBox* spin;
    QCheckBox* check; ///< Hidden until the set shows it; reports clicks only.

Q_SIGNALS:
    void sigValueChanged(double value);
    void sigCheckChanged(bool on);

private Q_SLOTS:
    /** Passes the value on unconverted: it stays a double despite the name. */
    void slotDoubleToFloat(double value);
};
