#include "properties/commands/TCmdComponent.h"

#include "properties/commands/ItemsOfView.h"
#include "properties/commands/ProjectContext.h"

#include <application/TBoard.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPartItem.h>

#include <QHash>

#include <algorithm>
#include <iterator>

namespace {

using TItemsByNumber = QHash<unsigned short, QVector<TGraphicsComponentItem*>>;

void AddParts(TSchematic& schematic, TItemsByNumber& items)
{
    constexpr unsigned short all = 0;
    const QList<TGraphicsPartItem*> parts = schematic.PartItems(all);
    for (TGraphicsPartItem* part : parts) {
        items[part->ComponentNumber()].append(part);
    }
}

/** The packages of the board that belong to a component, if the board follows the schematic. */
void AddPackages(const TProject* project, TItemsByNumber& items)
{
    TBoard* board = ProjectContext::IsInSync(project) ? ProjectContext::Board(project) : nullptr;
    if (!board || !board->ConnectivityEnabled()) {
        return;
    }
    for (TGraphicsItem* item : ItemsOfView(board->View(), {ItemType::Package})) {
        auto* package = static_cast<TGraphicsPackageItem*>(item);
        if (package->ComponentNumber() != 0) {
            items[package->ComponentNumber()].append(package);
        }
    }
}

} // namespace

TCmdCmpValue::TCmdCmpValue(const QList<unsigned short>& ofNumbers, const QString& value, TProject* ofProject)
    : project(ofProject), numbers(ofNumbers)
{
    newValues.reserve(numbers.size());
    std::fill_n(std::back_inserter(newValues), numbers.size(), value);
}

TCommandKind TCmdCmpValue::Kind() const
{
    return {"CmpValue", QT_TRANSLATE_NOOP("TCommandKind", "Change value of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "components")};
}

bool TCmdCmpValue::Do()
{
    return SetValueOfAll(newValues);
}

bool TCmdCmpValue::Undo()
{
    return SetValueOfAll(oldValues);
}

void TCmdCmpValue::SetValue(const QStringList& values)
{
    SetValueOfAll(values);
}

bool TCmdCmpValue::SetValueOfAll(const QStringList& values)
{
    TSchematic* schematic = ProjectContext::Schematic(project);
    TCmpModel* model = ProjectContext::CmpModel(schematic);
    if (!model) {
        return false;
    }
    const bool isFirstTime = oldValues.isEmpty();
    TItemsByNumber items;
    AddParts(*schematic, items);
    AddPackages(project, items);
    for (int i = 0; i < numbers.size(); ++i) {
        TCmpModelItem* component = model->CmpModelItem(numbers.at(i));
        if (isFirstTime) { // `values` may be `oldValues`: each is read before it is written.
            oldValues.append(component ? component->value : QString());
        }
        if (!component || i >= values.size()) {
            continue;
        }
        component->value = values.at(i);
        const QVector<TGraphicsComponentItem*> ofComponent = items.value(numbers.at(i));
        for (TGraphicsComponentItem* item : ofComponent) {
            item->SetValue(values.at(i));
        }
    }
    model->UpdateCount(); // Intended: even when there are no numbers.
    return true;
}
