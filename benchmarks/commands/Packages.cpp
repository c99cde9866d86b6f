#include "benchmarks/commands/Families.h"
#include "benchmarks/support/AttributeEdits.h"
#include "benchmarks/support/BenchItems.h"

#include "properties/commands/TCmdLock.h"
#include "properties/commands/TCmdPackage.h"

#include <application/TProject.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsWireItem.h>

namespace Bench {

namespace {

/**
 * Selected packages of two surface pads and two texts. A wire of the package's side is linked with the left pad; one of
 * the other side ends at the pad's position after the package has changed its side.
 */
class PackageBoard : public ShownBoard
{
public:
    explicit PackageBoard(int count)
    {
        project.SetBoard(this);
        for (int number = 0; number < count; ++number) {
            packages.append(PlacePackage(number));
        }
        Settle();
    }

    ~PackageBoard() { project.SetBoard(nullptr); }
    PackageBoard(const PackageBoard&) = delete;
    PackageBoard& operator=(const PackageBoard&) = delete;

    TProject project;
    QList<TGraphicsPackageItem*> packages;

private:
    TGraphicsPackageItem* PlacePackage(int number)
    {
        constexpr double arm = 20;
        const QPointF at = GridPoint(number, 6 * arm);
        auto package = std::make_unique<TGraphicsPackageItem>();
        TGraphicsPackageItem* placed = package.get();
        package->setPos(at);
        package->SetComponentNumber(static_cast<quint16>(number));
        for (const int side : {-1, 1}) {
            auto* pad = new TGraphicsPadItem(placed);
            pad->SetSize(arm / 2, arm / 2);
            pad->SetLayers(Osmirel::CopperTop, Osmirel::CopperTop);
            pad->setPos(arm * side, 0);
            pad->SetNet(QStringLiteral("N%1").arg(2 * number + (side + 1) / 2));
        }
        package->SetRefDesText(NewText());
        package->SetValueText(NewText());
        package->SetRefDes(QStringLiteral("R%1").arg(number));
        package->SetValue(QStringLiteral("%1k").arg(number % 10));
        Attach(std::move(package));
        placed->setSelected(true);
        PlaceWire(at - QPointF(arm, 0), Osmirel::CopperTop)
            ->LinkToFirst(static_cast<TGraphicsPadItem*>(placed->Pads().first()));
        PlaceWire(at + QPointF(arm, 0), Osmirel::CopperBottom);
        return placed;
    }

    TGraphicsWireItem* PlaceWire(const QPointF& from, Osmirel::Layer layer)
    {
        auto* wire = Place<TGraphicsWireItem>({});
        wire->SetLayer(layer);
        wire->SetPenWidth(2);
        wire->SetPoint1(from);
        wire->SetPoint2(from + QPointF(0, 40));
        return wire;
    }
};

/** A command over all packages of a board. All but the engine's first check which packages still exist. */
class PackagesEdit : public OneCommandEdit
{
public:
    PackagesEdit(Shelf& shelf, int size)
        : board(shelf.Get<PackageBoard>("packages", size, [size] { return std::make_unique<PackageBoard>(size); }))
    {
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            items.append(package);
            components.append(package->ComponentNumber());
        }
        saved.resize(static_cast<std::size_t>(size));
    }

    void ReadAll() override
    {
        for (const TGraphicsPackageItem* package : qAsConst(board.packages)) {
            benchmark::DoNotOptimize(package->Layer());
        }
    }

    void Settle() override { board.Settle(); }
    QString State() override { return SortedState(board); }

protected:
    PackageBoard& board;
    QList<TGraphicsItem*> items;
    QList<unsigned short> components;
    std::vector<QVector<TGraphicsItem*>> saved; ///< For each package the wires that the loop cut or linked.
};

class ChangingSide : public PackagesEdit
{
public:
    using PackagesEdit::PackagesEdit;

    void Loop() override
    {
        auto wires = saved.begin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            *wires++ = package->Disconnect({});
            Move(*package, Osmirel::PackagesBottom);
            package->Connect({});
        }
        board.UpdateRats(components);
    }

