#include "properties/rows/TPropertyCheck2.h"

#include "properties/rows/TCheckBox2Widget.h"

#include <QCheckBox>

TPropertyCheck2::TPropertyCheck2(const QString& label, const QString& text1, const QString& text2)
    : TAbstractProperty(label, nullptr)
{
    auto* boxes = new TCheckBox2Widget(text1, text2, nullptr);
    SetEditor(boxes);
    connect(boxes, SIGNAL(sigChecked1(bool)), this, SIGNAL(sigChecked1(bool)));
    connect(boxes, SIGNAL(sigChecked2(bool)), this, SIGNAL(sigChecked2(bool)));
}

TCheckBox2Widget* TPropertyCheck2::Boxes() const
{
    return qobject_cast<TCheckBox2Widget*>(Editor());
}

bool TPropertyCheck2::IsChecked1() const
{
    return Boxes() && Boxes()->box1->isChecked();
}

bool TPropertyCheck2::IsChecked2() const
{
    return Boxes() && Boxes()->box2->isChecked();
}

void TPropertyCheck2::SetChecked1(bool on)
{
    if (TCheckBox2Widget* boxes = Boxes()) {
        boxes->box1->setChecked(on);
    }
}

void TPropertyCheck2::SetChecked2(bool on)
{
    if (TCheckBox2Widget* boxes = Boxes()) {
        boxes->box2->setChecked(on);
    }
}
