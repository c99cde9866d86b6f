#pragma once

#include "properties/rows/TLineEdit.h"
#include "properties/sets/RowValues.h"

#include <objects/TGraphicsComponentItem.h>

/** What the sets of packages and of parts have in common. */
namespace ComponentRows {

/** The name of a package without the qualifier that may follow it after an at sign. */
inline QString NameWithoutQualifier(const QString& packageName)
{
    return packageName.left(packageName.indexOf(QLatin1Char('@'))); // The whole name if there is none.
}

/** Shows a text that all components share, read-only. */
inline void ShowReadOnly(TPropertyText& row, const TCommonValue<QString>& values)
{
    RowValues::Show(row, values);
    row.line->SetEditable(false);
}

/** What the sets show of the components of their items. */
struct Values
{
    TCommonValue<QString> refDes;
    TCommonValue<QString> value;
    TCommonValue<QString> package;
    TCommonValue<QString> id;
    TCommonValue<bool> lockRefDes;
    TCommonValue<bool> lockValue;

    void Add(const TGraphicsComponentItem& item)
    {
        refDes.Add(item.RefDes());
        value.Add(item.Value());
        package.Add(NameWithoutQualifier(item.PackageName()));
        id.Add(QString::number(item.ComponentNumber()));
        lockRefDes.Add(item.LockRefDes());
        lockValue.Add(item.LockValue());
    }
};

/** Locks the text item of a component in place, or unlocks it; null is ignored. */
inline void LockText(TGraphicsItem* text, bool lock)
{
    if (text) {
        text->SetTFlag(TGraphicsItem::Lock, lock);
    }
}

/** Locks a component's designator in place, or unlocks it. */
inline void LockRefDes(TGraphicsComponentItem& item, bool lock)
{
    item.SetLockRefDes(lock);
    LockText(item.RefDesText(), lock);
}

/** Locks a component's value in place, or unlocks it. */
inline void LockValue(TGraphicsComponentItem& item, bool lock)
{
    item.SetLockValue(lock);
    LockText(item.ValueText(), lock);
}

} // namespace ComponentRows
