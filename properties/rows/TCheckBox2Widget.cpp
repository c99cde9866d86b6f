#include "properties/rows/TCheckBox2Widget.h"

#include "properties/rows/EditorBox.h"

#include <QCheckBox>

TCheckBox2Widget::TCheckBox2Widget(const QString& text1, const QString& text2, QWidget* parent)
    : QWidget(parent), box1(new QCheckBox(text1)), box2(new QCheckBox(text2))
{
    setFixedHeight(EditorBox::fixedHeight);
    constexpr int leftSpacing = 5;
    EditorBox::LayOut(this, {{box1, 1}, {box2, 1}})->insertSpacing(0, leftSpacing);
    setFocusProxy(box1);
    connect(box1, SIGNAL(toggled(bool)), this, SIGNAL(sigChecked1(bool)));
    connect(box2, SIGNAL(toggled(bool)), this, SIGNAL(sigChecked2(bool)));
}
