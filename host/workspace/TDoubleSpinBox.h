#pragma once

#include <QDoubleSpinBox>

/** The application's box for lengths: by default with 2 decimals, a step of 0.05 and the suffix " mm". */
class TDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit TDoubleSpinBox(QWidget* parent = nullptr);
};
