#include "tests/workbench/editing/ModelPanel.h"

#include <algorithm>

namespace Test {

namespace {

using Items = ModelPanel::Items;

/** What all items have in an attribute, null when they differ. */
QVariant Shared(const Items& items, const ModelAttribute& attribute)
{
    const QVariant first = attribute.read(*items.first());
    const bool allEqual = std::all_of(items.cbegin(), items.cend(),
                                      [&](const StateFields* item) { return attribute.read(*item) == first; });
    return allEqual ? first : QVariant();
}

ModelAttribute ReadOnly(const char* field)
{
    return {[field](const StateFields& item) { return item.Text(field); }, {}};
}

/** The offered values, on top of them one that is not offered but has to be shown. */
QVector<QVariant> Offering(QVector<QVariant> options, const QVariant& shown)
{
    if (!shown.isNull() && !options.contains(shown)) {
        options.prepend(shown);
    }
    return options;
}

} // namespace

QString ModelCell::Describe() const
{
    const QString state = QStringLiteral("%1 %2 %3 ")
                              .arg(name, shown ? QStringLiteral("shown") : QStringLiteral("hidden"),
                                   enabled ? QStringLiteral("enabled") : QStringLiteral("disabled"));
    switch (kind) {
    case Kind::Number: return state + QString::number(number, 'f', decimals);
    case Kind::Choice: return state + QStringLiteral("%1 of %2").arg(index).arg(options.size());
    case Kind::Box: return state + (checked ? QStringLiteral("[x]") : QStringLiteral("[ ]"));
    case Kind::Text: break;
    }
    return state + QLatin1Char('"') + text + QLatin1Char('"');
}

double ModelCell::Kept(double value) const
{
    return std::clamp(QString::number(value, 'f', decimals).toDouble(), least, most);
}

ModelPanel ModelPanel::OfVias(const Items& vias, const ModelRules& rules, const QVector<QVariant>& drillPairs)
{
    const StateFields& first = *vias.first();
    const QVariant pair = Shared(vias, rules.drillPair);
    ModelPanel panel;
    panel.AddNumber("Diameter:", rules.diameter, 0.1, 10, 1, rules.diameter.read(first).toDouble());
    panel.AddNumber("Drill:", rules.drill, 0.1, 10, 1, first.Number("drill"));
    // Not the thermal connections but the drill pairs decide whether the first via's is shown.
    panel.AddChoice("Thermal:", rules.thermal, {0, 1, 2}, pair.isNull() ? pair : rules.thermal.read(first));
    panel.AddChoice("Drill pair:", rules.drillPair, Offering(drillPairs, pair), pair);
    panel.AddNumber("Mask:", rules.viaMaskClearance, 0.1, 10, 1, first.Number("maskClearance"));
    panel.AddBox("Mask:check", rules.mask, Shared(vias, rules.mask));
    return panel;
}

ModelPanel ModelPanel::OfPads(const Items& pads, const ModelRules& rules, const QVector<QVariant>& sides)
{
    const StateFields& first = *pads.first();
    const bool ofPackage =
        std::any_of(pads.cbegin(), pads.cend(), [](const StateFields* pad) { return !pad->Text("in").isNull(); });
    const QVariant surface = Shared(pads, rules.type);
    const QVariant startLayer = Shared(pads, ReadOnly("start"));
    const QVariant side = startLayer.isNull() ? startLayer : startLayer.toInt();
    const QVariant shape = Shared(pads, rules.shape);

    ModelPanel panel;
    panel.AddText("Number:", &rules.number, Shared(pads, rules.number)).enabled = !ofPackage;
    if (ofPackage) {
        const QVariant name = Shared(pads, ReadOnly("name"));
        panel.AddText("Name:", nullptr, name.isNull() ? name : Unquoted(name.toString())).enabled = false;
    }
    panel.AddNumber("Size (W x H):width", rules.width, 0.1, 100, 2, first.Number("width"));
    // Pads that share a shape lock the height, or do not, by that shape; the first one's own height is shown still.
    panel.AddNumber("Size (W x H):height", rules.height, 0.1, 100, 2, first.Number("height")).enabled =
        shape.isNull() || shape.toInt() == 5;
    panel.doubleHeight = shape == QVariant(4);
    panel.AddChoice("Type:", rules.type, {1, 0}, surface.isNull() ? surface : surface.toInt()).enabled = !ofPackage;
    panel.AddNumber("Drill:", rules.drill, 0.1, 10, 1, first.Number("drill")).shown = surface == QVariant(false);
    ModelCell& sideCell = panel.AddChoice("Side:", rules.side, Offering(sides, side), side);
    sideCell.shown = surface == QVariant(true);
    sideCell.enabled = !ofPackage;
    panel.AddChoice("Shape:", rules.shape, {1, 5, 4, 3}, shape);
    panel.AddChoice("Thermal:", rules.thermal, {0, 1, 2}, Shared(pads, rules.thermal));
    panel.AddNumber("Mask:", rules.padMaskClearance, 0, 10, 2, first.Number("maskClearance")).enabled = !ofPackage;
    panel.AddBox("Mask:check", rules.mask, Shared(pads, rules.mask)).enabled = !ofPackage;
    panel.AddNumber("Paste:", rules.pasteClearance, 0, 10, 2, first.Number("pasteClearance")).enabled = !ofPackage;
    panel.AddBox("Paste:check", rules.paste, Shared(pads, rules.paste)).enabled = !ofPackage;
    return panel;
}

ModelPanel ModelPanel::OfHoles(const Items& holes, const ModelRules& rules)
{
    ModelPanel panel;
    panel.AddNumber("Diameter:", rules.holeSize, 0.1, 99, 2, ModelSingle(HoleWidth(*holes.last())));
    return panel;
}

ModelCell& ModelPanel::Cell(const QString& name)
{
    return *std::find_if(cells.begin(), cells.end(), [&name](const ModelCell& cell) { return cell.name == name; });
}

ModelCell& ModelPanel::AddNumber(const QString& name, const ModelAttribute& attribute, double least, double most,
                                 int decimals, double sceneLength)
{
    ModelCell cell{name, ModelCell::Kind::Number, &attribute};
    cell.least = least;
    cell.most = most;
    cell.decimals = decimals;
    cell.number = cell.Kept(sceneLength / ModelScene(1));
    return cells.emplace_back(cell);
}

ModelCell& ModelPanel::AddChoice(const QString& name, const ModelAttribute& attribute, const QVector<QVariant>& options,
                                 const QVariant& current)
{
    ModelCell cell{name, ModelCell::Kind::Choice, &attribute};
    cell.options = options;
    cell.index = current.isNull() ? -1 : options.indexOf(current);
    return cells.emplace_back(cell);
}

ModelCell& ModelPanel::AddBox(const QString& name, const ModelAttribute& attribute, const QVariant& checked)
{
    ModelCell cell{name, ModelCell::Kind::Box, &attribute};
    cell.checked = checked.toBool();
    return cells.emplace_back(cell);
}

ModelCell& ModelPanel::AddText(const QString& name, const ModelAttribute* attribute, const QVariant& text)
{
    ModelCell cell{name, ModelCell::Kind::Text, attribute};
    cell.text = text.toString();
    return cells.emplace_back(cell);
}

} // namespace Test
