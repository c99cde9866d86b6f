#pragma once

#include "tests/host/StateFields.h"
#include "workbench/design/TDesign.h"

#include <QHash>
#include <QSet>

namespace Test {

/** The state lines of items. */
using ItemStates = QHash<const TGraphicsItem*, QString>;

/** Fields of items, by their names. */
using ItemFields = QHash<const TGraphicsItem*, QSet<QString>>;

/** Those of a board and its pages. Left out are the numbers of pins, whose state is that of their pins, and rat lines,
 *  which follow from the copper once somebody looks. */
ItemStates StatesOf(const TDesign& design);

/** All items of a board and its pages, in their order. */
QList<TGraphicsItem*> ItemsOf(const TDesign& design);

/** The names of the fields in which two lines differ; "kind" if the first words do. */
QStringList ChangedFields(const QString& from, const QString& to);

/** The same for all items that both have. */
ItemFields ChangedFields(const ItemStates& from, const ItemStates& to);

/** A line without the flag that undo is bypassed. */
QString WithoutBypass(const QString& line);

/** Some of the items that differ, as they are and as they should be; empty if there are none. */
QString StateDifferences(const ItemStates& actual, const ItemStates& expected, const ItemFields& except = {});

} // namespace Test
