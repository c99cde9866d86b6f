#include <application/TSchematic.h>

#include <graphics/TGraphicsItem.h>

TSchematic::TSchematic() : scene(&workspace) {}

TSchematic::~TSchematic() = default;

void TSchematic::AddNetClass(const QString& name)
{
    if (!IsExistNetClass(name)) {
        netClasses.append(name);
    }
}

std::optional<QString> TSchematic::NetClass(const QString& net) const
{
    if (!netModel.HasNet(net)) {
        return {};
    }
    return netModel.NetClass(net);
}

void TSchematic::SetNetColor(const QString& net, const QColor& color)
{
    netModel.SetColorSch(net, color);
    const QList<TGraphicsItem*> onPage = scene.DesignItems();
    for (TGraphicsItem* item : onPage) {
        if (!net.isEmpty() && item->Net() == net) {
            item->SetAltColor(color);
        }
    }
}

void TSchematic::Attach(std::unique_ptr<TGraphicsItem> item)
{
    if (item) {
        item.release()->AttachTo(&scene);
    }
}

void TSchematic::SaveTopItemsFromWorkspace()
{
    items.clear();
    const QList<TGraphicsItem*> onPage = scene.DesignItems();
    for (TGraphicsItem* item : onPage) {
        if (!item->parentItem()) {
            items.append(item);
        }
    }
}

std::optional<QString> TSchematic::PinNet(unsigned short component, const QString& pin) const
{
    const auto found = pinNets.constFind({component, pin});
    return found == pinNets.cend() ? std::nullopt : std::make_optional(*found);
}

void TSchematic::SetPinNet(unsigned short component, const QString& pin, const QString& net)
{
    pinNets.insert({component, pin}, net);
}
