#pragma once

#include "TPanelEditing.h"

#include <QGraphicsView>
#include <QKeyEvent>

/** Shows a design, and forwards its keys. */
class TCanvas : public QGraphicsView
{
public:
    TCanvas(QGraphicsScene* scene, TPanelEditing& ofPanel) : QGraphicsView(scene), editing(ofPanel) {}

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        editing.ForwardKey(event);
        if (!event->isAccepted()) {
            QGraphicsView::keyPressEvent(event);
        }
    }

private:
    TPanelEditing& editing;
};
