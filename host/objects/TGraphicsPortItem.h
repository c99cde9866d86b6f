#pragma once

#include <graphics/TGraphicsItem.h>

#include <QHash>
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
     * Renames the port and, if that is a new name, all that is wired to it, whatever it was called: wires, junctions
     * and other ports. All of these get the colour (invalid for the layer's), and are repainted.
     *
     * Renaming the same port back gives everything its former name back, as long as just the same things are wired to
     * it and all have the name that it gave them; so commands that are undone in their order bring back every name. Its
     * own name only gives the colour to what has that name.
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
    /** What an item was called before a renaming, and how it was coloured. */
    struct Former
    {
        QString name;
        QColor color;
    };
    /** By the items, which are compared only and never followed. */
    using TFormers = QHash<TGraphicsItem*, Former>;

    /** One renaming by this port of all that was wired to it, the port too. */
    struct Renaming
    {
        QString to;
        TFormers from;
    };

    /** The port, and the ports, wires and junctions that links join with it. */
    TFormers Wired();
    void Rename(const QString& newName, const QColor& color);
    bool TakesBack(const QString& newName, const TFormers& wired);
    void ColorNameless(const QColor& color);

    static void GiveName(TGraphicsItem& item, const QString& newName);
    void StoreName(const QString& newName);
    void ExtentChanges();
    const QPainterPath& NamePath() const;

    QString name;
    bool nameVisible = true;
    TypePortShape portShape = ShapePassive;
    TGraphicsPinItem* pin;
    QVector<Renaming> renamings;   ///< The last one last. A first one of things that had one name is not noted.
    mutable QPainterPath namePath; ///< Made when first asked for; empty until then.
};
