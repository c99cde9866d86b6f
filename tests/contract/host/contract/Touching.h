#pragma once

#include <graphics/TGraphicsItem.h>

/** What connecting and disconnecting comes to: sections that end on a target are linked to it, or cut from it. */
namespace Touching {

/** Links free ends that lie on a target: of the given sections, one end for each occurrence, or with none given all of
 *  the targets' scene. Returns the sections, once for each link. */
QVector<TGraphicsItem*> Link(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& sections);
/** Cuts ends from the targets, likewise. */
QVector<TGraphicsItem*> Cut(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& sections);

/** The children of a kind. */
QVector<TGraphicsItem*> ChildrenOf(const TGraphicsItem& parent, ItemType::Number kind);

} // namespace Touching
