#include "benchmarks/commands/Families.h"
#include "benchmarks/support/BenchItems.h"
#include "benchmarks/support/BenchSheet.h"
#include "benchmarks/support/Edits.h"

#include "properties/commands/TCmdComponent.h"
#include "properties/commands/TCmdPart.h"
#include "properties/commands/TUniqueNumbers.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

namespace Bench {

namespace {

/** Numbers of 16 bits: parts and packages beyond that share them. */
quint16 ComponentOf(int number, int components)
{
    return static_cast<quint16>(1 + number % components);
}

/**
 * Pairs of two-pin parts: one pin of each lies on one of the other part, and a net wire ends at the outer pins. Their
 * packages have a pad each.
 */
class PartSheet : public ProjectInStep
{
public:
    explicit PartSheet(int count) : pairsInARow(1 + static_cast<int>(std::sqrt(count / 2)))
    {
        for (int number = 0; number < count; ++number) {
            const quint16 component = ComponentOf(number, mostComponents);
            parts.append(PlacePart(number, component));
            numbers.Add(component);
            if (number < mostComponents) {
                PlacePackage(number, component);
            }
        }
        Settle(); // Lookup of new items in a scene is slow until they are indexed.
        for (TGraphicsItem* item : qAsConst(parts)) {
            static_cast<TGraphicsPartItem*>(item)->Connect({});
        }
        board.UpdatePadNets(numbers.List());
        Settle();
    }

    QList<TGraphicsItem*> parts;
    TUniqueNumbers numbers;

private:
    TGraphicsPartItem* PlacePart(int number, quint16 component)
    {
        constexpr double arm = 30;
        const int side = number % 2 == 0 ? -1 : 1; // Where the wire is.
        const QPointF at = GridPoint(number / 2, 8 * arm, pairsInARow) + QPointF(side * arm, 0);
        auto* part = schematic.Place<TGraphicsPartItem>(at);
        part->SetComponentNumber(component);
        for (const int end : {1, 2}) {
            auto* pin = new TGraphicsPinItem(part);
            pin->setPos(end == 1 ? side * arm : -side * arm, 0);
            pin->NumberText()->SetText(QString::number(end));
        }
        const QPointF wired = at + QPointF(side * arm, 0);
        schematic.PlaceWire(wired, wired + QPointF(0, arm), QStringLiteral("N%1").arg(number));
        return part;
    }

    void PlacePackage(int number, quint16 component)
    {
        auto* package = board.Place<TGraphicsPackageItem>(GridPoint(number));
        package->SetComponentNumber(component);
        auto* pad = new TGraphicsPadItem(package);
        pad->SetSize(10, 10);
        pad->SetNumber(QStringLiteral("1"));
    }

    static constexpr int mostComponents = 60'000;
    int pairsInARow; ///< Makes the sheet square: lookup in a scene is slower along long rows.
};

/** Connects or disconnects all parts of a sheet. */
class PartsEdit : public OneCommandEdit
{
public:
    PartsEdit(Shelf& shelf, int size)
        : sheet(shelf.Get<PartSheet>("parts", size, [size] { return std::make_unique<PartSheet>(size); }))
    {
        for (TGraphicsItem* item : qAsConst(sheet.parts)) {
            parts.push_back(static_cast<TGraphicsPartItem*>(item));
        }
        saved.resize(parts.size());
    }

    void ReadAll() override
    {
        for (const TGraphicsPartItem* part : parts) {
            benchmark::DoNotOptimize(part->ComponentNumber());
        }
    }

    void Settle() override { sheet.Settle(); }
    QString State() override { return sheet.State(); }

protected:
    using Act = QVector<TGraphicsItem*> (TGraphicsPartItem::*)(const QVector<TGraphicsItem*>&);

    void ActOnAll(Act act)
    {
        auto items = saved.begin();
        for (TGraphicsPartItem* part : parts) {
            *items++ = (part->*act)({});
        }
        sheet.board.UpdatePadNets(sheet.numbers.List());
    }

    void ActOnSaved(Act act)
    {
        auto items = saved.cbegin();
        for (TGraphicsPartItem* part : parts) {
            if (!items->isEmpty()) {
                (part->*act)(*items);
            }
            ++items;
        }
        sheet.board.UpdatePadNets(sheet.numbers.List());
    }

    PartSheet& sheet;

private:
    std::vector<TGraphicsPartItem*> parts;
    std::vector<QVector<TGraphicsItem*>> saved;
};

/** Connects parts that are not connected. */
class ConnectingParts : public PartsEdit
{
public:
    ConnectingParts(Shelf& shelf, int size) : PartsEdit(shelf, size)
    {
        ActOnAll(&TGraphicsPartItem::Disconnect);
        PartsEdit::Settle();
    }

