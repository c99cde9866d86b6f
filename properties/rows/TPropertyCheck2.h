#pragma once

#include "properties/rows/TAbstractProperty.h"

class TCheckBox2Widget;

/** A row with two labelled check boxes. Without its editor both read as unchecked and ignore what is set. */
class PROPERTIES_EXPORT TPropertyCheck2 : public TAbstractProperty
{
    Q_OBJECT

public:
    TPropertyCheck2(const QString& label, const QString& text1, const QString& text2);

    bool IsChecked1() const;
    bool IsChecked2() const;
    void SetChecked1(bool on);
    void SetChecked2(bool on);

Q_SIGNALS:
    void sigChecked1(bool on);
    void sigChecked2(bool on);

private:
    TCheckBox2Widget* Boxes() const;
};
