#pragma once

#include <graphics/TGraphicsItem.h>

#include <QVector>

class QGraphicsView;

/** The design items that a view shows, in no particular order; none without a view. The view is queried once. */
QVector<TGraphicsItem*> ItemsOfView(const QGraphicsView* view);

/** Those that are of one of the given kinds. */
QVector<TGraphicsItem*> ItemsOfView(const QGraphicsView* view, std::initializer_list<ItemType::Number> kinds);
