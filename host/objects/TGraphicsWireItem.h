#pragma once

#include <objects/TGraphicsSectionItem.h>

/** A straight piece of track on one copper layer. */
class TGraphicsWireItem : public TGraphicsSectionItem
{
public:
    using TGraphicsSectionItem::TGraphicsSectionItem;

    int type() const override { return ItemType::Wire; }
    QString KindName() const override { return QStringLiteral("wire"); }

    /** A `QPainter::CompositionMode` that the wire is drawn with. The setter only stores. */
    int CompositionMode() const { return compositionMode; }
    void SetCompositionMode(int mode) { compositionMode = mode; }

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    int compositionMode = 0;
};
