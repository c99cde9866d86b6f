#pragma once

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyCheck2.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyPenStyle.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TCommonValue.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>

/**
 * Gives rows their values. A row for a value that all items share stays at its editor's default (no current item, an
 * empty text, an unticked box) when they differ, and is marked as mixed. A "Show" box is ticked only where all are
 * shown.
 */
namespace RowValues {

/** A length in millimetres as a text. */
inline QString Millimetres(double length)
{
    return QString::number(length, 'f', 2) + QStringLiteral(" mm");
}

/** A number, in the unit that the suffix names. */
inline void Show(TPropertyFloatSpin& row, double value, const QString& suffix)
{
    row.spin->setSuffix(suffix);
    row.spin->setValue(value);
}

/** A size, in the unit that the suffix names. For a row whose height follows its width, set the mode first. */
inline void Show(TPropertySize& row, double width, double height, const QString& suffix)
{
    row.SetSuffix(suffix);
    row.width->setValue(width);
    row.height->setValue(height);
}

template <class Row, class Show>
void ShowIfShared(Row& row, bool allEqual, Show show, TAbstractProperty::Value value = TAbstractProperty::FirstValue)
{
    if (allEqual) {
        show();
    } else {
        row.SetMixed(true, value);
    }
}

template <class Value>
void Show(TPropertyEnum& row, const TCommonValue<Value>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentEnum(static_cast<int>(values.First())); });
}

inline void Show(TPropertyEnum& row, const TCommonValue<QString>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentText(values.First()); });
}

inline void Show(TPropertyLayer& row, const TCommonValue<Osmirel::Layer>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentLayer(values.First()); });
}

inline void Show(TPropertyText& row, const TCommonValue<QString>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.line->setText(values.First()); });
}

inline void Show(TPropertyPenStyle& row, const TCommonValue<Qt::PenStyle>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentPenStyle(values.First()); });
}

inline void Show(TPropertyCheck& row, const TCommonValue<bool>& values)
{
    ShowIfShared(row, values.AllEqual(), [&] { row.SetCurrentState(values.First()); });
}

inline void Show(TPropertyCheck2& row, const TCommonValue<bool>& first, const TCommonValue<bool>& second)
{
    ShowIfShared(row, first.AllEqual(), [&] { row.SetChecked1(first.First()); });
    ShowIfShared(
        row, second.AllEqual(), [&] { row.SetChecked2(second.First()); }, TAbstractProperty::SecondValue);
}

/** The "Show" box of a text row. */
inline void ShowVisible(TPropertyText& row, const TCommonValue<bool>& values)
{
    row.visible->show();
    row.visible->setChecked(values.AllEqual() && values.First());
}

/** The enable box of a number row. */
inline void ShowCheck(TPropertyFloatSpin& row, const TCommonValue<bool>& values)
{
    row.check->show();
    ShowIfShared(
        row, values.AllEqual(), [&] { row.check->setChecked(values.First()); }, TAbstractProperty::SecondValue);
}

} // namespace RowValues
