#pragma once

#include <graphics/TGraphicsItem.h>

#include <QHash>
#include <QVector>

#include <optional>

/**
 * What a symbol or package remembers of the links that it made and cut, so that what is given back by name alone (a
 * wire, a pin) is cut from, or linked to, the very place: several may lie on one point, and a wire has two ends. A part
 * of that item.
 *
 * It is used like the undo stack: what was done last is taken back first.
 */
class TConnectionMemory
{
public:
    enum class Change { Linked, Cut };

    struct Place
    {
        TGraphicsItem::LinkEnd end;
        const TGraphicsItem* target;
    };

    void Note(const TGraphicsItem* item, Change change, const Place& place) { noted[item].append({change, place}); }

    /** The latest change of a kind whose place suits, which is forgotten with that; nothing if there is none. */
    template <class Suits>
    std::optional<Place> Take(const TGraphicsItem* item, Change change, Suits suits)
    {
        const auto found = noted.find(item);
        if (found == noted.end()) {
            return {};
        }
        for (int i = found->size() - 1; i >= 0; --i) {
            const Noted entry = found->at(i);
            if (entry.change == change && suits(entry.place)) {
                found->remove(i);
                if (found->isEmpty()) {
                    noted.erase(found);
                }
                return entry.place;
            }
        }
        return {};
    }

private:
    struct Noted
    {
        Change change;
        Place place;
    };

    QHash<const TGraphicsItem*, QVector<Noted>> noted; ///< Compared only, never followed.
};
