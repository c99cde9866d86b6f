#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"
#include "benchmarks/support/BenchSheet.h"

#include "properties/commands/TCmdPort.h"
#include "properties/commands/TUniqueNumbers.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

namespace Bench {

namespace {

/**
 * Ports without a visible name, each wired to a part with a single pin, and to the next port of its net, by net wires.
 * Packages of a pad each are on the board for the first thousand parts: the rat lines of more would take long, though
 * they are in no figure. Parts above 60 000 share numbers.
 */
class PortSheet : public ProjectInStep
{
public:
    PortSheet(int count, int portsOnANet)
    {
        constexpr int mostComponents = 60'000;
        constexpr int mostPackages = 1'000;
        for (int number = 0; number < count; ++number) {
            const bool isFirstOfNet = number % portsOnANet == 0;
            if (isFirstOfNet) {
                nets.append(QStringLiteral("N%1").arg(number / portsOnANet));
                schematic.AddNet(nets.last());
            }
            const auto component = static_cast<quint16>(1 + number % mostComponents);
            TGraphicsPinItem* pin = PlacePart(number, component);
            PlacePort(number, pin, isFirstOfNet ? nullptr : ports.last());
            components.Add(component);
            if (number < mostPackages) {
                PlacePackage(number, component);
            }
        }
        board.UpdatePadNets(components.List());
        Settle();
    }

    QList<TGraphicsPortItem*> ports;
    QStringList nets;
    TUniqueNumbers components;

private:
    TGraphicsPinItem* PlacePart(int number, quint16 component)
    {
        auto* part = schematic.Place<TGraphicsPartItem>(GridPoint(number, pitch));
        part->SetComponentNumber(component);
        auto* pin = new TGraphicsPinItem(part);
        pin->NumberText()->SetText(QStringLiteral("1"));
        return pin;
    }

    void PlacePort(int number, TGraphicsPinItem* pin, TGraphicsPortItem* previous)
    {
        const QPointF at = GridPoint(number, pitch) + QPointF(0, pitch / 2);
        auto* port = schematic.Place<TGraphicsPortItem>(at);
        port->SetNameVisible(false);
        port->SetName(nets.last(), {});
        TGraphicsNetItem* wire = schematic.PlaceWire(at, pin->scenePos(), nets.last());
        wire->LinkToFirst(port->Pin());
        wire->LinkToLast(pin);
        if (previous) {
            TGraphicsNetItem* between = schematic.PlaceWire(previous->pos(), at, nets.last());
            between->LinkToFirst(previous->Pin());
            between->LinkToLast(port->Pin());
        }
        ports.append(port);
    }

    void PlacePackage(int number, quint16 component)
    {
        auto* package = board.Place<TGraphicsPackageItem>(GridPoint(number));
        package->SetComponentNumber(component);
        auto* pad = new TGraphicsPadItem(package);
        pad->SetSize(10, 10);
        pad->SetNumber(QStringLiteral("1"));
    }

    static constexpr double pitch = 100;
};

/** Renames all ports to one new name, so that their nets are deleted. The loop knows these, and the components. */
class RenamingPorts : public OneCommandEdit
{
public:
    explicit RenamingPorts(PortSheet& ofPorts) : sheet(ofPorts)
    {
        for (const TGraphicsPortItem* port : qAsConst(sheet.ports)) {
            oldNames.append(port->Name());
        }
    }

    void ReadAll() override
    {
        for (const TGraphicsPortItem* port : qAsConst(sheet.ports)) {
            benchmark::DoNotOptimize(port->Name());
        }
    }

    void Loop() override
    {
        TNetModel& model = *sheet.schematic.NetModel();
        sheet.schematic.AddNet(newName);
        for (TGraphicsPortItem* port : qAsConst(sheet.ports)) {
            port->SetName(newName, {});
        }
        for (const QString& net : qAsConst(sheet.nets)) {
            deleted.append(model.DeleteNet(net));
        }
        sheet.board.UpdatePadNets(sheet.components.List());
    }

    void LoopBack() override
    {
        TNetModel& model = *sheet.schematic.NetModel();
        model.DeleteNet(newName);
        while (!deleted.isEmpty()) {
            model.AddNet(deleted.takeLast());
        }
        auto oldName = oldNames.cbegin();
        for (TGraphicsPortItem* port : qAsConst(sheet.ports)) {
            port->SetName(*oldName++, {});
        }
        sheet.board.UpdatePadNets(sheet.components.List());
    }

    void Settle() override { sheet.Settle(); }
    QString State() override { return sheet.State(); }

private:
    Command MakeCommand() const override
    {
        return std::make_unique<TCmdPortName>(sheet.ports, newName, &sheet.schematic);
    }

    PortSheet& sheet;
    QString newName = QStringLiteral("VCC");
    QStringList oldNames;
    QList<QVector<QVariant>> deleted;
};

/** @p portsOnANet is 0 for all on one. */
void AddRenaming(Shelf& shelf, const std::string& name, int portsOnANet)
{
    const auto makeEdit = [&shelf, name, portsOnANet](int size) {
        PortSheet& sheet = shelf.Get<PortSheet>(name, size, [size, portsOnANet] {
            return std::make_unique<PortSheet>(size, portsOnANet > 0 ? portsOnANet : size);
        });
        return std::make_unique<RenamingPorts>(sheet);
    };
    RegisterEdit(name, makeEdit, AllSizes(100'000));
}

} // namespace

void AddPorts(Shelf& shelf)
{
    AddAttribute<TCmdPortNameVis>(shelf, "TCmdPortNameVis", Kind::Port, false);
    AddRenaming(shelf, "TCmdPortName", 2);
    AddRenaming(shelf, "TCmdPortName (one net)", 0);
}

} // namespace Bench
