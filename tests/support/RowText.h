#pragma once

#include <QStringList>

class TAbstractProperty;
class TPropertySet;

namespace Test {

/**
 * A row as one line of a table, read from its editor:
 *
 *     TPropertyFloatSpin Mask: 0..10 step 0.1 decimals 2 = [x] 0.05 mm
 *     TPropertySize Size: 0.1..100 step 0.1 decimals 2 = 1.00 mm x 0.50 mm, height locked
 *     TPropertyEnum Type: SMT 1, THT 0 = none
 *     TPropertyText Number: = A1, [x] Show, read-only
 *     TPropertyIntSpin Priority: 0..15 step 1 = 3
 *     TPropertyCheck2 Mirror: = [x] Hor. [ ] Ver.
 *     TPropertyColor Color: 23 colours = Default
 *
 * followed by ", disabled" and ", hidden" where they hold.
 */
QString RowText(const TAbstractProperty* row);

/** All rows that were added, in order. */
QStringList RowTexts(const TPropertySet* set);

/** @p base with the lines of some rows replaced by others of the same kind and label. */
QStringList WithRows(QStringList base, const QStringList& changed);

} // namespace Test
