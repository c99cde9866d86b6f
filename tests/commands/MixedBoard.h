#pragma once

#include "tests/support/TestBoard.h"

namespace Test {

/** An item of a kind that no command of boards' pads, vias and holes knows: nothing but its type number. */
class ForeignItem : public TGraphicsItem
{
public:
    explicit ForeignItem(int typeNumber) : number(typeNumber) {}

    int type() const override { return number; }
    QString KindName() const override { return QStringLiteral("foreign"); }
    QRectF boundingRect() const override { return {-5, -5, 10, 10}; }
    QPainterPath Outline() const override { return {}; }

protected:
    void Draw(QPainter&, double) const override {}
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override { return std::make_unique<ForeignItem>(number); }

private:
    int number;
};

/** A pad, by its class, that says it is of some other kind. */
class OddPad : public TGraphicsPadItem
{
public:
    int type() const override { return 0x10042; }
};

/** A board with several items of every kind, no two of a kind alike. */
class MixedBoard : public TestBoard
{
public:
    MixedBoard()
    {
        AddVias();
        AddPads();
        AddHole(3.2);
        AddHole(2.1)->SetTFlag(TGraphicsItem::Lock, true);
        Add<TGraphicsRectItem>()->SetSize(40, 25.5F);
        Add<TGraphicsRectItem>()->SetSize(0, 0);
        const QList<int> otherKinds{0x10002, 0x10004, 0x10005, 0x10006, 0x10007, 0x10008, 0x10009,
                                    0x1000a, 0x1000c, 0x1000d, 0x1000e, 0x1000f, 0x10010, 0x10013,
                                    0x10014, 0x10018, 0x1001b, 0x1001d, 0x1001e, 0x1001f};
        for (const int kind : otherKinds) {
            Add<ForeignItem>(kind);
        }
    }

    QStringList Lines() const
    {
        QStringList lines;
        for (const TGraphicsItem* item : Items()) {
            lines.append(item->StateLine());
        }
        return lines;
    }

private:
    template <class Item, class... Arguments>
    Item* Add(Arguments... arguments)
    {
        auto item = std::make_unique<Item>(arguments...);
        Item* added = item.get();
        added->setPos(60 * extra++, -100);
        Attach(std::move(item));
        return added;
    }

    void AddVias()
    {
        AddVia(0.6, 0.3);
        TGraphicsViaItem* blind = AddVia(0.45, 0.2, "Top - Inner 1");
        blind->SetThermal(TGraphicsViaItem::ThermalYes);
        blind->SetMaskEnabled(true);
        AddVia(1.1, 0.5, "of no board")->SetMaskClearance(0.25F);
        TGraphicsViaItem* oval = AddVia();
        oval->SetSize(12.3, 10.1);
        oval->SetMaskClearance(-1.5F);
        oval->SetThermal(TGraphicsViaItem::ThermalNo);
    }

    void AddPads()
    {
        TGraphicsPackageItem* package = AddPackage();
        package->setRotation(30);

        TGraphicsPadItem* surface = AddSurfacePad(1.1, 0.6);
        surface->SetNumber("1");
        surface->SetName("GND");
        surface->SetDrill(1.5F); // a leftover that no command may touch
        surface->SetPasteEnabled(true);
        surface->SetPasteClearance(-0.3F);

        TGraphicsPadItem* below = AddSurfacePad(0.9, 2.4, package);
        below->SetLayers(Osmirel::CopperBottom, Osmirel::CopperBottom);
        below->SetNumber("2");
        below->SetMaskEnabled(true);
        below->SetMaskClearance(0.5F);

        TGraphicsPadItem* stencil = AddSurfacePad(2, 2);
        stencil->SetLayers(Osmirel::PasteTop, Osmirel::PasteTop);
        stencil->SetThermal(TGraphicsViaItem::ThermalYes);

        TGraphicsPadItem* through = AddThroughPad(1.6, 0.8, package);
        through->SetSize(22.2, 17.7);
        through->SetPadShape(TGraphicsPadItem::ShapeObround);
        through->SetThermal(TGraphicsViaItem::ThermalNo);

        TGraphicsPadItem* upward = AddThroughPad(1.7, 1.0);
        upward->SetLayers(Osmirel::CopperBottom, Osmirel::CopperTop);
        upward->SetPadShape(TGraphicsPadItem::ShapeLongOctagon);
        upward->SetName("say \"aa\" \\ b");

        Add<OddPad>()->SetSize(8, 6);
        Add<OddPad>()->SetNumber("odd");
    }

    int extra = 0;
};

} // namespace Test