    void LoopBack() override
    {
        auto wires = saved.cbegin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            package->Disconnect({});
            Move(*package, Osmirel::PackagesTop);
            package->Connect(*wires++);
        }
        board.UpdateRats(components);
    }

private:
    void Move(TGraphicsPackageItem& package, Osmirel::Layer layer)
    {
        package.SetLayer(layer);
        package.RefDesText()->setVisible(board.RefDesVisible());
        package.ValueText()->setVisible(board.ValuesVisible());
    }

    Command MakeCommand() const override
    {
        return std::make_unique<TCmdPkgSide>(board.packages, Osmirel::PackagesBottom, &board);
    }
};

template <class NamedCommand, const QString& (TGraphicsComponentItem::*get)() const,
          void (TGraphicsComponentItem::*set)(const QString&)>
class Renaming : public PackagesEdit
{
public:
    Renaming(Shelf& shelf, int size) : PackagesEdit(shelf, size)
    {
        for (const TGraphicsPackageItem* package : qAsConst(board.packages)) {
            oldTexts.append((package->*get)());
        }
    }

    void Loop() override
    {
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            (package->*set)(newText);
        }
    }

    void LoopBack() override
    {
        auto oldText = oldTexts.cbegin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            (package->*set)(*oldText++);
        }
    }

private:
    Command MakeCommand() const override { return std::make_unique<NamedCommand>(newText, &board.project); }

    QString newText = QStringLiteral("U7");
    QStringList oldTexts;
};

using ChangingRefDes = Renaming<TCmdPackageRefDes, &TGraphicsComponentItem::RefDes, &TGraphicsComponentItem::SetRefDes>;
using ChangingValue = Renaming<TCmdPackageValue, &TGraphicsComponentItem::Value, &TGraphicsComponentItem::SetValue>;

/** Connects packages that are not connected. */
class Connecting : public PackagesEdit
{
public:
    Connecting(Shelf& shelf, int size) : PackagesEdit(shelf, size)
    {
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            package->Disconnect({});
        }
        Settle();
    }

    ~Connecting() override
    {
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            package->Connect({});
        }
        board.Settle();
    }

    void Loop() override
    {
        auto wires = saved.begin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            *wires++ = package->Connect({});
        }
        board.UpdateRats(components);
    }

    void LoopBack() override
    {
        auto wires = saved.cbegin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            package->Disconnect(*wires++);
        }
        board.UpdateRats(components);
    }

private:
    Command MakeCommand() const override { return std::make_unique<TCmdPkgConnect>(items, &board); }
};

class Disconnecting : public PackagesEdit
{
public:
    using PackagesEdit::PackagesEdit;

    void Loop() override
    {
        auto wires = saved.begin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            *wires++ = package->Disconnect({});
        }
        board.UpdateRats(components);
    }

    void LoopBack() override
    {
        auto wires = saved.cbegin();
        for (TGraphicsPackageItem* package : qAsConst(board.packages)) {
            package->Connect(*wires++);
        }
        board.UpdateRats(components);
    }

private:
    Command MakeCommand() const override { return std::make_unique<TCmdPkgDisconnect>(items, &board); }
};

template <class PackageEdit>
void Add(Shelf& shelf, const char* name)
{
    // 1 000 000 packages with pads, texts and wires are 7 000 000 items, which may exceed the machine's memory.
    RegisterEdit(
        name, [&shelf](int size) { return std::make_unique<PackageEdit>(shelf, size); }, AllSizes(100'000));
}

} // namespace

void AddPackages(Shelf& shelf)
{
    AddAttribute<TCmdLock>(shelf, "TCmdLock", Kind::Package, true);
    Add<ChangingSide>(shelf, "TCmdPkgSide");
    Add<ChangingRefDes>(shelf, "TCmdPackageRefDes");
    Add<ChangingValue>(shelf, "TCmdPackageValue");
    Add<Connecting>(shelf, "TCmdPkgConnect");
    Add<Disconnecting>(shelf, "TCmdPkgDisconnect");
}

} // namespace Bench
