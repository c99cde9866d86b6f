#include "properties/rows/TPropertyAngleEnum.h"

TPropertyAngleEnum::TPropertyAngleEnum(const QString& label) : TPropertyChoice(label)
{
    ReportRowChanges();
    for (const int degrees : {0, 90, 180, 270}) {
        Append(QString::number(degrees), static_cast<double>(degrees));
    }
}

float TPropertyAngleEnum::CurrentAngle() const
{
    return CurrentData().toFloat();
}

void TPropertyAngleEnum::SetCurrentAngle(float degrees)
{
    SetCurrentData(static_cast<double>(degrees));
}

void TPropertyAngleEnum::slotRowChanged(int row)
{
    ReportItem(row, [this, row] { emit sigAngleChanged(DataAt(row).toFloat()); });
}
