#include "workbench/importer/schematic/PinNames.h"
#include "workbench/importer/schematic/TPageConductors.h"

#include <algorithm>
#include <tuple>

namespace {

/** A candidate name of a net, and its rank. */
struct TCandidate
{
    LabelKind kind = LabelKind::SheetPin;
    int depth = 0; ///< Of its sheet in the hierarchy; global names have none.
    QString name;

    bool Beats(const TCandidate& other) const
    {
        return std::make_tuple(-static_cast<int>(kind), depth, name)
               < std::make_tuple(-static_cast<int>(other.kind), other.depth, other.name);
    }
};

class TNetTracer
{
public:
    explicit TNetTracer(TSheetHierarchy& ofHierarchy) : hierarchy(ofHierarchy)
    {
        for (const TSheetPage& page : hierarchy.pages) {
            pages.emplace_back(page, sets);
        }
        for (std::size_t i = 0; i < pages.size(); ++i) {
            NamePage(static_cast<int>(i));
        }
        for (std::size_t i = 0; i < pages.size(); ++i) {
            JoinWithParent(static_cast<int>(i));
        }
        MakeNets();
    }

private:
    const TSheetPage& Page(int page) const { return hierarchy.pages[Index(page)]; }

    void NamePage(int page)
    {
        const TPageConductors& conductors = pages[Index(page)];
        for (const TPageConductors::TName& name : conductors.labels) {
            AddName(page, name, Page(page).path);
        }
        for (std::size_t box = 0; box < conductors.boxPins.size(); ++box) {
            for (const TPageConductors::TName& name : conductors.boxPins[box]) {
                AddName(page, name, Page(page).path + Page(page).file->boxes[box].name + QLatin1Char('/'));
            }
        }
        for (std::size_t symbol = 0; symbol < conductors.pins.size(); ++symbol) {
            const TPageSymbol& owner = Page(page).symbols[symbol];
            for (std::size_t pin = 0; pin < owner.pins.size(); ++pin) {
                AddPin(page, owner, owner.pins[pin], conductors.pins[symbol][pin]);
            }
        }
    }

    void AddName(int page, const TPageConductors::TName& name, const QString& path)
    {
        if (name.label->text.isEmpty()) {
            return;
        }
        if (name.members.isEmpty()) {
            Give(page, name.label->kind, name.label->text, path, name.node);
            return;
        }
        for (const BusNames::TMember& member : name.members) {
            Give(page, name.label->kind, member.net, path, MemberNode(name.node, member.key));
        }
    }

    /** The nodes behind all labels of a bus under one key. */
    int MemberNode(int busNode, const QString& key)
    {
        // Buses are complete: their labels and entries have been joined.
        const QPair<int, QString> member(sets.Root(busNode), key);
        if (!memberNodes.contains(member)) {
            memberNodes.insert(member, sets.Add());
        }
        return memberNodes.value(member);
    }

    void Give(int page, LabelKind kind, const QString& text, const QString& path, int node)
    {
        const bool isGlobal = kind == LabelKind::Global || kind == LabelKind::Power;
        if (isGlobal) {
            JoinByName(globals, text, node);
        }
        // Labels of one name on one sheet are one net, whatever their kind.
        if (kind != LabelKind::SheetPin && kind != LabelKind::Power) {
            JoinByName(locals, QPair<int, QString>(page, text), node);
        }
        const int depth = isGlobal ? 0 : path.count(QLatin1Char('/'));
        candidates.push_back({node, {kind, depth, isGlobal ? text : path + text}});
    }

    template <class Key>
    void JoinByName(QHash<Key, int>& nodes, const Key& key, int node)
    {
        const auto known = nodes.constFind(key);
        if (known == nodes.constEnd()) {
            nodes.insert(key, node);
        } else {
            sets.Join(node, *known);
        }
    }

    void AddPin(int page, const TPageSymbol& symbol, const TPagePin& pin, int node)
    {
        const QString powerNet = PinNames::PowerNet(symbol, pin, Page(page).file->version);
        if (!powerNet.isEmpty()) {
            Give(page, LabelKind::Power, powerNet, {}, node);
        }
    }

    /** Joins the hierarchical labels of a page with the pins of its box. */
    void JoinWithParent(int page)
    {
        if (Page(page).parent < 0) {
            return;
        }
        const auto& pins = pages[Index(Page(page).parent)].boxPins[Index(Page(page).boxInParent)];
        for (const TPageConductors::TName& label : pages[Index(page)].labels) {
            if (label.label->kind != LabelKind::Hierarchical) {
                continue;
            }
            for (const TPageConductors::TName& pin : pins) {
                if (pin.label->text == label.label->text) {
                    JoinThroughBox(label, pin);
                }
            }
        }
    }

    void JoinThroughBox(const TPageConductors::TName& label, const TPageConductors::TName& pin)
    {
        if (label.members.isEmpty() && pin.members.isEmpty()) {
            sets.Join(label.node, pin.node);
        }
        for (const BusNames::TMember& member : label.members) {
            if (!pin.members.isEmpty()) {
                sets.Join(MemberNode(label.node, member.key), MemberNode(pin.node, member.key));
            }
        }
    }

