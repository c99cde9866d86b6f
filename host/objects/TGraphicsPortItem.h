#pragma once

#include <graphics/TGraphicsItem.h>

#include <QSet>
#include <QVector>

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
     * ports of the old one. All of these get the colour (invalid for the layer's), and are repainted. Renaming it back
     * gives the old name back to just those that it was taken from.
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
    /** One renaming, and whose name it changed besides the port's own. */
    struct Carried
    {
        QString from;
        QString to;
        QSet<const TGraphicsItem*> items; ///< Compared only, never followed.
    };

    void StoreName(const QString& newName);
    void Carry(const QString& newName, const QColor& color);
    void ExtentChanges();
    const QPainterPath& NamePath() const;

    QString name;
    bool nameVisible = true;
    TypePortShape portShape = ShapePassive;
    TGraphicsPinItem* pin;
    QVector<Carried> carried;      ///< The renamings that could be taken back, the last one last.
    mutable QPainterPath namePath; ///< Made when first asked for; empty until then.
};
