#include <workspace/TDoubleSpinBox.h>

TDoubleSpinBox::TDoubleSpinBox(QWidget* parent) : QDoubleSpinBox(parent)
{
    setDecimals(2);
    setSingleStep(0.05);
    setSuffix(tr(" mm"));
}
