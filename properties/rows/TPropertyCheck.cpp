#include "properties/rows/TPropertyCheck.h"

#include "properties/rows/EditorBox.h"

#include <QCheckBox>

TPropertyCheck::TPropertyCheck(const QString& label) : TAbstractProperty(label, nullptr), box(new QCheckBox)
{
    auto* container = new QWidget;
    SetEditor(container);
    constexpr int leftMargin = 5;
    EditorBox::LayOut(container, {{box, 0}})->setContentsMargins(leftMargin, 0, 0, 0);
    container->setFocusProxy(box);
    AddPart(QString(), box);
    connect(box, &QCheckBox::toggled, this,
            [this](bool on) { Report(FirstValue, [this, on] { emit sigStateChanged(on); }); });
}

bool TPropertyCheck::CurrentState() const
{
    return box && box->isChecked();
}

void TPropertyCheck::SetCurrentState(bool on)
{
    if (box) {
        SetMixed(false);
        box->setChecked(on);
    }
}
