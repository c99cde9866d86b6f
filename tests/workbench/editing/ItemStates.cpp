#include "tests/workbench/editing/ItemStates.h"

#include <objects/TGraphicsPinItem.h>

#include <algorithm>

namespace Test {

QList<TGraphicsItem*> ItemsOf(const TDesign& design)
{
    QList<TGraphicsItem*> items;
    for (const TDocument& document : design.Documents()) {
        items += design.ItemsOf(document);
    }
    return items;
}

ItemStates StatesOf(const TDesign& design)
{
    ItemStates states;
    const QList<TGraphicsItem*> items = ItemsOf(design);
    states.reserve(items.size());
    for (const TGraphicsItem* item : items) {
        if (item->type() != ItemType::RatLine && !dynamic_cast<const TGraphicsPinItem*>(item->parentItem())) {
            states.insert(item, item->StateLine());
        }
    }
    return states;
}

QStringList ChangedFields(const QString& from, const QString& to)
{
    if (from == to) {
        return {};
    }
    StateFields before(from);
    const StateFields after(to);
    QStringList names;
    if (before.Kind() != after.Kind()) {
        names.append(QStringLiteral("kind"));
        before.SetKind(after.Kind());
    }
    return names + before.Differences(after);
}

ItemFields ChangedFields(const ItemStates& from, const ItemStates& to)
{
    ItemFields fields;
    for (auto state = from.cbegin(); state != from.cend(); ++state) {
        const auto after = to.constFind(state.key());
        if (after != to.cend() && *after != *state) {
            const QStringList names = ChangedFields(*state, *after);
            fields.insert(state.key(), QSet<QString>(names.cbegin(), names.cend()));
        }
    }
    return fields;
}

QString WithoutBypass(const QString& line)
{
    StateFields fields(line);
    fields.Set("flags", fields.Integer("flags") & ~static_cast<int>(TGraphicsItem::UndoBypass));
    return fields.Line();
}

QString StateDifferences(const ItemStates& actual, const ItemStates& expected, const ItemFields& except)
{
    if (actual == expected) {
        return {};
    }
    QStringList differences;
    for (auto state = expected.cbegin(); state != expected.cend(); ++state) {
        const QString line = actual.value(state.key());
        const QStringList names = ChangedFields(*state, line);
        const QSet<QString> exempt = except.value(state.key());
        if (std::any_of(names.cbegin(), names.cend(), [&](const QString& name) { return !exempt.contains(name); })) {
            differences.append(QStringLiteral("%1 of an item that is\n  %2\nand should be\n  %3")
                                   .arg(names.join(QStringLiteral(", ")), line, *state));
        }
    }
    for (auto state = actual.cbegin(); state != actual.cend(); ++state) {
        if (!expected.contains(state.key())) {
            differences.append(QStringLiteral("an item that should not be there\n  ") + *state);
        }
    }
    differences.sort(); // The items have no order.
    return QStringList(differences.mid(0, 5)).join(QLatin1Char('\n'));
}

} // namespace Test
