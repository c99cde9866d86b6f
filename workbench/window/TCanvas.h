#pragma once

#include <QGraphicsView>

/**
 * Shows a board or a page on a dark background with a millimetre grid. The wheel zooms around the cursor, the middle
 * button pans, the left one selects.
 */
class TCanvas : public QGraphicsView
{
    Q_OBJECT

public:
    explicit TCanvas(QWidget* parent = nullptr);

    /** Shows a scene, zoomed to fit; null for none. */
    void Show(QGraphicsScene* newScene);

    /** Scrolls and zooms to make an item visible. */
    void Reveal(const QGraphicsItem& item);

public slots:
    /** Zooms to fit everything, or the selection. */
    void FitAll();
    void FitSelection();
    void ZoomIn();
    void ZoomOut();

signals:
    /** The left button was pressed, or released: selections in between are one gesture. */
    void sigGestureBegun();
    void sigGestureEnded();
    /** The cursor is above this point, in scene units. */
    void sigCursorMoved(const QPointF& scenePoint);
    /** A key was pressed; a receiver that uses it accepts the event. */
    void sigKey(QKeyEvent* event);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Fit(const QRectF& area);
    /** Zooms within the limits around a point of the viewport. */
    void ZoomBy(double factor, const QPoint& around);
    void ScrollBy(const QPoint& pixels);
    void EndPan();

    QRectF content;       ///< The bounding rectangle of the items.
    bool showsAll = true; ///< Until the user zooms or pans, everything is shown at any window size.
    bool isPanning = false;
    QPoint panFrom;
};
