#pragma once

#include "properties/rows/TPropertyChoice.h"

/** A row that picks a rotation of 0, 90, 180 or 270 degrees. */
class PROPERTIES_EXPORT TPropertyAngleEnum : public TPropertyChoice
{
    Q_OBJECT

public:
    explicit TPropertyAngleEnum(const QString& label);

    /** The current angle in degrees; 0 when there is none. */
    float CurrentAngle() const;
    /** Makes the angle current; a no-op for an angle that is not offered. */
    void SetCurrentAngle(float degrees);

Q_SIGNALS:
    void sigAngleChanged(float degrees);

private Q_SLOTS:
    void slotRowChanged(int row);
};
