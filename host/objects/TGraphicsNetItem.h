#pragma once

#include <objects/TGraphicsSectionItem.h>

/** A straight piece of a net on a schematic page. It has the name of its net, even if no port gives it one. */
class TGraphicsNetItem : public TGraphicsSectionItem
{
public:
    explicit TGraphicsNetItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::NetWire; }
    QString KindName() const override { return QStringLiteral("netwire"); }

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
};
