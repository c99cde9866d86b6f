#include "tests/workbench/editing/HeldCommand.h"

#include <algorithm>
#include <tuple>

namespace Test {

namespace {

/** Where a law says less of a command than what the command does. */
bool IsIn(std::initializer_list<const char*> keys, const QString& key)
{
    return std::any_of(keys.begin(), keys.end(), [&key](const char* other) { return key == QLatin1String(other); });
}

/** Fields for which it is not enough to know what the law's two values make of them. */
bool IsOfMore(const QString& key, const QString& field)
{
    return IsIn({"KeepoutLayEn layers",           // the law's commands are all about one layer,
                 "TagName value", "TagName text", // have no project,
                 "ViaGroup start"},               // and begin on the same layer
                key + QLatin1Char(' ') + field);
}

/** What is written depends on other fields, which may have been written meanwhile. */
bool DependsOnMore(const QString& key)
{
    return IsIn({"PadSide", "PadType", "KeepoutLayEn"}, key);
}

/** Fields of linked items follow. */
bool Follows(const QString& key, const QString& from, const QString& to)
{
    const QString item = from.section(QLatin1Char(' '), 0, 0);
    const QStringList fields = ChangedFields(from, to);
    return std::all_of(fields.cbegin(), fields.cend(), [&](const QString& field) {
        return IsIn({"WireWidth junction size",                  // as large as the widest wire
                     "PadSide wire first", "PadSide wire last"}, // tell the layers of what they are linked to
                    QStringList{key, item, field}.join(QLatin1Char(' ')));
    });
}

/** Undo of structural commands that does not bring everything back, with tests of its own. */
bool IsInexact(const QString& key)
{
    return IsIn({"PkgSide",                      // shows the texts as the board's switches say
                 "NetColorPcb", "NetColorSch",   // gives all items of the net the net's colour
                 "NetTieName", "NetTieNameVis"}, // of several of one number, all get what the first had
                key);
}

const CommandLaw* LawOf(const QString& key)
{
    const QString name = QStringLiteral("TCmd") + key;
    const auto found = std::find_if(LawTable().cbegin(), LawTable().cend(),
                                    [&name](const CommandLaw& law) { return law.name == name; });
    return found == LawTable().cend() ? nullptr : &*found;
}

/** What a law makes of an item with either value and by undo. */
struct Outcomes
{
    Outcomes(const CommandLaw& law, const QString& line) : before(line), first(line), second(line), undone(line)
    {
        law.redone(first, 0);
        law.redone(second, 1);
        law.undone(undone);
        for (const StateFields* outcome : {&first, &second, &undone}) {
            for (const QString& name : ChangedFields(line, outcome->Line())) {
                written.insert(name);
            }
        }
        for (const char* name : {"start", "value", "text", "layers"}) {
            if (IsOfMore(law.name.mid(4), QLatin1String(name))) {
                written.insert(QLatin1String(name));
            }
        }
    }

    static QString Text(const StateFields& fields, const QString& name)
    {
        return name == QLatin1String("kind") ? fields.Kind() : fields.Text(name);
    }

    /** Puts what a law wrote of one field into a line: of flags, only those that it writes. */
    void Write(const QString& name, const StateFields& from, StateFields& to) const
    {
        if (name == QLatin1String("kind")) {
            to.SetKind(from.Kind());
        } else if (name == QLatin1String("flags")) {
            const int old = before.Integer(name);
            const int mask = (first.Integer(name) ^ old) | (second.Integer(name) ^ old);
            to.Set("flags", (to.Integer(name) & ~mask) | (from.Integer(name) & mask));
        } else {
            to.SetText(name, from.Text(name));
        }
    }

    QString Written(const QString& onto, const StateFields& from) const
    {
        StateFields fields(onto);
        for (const QString& name : written) {
            Write(name, from, fields);
        }
        return fields.Line();
    }

    bool Allow(const QString& from, const QString& to) const
    {
        const QStringList names = ChangedFields(from, to);
        return std::all_of(names.cbegin(), names.cend(),
                           [this](const QString& name) { return written.contains(name); });
    }