    void MakeNets()
    {
        QHash<int, TCandidate> bestOf;
        for (const auto& [node, candidate] : candidates) {
            const int set = sets.Root(node);
            const auto known = bestOf.constFind(set);
            if (known == bestOf.constEnd() || candidate.Beats(*known)) {
                bestOf.insert(set, candidate);
            }
        }
        QHash<int, QVector<PinNames::TPinOnNet>> pinsOf;
        VisitConductors([&](int page, int node, int&, const TPageSymbol* symbol, const TPagePin* pin) {
            QVector<PinNames::TPinOnNet>& pins = pinsOf[sets.Root(node)]; // A net may have no pins.
            if (pin) {
                pins.append({symbol, pin, Page(page).file->version});
            }
        });
        QVector<QPair<QString, int>> named;
        for (auto net = pinsOf.constBegin(); net != pinsOf.constEnd(); ++net) {
            const auto best = bestOf.constFind(net.key());
            const QString name = best == bestOf.constEnd() ? PinNames::UnnamedNet(*net) : best->name;
            // A wire with no label and no pin forms no net.
            if (!name.isEmpty()) {
                named.append({name, net.key()});
            }
        }
        std::sort(named.begin(), named.end());
        QHash<int, int> netOfSet;
        QHash<QString, int> timesTaken;
        for (const auto& [plainName, set] : named) {
            netOfSet.insert(set, static_cast<int>(hierarchy.nets.size()));
            // Symbols without a number produce ambiguous names.
            const int times = bestOf.contains(set) ? 0 : timesTaken[plainName]++;
            const QString name = times == 0 ? plainName : QStringLiteral("%1_%2").arg(plainName).arg(times);
            hierarchy.nets.push_back({name, bestOf.contains(set), PinNames::OtherNames(pinsOf.value(set), name)});
        }
        VisitConductors([&](int, int node, int& net, const TPageSymbol*, const TPagePin*) {
            net = netOfSet.value(sets.Root(node), -1);
        });
        NameBuses();
    }

    /** Calls back with page, node and the variable for the net index of everything that can be on a net. */
    template <class Function>
    void VisitConductors(const Function& visit)
    {
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const TPageConductors& conductors = pages[i];
            TSheetPage& page = hierarchy.pages[i];
            const int number = static_cast<int>(i);
            const auto visitAll = [&](const std::vector<int>& nodes, std::vector<int>& nets) {
                nets.resize(nodes.size(), -1);
                for (std::size_t k = 0; k < nodes.size(); ++k) {
                    if (nodes[k] >= 0) {
                        visit(number, nodes[k], nets[k], nullptr, nullptr);
                    }
                }
            };
            const auto visitNames = [&](const std::vector<TPageConductors::TName>& names, std::vector<int>& nets) {
                nets.resize(names.size(), -1);
                for (std::size_t k = 0; k < names.size(); ++k) {
                    if (names[k].members.isEmpty()) {
                        visit(number, names[k].node, nets[k], nullptr, nullptr);
                    }
                }
            };
            visitAll(conductors.wires, page.wireNets);
            visitAll(conductors.junctions, page.junctionNets);
            visitAll(conductors.entries, page.entryNets);
            visitNames(conductors.labels, page.labelNets);
            page.boxPinNets.resize(conductors.boxPins.size());
            for (std::size_t box = 0; box < conductors.boxPins.size(); ++box) {
                visitNames(conductors.boxPins[box], page.boxPinNets[box]);
            }
            for (std::size_t symbol = 0; symbol < conductors.pins.size(); ++symbol) {
                TPageSymbol& owner = page.symbols[symbol];
                for (std::size_t pin = 0; pin < owner.pins.size(); ++pin) {
                    visit(number, conductors.pins[symbol][pin], owner.pins[pin].net, &owner, &owner.pins[pin]);
                }
            }
        }
    }

    void NameBuses()
    {
        for (std::size_t i = 0; i < pages.size(); ++i) {
            QHash<int, TCandidate> bestOf;
            const auto consider = [&](const TPageConductors::TName& name) {
                const TCandidate candidate{name.label->kind, 0, name.label->text};
                const auto known = bestOf.constFind(sets.Root(name.node));
                if (!name.members.isEmpty() && (known == bestOf.constEnd() || candidate.Beats(*known))) {
                    bestOf.insert(sets.Root(name.node), candidate);
                }
            };
            std::for_each(pages[i].labels.begin(), pages[i].labels.end(), consider);
            for (const auto& pins : pages[i].boxPins) {
                std::for_each(pins.begin(), pins.end(), consider);
            }
            for (const int bus : pages[i].buses) {
                hierarchy.pages[i].busNames.append(bestOf.value(sets.Root(bus)).name);
            }
        }
    }

    TSheetHierarchy& hierarchy;
    DisjointSets sets;
    std::vector<TPageConductors> pages;
    QHash<QString, int> globals;
    QHash<QPair<int, QString>, int> locals;
    QHash<QPair<int, QString>, int> memberNodes; ///< Of buses, by the bus and the member's key.
    std::vector<QPair<int, TCandidate>> candidates;
};

} // namespace

void TraceNets(TSheetHierarchy& hierarchy)
{
    TNetTracer tracer(hierarchy);
}
