#include "tests/support/TestBoard.h"

#include <QGraphicsScene>

namespace Test {

namespace {

float SceneLength(double millimetres)
{
    return static_cast<float>(millimetres * sceneUnitsPerMillimetre);
}

} // namespace

TestBoard::TestBoard()
{
    const auto addLayer = [this](Osmirel::Layer id, const char* name, const char* color, const char* pair) {
        LayerManager()->AddLayer({id, QString::fromLatin1(name), QColor(color), QString::fromLatin1(pair)});
    };
    addLayer(Osmirel::CopperTop, "Top", "#c83434", "Bottom");
    addLayer(Osmirel::Copper2, "Inner 1", "#7fc87f", "");
    addLayer(Osmirel::Copper3, "Inner 2", "#ce7d2c", "");
    addLayer(Osmirel::CopperBottom, "Bottom", "#4d7fc4", "Top");
    addLayer(Osmirel::PackagesTop, "Packages top", "#aaaaaa", "Packages bottom");
    addLayer(Osmirel::PackagesBottom, "Packages bottom", "#888888", "Packages top");
    LayerManager()->AddDrillPair({"Top - Bottom", Osmirel::CopperTop, Osmirel::CopperBottom});
    LayerManager()->AddDrillPair({"Top - Inner 1", Osmirel::CopperTop, Osmirel::Copper2});
}

template <class Item>
Item* TestBoard::Place(std::unique_ptr<Item> item, TGraphicsPackageItem* package)
{
    Item* placedItem = item.get();
    const int row = placed / 10;
    placedItem->setPos((placed - row * 10) * 50, row * 50);
    ++placed;
    Attach(std::move(item));
    if (package) {
        placedItem->setParentItem(package);
    }
    return placedItem;
}

TGraphicsViaItem* TestBoard::AddVia(double diameter, double drill, const QString& group)
{
    TGraphicsViaItem* via = Place(std::make_unique<TGraphicsViaItem>());
    const auto size = static_cast<double>(SceneLength(diameter));
    via->SetSize(size, size);
    via->SetDrill(SceneLength(drill));
    via->SetViaGroup(group);
    return via;
}

TGraphicsPadItem* TestBoard::AddSurfacePad(double width, double height, TGraphicsPackageItem* package)
{
    TGraphicsPadItem* pad = Place(std::make_unique<TGraphicsPadItem>(), package);
    pad->SetSize(width * sceneUnitsPerMillimetre, height * sceneUnitsPerMillimetre);
    pad->SetPadShape(TGraphicsPadItem::ShapeRectangle);
    pad->SetLayers(Osmirel::CopperTop, Osmirel::CopperTop);
    return pad;
}

TGraphicsPadItem* TestBoard::AddThroughPad(double size, double drill, TGraphicsPackageItem* package)
{
    TGraphicsPadItem* pad = Place(std::make_unique<TGraphicsPadItem>(), package);
    pad->SetSize(size * sceneUnitsPerMillimetre, size * sceneUnitsPerMillimetre);
    pad->SetPadShape(TGraphicsPadItem::ShapeRound);
    pad->SetLayers(Osmirel::CopperTop, Osmirel::CopperBottom);
    pad->SetDrill(SceneLength(drill));
    return pad;
}

TGraphicsHoleItem* TestBoard::AddHole(double diameter)
{
    TGraphicsHoleItem* hole = Place(std::make_unique<TGraphicsHoleItem>());
    hole->SetSize(SceneLength(diameter), SceneLength(diameter));
    return hole;
}

TGraphicsPackageItem* TestBoard::AddPackage(const QString& refDes)
{
    TGraphicsPackageItem* package = Place(std::make_unique<TGraphicsPackageItem>());
    package->SetRefDes(refDes);
    return package;
}

} // namespace Test
