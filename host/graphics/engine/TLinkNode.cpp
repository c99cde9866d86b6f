#include <graphics/engine/TLinkNode.h>

#include <graphics/engine/DisjointSets.h>
#include <graphics/TGraphicsItem.h>
#include <graphics/TItemScene.h>

#include <algorithm>
#include <utility>
#include <vector>

/**
 * Finds the parts that an island has split into: a breadth-first search from every node that has lost a link, all
 * advancing step by step, where searches that meet are merged. A search that is exhausted has found a separate part. It
 * ends as soon as only one search is left, so that the largest part is not searched completely.
 */
class TLinkSearch
{
public:
    using Nodes = std::vector<TLinkNode*>;

    explicit TLinkSearch(const Nodes& starts)
    {
        for (TLinkNode* node : starts) {
            if (node->search < 0) {
                node->search = sets.Add();
                searches.push_back({{node}, {node}, 0});
            }
        }
    }

    ~TLinkSearch()
    {
        for (const Search& each : searches) {
            for (TLinkNode* node : each.seen) {
                node->search = -1;
            }
        }
    }

    TLinkSearch(const TLinkSearch&) = delete;
    TLinkSearch& operator=(const TLinkSearch&) = delete;

    /** All parts except the one that was not searched completely. */
    std::vector<Nodes> SeparateParts()
    {
        goingOn = searches.size();
        std::vector<Nodes> parts;
        std::vector<int> running(searches.size());
        for (size_t i = 0; i < running.size(); ++i) {
            running[i] = static_cast<int>(i);
        }
        while (goingOn > 1) {
            std::vector<int> next;
            for (const int id : running) {
                if (sets.Root(id) != id || goingOn == 1) {
                    continue;
                }
                if (At(id).IsAtEnd()) {
                    parts.push_back(At(id).seen);
                    --goingOn;
                } else {
                    Step(id);
                    next.push_back(id);
                }
            }
            running = std::move(next);
        }
        return parts;
    }

private:
    struct Search
    {
        Nodes seen;
        Nodes frontier; ///< The visited nodes, in the order in which they are expanded.
        size_t next;    ///< The first that is not yet expanded.

        bool IsAtEnd() const { return next == frontier.size(); }
    };

    Search& At(int id) { return searches[static_cast<size_t>(id)]; }

    void Step(int id)
    {
        const TLinkNode* node = At(id).frontier[At(id).next++];
        if (node->role == TLinkNode::Role::Divides) {
            return;
        }
        for (const TLinkNode::Neighbour& neighbour : node->neighbours) {
            TLinkNode* found = neighbour.node;
            if (found->role == TLinkNode::Role::Divides) {
                continue;
            }
            Search& own = At(sets.Root(id));
            if (found->search < 0) {
                found->search = sets.Root(id);
                own.seen.push_back(found);
                own.frontier.push_back(found);
            } else {
                Join(sets.Root(id), sets.Root(found->search));
            }
        }
    }

    void Join(int one, int other)
    {
        if (one == other) {
            return;
        }
        sets.Join(one, other);
        Search& kept = At(sets.Root(one));
        Search& gone = At(sets.Root(one) == one ? other : one);
        if (kept.seen.size() < gone.seen.size()) {
            std::swap(kept, gone);
        }
        kept.seen.insert(kept.seen.end(), gone.seen.cbegin(), gone.seen.cend());
        kept.frontier.insert(kept.frontier.end(), gone.frontier.cbegin() + static_cast<std::ptrdiff_t>(gone.next),
                             gone.frontier.cend());
        gone = {{}, {}, 0};
        --goingOn;
    }

    std::vector<Search> searches;
    DisjointSets sets; ///< Of searches that have met; the root is the one that continues.
    size_t goingOn = 0;
};

namespace {

/** Adjusts a count; ignores empty names and null scenes. */
template <class Key>
void CountIn(QHash<Key, int>& counts, const Key& key, int difference)
{
    if (key == Key()) {
        return;
    }
    const auto count = counts.insert(key, counts.value(key) + difference);
    if (*count == 0) {
        counts.erase(count);
    }
}

} // namespace

