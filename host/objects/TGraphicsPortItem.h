#pragma once

#include <graphics/TGraphicsItem.h>

#include <QHash>
#include <QVector>

#include <memory>

class TGraphicsPinItem;

/**
 * A named connector on a schematic page. Its name is the name of its net: ports of one name connect what is wired to
 * them, on all pages. What is wired to the port is linked to its only pin, at its position.
 */
class TGraphicsPortItem : public TGraphicsItem
{
public:
    /** How the port is drawn: by signal direction, or as a supply. */
    enum TypePortShape : int { ShapeInput, ShapeOutput, ShapeBidirectional, ShapeTriState, ShapePassive, ShapePower };

    explicit TGraphicsPortItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Port; }
    QString KindName() const override { return QStringLiteral("port"); }

    const QString& Name() const { return name; }
    /**
     * Renames the port and, if the name is new, all that is wired to it, whatever the old names: wires, junctions and
     * other ports. All of these get the colour (invalid for the layer's), and are repainted.
     *
     * Renaming the same port back restores all former names, as long as exactly the same items are wired to it and all
     * have the name that it gave them; so undoing commands in order restores every name. Renaming to its own name only
     * sets the colour of the items of that name.
     */
    void SetName(const QString& newName, const QColor& color);

    /** Notifies the items that are linked with the pin. */
    void SetAltColor(const QColor& color) override;

    bool NameVisible() const { return nameVisible; }
    /** Shows or hides the name, and repaints. */
    void SetNameVisible(bool on);

    TypePortShape PortShape() const { return portShape; }
    /** Sets the shape and repaints. */
    void SetPortShape(TypePortShape shape);

    /** The pin that wires are linked to. Null only if it was deleted. */
    TGraphicsPinItem* Pin() const { return pin; }

    /** The net of what is wired to the port, or else its own name. */
    QString Net() const override;
    /** All items that links connect to the port, directly or indirectly, without its own pin. */
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
    /** Name and colour of an item before a renaming. */
    struct Former
    {
        QString name;
        QColor color;
    };
    /** By item; the pointers are compared but never dereferenced. */
    using TFormers = QHash<TGraphicsItem*, Former>;

    /** One renaming by this port of all that was wired to it, the port too. */
    struct Renaming
    {
        QString to;
        TFormers from;
    };

    /** The port, and the ports, wires and junctions that links connect to it. */
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
    QVector<Renaming> renamings;   ///< The latest last. A first one is not recorded if all items had the same name.
    mutable QPainterPath namePath; ///< Computed lazily; empty until then.
};
