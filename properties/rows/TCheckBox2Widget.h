#pragma once

#include <properties/Export.h>

#include <QWidget>

class QCheckBox;

/** Two labelled check boxes side by side. Every change of state is reported, also one by the program. */
class PROPERTIES_EXPORT TCheckBox2Widget : public QWidget
{
    Q_OBJECT

public:
    TCheckBox2Widget(const QString& text1, const QString& text2, QWidget* parent);

    QCheckBox* const box1;
    QCheckBox* const box2;

Q_SIGNALS:
    void sigChecked1(bool on);
    void sigChecked2(bool on);
};
