#pragma once

#include <QDoubleSpinBox>

/** The application's box for lengths: 2 decimals, a step of 0.05 and the suffix " mm" until told otherwise. */
class TDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit TDoubleSpinBox(QWidget* parent = nullptr);
};
