#pragma once

#include "tests/workbench/editing/ModelPanel.h"

#include <application/TBoard.h>

#include <optional>
#include <vector>

namespace Test {

/**
 * A board, its undo stack and the panel over a selection as they have to be, in terms of state lines only: nothing
 * here calls a row, a set, a command or a setter of an item.
 */
class EditingModel
{
public:
    /** A model of these items of the board. */
    EditingModel(TBoard& board, const QList<TGraphicsItem*>& modelled);

    QString Kind(int item) const { return Line(item).section(QLatin1Char(' '), 0, 0); }
    const QString& Line(int item) const { return items[static_cast<std::size_t>(item)].line; }

    /** Shows a new set for the selected items; the first one's kind decides which. */
    void Show(const QVector<int>& selection);
    const std::vector<ModelCell>& Cells() const { return panel.cells; }

    // What a person can do to a cell that can be edited.
    void Enter(int cell, double number);
    void Choose(int cell, int option);
    void Click(int cell);
    /** The text row reports a text more than once if the toolkit does: @p reports times. */
    void Type(int cell, const QString& text, int reports);

    void SetBypass(int item, bool on);
    bool Bypasses(int item) const;

    void Undo();
    void Redo();
    int StackCount() const { return static_cast<int>(stack.size()); }
    int StackIndex() const { return done; }

private:
    struct Item
    {
        QString line;
        mutable std::optional<StateFields> fields; ///< The line taken apart when it is first needed.
    };

    struct Command
    {
        const ModelAttribute* attribute;
        QVector<int> items;
        QVector<QVariant> oldValues;
        QVariant newValue;
    };

    const StateFields& Fields(int item) const;
    ModelCell& Cell(int cell) { return panel.cells.at(static_cast<std::size_t>(cell)); }

    // What the panel makes of an edit.
    void Changed(const ModelCell& cell, const QVariant& value);
    void TypeChanged(int type);
    void ShapeChanged(int shape);
    void HeightFollowsWidth();

    // What the edit makes of the items.
    void Edit(const ModelAttribute& attribute, const QVariant& value);
    void EditHoles(const QVariant& scene);
    void Push(const ModelAttribute& attribute, const QVector<int>& over, const QVariant& value);
    void WriteDirectly(const ModelAttribute& attribute, int item, const QVariant& value);
    template <class Change>
    void ChangeItem(int item, Change change);

    std::vector<Item> items;
    QVector<QVariant> drillPairs;
    QVector<QVariant> sides;
    const ModelRules rules;

    std::vector<Command> stack;
    int done = 0;

    QVector<int> edited; ///< The items of the shown set.
    ModelPanel panel;
};

} // namespace Test
