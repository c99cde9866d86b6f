#pragma once

#include <QDoubleSpinBox>

/** The application's box for lengths. */
class TDoubleSpinBox : public QDoubleSpinBox
{
public:
    TDoubleSpinBox();
};
