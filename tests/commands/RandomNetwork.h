#pragma once

#include "tests/commands/Links.h"
#include "tests/commands/PlannedEdit.h"
#include "tests/commands/TracedStack.h"

#include <application/TProject.h>
#include <application/TSchematic.h>

#include <QGraphicsView>

#include <ostream>
#include <vector>

namespace Test {

/** A track of a random board. Its numbers are taken modulo what there is, so that every plan can be built and shrunk.
 */
struct PlannedTrack
{
    int from;
    int to;
    int layer;
    int shape;
};

std::ostream& operator<<(std::ostream& stream, const PlannedTrack& track);

/**
 * A board of places (vias, pads, junctions, and packages with pads on each other) with tracks between them, each a
 * chain of wires, which is edited step by step by way of an undo stack and compared with what it was at each index of
 * the stack.
 */
class RandomNetwork
{
public:
    RandomNetwork(const std::vector<int>& places, const std::vector<PlannedTrack>& tracks);

    /** So many actions there are. */
    static constexpr int actions = 10;
    /** Does one edit and tells what is wrong after it; empty for nothing. */
    QString Do(const PlannedEdit& edit);
    TracedStack& Stack() { return stack; }

private:
    TGraphicsItem* AddPlace(int number, int kind);
    TGraphicsPadItem* AddPackage(const QPointF& at, int kind);
    void AddTrack(const PlannedTrack& track);
    void FitJunctions();

    QList<TGraphicsWireItem*> WiresOnBoard() const;
    QList<TGraphicsWireItem*> SomeWires(const PlannedEdit& edit) const;
    template <class Item>
    QList<Item*> SomePackages(const PlannedEdit& edit) const;
    std::unique_ptr<QUndoCommand> Command(const PlannedEdit& edit);
    std::unique_ptr<QUndoCommand> PackageCommand(const PlannedEdit& edit);
    std::unique_ptr<QUndoCommand> WireCommand(const PlannedEdit& edit);

    QString State() const;
    QString Fault() const;
    QString WrongNet() const;

    QGraphicsView view;
    Network board;
    TSchematic schematic;
    TProject project;
    QVector<TGraphicsItem*> places;
    QVector<TGraphicsPackageItem*> packages;
    QString commandName; ///< Of the last command that was made.
    QString coloredNet;  ///< What the last command over a net's colour was about.
    QColor newColor;
    TracedStack stack{[this] { return State(); }, [this] { return Fault(); }}; // Destroyed before the board.
};

} // namespace Test
