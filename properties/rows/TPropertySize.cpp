#include "properties/rows/TPropertySize.h"

#include "properties/rows/EditorBox.h"
#include "properties/rows/TWidgetHold.h"

#include <workspace/TDoubleSpinBox.h>

#include <QLabel>

TPropertySize::TPropertySize(const QString& label, double min, double max, double step, int decimals)
    : TAbstractProperty(label, nullptr), width(new TDoubleSpinBox), height(new TDoubleSpinBox)
{
    auto* box = new QWidget;
    SetEditor(box);
    EditorBox::LayOut(box, {{width, 1}, {new QLabel(QStringLiteral("x")), 0}, {height, 1}});
    box->setFocusProxy(width);

    for (TDoubleSpinBox* spin : {width, height}) {
        spin->setDecimals(decimals);
        spin->setRange(min, max);
        spin->setSingleStep(step);
    }

    AddOwnPart(QStringLiteral("width"), width);
    AddOwnPart(QStringLiteral("height"), height);
    const auto reportWidth = [this](double value) {
        Report(FirstValue, [this, value] { emit sigWidthChanged(value); });
    };
    connect(width, qOverload<double>(&QDoubleSpinBox::valueChanged), this, reportWidth);
    connect(width, SIGNAL(valueChanged(double)), this, SLOT(slotWidthChanged(double)));
    connect(height, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this](double value) { Report(SecondValue, [this, value] { emit sigHeightChanged(value); }); });
}

void TPropertySize::SetSuffix(const QString& suffix)
{
    if (width && height) {
        width->setSuffix(suffix);
        height->setSuffix(suffix);
    }
}

void TPropertySize::SetDoubleHeight(bool on)
{
    doubleHeight = on;
    if (width) {
        slotWidthChanged(width->value());
    }
}

void TPropertySize::slotWidthChanged(double newWidth)
{
    if (!height || height->isEnabled()) {
        return;
    }
    const TWidgetHold hold(Editor());
    const QPointer<TPropertySize> self(this); // A receiver may replace the set, and with it this row.
    height->setValue(doubleHeight ? 2 * newWidth : newWidth);
    if (self) {
        SetMixed(false, SecondValue);
        emit sigHeightChanged(newWidth); // Intended: the last value is the width itself, also in the doubled mode.
    }
}
