#pragma once

#include <graphics/TGraphicsItem.h>

/** A component's footprint on the board: the parent of its pads. */
class TGraphicsPackageItem : public TGraphicsItem
{
public:
    explicit TGraphicsPackageItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Package; }
    QString KindName() const override { return QStringLiteral("package"); }

    /** The designator of the component, such as "R12". The setter stores and repaints. */
    const QString& RefDes() const { return refDes; }
    void SetRefDes(const QString& text);
    /** The component's value as text. The setter stores and repaints. */
    const QString& Value() const { return value; }
    void SetValue(const QString& text);
    /** The footprint's name, possibly followed by an at sign and a qualifier. The setter stores only. */
    const QString& PackageName() const { return packageName; }
    void SetPackageName(const QString& text) { packageName = text; }

    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    QString refDes;
    QString value;
    QString packageName;
};
