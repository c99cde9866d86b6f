#pragma once

#include <graphics/TGraphicsRectItem.h>
#include <objects/engine/TLinkList.h>

/** A node at which several sections of one layer meet, drawn as a dot of its size. */
class TGraphicsJunctionItem : public TGraphicsRectItem
{
public:
    explicit TGraphicsJunctionItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Junction; }
    QString KindName() const override { return QStringLiteral("junction"); }

    /** The sections that meet here, once for each of their ends, in the order in which they were linked. */
    const QList<TGraphicsSectionItem*>& LinkedSections() const { return linked.List(); }
    /** One-sided: adds one end of a section to the list, or removes one. */
    void AddLinkedSection(TGraphicsSectionItem* section);
    void RemoveLinkedSection(TGraphicsSectionItem* section);

    /** Sets the own net name, which is the junction's net if links give it none, and repaints. */
    void SetNet(const QString& name);

    QVector<TGraphicsItem*> Links() const override { return linked.Items(); }
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override { return linked.Replace(from, to); }
    void AcceptLink(TGraphicsItem* section, LinkEnd) override { linked.Add(section); }
    void ReleaseLink(TGraphicsItem* section, LinkEnd) override { linked.Remove(section); }
    bool CanBeLinkedTo() const override { return true; }

    void SetLayer(Osmirel::Layer newLayer) override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    TLinkList linked{LinkNode()};
};