    ~ConnectingParts() override
    {
        ActOnAll(&TGraphicsPartItem::Connect);
        PartsEdit::Settle();
    }

    void Loop() override { ActOnAll(&TGraphicsPartItem::Connect); }
    void LoopBack() override { ActOnSaved(&TGraphicsPartItem::Disconnect); }

private:
    Command MakeCommand() const override { return std::make_unique<TCmdPartConnect>(sheet.parts, &sheet.project); }
};

class DisconnectingParts : public PartsEdit
{
public:
    using PartsEdit::PartsEdit;

    void Loop() override { ActOnAll(&TGraphicsPartItem::Disconnect); }
    void LoopBack() override { ActOnSaved(&TGraphicsPartItem::Connect); }

private:
    Command MakeCommand() const override { return std::make_unique<TCmdPartDisconnect>(sheet.parts, &sheet.project); }
};

/** Components of one part and one package, of two above 50 000, all with a text for the value. */
class ComponentSheet : public ProjectInStep
{
public:
    explicit ComponentSheet(int count)
    {
        constexpr int mostComponents = 50'000;
        items.resize(static_cast<std::size_t>(std::min(count, mostComponents)));
        for (int number = 0; number < count; ++number) {
            const quint16 component = ComponentOf(number, mostComponents);
            const QString value = QStringLiteral("%1k").arg(component);
            const QPointF at = GridPoint(number, 100);
            auto& ofComponent = items[static_cast<std::size_t>(component - 1)];
            ofComponent.append(WithValue(schematic.Place<TGraphicsPartItem>(at), component, value));
            ofComponent.append(WithValue(board.Place<TGraphicsPackageItem>(at), component, value));
            if (number < mostComponents) {
                schematic.CmpModel()->Add(component, {QStringLiteral("R%1").arg(component), value, "R0805", 0});
                numbers.append(component);
                values.append(value);
            }
        }
        schematic.CmpModel()->UpdateCount();
        Settle();
    }

    QList<unsigned short> numbers;
    QStringList values;                                  ///< Parallel to `numbers`.
    std::vector<QVector<TGraphicsComponentItem*>> items; ///< Parallel to `numbers`.

private:
    static TGraphicsComponentItem* WithValue(TGraphicsComponentItem* item, quint16 component, const QString& value)
    {
        item->SetComponentNumber(component);
        item->SetValueText(NewText());
        item->SetValue(value);
        return item;
    }
};

/** Gives all components one value with one command. */
class ChangingValues : public OneCommandEdit
{
public:
    ChangingValues(Shelf& shelf, int size)
        : sheet(
            shelf.Get<ComponentSheet>("components", size, [size] { return std::make_unique<ComponentSheet>(size); }))
    {}

    void ReadAll() override
    {
        for (const auto& ofComponent : sheet.items) {
            for (const TGraphicsComponentItem* item : ofComponent) {
                benchmark::DoNotOptimize(item->Value());
            }
        }
    }

    void Loop() override
    {
        SetAll([this](int) { return newValue; });
    }

    void LoopBack() override
    {
        SetAll([this](int index) { return sheet.values.at(index); });
    }

    void Settle() override { sheet.Settle(); }
    QString State() override { return sheet.State(); }

private:
    template <class ValueOf>
    void SetAll(ValueOf valueOf)
    {
        TCmpModel& model = *sheet.schematic.CmpModel();
        for (int i = 0; i < sheet.numbers.size(); ++i) {
            const QString value = valueOf(i);
            model.CmpModelItem(sheet.numbers.at(i))->value = value;
            for (TGraphicsComponentItem* item : sheet.items[static_cast<std::size_t>(i)]) {
                item->SetValue(value);
            }
        }
        model.UpdateCount();
    }

    Command MakeCommand() const override
    {
        return std::make_unique<TCmdCmpValue>(sheet.numbers, newValue, &sheet.project);
    }

    ComponentSheet& sheet;
    QString newValue = QStringLiteral("4k7");
};

template <class PartEdit>
void Add(Shelf& shelf, const char* name)
{
    RegisterEdit(
        name, [&shelf](int size) { return std::make_unique<PartEdit>(shelf, size); }, AllSizes(100'000));
}

} // namespace

void AddParts(Shelf& shelf)
{
    Add<ConnectingParts>(shelf, "TCmdPartConnect");
    Add<DisconnectingParts>(shelf, "TCmdPartDisconnect");
    Add<ChangingValues>(shelf, "TCmdCmpValue");
}

} // namespace Bench
