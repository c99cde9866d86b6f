#pragma once

#include "properties/sets/RowValues.h"

#include <QCheckBox>

/** What the sets of net ties on schematic and board have in common. */
namespace NetTieRows {

/** Shows the name of a tie, and its visibility in the "Show" box. */
template <class Tie>
void ShowName(TPropertyText& row, const Tie& tie)
{
    row.line->setText(tie.Name());
    row.visible->setChecked(tie.NameVisible());
    row.visible->show();
}

/** Shows the number of a tie, read-only. */
template <class Tie>
void ShowNumber(TPropertyText& row, const Tie& tie)
{
    row.line->setText(QString::number(tie.Number()));
    row.SetEnabled(false);
}

} // namespace NetTieRows
