#pragma once

#include "properties/TPropertySet.h"

template <class Value>
class TCommonValue;
class TGraphicsPartItem;
class TPropertyCheck2;
class TPropertyIntSpin;
class TPropertyText;

/** Shows parts, and edits which of their texts are locked in place. */
class PROPERTIES_EXPORT TPropertySetForPart : public TPropertySet
{
    Q_OBJECT

public:
    /** Intended: the name of the set counts all items that are given. Keeps the parts of @p selection. */
    explicit TPropertySetForPart(QList<TGraphicsItem*> selection);

public Q_SLOTS:
    /** @{ Written at once, without a command. */
    void SetLockRefDes(bool on);
    void SetLockValue(bool on);
    /** @} */

private:
    struct Values;
    void MakeRows(const Values& values);
    /** A read-only row for a value that all parts share. */
    TPropertyText* NewDisplay(const QString& label, const TCommonValue<QString>& values);

    QList<TGraphicsPartItem*> parts;
    QPointer<TPropertyText> refDes;
    QPointer<TPropertyText> value;
    QPointer<TPropertyText> name;
    QPointer<TPropertyText> package;
    QPointer<TPropertyText> id;
    QPointer<TPropertyCheck2> lock;
    QPointer<TPropertyIntSpin> swap;
};
