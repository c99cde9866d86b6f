#include "workbench/window/TCanvas.h"

#include <workspace/TWorkspace.h>

#include <QGraphicsItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

const QColor ground(0x16, 0x1a, 0x20);
const QColor fineGrid(0x1f, 0x25, 0x2d);
const QColor coarseGrid(0x29, 0x31, 0x3b);

constexpr double sceneUnitsPerMillimetre = TWorkspace::sceneUnitsPerInch / TWorkspace::millimetresPerInch;

/** Pixels per scene unit; a scene unit is a bit less than a tenth of a millimetre. */
constexpr double smallestScale = 0.02;
constexpr double largestScale = 200.0;
constexpr double zoomStep = 1.25;

/** The grid's step in scene units: the smallest power of ten in millimetres whose lines are far enough apart. */
double GridStep(double pixelsPerUnit)
{
    constexpr double fewestPixels = 12.0;
    const double millimetres = fewestPixels / (pixelsPerUnit * sceneUnitsPerMillimetre);
    return std::pow(10.0, std::ceil(std::log10(millimetres))) * sceneUnitsPerMillimetre;
}

void DrawGrid(QPainter& painter, const QRectF& rect, double step, const QColor& color)
{
    const auto firstLine = [step](double from) { return static_cast<int>(std::ceil(from / step)); };
    const auto lastLine = [step](double to) { return static_cast<int>(std::floor(to / step)); };
    QVector<QLineF> lines;
    for (int i = firstLine(rect.left()); i <= lastLine(rect.right()); ++i) {
        lines.append({i * step, rect.top(), i * step, rect.bottom()});
    }
    for (int i = firstLine(rect.top()); i <= lastLine(rect.bottom()); ++i) {
        lines.append({rect.left(), i * step, rect.right(), i * step});
    }
    painter.setPen(QPen(color, 0));
    painter.drawLines(lines);
}

} // namespace

TCanvas::TCanvas(QWidget* parent) : QGraphicsView(parent)
{
    setFrameShape(QFrame::NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    setViewportUpdateMode(BoundingRectViewportUpdate);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(AnchorViewCenter);
    setDragMode(RubberBandDrag);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void TCanvas::Show(QGraphicsScene* newScene)
{
    setScene(newScene);
    content = newScene ? newScene->itemsBoundingRect() : QRectF();
    // Margins on all sides, so that every point of the document can be moved to every point of the view.
    const double room = std::max(content.width(), content.height()) + 100;
    setSceneRect(content.adjusted(-room, -room, room, room));
    FitAll();
}

void TCanvas::Fit(const QRectF& area)
{
    if (area.isEmpty()) {
        return;
    }
    constexpr double margin = 0.04; // of the shorter side
    const double border = margin * std::min(area.width(), area.height()) + sceneUnitsPerMillimetre;
    fitInView(area.adjusted(-border, -border, border, border), Qt::KeepAspectRatio);
    ZoomBy(1, viewport()->rect().center()); // Not too close.
}

void TCanvas::FitAll()
{
    Fit(content);
    showsAll = true;
}

void TCanvas::FitSelection()
{
    QRectF area;
    for (const QGraphicsItem* item : scene() ? scene()->selectedItems() : QList<QGraphicsItem*>()) {
        area |= item->sceneBoundingRect();
    }
    if (!area.isEmpty()) {
        Fit(area);
        showsAll = false;
    }
}

void TCanvas::Reveal(const QGraphicsItem& item)
{
    constexpr double fewestPixels = 60;
    constexpr double partOfView = 0.25;
    const QRectF area = item.sceneBoundingRect();
    const QRectF view = mapToScene(viewport()->rect()).boundingRect();
    const double pixels = std::max(area.width(), area.height()) * transform().m11();
    const bool isTooLarge = area.width() > view.width() || area.height() > view.height();
    if (pixels < fewestPixels || isTooLarge) {
        const double wanted = partOfView * std::min(viewport()->width(), viewport()->height());
        ZoomBy(wanted / std::max(pixels, 1.0), viewport()->rect().center());
    }
    if (!mapToScene(viewport()->rect()).boundingRect().contains(area)) {
        centerOn(area.center());
    }
    showsAll = false;
}

void TCanvas::ZoomIn()
{
    ZoomBy(zoomStep, viewport()->rect().center());
}

void TCanvas::ZoomOut()
{
    ZoomBy(1 / zoomStep, viewport()->rect().center());
}

void TCanvas::ZoomBy(double factor, const QPoint& around)
{
    const QPointF fixed = mapToScene(around);
    const double current = transform().m11();
    const double allowed = std::clamp(current * factor, smallestScale, largestScale) / current;
    scale(allowed, allowed);
    ScrollBy(mapFromScene(fixed) - around);
    showsAll = false;
}

void TCanvas::ScrollBy(const QPoint& pixels)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + pixels.y());
}

void TCanvas::drawBackground(QPainter* painter, const QRectF& rect)
{
    painter->fillRect(rect, ground);
    painter->setRenderHint(QPainter::Antialiasing, false);
    const double step = GridStep(transform().m11());
    DrawGrid(*painter, rect, step, fineGrid);
    DrawGrid(*painter, rect, 10 * step, coarseGrid);
    painter->setRenderHint(QPainter::Antialiasing);
}

void TCanvas::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
    emit sigKey(event);
    if (!event->isAccepted()) {
        QGraphicsView::keyPressEvent(event);
    }
}

void TCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        isPanning = true;
        panFrom = event->pos();
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (event->button() == Qt::LeftButton) {
        emit sigGestureBegun();
    }
    QGraphicsView::mousePressEvent(event);
}

void TCanvas::mouseMoveEvent(QMouseEvent* event)
{
    emit sigCursorMoved(mapToScene(event->pos()));
    if (!isPanning) {
        QGraphicsView::mouseMoveEvent(event);
        return;
    }
    if (!(event->buttons() & Qt::MiddleButton)) {
        EndPan(); // The release event went to another widget.
        return;
    }
    ScrollBy(panFrom - event->pos());
    panFrom = event->pos();
    showsAll = false;
}

void TCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        EndPan();
        return;
    }
    QGraphicsView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) {
        emit sigGestureEnded();
    }
}

void TCanvas::EndPan()
{
    isPanning = false;
    viewport()->unsetCursor();
}

void TCanvas::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (showsAll) {
        FitAll();
    }
}

void TCanvas::showEvent(QShowEvent* event)
{
    QGraphicsView::showEvent(event);
    if (showsAll) {
        FitAll();
    }
}

void TCanvas::wheelEvent(QWheelEvent* event)
{
    constexpr double anglePerStep = 120.0;
    ZoomBy(std::pow(zoomStep, event->angleDelta().y() / anglePerStep), event->position().toPoint());
    event->accept();
}
