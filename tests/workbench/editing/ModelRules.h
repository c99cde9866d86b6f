#pragma once

#include "tests/host/StateFields.h"

#include <workspace/TLayerManager.h>

#include <QList>
#include <QVariant>

#include <functional>

namespace Test {

/** Scene units of a length in millimetres, and what single precision leaves of a number. */
double ModelScene(double millimetres);
double ModelSingle(double value);

/** A text of a state line without its quotes and escapes; never null. */
QString Unquoted(const QString& written);

/** Whether a pad lies on one layer only. */
bool IsSurface(const StateFields& pad);

/** Side of a hole's square, in scene units. */
double HoleWidth(const StateFields& hole);

/** What a command makes of one attribute of the items, in terms of their state lines. */
struct ModelAttribute
{
    using Write = std::function<void(StateFields&, const QVariant&)>;

    /** What the command keeps for undo. */
    std::function<QVariant(const StateFields&)> read;
    Write write;
    /** How items are written without an undo step; empty if just as by the command. */
    Write writeDirectly = {};
    /** Which items of the edited kind the command keeps; empty for all. */
    std::function<bool(const StateFields&)> accepts = {};
};

/** The attributes that can be edited, as the library is to edit them, on a board with these drill pairs. */
struct ModelRules
{
    explicit ModelRules(const QList<TDrillPair>& drillPairs);

    const ModelAttribute diameter;
    const ModelAttribute drill;
    const ModelAttribute thermal;
    const ModelAttribute drillPair;
    const ModelAttribute viaMaskClearance;
    const ModelAttribute padMaskClearance;
    const ModelAttribute mask;
    const ModelAttribute pasteClearance;
    const ModelAttribute paste;
    const ModelAttribute number;
    const ModelAttribute width;
    const ModelAttribute height;
    const ModelAttribute shape;
    const ModelAttribute side;
    const ModelAttribute type;
    const ModelAttribute holeSize;
};

} // namespace Test
