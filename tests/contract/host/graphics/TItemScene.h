#pragma once

#include <QGraphicsScene>

class TWorkspace;

/** What owns the items of a document. */
class TItemScene : public QGraphicsScene
{
protected:
    TWorkspace* workspace = nullptr;
    friend class TGraphicsItem;
};
