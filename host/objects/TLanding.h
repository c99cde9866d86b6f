#pragma once

#include <objects/TConnectionMemory.h>

#include <QVector>

#include <optional>

class TGraphicsSectionItem;

/**
 * Links the free ends of the wires of a design to copper that they end on, and cuts them from it: what a package does
 * with its pads, and a net tie with itself. A part of that item.
 *
 * It remembers from which copper a wire's end was cut, so that linking the same wires again gives each end the copper
 * that it had, even where several pads lie there; and which end it linked, so that just that one is cut again.
 */
class TLanding
{
public:
    /**
     * Links wires to the targets and returns them, once for each end. With @p wires empty these are all wires of the
     * targets' scene with a free end on a target's copper; otherwise exactly the given ones, with one end for each
     * occurrence: one that was cut from a target before, or else one that ends there.
     */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& wires);

    /** Cuts all wires, or exactly the given ones with one end for each occurrence, from the targets, and returns them
     *  once for each end, in the order of the targets and their links. Of a given wire the end that was linked here
     * last is cut, or else the first end before the last. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& wires);

private:
    struct Place
    {
        TGraphicsItem::LinkEnd end;
        TGraphicsItem* target;
    };

    QVector<TGraphicsItem*> ConnectTouching(const QVector<TGraphicsItem*>& targets);
    QVector<TGraphicsItem*> ConnectAgain(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& wires);
    std::optional<Place> PlaceItWasCutFrom(TGraphicsSectionItem* wire, const QVector<TGraphicsItem*>& targets);
    static std::optional<Place> PlaceItTouches(TGraphicsSectionItem* wire, const QVector<TGraphicsItem*>& targets);
    void Cut(TGraphicsSectionItem* wire, TGraphicsItem::LinkEnd end);

    TConnectionMemory memory;
};
