#pragma once

#include <objects/TConnectionMemory.h>

#include <QVector>

class TGraphicsPinItem;

/**
 * Links the pins of a symbol with pins of other symbols that lie on the same points, and cuts them. A part of the
 * symbol's item. It remembers with which of its pins another one was linked, and from which it was cut, as several may
 * lie on one point.
 */
class TPinContacts
{
public:
    /** Links pins with others and returns these, once for each link: with @p others empty all pins that touch,
     * otherwise exactly the given ones. */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& pins, const QVector<TGraphicsItem*>& others);
    /** Cuts pins from others and returns these, once for each link: with @p others empty all that are linked, otherwise
     *  exactly the given ones, from the pin that was linked here last. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& pins, const QVector<TGraphicsItem*>& others);

private:
    QVector<TGraphicsItem*> ConnectTouching(const QVector<TGraphicsItem*>& pins);
    TGraphicsPinItem* PinItWasCutFrom(const TGraphicsPinItem& other, const QVector<TGraphicsItem*>& pins);
    void Cut(TGraphicsPinItem* pin, TGraphicsPinItem* other);
    QVector<TGraphicsItem*> CutAll(const QVector<TGraphicsItem*>& pins);
    /** Cuts another pin from the one of @p pins that was linked with it last, and tells whether there was one. */
    bool CutOne(TGraphicsPinItem* other, const QVector<TGraphicsItem*>& pins);

    TConnectionMemory memory;
};
