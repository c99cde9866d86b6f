#pragma once

#include "tests/workbench/editing/ModelRules.h"

#include <QString>
#include <QVector>

#include <vector>

namespace Test {

/** One thing in the panel that a person can change, with what it shows. */
struct ModelCell
{
    enum class Kind { Number, Choice, Box, Text };

    /** The row's label, followed by the part's name if it is not the row's value itself. */
    QString name;
    Kind kind;
    /** What is edited; null if an edit does nothing. */
    const ModelAttribute* attribute;
    bool shown = true;
    bool enabled = true;
    // A number, of millimetres, and its bounds.
    double number = 0;
    double least = 0;
    double most = 0;
    int decimals = 0;
    // A choice: the values that its items stand for and the current one's index, -1 for none.
    QVector<QVariant> options = {};
    int index = -1;
    bool checked = false;
    QString text = {};

    bool CanBeEdited() const { return shown && enabled; }
    /** All that can be seen of it, in words. */
    QString Describe() const;
    /** A number as the box keeps it. */
    double Kept(double value) const;
};

/** The panel over some items of one kind: which cells there are, and what each shows when the panel is made. */
class ModelPanel
{
public:
    using Items = QVector<const StateFields*>;

    /** An empty panel. */
    ModelPanel() = default;
    static ModelPanel OfVias(const Items& vias, const ModelRules& rules, const QVector<QVariant>& drillPairs);
    static ModelPanel OfPads(const Items& pads, const ModelRules& rules, const QVector<QVariant>& sides);
    static ModelPanel OfHoles(const Items& holes, const ModelRules& rules);

    std::vector<ModelCell> cells;
    bool doubleHeight = false; ///< A locked height of pads is twice the width.

    ModelCell& Cell(const QString& name);

private:
    ModelCell& AddNumber(const QString& name, const ModelAttribute& attribute, double least, double most, int decimals,
                         double sceneLength);
    ModelCell& AddChoice(const QString& name, const ModelAttribute& attribute, const QVector<QVariant>& options,
                         const QVariant& current);
    ModelCell& AddBox(const QString& name, const ModelAttribute& attribute, const QVariant& checked);
    ModelCell& AddText(const QString& name, const ModelAttribute* attribute, const QVariant& text);
};

} // namespace Test
