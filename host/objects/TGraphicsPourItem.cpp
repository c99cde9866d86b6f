#include <objects/TGraphicsPourItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>
#include <objects/engine/TPourFill.h>

#include <QPainter>

TGraphicsPourItem::TGraphicsPourItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    // A pour has its own net; what it covers is connected by overlap, not by links.
    LinkNode().SetRole(TLinkNode::Role::Names);
    TGraphicsItem::SetLayer(Osmirel::CopperTop);
    setZValue(TGraphicsPourItem::StackingHeight());
}

TGraphicsPourItem::~TGraphicsPourItem() = default;

void TGraphicsPourItem::SetArea(const QPolygonF& polygon)
{
    prepareGeometryChange();
    area = polygon;
    MarkPours();
    Refresh();
}

void TGraphicsPourItem::SetFillType(int brushStyle)
{
    fillType = brushStyle;
    MarkPours();
}

void TGraphicsPourItem::SetPriority(quint8 level)
{
    priority = level;
    MarkPours();
}

void TGraphicsPourItem::SetNet(const QString& name)
{
    LinkNode().SetOwnNet(name);
    MarkPours();
    Fill();
}

void TGraphicsPourItem::SetLayer(Osmirel::Layer newLayer)
{
    Filled();
    TGraphicsItem::SetLayer(newLayer);
    MarkPours();
}

void TGraphicsPourItem::Flip()
{
    prepareGeometryChange();
    TGraphicsItem::Flip();
    area = Shapes::Mirrored(area);
    Fill();
}

bool TGraphicsPourItem::IsStrongerThan(const TGraphicsPourItem& other) const
{
    return priority != other.priority ? priority > other.priority : DesignOrder() < other.DesignOrder();
}

void TGraphicsPourItem::Fill()
{
    fillAsked = true;
    update();
}

const TPourFill& TGraphicsPourItem::Filled() const
{
    if (fillAsked || !fill) {
        fill = fillAsked ? std::make_unique<TPourFill>(*this) : std::make_unique<TPourFill>();
        fillAsked = false;
    }
    return *fill;
}

QPainterPath TGraphicsPourItem::FilledPath() const
{
    return Filled().Path();
}

bool TGraphicsPourItem::IsFilledAt(const QPointF& scenePoint) const
{
    return Filled().HasCopperAt(mapFromScene(scenePoint));
}

QRectF TGraphicsPourItem::boundingRect() const
{
    return area.boundingRect().adjusted(-1, -1, 1, 1);
}

QPainterPath TGraphicsPourItem::Outline() const
{
    QPainterPath path;
    path.addPolygon(area);
    path.closeSubpath();
    return path;
}

void TGraphicsPourItem::Draw(QPainter& painter, double pixelsPerUnit) const
{
    painter.setCompositionMode(static_cast<QPainter::CompositionMode>(compositionMode));
    QColor color = Color();
    color.setAlpha(alpha);
    Filled().Draw(painter, color, pixelsPerUnit);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    color.setAlpha(DrawingStyle::alphaOfPourEdge);
    QPen edge(color, 1);
    edge.setCosmetic(true);
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(area);
}

double TGraphicsPourItem::StackingHeight() const
{
    return TGraphicsItem::StackingHeight() - DrawingStyle::depthOfPours;
}

void TGraphicsPourItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("area", area)
        .Add("clearanceToEtch", clearanceToEtch)
        .Add("clearanceToBorder", clearanceToBorder)
        .Add("clearanceToPour", clearanceToPour)
        .Add("fillType", fillType)
        .Add("lineWidth", lineWidth)
        .Add("minimumArea", minimumArea)
        .Add("onlyConnected", onlyConnected)
        .Add("priority", static_cast<int>(priority))
        .Add("thermal", thermalEnable)
        .Add("thermalLine", thermalLine)
        .Add("thermalIsolation", thermalIsolation)
        .Add("composition", compositionMode)
        .Add("alpha", alpha);
}

std::unique_ptr<TGraphicsItem> TGraphicsPourItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPourItem>();
}

void TGraphicsPourItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPourItem&>(source);
    area = other.area;
    clearanceToEtch = other.clearanceToEtch;
    clearanceToBorder = other.clearanceToBorder;
    clearanceToPour = other.clearanceToPour;
    fillType = other.fillType;
    lineWidth = other.lineWidth;
    minimumArea = other.minimumArea;
    onlyConnected = other.onlyConnected;
    priority = other.priority;
    thermalEnable = other.thermalEnable;
    thermalLine = other.thermalLine;
    thermalIsolation = other.thermalIsolation;
    compositionMode = other.compositionMode;
    alpha = other.alpha;
    fillAsked = true;
}
