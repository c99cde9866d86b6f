#include <application/TSchematicPage.h>

#include <graphics/TGraphicsItem.h>

void TSchematicPage::Attach(std::unique_ptr<TGraphicsItem> item)
{
    if (item) {
        item.release()->AttachTo(&scene);
    }
}

void TSchematicPage::SaveTopItems()
{
    items.clear();
    const QList<TGraphicsItem*> onPage = scene.DesignItems();
    for (TGraphicsItem* item : onPage) {
        if (!item->parentItem()) {
            items.append(item);
        }
    }
}