void TLinkChanges::Add(TLinkNode& one, TLinkNode& other, bool isMade)
{
    (isMade ? made : cut).append(qMakePair(&one, &other));
}

void TLinkChanges::Add(const TLinkChanges& more)
{
    made += more.made;
    cut += more.cut;
}

void TLinkNode::Release()
{
    // Items that still hold a link to this one are notified, link by link; its own links are destroyed with it.
    const QVector<Neighbour> last = neighbours;
    for (const Neighbour& neighbour : last) {
        for (int i = 0; i < neighbour.holding; ++i) {
            neighbour.node->item.ReplaceLinkedItem(&item, nullptr);
        }
        for (int i = 0; i < neighbour.held; ++i) {
            Drop(*neighbour.node);
        }
    }
    BringUpToDate();
    LeaveIsland();
}

void TLinkNode::Hold(TLinkNode& other)
{
    const bool isNew = !IsLinkedWith(other);
    CountLink(other, 1, 0);
    other.CountLink(*this, 0, 1);
    if (isNew) {
        NoteChange(other, true);
    }
}

void TLinkNode::Drop(TLinkNode& other)
{
    CountLink(other, -1, 0);
    other.CountLink(*this, 0, -1);
    if (!IsLinkedWith(other)) {
        NoteChange(other, false);
    }
}

bool TLinkNode::IsLinkedWith(const TLinkNode& other) const
{
    // Searching the shorter list suffices.
    const bool otherIsShorter = other.neighbours.size() < neighbours.size();
    const QVector<Neighbour>& list = otherIsShorter ? other.neighbours : neighbours;
    const TLinkNode* wanted = otherIsShorter ? this : &other;
    return std::any_of(list.cbegin(), list.cend(), [wanted](const Neighbour& known) { return known.node == wanted; });
}

void TLinkNode::CountLink(TLinkNode& other, int held, int holding)
{
    auto found = std::find_if(neighbours.begin(), neighbours.end(),
                              [&other](const Neighbour& known) { return known.node == &other; });
    if (found == neighbours.end()) {
        neighbours.append({&other, 0, 0});
        found = neighbours.end() - 1;
    }
    found->held += held;
    found->holding += holding;
    if (found->held <= 0 && found->holding <= 0) {
        neighbours.erase(found);
    }
}

void TLinkNode::NoteChange(TLinkNode& other, bool made)
{
    const bool isSelf = &other == this;
    const bool joinsNothing = role == Role::Divides || other.role == Role::Divides;
    TItemScene* scene = item.owner;
    if (isSelf || joinsNothing || (scene && scene->closing)) {
        return;
    }
    if (scene && scene == other.item.owner) {
        scene->linkChanges.Add(*this, other, made);
        return;
    }
    // No scene owns both items: update at once, together with what the scenes have noted.
    TLinkChanges changes;
    const QSet<TItemScene*> watching = WatchingScenes() + other.WatchingScenes();
    for (TItemScene* each : watching) {
        changes.Add(std::exchange(each->linkChanges, {}));
    }
    changes.Add(*this, other, made);
    Apply(changes);
}

QSet<TItemScene*> TLinkNode::WatchingScenes() const
{
    QSet<TItemScene*> scenes;
    if (item.owner) {
        scenes.insert(item.owner);
    }
    if (island) {
        const QList<TItemScene*> ofMembers = island->scenes.keys();
        scenes += QSet<TItemScene*>(ofMembers.cbegin(), ofMembers.cend());
    }
    return scenes;
}

void TLinkNode::SceneChanges(TItemScene* from, TItemScene* to)
{
    if (island) {
        CountIn(island->scenes, from, -1);
        CountIn(island->scenes, to, 1);
    }
}

void TLinkNode::BringUpToDate() const
{
    if (item.owner) {
        item.owner->ApplyLinks();
    } else if (island) {
        const QSet<TItemScene*> watching = WatchingScenes();
        for (TItemScene* each : watching) {
            each->ApplyLinks();
        }
    }
}

