#pragma once

#include "properties/rows/TLineEdit.h"
#include "properties/sets/RowValues.h"

#include <graphics/TGraphicsItem.h>

/** What the sets of packages and of parts have in common. */
namespace ComponentRows {

/** The name of a package without the qualifier that may follow it after an at sign. */
inline QString NameWithoutQualifier(const QString& packageName)
{
    return packageName.left(packageName.indexOf(QLatin1Char('@'))); // All of it if there is none.
}

/** Shows a text that all components share, and does not open for editing. */
inline void ShowReadOnly(TPropertyText& row, const TGathered<QString>& values)
{
    RowValues::Show(row, values);
    row.line->SetEditable(false);
}

/** Locks the text item of a component in place, or unlocks it; null is ignored. */
inline void LockText(TGraphicsItem* text, bool lock)
{
    if (text) {
        text->SetTFlag(TGraphicsItem::Lock, lock);
    }
}

} // namespace ComponentRows
