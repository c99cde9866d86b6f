#pragma once

#include <graphics/TGraphicsItem.h>

#include <QSet>
#include <QVector>

#include <memory>

class TGraphicsPinItem;

/**
 * A named connector on a schematic page. Its name is the name of the net that it joins: ports of one name join what is
 * wired to them to one net, on all pages. What is wired to the port is linked to its only pin, at its position.
 */
class TGraphicsPortItem : public TGraphicsItem
{
public:
    /** How the port is drawn: which way signals go, or as a supply. */
    enum TypePortShape : int { ShapeInput, ShapeOutput, ShapeBidirectional, ShapeTriState, ShapePassive, ShapePower };

    explicit TGraphicsPortItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Port; }
    QString KindName() const override { return QStringLiteral("port"); }

    const QString& Name() const { return name; }
    /**
     * Renames the port, and with it all that is wired to it and is on its net: wires get the new name, and so do other
     * ports of the old one. All of these get the colour (invalid for the layer's), and are repainted.
     *
     * Renaming it back gives the old name back to just those that it was taken from, if they all still have the new
     * one, whichever of their ports has its turn first; and doing it once more takes it from the same, if nothing else
     * has come to the old name since. Where wired ports of several names are renamed back and forth one by one, a new
     * renaming may look just like one that is taken back.
     */
    void SetName(const QString& newName, const QColor& color);

    /** Tells those who are linked with the pin. */
    void SetAltColor(const QColor& color) override;

    bool NameVisible() const { return nameVisible; }
    /** Shows or hides the name, and repaints. */
    void SetNameVisible(bool on);

    TypePortShape PortShape() const { return portShape; }
    /** Sets the shape and repaints. */
    void SetPortShape(TypePortShape shape);

    /** What wires are linked to. Null only if somebody has deleted it. */
    TGraphicsPinItem* Pin() const { return pin; }

    /** The net of what is wired to the port, or else its own name. */
    QString Net() const override;
    /** All that links join with the port, directly or through one another, without its own pin. */
    QVector<TGraphicsItem*> ConnectedItems() const;

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    using Items = QSet<TGraphicsItem*>;

    /** One renaming of a port and all that it took along. Items are compared only, never followed. */
    struct Renaming
    {
        QString from;
        QString to;
        Items items;
        Items spared;          ///< What else was of the old name when it was last taken back.
        quint64 changedAt = 0; ///< When it was last done or taken back.
    };
    using TRenamings = QVector<std::shared_ptr<Renaming>>;

    /** The ports, wires and junctions that links join with the port and that have a name as their own. */
    Items OfName(const QString& wanted) const;
    /** Those that a new name is for, the port too: notes the renaming, or finds that it takes one back or repeats one.
     */
    Items Renamed(const QString& newName);
    std::shared_ptr<Renaming> Repeated(const QString& newName, const Items& ofOldName) const;
    Items ChangedSince(quint64 moment) const;
    static void Move(const std::shared_ptr<Renaming>& renaming, const Items& items, TRenamings TGraphicsPortItem::*from,
                     TRenamings TGraphicsPortItem::*to);

    static void GiveName(TGraphicsItem& item, const QString& newName);
    void StoreName(const QString& newName);
    void ExtentChanges();
    const QPainterPath& NamePath() const;

    QString name;
    bool nameVisible = true;
    TypePortShape portShape = ShapePassive;
    TGraphicsPinItem* pin;
    TRenamings done;               ///< What took this port along, the last one last.
    TRenamings undone;             ///< What was taken back, the last one last.
    mutable QPainterPath namePath; ///< Made when first asked for; empty until then.
};
