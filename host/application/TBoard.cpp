#include <application/TBoard.h>

#include <application/engine/TRatsnest.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPadItem.h>

#include <QGraphicsView>

TBoard::TBoard() : scene(&workspace), rats(std::make_unique<TRatsnest>(scene)) {}

TBoard::~TBoard() = default;

QGraphicsView* TBoard::View() const
{
    rats->WorkOut();
    return qobject_cast<QGraphicsView*>(view.data());
}

void TBoard::SetView(QGraphicsView* newView)
{
    view = newView;
}

void TBoard::SetSchematic(TSchematic* newSchematic)
{
    schematic = newSchematic;
    rats->SetNetModel(schematic ? schematic->NetModel() : nullptr);
}

void TBoard::Attach(std::unique_ptr<TGraphicsItem> item)
{
    if (item) {
        item.release()->AttachTo(&scene);
    }
}

QList<TGraphicsItem*> TBoard::Items() const
{
    rats->WorkOut();
    return scene.DesignItems() + rats->Lines();
}

QStringList TBoard::ViaGroups() const
{
    QStringList names;
    for (const TDrillPair& pair : workspace.Layers().DrillPairs()) {
        names.append(pair.name);
    }
    return names;
}

QString TBoard::Dump() const
{
    QString dump;
    const QList<TGraphicsItem*> items = Items();
    for (const TGraphicsItem* item : items) {
        dump += item->StateLine() + QLatin1Char('\n');
    }
    return dump;
}

void TBoard::UpdateRats(const QStringList& nets)
{
    rats->Ask(nets);
}

void TBoard::UpdateRats(const QList<unsigned short>& componentNumbers)
{
    rats->Ask(componentNumbers);
}

QStringList TBoard::AskedRats() const
{
    return rats->Asked();
}

void TBoard::UpdatePadNets(const QList<unsigned short>& componentNumbers)
{
    if (!schematic) {
        return;
    }
    const QHash<TSchematic::TPinKey, QString> nets = schematic->PinNets(componentNumbers);
    const QList<TGraphicsItem*> items = scene.DesignItems();
    for (TGraphicsItem* item : items) {
        auto* pad = dynamic_cast<TGraphicsPadItem*>(item);
        const auto* package = pad ? dynamic_cast<TGraphicsPackageItem*>(pad->parentItem()) : nullptr;
        if (!package) {
            continue;
        }
        const auto net = nets.constFind({package->ComponentNumber(), pad->Number()});
        if (net != nets.cend()) {
            pad->SetNet(*net);
        }
    }
}

void TBoard::RatPriority(int level)
{
    rats->UpdatePriorities(level);
}
