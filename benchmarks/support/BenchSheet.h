#pragma once

#include "benchmarks/support/BenchBoard.h"

#include <application/TProject.h>
#include <application/TSchematic.h>

#include <QGraphicsView>

class TGraphicsNetItem;

namespace Bench {

/** A schematic of one page, shown by a view. */
class ShownSheet : public TSchematic
{
public:
    ShownSheet();

    /** Lets scene and view process the changes. */
    void Settle();

    TSchematicPage& Sheet() { return *page; }

    /** Places an item at scene coordinates. */
    template <class Item>
    Item* Place(const QPointF& at)
    {
        auto item = std::make_unique<Item>();
        Item* placed = item.get();
        item->setPos(at);
        page->Attach(std::move(item));
        return placed;
    }

    /** A net wire of a net, without links. */
    TGraphicsNetItem* PlaceWire(const QPointF& from, const QPointF& to, const QString& net);

    void AddNet(const QString& name) { NetModel()->AddNet(name, QStringLiteral("Default"), QColor(), QColor(), 0); }

private:
    TSchematicPage* page = AddPage();
    QGraphicsView shown;
};

/** A schematic with a board that follows it. */
class ProjectInStep
{
public:
    ProjectInStep();
    ~ProjectInStep();
    ProjectInStep(const ProjectInStep&) = delete;
    ProjectInStep& operator=(const ProjectInStep&) = delete;

    void Settle() { board.Settle(); }
    QString State();

    ShownSheet schematic;
    ShownBoard board;
    TProject project;
};

} // namespace Bench
