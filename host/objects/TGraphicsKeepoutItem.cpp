#include <objects/TGraphicsKeepoutItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>
#include <workspace/TWorkspace.h>

#include <QPainter>

#include <algorithm>

TGraphicsKeepoutItem::TGraphicsKeepoutItem(QGraphicsItem* parent)
    : TGraphicsItem(parent), enabled(Osmirel::maxCopperLayers, false)
{
    setZValue(DrawingStyle::stackingOfKeepouts);
}

void TGraphicsKeepoutItem::SetArea(const QPolygonF& polygon)
{
    prepareGeometryChange();
    area = polygon;
    MarkPours();
    Refresh();
}

bool TGraphicsKeepoutItem::IsLayerEnable(Osmirel::Layer copper) const
{
    return Osmirel::IsCopper(copper) && enabled[copper - Osmirel::CopperTop];
}

void TGraphicsKeepoutItem::SetLayerEnable(Osmirel::Layer copper, bool on)
{
    if (Osmirel::IsCopper(copper)) {
        enabled[copper - Osmirel::CopperTop] = on;
        MarkPours();
        Refresh();
    }
}

void TGraphicsKeepoutItem::Flip()
{
    prepareGeometryChange();
    TGraphicsItem::Flip();
    area = Shapes::Mirrored(area);
    std::reverse(enabled.begin(), enabled.end());
    MarkPours();
}

bool TGraphicsKeepoutItem::IsOnVisibleLayer() const
{
    if (!Workspace()) {
        return true;
    }
    const QList<Osmirel::Layer> copper = Workspace()->Layers().CopperLayers();
    const bool actsNowhere = !enabled.contains(true);
    return actsNowhere || std::any_of(copper.cbegin(), copper.cend(), [this](Osmirel::Layer each) {
               return IsLayerEnable(each) && Workspace()->Layers().IsVisible(each);
           });
}

QRectF TGraphicsKeepoutItem::boundingRect() const
{
    return area.boundingRect().adjusted(-1, -1, 1, 1);
}

QPainterPath TGraphicsKeepoutItem::Outline() const
{
    QPainterPath path;
    path.addPolygon(area);
    path.closeSubpath();
    return path;
}

void TGraphicsKeepoutItem::Draw(QPainter& painter, double) const
{
    const QColor color = AltColor().isValid() ? AltColor() : DrawingStyle::keepout;
    QPen edge(color, 1, Qt::DashLine);
    edge.setCosmetic(true);
    painter.setPen(edge);
    painter.setBrush(QBrush(color, Qt::BDiagPattern));
    painter.drawPolygon(area);
}

double TGraphicsKeepoutItem::StackingHeight() const
{
    return DrawingStyle::stackingOfKeepouts;
}

void TGraphicsKeepoutItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    QStringList layers;
    for (int i = 0; i < enabled.size(); ++i) {
        if (enabled[i]) {
            layers.append(QString::number(Osmirel::CopperTop + i));
        }
    }
    state.Add("area", area).Add("layers", layers);
}

std::unique_ptr<TGraphicsItem> TGraphicsKeepoutItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsKeepoutItem>();
}

void TGraphicsKeepoutItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsKeepoutItem&>(source);
    area = other.area;
    enabled = other.enabled;
}
