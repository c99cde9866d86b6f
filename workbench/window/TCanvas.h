#pragma once

#include <QGraphicsView>

/**
 * Shows a board or a page on a dark ground with a grid of millimetres. The wheel zooms around the cursor, the middle
 * button pans, the left one selects.
 */
class TCanvas : public QGraphicsView
{
    Q_OBJECT

public:
    explicit TCanvas(QWidget* parent = nullptr);

    /** Shows a scene, all of it, or nothing. */
    void Show(QGraphicsScene* newScene);

    /** Brings an item into view, near enough to be seen. */
    void Reveal(const QGraphicsItem& item);

public slots:
    /** Zooms so that everything, or what is selected, can be seen. */
    void FitAll();
    void FitSelection();
    void ZoomIn();
    void ZoomOut();

signals:
    /** The left button goes down, and up again: what is selected in between is one gesture. */
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
    /** Zooms as far as the limits allow; what is seen at a point of the viewport stays there. */
    void ZoomBy(double factor, const QPoint& around);
    void ScrollBy(const QPoint& pixels);
    void EndPan();

    QRectF content;       ///< Where the items lie.
    bool showsAll = true; ///< Until the user zooms or pans, all is shown whatever the size of the window.
    bool isPanning = false;
    QPoint panFrom;
};
