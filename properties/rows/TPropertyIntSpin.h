#pragma once

#include "properties/rows/TAbstractProperty.h"

class QSpinBox;

/** A row that edits a whole number. Without its editor the row reads as 0 and ignores what is set. */
class PROPERTIES_EXPORT TPropertyIntSpin : public TAbstractProperty
{
    Q_OBJECT

public:
    TPropertyIntSpin(const QString& label, int min, int max, int step);

    int CurrentValue() const;
    void SetCurrentValue(int value);
    void SetRange(int min, int max);
    void SetStep(int step);
    void SetSuffix(const QString& suffix);

Q_SIGNALS:
    void sigValueChanged(int value);

private:
    QSpinBox* Box() const;
};
