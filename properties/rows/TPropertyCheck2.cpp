#include "properties/rows/TPropertyCheck2.h"

#include "properties/rows/TCheckBox2Widget.h"

#include <QCheckBox>

TPropertyCheck2::TPropertyCheck2(const QString& label, const QString& text1, const QString& text2)
    : TAbstractProperty(label, nullptr)
{
    auto* boxes = new TCheckBox2Widget(text1, text2, nullptr);
    SetEditor(boxes);
    AddPart(QStringLiteral("1"), boxes->box1);
    AddPart(QStringLiteral("2"), boxes->box2);
    connect(boxes, &TCheckBox2Widget::sigChecked1, this,
            [this](bool on) { Report(FirstValue, [this, on] { emit sigChecked1(on); }); });
    connect(boxes, &TCheckBox2Widget::sigChecked2, this,
            [this](bool on) { Report(SecondValue, [this, on] { emit sigChecked2(on); }); });
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
        SetMixed(false, FirstValue);
        boxes->box1->setChecked(on);
    }
}

void TPropertyCheck2::SetChecked2(bool on)
{
    if (TCheckBox2Widget* boxes = Boxes()) {
        SetMixed(false, SecondValue);
        boxes->box2->setChecked(on);
    }
}
