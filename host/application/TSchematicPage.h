#pragma once

#include <graphics/TItemScene.h>

#include <QList>

#include <memory>

class TGraphicsItem;
class TWorkspace;

/** One page of a schematic, and the owner of its items through its scene. Owned by its schematic. */
class TSchematicPage
{
public:
    /** Pages are numbered from 1. */
    TSchematicPage(unsigned char ofNumber, TWorkspace* workspace) : number(ofNumber), scene(workspace) {}

    unsigned char Number() const { return number; }

    /** The owner of the page's items. */
    TItemScene* Scene() { return &scene; }
    const TItemScene* Scene() const { return &scene; }
    /** Places an item, with its children, on the page, which owns it from then on. */
    void Attach(std::unique_ptr<TGraphicsItem> item);

    /** Snapshots the items of the page, for `Items`. */
    void SaveTopItems();
    /** The top-level items in the last snapshot. Items deleted since must not be dereferenced. */
    const QList<TGraphicsItem*>& Items() const { return items; }

private:
    unsigned char number;
    TItemScene scene;
    QList<TGraphicsItem*> items;
};
