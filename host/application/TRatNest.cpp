#include <application/TRatNest.h>

#include <application/MissingConnections.h>
#include <application/TNetModel.h>
#include <graphics/TItemScene.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsRatLineItem.h>

#include <algorithm>
#include <utility>

TRatNest::TRatNest(TItemScene& ofBoard) : scene(ofBoard)
{
    whenIdle.setSingleShot(true);
    whenIdle.setInterval(0);
    QObject::connect(&whenIdle, &QTimer::timeout, &whenIdle, [this] { WorkOut(); });
    QObject::connect(&scene, &TItemScene::sigMarked, &whenIdle, QOverload<>::of(&QTimer::start));
}

TRatNest::~TRatNest() = default;

void TRatNest::SetNetModel(const TNetModel* newModel)
{
    model = newModel;
    UpdatePriorities(-1);
}

void TRatNest::Ask(const QStringList& nets)
{
    for (const QString& net : nets) {
        askedNets.insert(net);
    }
    whenIdle.start();
}

void TRatNest::Ask(const QList<unsigned short>& components)
{
    for (const unsigned short component : components) {
        askedComponents.insert(component);
    }
    whenIdle.start();
}

QStringList TRatNest::Asked() const
{
    const QSet<QString> asked = AskedNets();
    QStringList sorted(asked.cbegin(), asked.cend());
    sorted.sort();
    return sorted;
}

QSet<QString> TRatNest::AskedNets() const
{
    QSet<QString> nets = askedNets;
    if (askedComponents.isEmpty()) {
        return nets;
    }
    const QList<TGraphicsItem*> items = scene.DesignItems();
    for (const TGraphicsItem* item : items) {
        const auto* package = dynamic_cast<const TGraphicsPackageItem*>(item);
        if (package && askedComponents.contains(package->ComponentNumber())) {
            const QVector<TGraphicsItem*> pads = package->Pads();
            for (const TGraphicsItem* pad : pads) {
                nets.insert(pad->Net());
            }
        }
    }
    nets.remove(QString());
    return nets;
}

void TRatNest::WorkOut()
{
    scene.ApplyLinks();
    QSet<QString> nets = AskedNets() + scene.TakeMarkedNets();
    const bool pours = scene.TakeMarkedPours();
    if (!first && nets.isEmpty() && !pours) {
        return;
    }
    askedNets.clear();
    askedComponents.clear();

    const BoardCopper copper(scene.DesignItems());
    if (first) {
        nets = copper.Nets();
    } else if (pours) {
        nets += copper.NetsOfPours();
    }
    QStringList inOrder(nets.cbegin(), nets.cend());
    inOrder.sort();
    for (const QString& net : qAsConst(inOrder)) {
        Replace(net, copper.MissingConnections(net));
    }
    // What was marked by now are the lines themselves.
    scene.TakeMarkedNets();
    whenIdle.stop();
    first = false;
}

void TRatNest::Replace(const QString& net, const QVector<QLineF>& lines)
{
    QVector<TGraphicsRatLineItem*> items = linesOf.take(net);
    while (items.size() > lines.size()) {
        delete items.takeLast();
    }
    for (int i = 0; i < lines.size(); ++i) {
        if (i == items.size()) {
            auto added = std::make_unique<TGraphicsRatLineItem>();
            items.append(added.get());
            added->SetAltColor(model ? model->ColorPcb(model->NetRow(net)) : QColor());
            added.release()->AttachTo(&scene);
        }
        items[i]->SetPriority(PriorityOf(net));
        items[i]->SetLine(lines[i], net);
    }
    if (!items.isEmpty()) {
        linesOf.insert(net, items);
    }
}

QString TRatNest::PriorityOf(const QString& net) const
{
    return model ? model->Priority(net) : QString();
}

QList<TGraphicsItem*> TRatNest::Lines() const
{
    QList<TGraphicsItem*> all;
    for (const QVector<TGraphicsRatLineItem*>& ofNet : linesOf) {
        std::copy(ofNet.cbegin(), ofNet.cend(), std::back_inserter(all));
    }
    return all;
}

void TRatNest::UpdatePriorities(int level)
{
    for (auto net = linesOf.cbegin(); net != linesOf.cend(); ++net) {
        const QString priority = PriorityOf(net.key());
        for (TGraphicsRatLineItem* line : *net) {
            if (level < 0 || line->Priority().toInt() == level || priority.toInt() == level) {
                line->SetPriority(priority);
                line->Refresh();
            }
        }
    }
}
