#include "properties/rows/TPropertyFloatSpin.h"

#include "properties/rows/EditorBox.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>

TPropertyFloatSpin::TPropertyFloatSpin(const QString& label, double min, double max, double step, int decimals)
    : TAbstractProperty(label, nullptr), spin(new TDoubleSpinBox), check(new QCheckBox(tr("En")))
{
    auto* box = new QWidget;
    SetEditor(box);
    box->setFixedHeight(EditorBox::fixedHeight);
    EditorBox::LayOut(box, {{check, 0}, {spin, 1}});
    box->setFocusProxy(spin);

    // The decimals come first: a range is rounded to the decimals that the box has when it is set.
    spin->setDecimals(decimals);
    spin->setRange(min, max);
    spin->setSingleStep(step);
    check->hide();

    AddOwnPart(QStringLiteral("check"), check);
    AddOwnPart(QString(), spin);
    connect(spin, SIGNAL(valueChanged(double)), this, SLOT(slotDoubleToFloat(double)));
    connect(check, &QCheckBox::clicked, this,
            [this](bool on) { Report(SecondValue, [this, on] { emit sigCheckChanged(on); }); });
}

void TPropertyFloatSpin::slotDoubleToFloat(double value)
{
    Report(FirstValue, [this, value] { emit sigValueChanged(value); });
}
