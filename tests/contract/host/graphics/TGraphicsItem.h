#pragma once

#include <graphics/ItemTypes.h>
#include <workspace/Osmirel.h>

#include <QColor>
#include <QGraphicsItem>
#include <QVector>

class TItemScene;
class TWorkspace;

/** An object of a design. */
class TGraphicsItem : public QGraphicsItem
{
public:
    enum TFlag : unsigned {
        UndoBypass = 1,
        OnlyAngleAndLine = 2,
        Selected = 8,
        Routing = 16,
        Lock = 512,
        MirrorHorizontal = 0x800,
        MirrorVertical = 0x1000,
    };
    enum class LinkEnd { First, Last };

    ~TGraphicsItem() override;

    bool HasTFlag(TFlag flag) const;
    void SetTFlag(TFlag flag, bool on);
    TWorkspace* Workspace() const;
    Osmirel::Layer Layer() const;
    void SetLayer(Osmirel::Layer newLayer);
    QColor AltColor() const;
    void SetAltColor(const QColor& color);
    QString Net() const;

    TItemScene* Owner() const;
    void AttachTo(TItemScene* newOwner);
    void Detach();
    void ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    struct TState
    {
        unsigned flags = 0;
        Osmirel::Layer layer = Osmirel::NoLayer;
        QColor altColor;
        QString net;
    };
    TState state;
    /** Takes over what all items have of their own. */
    void TakeState(const TGraphicsItem& other);

    /** The items that this one holds a link to. Those with ends have a place for each, null for an end without a link;
     *  the others have one entry for each link. */
    QVector<TGraphicsItem*> links;
    bool hasEnds = false;

    // One-sided, and without a call out.
    void HoldAt(int place, TGraphicsItem* target);
    void Hold(TGraphicsItem* target);
    void Drop(TGraphicsItem* target);
    /** Of another item: holds a link to a section whose end was linked to it. */
    static void HoldSection(TGraphicsItem* item, TGraphicsItem* section, LinkEnd end);
    static void DropFrom(TGraphicsItem* item, TGraphicsItem* target) { item->Drop(target); }

    /** All that links join with an item, directly or through one another, without itself. */
    static QVector<TGraphicsItem*> JoinedWith(TGraphicsItem* item);
    static TState& StateOf(TGraphicsItem* item) { return item->state; }

private:
    QVector<TGraphicsItem*> holders; ///< The items that hold a link to this one, once for each link.
};