void TLinkNode::Apply(TLinkChanges& changes)
{
    const TLinkChanges now = std::exchange(changes, {});
    for (const auto& [one, other] : now.made) {
        if (one->IsLinkedWith(*other)) {
            one->JoinWith(*other);
        }
    }
    QHash<const TLinkIsland*, TLinkSearch::Nodes> cutIn;
    for (const auto& [one, other] : now.cut) {
        for (TLinkNode* node : {one, other}) {
            if (node->island) {
                cutIn[node->island.get()].push_back(node);
            }
        }
    }
    for (const TLinkSearch::Nodes& nodes : qAsConst(cutIn)) {
        TLinkNode* any = nodes.front();
        const std::shared_ptr<TLinkIsland> rest = any->island;
        any->MarkNets();
        const std::vector<TLinkSearch::Nodes> parts = TLinkSearch(nodes).SeparateParts();
        for (const TLinkSearch::Nodes& part : parts) {
            const auto partIsland = part.size() > 1 ? std::make_shared<TLinkIsland>() : nullptr;
            for (TLinkNode* node : part) {
                node->MoveTo(partIsland);
            }
            part.front()->MarkNets();
        }
        if (rest->members.size() == 1) {
            rest->members.first()->MoveTo(nullptr);
        }
    }
}

void TLinkNode::JoinWith(TLinkNode& other)
{
    MarkNets();
    other.MarkNets();
    if (!island && !other.island) {
        MoveTo(std::make_shared<TLinkIsland>());
    }
    if (island == other.island) {
        return;
    }
    const auto size = [](const TLinkNode& node) { return node.island ? node.island->members.size() : 0; };
    const bool isLarger = size(*this) >= size(other);
    const std::shared_ptr<TLinkIsland> larger = isLarger ? island : other.island;
    TLinkNode& smaller = isLarger ? other : *this;
    const QVector<TLinkNode*> moving = smaller.island ? smaller.island->members : QVector<TLinkNode*>{&smaller};
    for (TLinkNode* node : moving) {
        node->MoveTo(larger);
    }
}

void TLinkNode::MoveTo(const std::shared_ptr<TLinkIsland>& newIsland)
{
    LeaveIsland();
    island = newIsland;
    if (island) {
        placeInIsland = island->members.size();
        island->members.append(this);
        Count(1);
    }
}

void TLinkNode::LeaveIsland()
{
    if (!island) {
        return;
    }
    Count(-1);
    TLinkNode* lastMember = island->members.takeLast();
    if (lastMember != this) {
        island->members[placeInIsland] = lastMember;
        lastMember->placeInIsland = placeInIsland;
    }
    island.reset();
}

void TLinkNode::Count(int difference) const
{
    island->colored.reset();
    CountIn(role == Role::Names ? island->namesGiven : island->namesKept, ownNet, difference);
    CountIn(island->scenes, item.owner, difference);
}

void TLinkNode::MarkNets() const
{
    if (!item.owner) {
        return;
    }
    item.owner->MarkNet(ownNet);
    if (island) {
        for (const QHash<QString, int>& names : {island->namesGiven, island->namesKept}) {
            std::for_each(names.keyBegin(), names.keyEnd(), [this](const QString& name) { item.owner->MarkNet(name); });
        }
    }
}

QString TLinkNode::Net() const
{
    if (role != Role::Follows) {
        return ownNet;
    }
    const TLinkIsland* joined = Island();
    if (joined && joined->namesGiven.size() == 1) {
        return joined->namesGiven.cbegin().key();
    }
    if (joined && ownNet.isEmpty() && joined->namesKept.size() == 1) {
        return joined->namesKept.cbegin().key();
    }
    return ownNet;
}

void TLinkNode::SetOwnNet(const QString& name)
{
    BringUpToDate();
    MarkNets();
    if (island) {
        Count(-1);
    }
    ownNet = name;
    if (island) {
        Count(1);
    }
    MarkNets();
}

const TLinkIsland* TLinkNode::Island() const
{
    BringUpToDate();
    return island.get();
}

void TLinkNode::NoteColored(const QString& net, const QColor& color) const
{
    if (island) {
        island->colored = qMakePair(net, color);
    }
}

bool TLinkNode::IsColored(const QString& net, const QColor& color) const
{
    const TLinkIsland* joined = Island();
    return joined && joined->colored == qMakePair(net, color);
}

void TLinkNode::ColorChanges() const
{
    if (island) {
        island->colored.reset();
    }
}
