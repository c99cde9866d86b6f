#pragma once

#include <application/TBoard.h>
#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsViaItem.h>

#include <QString>

namespace Test {

/** Scene units per millimetre, spelled out once more so that the library's own constant is checked against it. */
constexpr double sceneUnitsPerMillimetre = 11.811023622047244;

/** A length that the items hold, as it reads after a pass through single precision. */
inline double Single(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

/** A four-layer board with a layer table, two drill pairs ("Top - Bottom", "Top - Inner 1") and no items. */
class TestBoard : public TBoard
{
public:
    TestBoard();

    /** Each makes an item at the next free place, lengths in millimetres; the board owns it. */
    TGraphicsViaItem* AddVia(double diameter = 0.6, double drill = 0.3, const QString& group = "Top - Bottom");
    /** A pad on one layer, a child of @p package unless that is null. */
    TGraphicsPadItem* AddSurfacePad(double width = 1.0, double height = 0.5, TGraphicsPackageItem* package = nullptr);
    /** A pad through the board. */
    TGraphicsPadItem* AddThroughPad(double size = 1.6, double drill = 0.8, TGraphicsPackageItem* package = nullptr);
    TGraphicsHoleItem* AddHole(double diameter = 3.2);
    TGraphicsPackageItem* AddPackage(const QString& refDes = "U1");

    QList<Osmirel::Layer> Sides() const { return {Osmirel::CopperTop, Osmirel::CopperBottom}; }

private:
    template <class Item>
    Item* Place(std::unique_ptr<Item> item, TGraphicsPackageItem* package = nullptr);
    int placed = 0;
};

} // namespace Test
