#pragma once

#include "tests/commands/Links.h"

#include <application/TProject.h>
#include <application/TSchematic.h>

#include <QGraphicsView>
#include <QUndoStack>

#include <ostream>
#include <vector>

namespace Test {

/** Numbers that are taken modulo what there is, so that every plan can be built and shrunk. */
struct PlannedTrack
{
    int from;
    int to;
    int layer;
    int shape;
};
struct PlannedStep
{
    int action;
    int what;
    int value;
};

std::ostream& operator<<(std::ostream& stream, const PlannedTrack& track);
std::ostream& operator<<(std::ostream& stream, const PlannedStep& step);

/**
 * A board of places (vias, pads and junctions) with tracks between them, each a chain of wires, which is edited step by
 * step by way of an undo stack and compared with what it was at each index of the stack.
 */
class RandomNetwork
{
public:
    RandomNetwork(const std::vector<int>& places, const std::vector<PlannedTrack>& tracks);

    /** Does one step and tells what is wrong after it; empty for nothing. */
    QString Do(const PlannedStep& step);
    /** Undoes all and redoes all, one step after the other, and tells what is wrong. */
    QString UndoAllAndRedoAll();

    /** Goes to an index of the stack and clears it there: nothing changes, and what was made or taken off before stays
     *  as it is. Tells what is wrong. */
    QString ClearAt(int index);

    /** How often each command was made. */
    const QMap<QString, int>& Made() const { return made; }

private:
    TGraphicsItem* AddPlace(int number, int kind);
    void AddTrack(const PlannedTrack& track);
    void FitJunctions();

    QList<TGraphicsWireItem*> WiresOnBoard() const;
    QList<TGraphicsWireItem*> SomeWires(const PlannedStep& step) const;
    std::unique_ptr<QUndoCommand> Command(const PlannedStep& step);

    QString State() const;
    QString Fault() const;
    QString MoveTo(int index);
    QString WrongNet() const;

    QGraphicsView view;
    Network board;
    TSchematic schematic;
    TProject project;
    QVector<TGraphicsItem*> places;
    QUndoStack stack;
    QStringList states; ///< At each index of the stack.
    QMap<QString, int> made;
    QString commandName; ///< Of the last command that was made.
    QString coloredNet;  ///< What the last command over a net's colour was about.
    QColor newColor;
};

} // namespace Test
