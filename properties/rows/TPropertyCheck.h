#pragma once

#include "properties/rows/TAbstractProperty.h"

class QCheckBox;

/** A row with one check box. Every change of state is reported, also one by the program. */
class PROPERTIES_EXPORT TPropertyCheck : public TAbstractProperty
{
    Q_OBJECT

public:
    explicit TPropertyCheck(const QString& label);

    bool CurrentState() const;
    void SetCurrentState(bool on);

Q_SIGNALS:
    void sigStateChanged(bool on);

private:
    QPointer<QCheckBox> box;
};
