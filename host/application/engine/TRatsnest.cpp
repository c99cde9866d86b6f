#include <application/engine/TRatsnest.h>

#include <application/engine/MissingConnections.h>
#include <application/TNetModel.h>
#include <graphics/TItemScene.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsRatLineItem.h>

#include <algorithm>
#include <map>
#include <tuple>

TRatsnest::TRatsnest(TItemScene& ofBoard) : scene(ofBoard)
{
    whenIdle.setSingleShot(true);
    whenIdle.setInterval(0);
    QObject::connect(&whenIdle, &QTimer::timeout, &whenIdle, [this] { WorkOut(); });
    QObject::connect(&scene, &TItemScene::sigMarked, &whenIdle, QOverload<>::of(&QTimer::start));
}

TRatsnest::~TRatsnest() = default;

void TRatsnest::SetNetModel(const TNetModel* newModel)
{
    model = newModel;
    UpdatePriorities(-1);
}

void TRatsnest::Ask(const QStringList& nets)
{
    // Repeated requests come with a growing list. The prefix that it shares with the last one is already known, and
    // comparing it is cheap.
    int known = 0;
    while (known < std::min(nets.size(), lastAsked.size()) && nets[known].isSharedWith(lastAsked[known])) {
        ++known;
    }
    for (int i = known; i < nets.size(); ++i) {
        askedNets.insert(nets[i]);
    }
    lastAsked = nets;
    WorkOutLater();
}

void TRatsnest::Ask(const QList<unsigned short>& components)
{
    for (const unsigned short component : components) {
        askedComponents.insert(component);
    }
    WorkOutLater();
}

void TRatsnest::WorkOutLater()
{
    if (!whenIdle.isActive()) {
        whenIdle.start();
    }
}

QStringList TRatsnest::Asked() const
{
    const QSet<QString> asked = AskedNets();
    QStringList sorted(asked.cbegin(), asked.cend());
    sorted.sort();
    return sorted;
}

QSet<QString> TRatsnest::AskedNets() const
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

void TRatsnest::WorkOut()
{
    scene.ApplyLinks();
    QSet<QString> nets = AskedNets() + scene.TakeMarkedNets();
    const bool pours = scene.TakeMarkedPours();
    if (!first && nets.isEmpty() && !pours) {
        return;
    }
    askedNets.clear();
    lastAsked.clear();
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
    // The marks set meanwhile are those of the lines themselves.
    scene.TakeMarkedNets();
    whenIdle.stop();
    first = false;
}

void TRatsnest::Replace(const QString& net, const QVector<QLineF>& lines)
{
    // Connections that are still missing keep their rat lines.
    const auto key = [](const QLineF& line) { return std::make_tuple(line.x1(), line.y1(), line.x2(), line.y2()); };
    std::multimap<std::tuple<double, double, double, double>, TGraphicsRatLineItem*> former;
    const QVector<TGraphicsRatLineItem*> formerItems = linesOf.take(net);
    for (TGraphicsRatLineItem* item : formerItems) {
        former.emplace(key(item->Line()), item);
    }
    QVector<TGraphicsRatLineItem*> items(lines.size(), nullptr);
    for (int i = 0; i < lines.size(); ++i) {
        const auto same = former.find(key(lines[i]));
        if (same != former.end()) {
            items[i] = same->second;
            former.erase(same);
        }
    }
    for (int i = 0; i < lines.size(); ++i) {
        if (!items[i] && !former.empty()) {
            items[i] = former.begin()->second;
            former.erase(former.begin());
            items[i]->SetLine(lines[i], net);
        } else if (!items[i]) {
            items[i] = Added(lines[i], net);
        }
        items[i]->SetPriority(PriorityOf(net));
    }
    for (const auto& [line, item] : former) {
        // Removed first: if an item is deleted while on its scene, the toolkit searches the whole scene at the next
        // change.
        item->Detach();
        delete item;
    }
    if (!items.isEmpty()) {
        linesOf.insert(net, items);
    }
}

TGraphicsRatLineItem* TRatsnest::Added(const QLineF& line, const QString& net)
{
    auto added = std::make_unique<TGraphicsRatLineItem>();
    added->SetPriority(PriorityOf(net));
    added->SetLine(line, net);
    added->SetAltColor(model ? model->ColorPcb(model->NetRow(net)) : QColor());
    TGraphicsRatLineItem* item = added.release();
    item->AttachTo(&scene);
    return item;
}

QString TRatsnest::PriorityOf(const QString& net) const
{
    return model ? model->Priority(net) : QString();
}

QList<TGraphicsItem*> TRatsnest::Lines() const
{
    QList<TGraphicsItem*> all;
    for (const QVector<TGraphicsRatLineItem*>& ofNet : linesOf) {
        std::copy(ofNet.cbegin(), ofNet.cend(), std::back_inserter(all));
    }
    return all;
}

void TRatsnest::UpdatePriorities(int level)
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
