#pragma once

#include <QString>
#include <QStringList>

class TGraphicsItem;

namespace Test {

/** What panels do on purpose otherwise than it holds for all rows. Cells are called by the item's kind and the row,
 *  such as "pad Shape:". */
namespace PanelRules {

/** Whether the set for an item takes another item of the selection, too. */
bool Takes(const TGraphicsItem& first, const TGraphicsItem& other);

/** Writes at once, without a command. */
bool IsWrittenAtOnce(const QString& cell);

/** Makes a command where undo is bypassed, too. */
bool IsAlwaysACommand(const QString& cell);

/** Its direct write comes to another state than the command. */
bool DiffersDirectly(const QString& cell);

/** The rows that, after an edit of the cell, show something else than those of a new set. */
QStringList RowsThatDiffer(const QString& cell);

} // namespace PanelRules

} // namespace Test