    StateFields before;
    StateFields first;
    StateFields second;
    StateFields undone;
    QSet<QString> written;
};

} // namespace

HeldCommand::HeldCommand(const CommandLaw& ofLaw, int ofValue, const QList<TGraphicsItem*>& given,
                         const ItemStates& now)
    : key(ofLaw.name.mid(4)), law(&ofLaw), value(ofValue)
{
    Keep(given, now);
}

HeldCommand::HeldCommand(const QString& kind, const QList<TGraphicsItem*>& given, const ItemStates& now)
    : key(kind), law(LawOf(kind))
{
    Keep(given, now);
}

void HeldCommand::Keep(const QList<TGraphicsItem*>& given, const ItemStates& now)
{
    before = now;
    for (const TGraphicsItem* item : given) {
        if (law && law->accepts(*item) && now.contains(item)) {
            kept.append(item);
        }
    }
}

bool HeldCommand::IsAsLeft(const TGraphicsItem* item, const ItemStates& states, const ItemStates& left) const
{
    return states[item] == left[item] || WithoutBypass(states[item]) == WithoutBypass(left[item]);
}

QString HeldCommand::Redone(const ItemStates& from, const ItemStates& to, ItemFields& inexact)
{
    if (!law) {
        return StructureRedone(from, to, inexact);
    }
    ItemStates expected = from;
    const bool isFirst = !isDone;
    if (isFirst) {
        isDone = true;
        after = to;
        if (value < 0) {
            const QString problem = FirstRedone(expected, to);
            return problem.isEmpty() ? Compare(to, expected, inexact) : problem;
        }
    }
    for (const TGraphicsItem* item : qAsConst(kept)) {
        const Outcomes outcomes(*law, before[item]);
        if (value >= 0) {
            StateFields fields(from[item]);
            law->redone(fields, value);
            expected[item] = fields.Line();
        } else if ((DependsOnMore(key) && !IsAsLeft(item, from, before)) || key == QLatin1String("TagName")) {
            expected[item] = outcomes.Allow(from[item], to[item]) ? to[item] : from[item];
        } else {
            expected[item] = outcomes.Written(from[item], StateFields(after[item]));
        }
    }
    return Compare(to, expected, inexact);
}

/** Of an unknown value: what does not depend on the value is as the law says, and the rest is the same wherever both of
 *  the law's values make it the same. */
QString HeldCommand::FirstRedone(ItemStates& expected, const ItemStates& to) const
{
    QHash<QString, QString> written; // By the field and what the law's values make of it.
    for (const TGraphicsItem* item : qAsConst(kept)) {
        const Outcomes outcomes(*law, before[item]);
        if (!outcomes.Allow(before[item], to[item])) {
            continue; // Stays as it is expected.
        }
        const StateFields actual(to[item]);
        expected[item] = to[item];
        for (const QString& name : outcomes.written) {
            const QString first = Outcomes::Text(outcomes.first, name);
            const QString second = Outcomes::Text(outcomes.second, name);
            const QString text = Outcomes::Text(actual, name);
            const QString found = QStringList{name, first, second}.join(QLatin1Char('\n'));
            if (IsOfMore(key, name)) {
                continue;
            }
            if (first == second ? text != first : written.value(found, text) != text) {
                return QStringLiteral("%1: %2 of an item is %3, unlike the others").arg(key, name, text);
            }
            written.insert(found, text);
        }
    }
    return {};
}

QString HeldCommand::Undone(const ItemStates& from, const ItemStates& to, ItemFields& inexact) const
{
    if (!law) {
        return StructureUndone(from, to, inexact);
    }
    ItemStates expected = from;
    for (const TGraphicsItem* item : qAsConst(kept)) {
        const Outcomes outcomes(*law, before[item]);
        for (const QString& name : ChangedFields(before[item], outcomes.undone.Line())) {
            inexact[item].insert(name);
        }
        const bool isOfProject = key == QLatin1String("TagName") && value < 0;
        if (isOfProject || (DependsOnMore(key) && !IsAsLeft(item, from, after))) {
            expected[item] = outcomes.Allow(from[item], to[item]) ? to[item] : from[item];
            inexact[item].unite(outcomes.written);
        } else {
            expected[item] = outcomes.Written(from[item], outcomes.undone);
        }
    }
    return Compare(to, expected, inexact);
}

QString HeldCommand::Compare(const ItemStates& to, ItemStates expected, ItemFields& inexact) const
{
    if (to == expected) {
        return {};
    }
    for (auto state = expected.begin(); state != expected.end(); ++state) {
        const auto actual = to.constFind(state.key());
        if (actual != to.cend() && *actual != *state && Follows(key, *state, *actual)) {
            const QStringList fields = ChangedFields(*state, *actual);
            inexact[state.key()].unite(QSet<QString>(fields.cbegin(), fields.cend()));
            *state = *actual;
        }
    }
    const QString differences = StateDifferences(to, expected);
    return differences.isEmpty() ? QString() : key + QStringLiteral(": ") + differences;
}

QString HeldCommand::StructureRedone(const ItemStates& from, const ItemStates& to, ItemFields& inexact)
{
    if (isDone) {
        return from == before ? Compare(to, after, inexact) : QString();
    }
    isDone = true;
    after = to;
    return {};
}

QString HeldCommand::StructureUndone(const ItemStates& from, const ItemStates& to, ItemFields& inexact) const
{
    if (from == after && !IsInexact(key)) {
        return Compare(to, before, inexact);
    }
    const ItemFields written = ChangedFields(before, after);
    for (auto fields = written.cbegin(); fields != written.cend(); ++fields) {
        inexact[fields.key()].unite(*fields);
    }
    return {};
}

} // namespace Test
