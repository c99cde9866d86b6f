#pragma once

#include <objects/engine/TLinkList.h>
#include <objects/TGraphicsSectionItem.h>

class TGraphicsBusEntryItem;

/** A straight piece of a bus, a bundle of nets that keep their names: items linked to it are not connected by it. */
class TGraphicsBusItem : public TGraphicsSectionItem
{
public:
    explicit TGraphicsBusItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Bus; }
    QString KindName() const override { return QStringLiteral("bus"); }

    /** The name, such as "D[0..7]". The setter only stores. */
    const QString& Name() const { return name; }
    void SetName(const QString& text) { name = text; }

    /** The entries that lead away from the bus, in the order in which they were linked. */
    const QList<TGraphicsBusEntryItem*>& LinkedBusEntries() const { return entries.List(); }
    /** One-sided: adds an entry to the list, or removes it. */
    void AddLinkedBusEntry(TGraphicsBusEntryItem* entry);
    void RemoveLinkedBusEntry(TGraphicsBusEntryItem* entry);

    QVector<TGraphicsItem*> Links() const override { return TGraphicsSectionItem::Links() + entries.Items(); }
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    QString name;
    TLinksTo<TGraphicsBusEntryItem> entries{LinkNode()};
};
