#pragma once

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TGathered.h"

#include <QCheckBox>

/**
 * Gives a row the value that all items share. When they differ the row stays at its editor's default (no current
 * item, an empty text, an unticked box) and is marked as mixed.
 */
namespace RowValues {

template <class Row, class Show>
void ShowIfShared(Row& row, bool allEqual, Show show)
{
    if (allEqual) {
        show();
    } else {
        row.SetMixed(true);
    }
}

template <class Value>
void Show(TPropertyEnum& row, const TGathered<Value>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentEnum(static_cast<int>(values.First())); });
}

inline void Show(TPropertyEnum& row, const TGathered<QString>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentText(values.First()); });
}

inline void Show(TPropertyLayer& row, const TGathered<Osmirel::Layer>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentLayer(values.First()); });
}

inline void Show(TPropertyText& row, const TGathered<QString>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.line->setText(values.First()); });
}

/** The enable box of a number row. */
inline void ShowCheck(TPropertyFloatSpin& row, const TGathered<bool>& values)
{
    row.check->show();
    ShowIfShared(row, values.AllEqual(), [&] { row.check->setChecked(values.First()); });
}

} // namespace RowValues
