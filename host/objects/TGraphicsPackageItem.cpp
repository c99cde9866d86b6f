#include <objects/TGraphicsPackageItem.h>

#include <graphics/TStateText.h>

TGraphicsPackageItem::TGraphicsPackageItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    // The package draws nothing of its own: its pads are picked, not the space between them.
    setFlag(ItemHasNoContents);
    setFlag(ItemIsSelectable, false);
    SetLayer(Osmirel::PackagesTop);
    setZValue(0);
}

void TGraphicsPackageItem::SetRefDes(const QString& text)
{
    refDes = text;
    Refresh();
}

void TGraphicsPackageItem::SetValue(const QString& text)
{
    value = text;
    Refresh();
}

QRectF TGraphicsPackageItem::boundingRect() const
{
    return {};
}

QPainterPath TGraphicsPackageItem::Outline() const
{
    return {};
}

void TGraphicsPackageItem::Draw(QPainter&, double) const {}

void TGraphicsPackageItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("refDes", refDes).Add("value", value).Add("package", packageName);
}
