#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>

/** Links of an item that are all to one class. */
template <class Linked>
QList<Linked*> TypedLinks(const QVector<TGraphicsItem*>& links)
{
    QList<Linked*> typed;
    for (TGraphicsItem* item : links) {
        typed.append(static_cast<Linked*>(item));
    }
    return typed;
}
