#pragma once

#include "properties/rows/TPropertyChoice.h"

#include <QStringList>

/** A row that picks one of several texts, each of which has an integer value. */
class PROPERTIES_EXPORT TPropertyEnum : public TPropertyChoice
{
    Q_OBJECT

public:
    /** An empty list, to be filled with `AddItem`. */
    explicit TPropertyEnum(const QString& label);
    /** One item for each text, with the values 0, 1, 2, … */
    TPropertyEnum(const QString& label, QStringList texts);

    void AddItem(const QString& text, int value);

    /** Value of the current item; −1 when there is none. */
    int CurrentEnum() const;
    /** Makes the item of that value current; a no-op without such an item. */
    void SetCurrentEnum(int value);
    /** Makes the item of that text current; an unknown text becomes a new first item without a value. */
    void SetCurrentText(const QString& text);

Q_SIGNALS:
    void sigEnumChanged(int value);
    void sigTextChanged(const QString& text);

private Q_SLOTS:
    void slotRowChanged(int row);
};
