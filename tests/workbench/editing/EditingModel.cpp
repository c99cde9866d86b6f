#include "tests/workbench/editing/EditingModel.h"

#include <algorithm>

namespace Test {

EditingModel::EditingModel(TBoard& board, const QList<TGraphicsItem*>& modelled)
    : rules(board.LayerManager()->DrillPairs())
{
    for (const TGraphicsItem* item : modelled) {
        items.push_back({item->StateLine(), {}});
    }
    for (const QString& pair : board.ViaGroups()) {
        drillPairs.append(pair);
    }
    for (const Osmirel::Layer side : {Osmirel::CopperTop, Osmirel::CopperBottom}) {
        if (board.LayerManager()->HasLayer(side)) {
            sides.append(static_cast<int>(side));
        }
    }
}

const StateFields& EditingModel::Fields(int item) const
{
    const Item& found = items[static_cast<std::size_t>(item)];
    if (!found.fields) {
        found.fields.emplace(found.line);
    }
    return *found.fields;
}

template <class Change>
void EditingModel::ChangeItem(int item, Change change)
{
    Fields(item);
    Item& changed = items[static_cast<std::size_t>(item)];
    change(*changed.fields);
    changed.line = changed.fields->Line();
}

void EditingModel::Show(const QVector<int>& selection)
{
    panel = ModelPanel();
    edited.clear();
    if (selection.isEmpty()) {
        return;
    }
    const QString kind = Kind(selection.first());
    ModelPanel::Items fields;
    for (const int item : selection) {
        if (Kind(item) == kind) {
            edited.append(item);
            fields.append(&Fields(item));
        }
    }
    if (kind == QLatin1String("via")) {
        panel = ModelPanel::OfVias(fields, rules, drillPairs);
    } else if (kind == QLatin1String("pad")) {
        panel = ModelPanel::OfPads(fields, rules, sides);
    } else if (kind == QLatin1String("hole")) {
        panel = ModelPanel::OfHoles(fields, rules);
    }
}

void EditingModel::Enter(int cell, double number)
{
    ModelCell& edit = Cell(cell);
    const double kept = edit.Kept(number);
    if (kept != edit.number) {
        edit.number = kept;
        Changed(edit, ModelScene(kept));
    }
}

void EditingModel::Choose(int cell, int option)
{
    ModelCell& edit = Cell(cell);
    if (option != edit.index) {
        edit.index = option;
        Changed(edit, edit.options.at(option));
    }
}

void EditingModel::Click(int cell)
{
    ModelCell& edit = Cell(cell);
    edit.checked = !edit.checked;
    Changed(edit, edit.checked);
}

void EditingModel::Type(int cell, const QString& text, int reports)
{
    ModelCell& edit = Cell(cell);
    edit.text = text;
    for (int report = 0; report < reports; ++report) {
        Changed(edit, text);
    }
}

void EditingModel::Changed(const ModelCell& cell, const QVariant& value)
{
    if (cell.attribute == &rules.holeSize) {
        EditHoles(value);
    } else {
        Edit(*cell.attribute, value);
    }
    if (cell.attribute == &rules.width) {
        HeightFollowsWidth();
    } else if (cell.attribute == &rules.type) {
        TypeChanged(value.toInt());
    } else if (cell.attribute == &rules.shape) {
        ShapeChanged(value.toInt());
    }
}

void EditingModel::TypeChanged(int type)
{
    panel.Cell("Drill:").shown = type == 0;
    panel.Cell("Side:").shown = type == 1;
}

void EditingModel::ShapeChanged(int shape)
{
    panel.Cell("Size (W x H):height").enabled = shape == 5;
    panel.doubleHeight = shape == 4;
    HeightFollowsWidth();
}

// A locked height is set, which reports it if it is another one, and then the width itself is reported as the height.
void EditingModel::HeightFollowsWidth()
{
    ModelCell& height = panel.Cell("Size (W x H):height");
    if (height.enabled) {
        return;
    }
    const double width = panel.Cell("Size (W x H):width").number;
    const double follows = height.Kept(panel.doubleHeight ? 2 * width : width);
    if (follows != height.number) {
        height.number = follows;
        Edit(rules.height, ModelScene(follows));
    }
    Edit(rules.height, ModelScene(width));
}

bool EditingModel::Bypasses(int item) const
{
    return (Fields(item).Integer("flags") & 1) != 0;
}

void EditingModel::SetBypass(int item, bool on)
{
    ChangeItem(item, [on](StateFields& fields) {
        const int flags = fields.Integer("flags");
        fields.Set("flags", on ? flags | 1 : flags & ~1);
    });
}

void EditingModel::Edit(const ModelAttribute& attribute, const QVariant& value)
{
    if (!Bypasses(edited.first())) {
        Push(attribute, edited, value);
        return;
    }
    for (const int item : qAsConst(edited)) {
        WriteDirectly(attribute, item, value);
    }
}

// Of holes each one's own flag decides.
void EditingModel::EditHoles(const QVariant& scene)
{
    QVector<int> pending;
    for (const int hole : qAsConst(edited)) {
        if (Bypasses(hole)) {
            WriteDirectly(rules.holeSize, hole, scene);
        } else {
            pending.append(hole);
        }
    }
    if (!pending.isEmpty()) {
        Push(rules.holeSize, pending, scene);
    }
}

void EditingModel::WriteDirectly(const ModelAttribute& attribute, int item, const QVariant& value)
{
    ChangeItem(item, [&](StateFields& fields) {
        (attribute.writeDirectly ? attribute.writeDirectly : attribute.write)(fields, value);
    });
}

void EditingModel::Push(const ModelAttribute& attribute, const QVector<int>& over, const QVariant& value)
{
    Command command{&attribute, {}, {}, value};
    for (const int item : over) {
        const StateFields& fields = Fields(item);
        if (!attribute.accepts || attribute.accepts(fields)) {
            command.items.append(item);
            command.oldValues.append(attribute.read(fields));
        }
    }
    stack.resize(static_cast<std::size_t>(done));
    stack.push_back(command);
    Redo();
}

void EditingModel::Redo()
{
    if (done < StackCount()) {
        const Command& command = stack[static_cast<std::size_t>(done++)];
        for (const int item : command.items) {
            ChangeItem(item, [&](StateFields& fields) { command.attribute->write(fields, command.newValue); });
        }
    }
}

void EditingModel::Undo()
{
    if (done > 0) {
        const Command& command = stack[static_cast<std::size_t>(--done)];
        for (int i = 0; i < command.items.size(); ++i) {
            ChangeItem(command.items[i],
                       [&](StateFields& fields) { command.attribute->write(fields, command.oldValues[i]); });
        }
    }
}

} // namespace Test
